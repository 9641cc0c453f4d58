#include "ZemGeomTolerance.h"
#include "ZemVertex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

const double kPi = 3.141592653589793;

void expectAt(const CZemPoint3d& p, double x, double y, double z = 0.0) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
    EXPECT_NEAR(p.z, z, 1e-9);
}

}  // namespace

TEST(Vertex, LengthFollowsTheArc) {
    const CZemVertex half(CZemPoint3d(-2, 0, 0), CZemPoint3d(2, 0, 0), 1.0);
    EXPECT_NEAR(half.bulgLen(), 2.0 * kPi, 1e-12) << "a half circle is pi times the radius";
    // A quarter circle of radius 3 (bulge tan 22.5 degrees) in a tilted plane.
    const CZemVertex quarter(CZemPoint3d(3, 0, 0), CZemPoint3d(0, 0, 3), std::tan(kPi / 8));
    EXPECT_NEAR(quarter.bulgLen(), 1.5 * kPi, 1e-12);
    EXPECT_NEAR(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(3, 4, 0), 1e-14).bulgLen(), 5.0, 1e-12);
    EXPECT_EQ(CZemVertex(CZemPoint3d(std::nan(""), 0, 0), CZemPoint3d(1, 0, 0), 0.5).bulgLen(), 0.0);
}

TEST(Vertex, MiddleAndFootLieOnTheArc) {
    // A positive bulge turns counter-clockwise: from (-1,0) to (1,0) below the chord.
    const CZemVertex ccw(CZemPoint3d(-1, 0, 0), CZemPoint3d(1, 0, 0), 1.0);
    expectAt(ccw.mid(), 0, -1);
    expectAt(CZemVertex(CZemPoint3d(-1, 0, 0), CZemPoint3d(1, 0, 0), -1.0).mid(), 0, 1);
    expectAt(ccw.lotp(CZemPoint3d(0, -5, 0)), 0, -1);
    expectAt(ccw.lotp(CZemPoint3d(0.3, -0.4, 0)), 0.6, -0.8);
    // A foot outside the arc goes to the nearer end.
    expectAt(ccw.lotp(CZemPoint3d(0.2, 0.1, 0)), 1, 0);
    const CZemVertex line(CZemPoint3d(0, 0, 0), CZemPoint3d(10, 0, 0), 0.0);
    expectAt(line.lotp(CZemPoint3d(4, 7, 0)), 4, 0);
    expectAt(line.lotp(CZemPoint3d(-5, 1, 0)), 0, 0);

    // A flat arc of radius 1000 (10 degrees): its middle lies on the circle.
    const double b = std::tan(10.0 * kPi / 180.0 / 4.0);
    const double half = 1000.0 * std::sin(5.0 * kPi / 180.0);
    const CZemVertex flat(CZemPoint3d(-half, 0, 0), CZemPoint3d(half, 0, 0), b);
    const double sagitta = 1000.0 * (1.0 - std::cos(5.0 * kPi / 180.0));
    EXPECT_NEAR(flat.mid().y, -sagitta, 1e-9);
}

TEST(Vertex, PointsOnTheVertexWithinTheStatedTolerance) {
    const CZemVertex arc(CZemPoint3d(5, 0, 0), CZemPoint3d(0, 5, 0), std::tan(kPi / 8));
    for (int k = 0; k <= 9; ++k) EXPECT_TRUE(arc.isPoint(CZemPoint3d(5 * std::cos(k * kPi / 18), 5 * std::sin(k * kPi / 18), 0)));
    EXPECT_TRUE(arc.isPoint(CZemPoint3d(5 + 0.5 * ZEM::kDistTol, 0, 0)));
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(5 * std::cos(0.3) + 2 * ZEM::kDistTol, 5 * std::sin(0.3), 0)));
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(-5, 0, 0))) << "the other side of the circle is not on the arc";
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(2.5, 2.5, 0))) << "the chord is not on the arc";
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(std::nan(""), 0, 0)));
}
