#include "GeometryShapes.h"
#include "ZemGeomTolerance.h"
#include "ZemVertex.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace shapes;

namespace {

void expectAt(const CZemPoint3d& p, double x, double y) { EXPECT_NEAR(p.distanceTo(CZemPoint3d(x, y, 0)), 0.0, 1e-9); }

}  // namespace

TEST(Vertex, LengthMiddleAndFootFollowTheArc) {
    EXPECT_NEAR(CZemVertex(CZemPoint3d(-2, 0, 0), CZemPoint3d(2, 0, 0), 1.0).bulgLen(), 2.0 * kPi, 1e-12);
    // A quarter circle of radius 3 (bulge tan 22.5 degrees) in a tilted plane.
    EXPECT_NEAR(CZemVertex(CZemPoint3d(3, 0, 0), CZemPoint3d(0, 0, 3), std::tan(kPi / 8)).bulgLen(), 1.5 * kPi, 1e-12);
    EXPECT_EQ(CZemVertex(CZemPoint3d(std::nan(""), 0, 0), CZemPoint3d(1, 0, 0), 0.5).bulgLen(), 0.0);
    // A positive bulge turns counter-clockwise: from (-1,0) to (1,0) below the chord.
    const CZemVertex ccw(CZemPoint3d(-1, 0, 0), CZemPoint3d(1, 0, 0), 1.0);
    expectAt(ccw.mid(), 0, -1);
    expectAt(CZemVertex(CZemPoint3d(-1, 0, 0), CZemPoint3d(1, 0, 0), -1.0).mid(), 0, 1);
    expectAt(ccw.lotp(CZemPoint3d(0.3, -0.4, 0)), 0.6, -0.8);
    expectAt(ccw.lotp(CZemPoint3d(0.2, 0.1, 0)), 1, 0);  // a foot outside the arc goes to the nearer end
    expectAt(line(0, 0, 10, 0)[0].lotp(CZemPoint3d(-5, 1, 0)), 0, 0);
    // A flat arc of radius 1000 (10 degrees): its middle lies on the circle.
    const double half = 1000.0 * std::sin(5.0 * kPi / 180.0);
    const CZemVertex flat(CZemPoint3d(-half, 0, 0), CZemPoint3d(half, 0, 0), std::tan(10.0 * kPi / 180.0 / 4.0));
    EXPECT_NEAR(flat.mid().y, -1000.0 * (1.0 - std::cos(5.0 * kPi / 180.0)), 1e-9);
}

TEST(Vertex, PointsOnTheVertexAndInAListWithinTheTolerance) {
    const CZemVertex arc(CZemPoint3d(5, 0, 0), CZemPoint3d(0, 5, 0), std::tan(kPi / 8));
    for (int k = 0; k <= 9; ++k) EXPECT_TRUE(arc.isPoint(CZemPoint3d(5 * std::cos(k * kPi / 18), 5 * std::sin(k * kPi / 18), 0)));
    EXPECT_TRUE(arc.isPoint(CZemPoint3d(5 + 0.5 * ZEM::kDistTol, 0, 0)));
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(5 * std::cos(0.3) + 2 * ZEM::kDistTol, 5 * std::sin(0.3), 0)));
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(-5, 0, 0)) || arc.isPoint(CZemPoint3d(2.5, 2.5, 0))) << "the circle and chord";
    EXPECT_FALSE(arc.isPoint(CZemPoint3d(std::nan(""), 0, 0)));

    CZemPoint3dArray p;
    p.append(CZemPoint3d(1, 2, 3)).append(CZemPoint3d(4, 5, 6)).append(CZemPoint3d(4, 5, 6));
    EXPECT_EQ(p.indexOf(CZemPoint3d(4, 5, 6)), 1) << "the first of equal points";
    EXPECT_EQ(p.indexOf(CZemPoint3d(1, 2, 3 + 0.5 * ZEM::kDistTol)), 0);
    EXPECT_LT(p.indexOf(CZemPoint3d(1, 2, 3 + 2 * ZEM::kDistTol)), 0);
    p.append(CZemPoint3d(std::nan(""), 0, 0)).append(CZemPoint3d(-1, 5, 0)).append(CZemPoint3d(4, -7, 0));
    EXPECT_LT(p.indexOf(p[3]), 0);
    p.sort(CZemVector3d(-2, 0, 0));
    EXPECT_TRUE(p[0] == CZemPoint3d(4, 5, 6) && p[2] == CZemPoint3d(4, -7, 0)) << "equal places keep their order";
    EXPECT_TRUE(p[3] == CZemPoint3d(1, 2, 3) && p[4] == CZemPoint3d(-1, 5, 0));
    EXPECT_TRUE(std::isnan(p[5].x)) << "points that are not finite go last";
}
