#include "GeometryShapes.h"
#include "ZemGeomTolerance.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace shapes;

namespace {

void expectAt(const CZemPoint3d& p, double x, double y) { EXPECT_NEAR(p.distanceTo(CZemPoint3d(x, y, 0)), 0.0, 1e-9); }

}  // namespace

TEST(VertexArray, RevertedFromPointsAndBrokenListsKeepTheirShape) {
    CZemVertexArray vl = circle(0, 0, 2);
    EXPECT_TRUE(vl.isClosed() && vl.isContinuous());
    vl.append(CZemVertex(CZemPoint3d(5, 5, 0), CZemPoint3d(6, 5, 0), 0.0));
    EXPECT_FALSE(vl.isClosed() || vl.isContinuous());
    const CZemVertexArray before = vl;
    vl.revert();
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(before[k].m_start, vl[2 - k].m_end);
        EXPECT_NEAR(before[k].mid().distanceTo(vl[2 - k].mid()), 0.0, 1e-12) << "arc " << k << " keeps its shape";
    }
    const CZemVertexArray corner = polygon({{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {1, 1, 0}});
    EXPECT_TRUE(corner.len() == 3 && corner.isClosed()) << "the repeated point is skipped and the list closed";

    CZemVertexArray arc(CZemVertex(CZemPoint3d(2, 0, 0), CZemPoint3d(-2, 0, 0), 1.0));
    const CZemPoint3d on(2 * std::cos(1.0), 2 * std::sin(1.0), 0);
    ASSERT_EQ(arc.breakVertex(0, on).len(), 2);
    EXPECT_EQ(arc[1].m_start, on);
    EXPECT_NEAR(arc[0].bulgLen(), 2.0, 1e-12) << "one radian of radius 2";
    EXPECT_NEAR(arc[1].bulgLen(), 2 * kPi - 2.0, 1e-12);
    CZemVertexArray l = line(0, 0, 4, 0);
    EXPECT_EQ(l.breakVertex(0, CZemPoint3d(0, 0, 0)).len(), 1) << "an end does not split";
    EXPECT_EQ(l.breakVertex(0, CZemPoint3d(2, 0.1, 0)).breakVertex(3, CZemPoint3d(2, 0, 0)).len(), 1);
}

TEST(VertexArray, TransformsAndExtentsFollowTheArcs) {
    const CZemVertexArray c = circle(3, 1, 2);
    CZemMatrix3d mirror, tilt;
    mirror.setCoordSystem(CZemPoint3d(10, 0, 0), CZemVector3d(-1, 0, 0), CZemVector3d(0, 1, 0), CZemVector3d(0, 0, 1));
    const CZemVertexArray m = c.getTransformedCopy(mirror);
    EXPECT_EQ(m.normal(), CZemVector3d::kZAxis) << "a mirror in the plane turns the bulges, not the normal";
    EXPECT_NEAR(m[0].mid().distanceTo(c[0].mid() * static_cast<const double (*)[4]>(mirror)), 0.0, 1e-12);
    tilt.setToRotation(0.7, CZemVector3d(1, 2, 0), CZemPoint3d(0, 0, 0));
    const CZemVertexArray t = c.getTransformedCopy(tilt);
    const CZemVector3d n = CZemVector3d::kZAxis * static_cast<const double (*)[4]>(tilt);
    EXPECT_NEAR((t.normal() - n).abs(), 0.0, 1e-12);
    // A tilted circle reaches r sqrt(1 - n_k^2) from its centre along axis k.
    CZemPoint3d lo(-7, -7, -7), hi(7, 7, 7);
    ASSERT_TRUE(t.extents(lo, hi));
    const CZemPoint3d centre = CZemPoint3d(3, 1, 0) * static_cast<const double (*)[4]>(tilt);
    EXPECT_NEAR(lo.x, centre.x - 2 * std::sqrt(1 - n.x * n.x), 1e-9);
    EXPECT_NEAR(hi.y, centre.y + 2 * std::sqrt(1 - n.y * n.y), 1e-9);
    EXPECT_NEAR(lo.z, centre.z - 2 * std::sqrt(1 - n.z * n.z), 1e-9);
    // From (0,1) the long way round to (1,0): 270 degrees about the origin.
    const CZemVertexArray q(CZemVertex(CZemPoint3d(0, 1, 0), CZemPoint3d(1, 0, 0), 1.0 / std::tan(kPi / 8)));
    ASSERT_TRUE(q.extents(lo, hi));
    EXPECT_NEAR(lo.distanceTo(CZemPoint3d(-1, -1, 0)) + hi.distanceTo(CZemPoint3d(1, 1, 0)), 0.0, 1e-12);
    EXPECT_FALSE(CZemVertexArray().extents(lo, hi));
    EXPECT_EQ(lo, CZemPoint3d(-1, -1, 0)) << "an empty list leaves the corners";
}

TEST(VertexArray, FlattenedArcsStayWithinTheTolerance) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> coord(-50, 50), bulge(-3, 3);
    for (const double tol : {0.5, 0.05, 0.001}) {
        for (int round = 0; round < 40; ++round) {
            const CZemVertex v(CZemPoint3d(coord(rng), coord(rng), 0), CZemPoint3d(coord(rng), coord(rng), 0), bulge(rng));
            const CZemPoint3dArray p = CZemVertexArray(v).pts(true, tol);
            EXPECT_TRUE(p[0] == v.m_start && p[-1] == v.m_end);
            // The centre lies r from the arc's middle towards the chord's.
            const double b = v.m_bulge, r = v.m_start.distanceTo(v.m_end) * (1 + b * b) / (4 * std::fabs(b));
            const CZemVector3d toChord = (v.m_start.asVector() + v.m_end.asVector()) * 0.5 - v.mid().asVector();
            const CZemPoint3d centre = v.mid() + toChord * (r / toChord.abs());
            for (int k = 1; k < p.len(); ++k) {
                EXPECT_NEAR(p[k].distanceTo(centre), r, 1e-9 * r);
                const CZemPoint3d m((p[k].x + p[k - 1].x) / 2, (p[k].y + p[k - 1].y) / 2, 0);
                EXPECT_LE(r - m.distanceTo(centre), tol * (1 + 1e-9)) << "no chord leaves the arc by more";
            }
        }
    }
    EXPECT_EQ(circle(0, 0, 4).pts(false, 0.1).len(), 3) << "without flattening, only the ends";
}

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
