#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemVector3d.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = 3.141592653589793;

void expectNear(const CZemPoint3d& actual, double x, double y, double z) {
    EXPECT_NEAR(actual.distanceTo(CZemPoint3d(x, y, z)), 0.0, 1e-9) << actual.x << ", " << actual.y << ", " << actual.z;
}

void expectSame(const CZemMatrix3d& m, const CZemMatrix3d& n) {
    const double(&a)[4][4] = m;
    const double(&b)[4][4] = n;
    for (int r = 0; r < 4; ++r)
        for (int k = 0; k < 4; ++k) EXPECT_NEAR(a[r][k], b[r][k], 1e-12) << r << "," << k;
}

}  // namespace

TEST(Matrix, ProductsApplyTheRightFactorFirstAndInversesUndo) {
    CZemMatrix3d move, turn;
    move.setToTranslation(CZemVector3d(10, 0, 0));
    turn.setToRotation(kPi / 2, CZemVector3d::kZAxis, CZemPoint3d::kOrigin);
    expectNear(CZemPoint3d(1, 0, 0) * (move * turn), 10, 1, 0);
    expectNear(CZemPoint3d(1, 0, 0) * (turn * move), 0, 11, 0);
    EXPECT_EQ(static_cast<const double(&)[4][4]>(move)[0][3], 10.0) << "translation stands in the last column";

    CZemMatrix3d m[5];
    m[0].setToSRM(CZemPoint3d(2, -3, 0.5), 1.3, CZemVector3d(7, 8, 9));
    m[1].setToRotation(-0.7, CZemVector3d(0.3, -1, 2), CZemPoint3d(1, 2, 3));
    m[2].setToScaling(4.0, CZemPoint3d(-2, 5, 1));
    m[3].setToPlaneToWorld(CZemVector3d(1, 1, 1));
    m[4].setCoordSystem(CZemPoint3d(1, 2, 3), CZemVector3d(2, 0, 0), CZemVector3d(0, -1, 0), CZemVector3d(0, 0, 3));
    for (const CZemMatrix3d& t : m) {
        expectSame(t * t.inverse(), CZemMatrix3d::kIdentity);
        expectSame(t.inverse() * t, CZemMatrix3d::kIdentity);
    }
    CZemMatrix3d singular;
    singular.setToScaling(0.0, CZemPoint3d::kOrigin);
    expectSame(singular.inverse(), CZemMatrix3d::kIdentity);
    // A group move: an item placed by m[0] times the change to m[1] lands on m[1].
    CZemMatrix3d item = m[0];
    item *= m[1] * m[0].inverse();
    expectSame(item, m[1]);
}

TEST(Matrix, BuildersAgainstHandComputedPoints) {
    CZemMatrix3d srm, frame, scale, turn;
    srm.setToSRM(CZemPoint3d(2, 3, 1), kPi / 2, CZemVector3d(10, 20, 0));
    expectNear(CZemPoint3d(1, 1, 0) * srm, 7, 22, 0);  // scaled to (2, 3), turned a quarter to (-3, 2), moved
    EXPECT_NEAR((CZemVector3d(1, 0, 0) * srm).abs(), 2.0, 1e-12) << "directions ignore the translation";
    frame.setCoordSystem(CZemPoint3d(1, 2, 3), CZemVector3d(2, 0, 0), CZemVector3d(0, -1, 0), CZemVector3d(0, 0, 1));
    expectNear(CZemPoint3d(1, 0, 0) * frame, 3, 2, 3);
    expectNear(CZemPoint3d(0, 1, 0) * frame, 1, 1, 3);
    scale.setToScaling(3.0, CZemPoint3d(1, 1, 0));
    expectNear(CZemPoint3d(2, 1, 0) * scale, 4, 1, 0);
    turn.setToRotation(kPi, CZemVector3d(0, 0, 5), CZemPoint3d(1, 0, 0));
    expectNear(CZemPoint3d(2, 0, 7) * turn, 0, 0, 7);
}

TEST(Matrix, PlaneToWorldIsARightHandedFrameOnTheNormal) {
    for (const CZemVector3d& n : {CZemVector3d(0, 0, -1), CZemVector3d(0.01, 0.001, 1), CZemVector3d(-2, 3, 0.5)}) {
        CZemMatrix3d m;
        m.setToPlaneToWorld(n);
        const CZemVector3d x = CZemVector3d::kXAxis * m, y = CZemVector3d::kYAxis * m, z = CZemVector3d::kZAxis * m;
        EXPECT_NEAR((z * n.abs() - n).abs(), 0.0, 1e-12);
        EXPECT_NEAR(x.dotProduct(y), 0.0, 1e-12);
        EXPECT_NEAR(((z * x) - y).abs(), 0.0, 1e-12) << "z * x gives y";
        EXPECT_NEAR(x.abs(), 1.0, 1e-12);
    }
    CZemMatrix3d flat;
    flat.setToPlaneToWorld(CZemVector3d::kZAxis);
    expectSame(flat, CZemMatrix3d::kIdentity);
}
