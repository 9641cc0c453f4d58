#include "ZemBase.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemVector3d.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = 3.141592653589793;

void expectNear(const CZemPoint3d& actual, double x, double y, double z) {
    EXPECT_NEAR(actual.x, x, 1e-9);
    EXPECT_NEAR(actual.y, y, 1e-9);
    EXPECT_NEAR(actual.z, z, 1e-9);
}

void expectIdentity(const CZemMatrix3d& m) {
    const double (&c)[4][4] = m;
    for (int r = 0; r < 4; ++r) {
        for (int k = 0; k < 4; ++k) EXPECT_NEAR(c[r][k], r == k ? 1.0 : 0.0, 1e-12) << r << "," << k;
    }
}

}  // namespace

TEST(Matrix, ProductAppliesTheRightFactorFirst) {
    CZemMatrix3d move, turn;
    move.setToTranslation(CZemVector3d(10, 0, 0));
    turn.setToRotation(kPi / 2, CZemVector3d::kZAxis, CZemPoint3d::kOrigin);
    expectNear(CZemPoint3d(1, 0, 0) * (move * turn), 10, 1, 0);
    expectNear(CZemPoint3d(1, 0, 0) * (turn * move), 0, 11, 0);
    const double (&cells)[4][4] = move;
    EXPECT_EQ(cells[0][3], 10.0) << "translation stands in the last column";
}

TEST(Matrix, GroupMoveBringsTheReferenceItemToItsNewPlace) {
    CZemMatrix3d oldM, newM, other;
    oldM.setToSRM(CZemPoint3d(2, 3, 1), 0.4, CZemVector3d(5, -1, 2));
    newM.setToRotation(1.1, CZemVector3d(1, 2, 3), CZemPoint3d(4, 4, 4));
    other.setToScaling(0.5, CZemPoint3d(1, 1, 1));
    const CZemMatrix3d delta = newM * oldM.inverse();
    CZemMatrix3d item = oldM;
    item *= delta;
    const double (&a)[4][4] = item;
    const double (&b)[4][4] = newM;
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) EXPECT_NEAR(a[r][c], b[r][c], 1e-12);
    }
    CZemMatrix3d moved = other;
    moved *= delta;
    expectNear(CZemPoint3d(1, 2, 3) * moved, (CZemPoint3d(1, 2, 3) * other * delta).x,
               (CZemPoint3d(1, 2, 3) * other * delta).y, (CZemPoint3d(1, 2, 3) * other * delta).z);
}

TEST(Matrix, InverseUndoesEveryTransform) {
    CZemMatrix3d m[5];
    m[0].setToSRM(CZemPoint3d(2, -3, 0.5), 1.3, CZemVector3d(7, 8, 9));
    m[1].setToRotation(-0.7, CZemVector3d(0.3, -1, 2), CZemPoint3d(1, 2, 3));
    m[2].setToScaling(4.0, CZemPoint3d(-2, 5, 1));
    m[3].setToPlaneToWorld(CZemVector3d(1, 1, 1));
    m[4].setCoordSystem(CZemPoint3d(1, 2, 3), CZemVector3d(2, 0, 0), CZemVector3d(0, -1, 0), CZemVector3d(0, 0, 3));
    for (const CZemMatrix3d& t : m) {
        expectIdentity(t * t.inverse());
        expectIdentity(t.inverse() * t);
    }
    CZemMatrix3d singular;
    singular.setToScaling(0.0, CZemPoint3d::kOrigin);
    expectIdentity(singular.inverse());
}

TEST(Matrix, BuildersAgainstHandComputedPoints) {
    CZemMatrix3d srm;
    srm.setToSRM(CZemPoint3d(2, 3, 1), kPi / 2, CZemVector3d(10, 20, 0));
    // (1, 1) scaled to (2, 3), turned a quarter to (-3, 2), moved.
    expectNear(CZemPoint3d(1, 1, 0) * srm, 7, 22, 0);

    CZemMatrix3d frame;
    frame.setCoordSystem(CZemPoint3d(1, 2, 3), CZemVector3d(2, 0, 0), CZemVector3d(0, -1, 0), CZemVector3d(0, 0, 1));
    expectNear(CZemPoint3d(1, 0, 0) * frame, 3, 2, 3);
    expectNear(CZemPoint3d(0, 1, 0) * frame, 1, 1, 3);

    CZemMatrix3d scale;
    scale.setToScaling(3.0, CZemPoint3d(1, 1, 0));
    expectNear(CZemPoint3d(2, 1, 0) * scale, 4, 1, 0);

    CZemMatrix3d turn;
    turn.setToRotation(kPi, CZemVector3d(0, 0, 5), CZemPoint3d(1, 0, 0));
    expectNear(CZemPoint3d(2, 0, 7) * turn, 0, 0, 7);

    const CZemVector3d dir = CZemVector3d(1, 0, 0) * srm;
    EXPECT_NEAR(dir.abs(), 2.0, 1e-12) << "directions ignore the translation";
}

TEST(Matrix, PlaneToWorldIsARightHandedFrameOnTheNormal) {
    const CZemVector3d normals[] = {{0, 0, 1}, {0, 0, -1}, {1, 0, 0}, {0.01, 0.001, 1}, {-2, 3, 0.5}};
    for (const CZemVector3d& n : normals) {
        CZemMatrix3d m;
        m.setToPlaneToWorld(n);
        const CZemVector3d x = CZemVector3d::kXAxis * m, y = CZemVector3d::kYAxis * m;
        const CZemVector3d z = CZemVector3d::kZAxis * m;
        CZemVector3d unit(n);
        unit.normalize();
        EXPECT_NEAR((z - unit).abs(), 0.0, 1e-12);
        EXPECT_NEAR(x.dotProduct(y), 0.0, 1e-12);
        EXPECT_NEAR(((z * x) - y).abs(), 0.0, 1e-12) << "z * x gives y";
        EXPECT_NEAR(x.abs(), 1.0, 1e-12);
    }
    CZemMatrix3d flat;
    flat.setToPlaneToWorld(CZemVector3d::kZAxis);
    expectIdentity(flat);
}

TEST(Matrix, PointAndVectorHelpers) {
    EXPECT_TRUE(ZEM::p_min(CZemPoint3d(1, 5, -2), CZemPoint3d(3, 0, 4)) == CZemPoint3d(1, 0, -2));
    EXPECT_TRUE(ZEM::p_max(CZemPoint3d(1, 5, -2), CZemPoint3d(3, 0, 4)) == CZemPoint3d(3, 5, 4));
    expectNear(ZEM::polar(CZemPoint3d(1, 1, 2), kPi / 2, 3).asVector().asPoint(), 1, 4, 2);
    EXPECT_NEAR(CZemPoint3d(1, 1, 1).distanceTo(CZemPoint3d(4, 5, 1)), 5.0, 1e-12);
    EXPECT_TRUE(std::isnan(ZEM::nan()));
    const CZemVector3d y = CZemVector3d::kZAxis * CZemVector3d::kXAxis;
    EXPECT_TRUE(y == CZemVector3d::kYAxis);
    CZemPoint3d p(1, 2, 3);
    double* xyz = p;
    xyz[2] = 9;
    EXPECT_EQ(p.z, 9.0);
}
