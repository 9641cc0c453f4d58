#include "ZemGeomTolerance.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

CZemVertexArray circle(double cx, double cy, double r) {
    CZemVertexArray vl;
    vl.append(CZemVertex(CZemPoint3d(cx + r, cy, 0), CZemPoint3d(cx - r, cy, 0), 1.0));
    vl.append(CZemVertex(CZemPoint3d(cx - r, cy, 0), CZemPoint3d(cx + r, cy, 0), 1.0));
    return vl;
}

double totalLength(const CZemVertexArray& vl) {
    double sum = 0.0;
    for (int k = 0; k < vl.len(); ++k) sum += vl[k].bulgLen();
    return sum;
}

}  // namespace

TEST(VertexArray, ClosedContinuousAndReverted) {
    CZemVertexArray vl = circle(0, 0, 2);
    EXPECT_TRUE(vl.isClosed());
    EXPECT_TRUE(vl.isContinuous());
    vl.append(CZemVertex(CZemPoint3d(5, 5, 0), CZemPoint3d(6, 5, 0), 0.0));
    EXPECT_FALSE(vl.isClosed());
    EXPECT_FALSE(vl.isContinuous());
    EXPECT_TRUE(CZemVertexArray().isContinuous());
    EXPECT_FALSE(CZemVertexArray().isClosed());

    const CZemVertexArray before = vl;
    vl.revert();
    ASSERT_EQ(vl.len(), 3);
    for (int k = 0; k < 3; ++k) {
        const CZemVertex& a = before[k];
        const CZemVertex& b = vl[2 - k];
        EXPECT_EQ(a.m_start, b.m_end);
        EXPECT_EQ(a.m_end, b.m_start);
        EXPECT_NEAR(a.mid().distanceTo(b.mid()), 0.0, 1e-12) << "arc " << k << " keeps its shape";
    }
}

TEST(VertexArray, TransformsKeepArcsThroughTurnsAndMirrors) {
    const CZemVertexArray c = circle(3, 1, 2);
    CZemMatrix3d mirror;
    mirror.setCoordSystem(CZemPoint3d(10, 0, 0), CZemVector3d(-1, 0, 0), CZemVector3d(0, 1, 0), CZemVector3d(0, 0, 1));
    const CZemVertexArray m = c.getTransformedCopy(mirror);
    EXPECT_EQ(m.normal(), CZemVector3d::kZAxis) << "a mirror in the plane turns the bulges instead of the normal";
    for (int k = 0; k < 2; ++k) {
        const CZemPoint3d expected = c[k].mid() * static_cast<const double (*)[4]>(mirror);
        EXPECT_NEAR(m[k].mid().distanceTo(expected), 0.0, 1e-12);
    }
    CZemMatrix3d tilt;
    tilt.setToRotation(0.7, CZemVector3d(1, 2, 0), CZemPoint3d(0, 0, 0));
    const CZemVertexArray t = c.getTransformedCopy(tilt);
    const CZemVector3d n = CZemVector3d::kZAxis * static_cast<const double (*)[4]>(tilt);
    EXPECT_NEAR((t.normal() - n).abs(), 0.0, 1e-12);
    CZemPoint3d lo, hi;
    ASSERT_TRUE(t.extents(lo, hi));
    // A tilted circle's extents along axis k: centre +- r sqrt(1 - n_k^2).
    const CZemPoint3d centre = CZemPoint3d(3, 1, 0) * static_cast<const double (*)[4]>(tilt);
    const double ext[3] = {2 * std::sqrt(1 - n.x * n.x), 2 * std::sqrt(1 - n.y * n.y), 2 * std::sqrt(1 - n.z * n.z)};
    EXPECT_NEAR(lo.x, centre.x - ext[0], 1e-9);
    EXPECT_NEAR(hi.y, centre.y + ext[1], 1e-9);
    EXPECT_NEAR(lo.z, centre.z - ext[2], 1e-9);

    CZemVertexArray moved = c;
    moved.move(CZemVector3d(1, 2, 3));
    EXPECT_EQ(moved[1].m_end, CZemPoint3d(6, 3, 3));
}

TEST(VertexArray, ExtentsAreThoseOfTheArcsNotOfTheirEnds) {
    CZemPoint3d lo(-7, -7, -7), hi(7, 7, 7);
    EXPECT_FALSE(CZemVertexArray().extents(lo, hi));
    EXPECT_EQ(lo, CZemPoint3d(-7, -7, -7)) << "an empty list leaves the corners";
    ASSERT_TRUE(circle(1, 2, 3).extents(lo, hi));
    EXPECT_NEAR(lo.x, -2, 1e-12);
    EXPECT_NEAR(lo.y, -1, 1e-12);
    EXPECT_NEAR(hi.x, 4, 1e-12);
    EXPECT_NEAR(hi.y, 5, 1e-12);
    // A quarter arc from (1,0) to (0,1) about the origin reaches no axis
    // extreme inside; the one from (0,1) round to (1,0) passes three.
    CZemVertexArray q(CZemVertex(CZemPoint3d(1, 0, 0), CZemPoint3d(0, 1, 0), std::tan(kPi / 8)));
    ASSERT_TRUE(q.extents(lo, hi));
    EXPECT_NEAR(hi.x, 1, 1e-12);
    EXPECT_NEAR(hi.y, 1, 1e-12);
    q.revert()[0].m_bulge = 1.0 / std::tan(kPi / 8);  // the 270 degree way back
    ASSERT_TRUE(q.extents(lo, hi));
    EXPECT_NEAR(lo.x, -1, 1e-12);
    EXPECT_NEAR(lo.y, -1, 1e-12);
    CZemVertexArray bad(CZemVertex(CZemPoint3d(std::nan(""), 0, 0), CZemPoint3d(1, 1, 1), 0.0));
    bad.append(CZemVertex(CZemPoint3d(2, 3, 4), CZemPoint3d(5, 6, 7), 0.0));
    ASSERT_TRUE(bad.extents(lo, hi));
    EXPECT_EQ(lo, CZemPoint3d(2, 3, 4)) << "vertices that are not finite are left out";
}

TEST(VertexArray, FlattenedArcsStayWithinTheTolerance) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> coord(-50, 50), bulge(-3, 3);
    for (const double tol : {0.5, 0.05, 0.001}) {
        for (int round = 0; round < 40; ++round) {
            const CZemVertex v(CZemPoint3d(coord(rng), coord(rng), 0), CZemPoint3d(coord(rng), coord(rng), 0), bulge(rng));
            const CZemPoint3dArray p = CZemVertexArray(v).pts(true, tol);
            ASSERT_GE(p.len(), 2);
            EXPECT_EQ(p[0], v.m_start);
            EXPECT_EQ(p[-1], v.m_end);
            // Centre from the bulge: every point lies on the circle, every
            // chord's middle at most tol inside it.
            const double b = v.m_bulge, c = v.m_start.distanceTo(v.m_end);
            const double r = c * (1 + b * b) / (4 * std::fabs(b));
            const CZemPoint3d arcMid = v.mid();
            const CZemVector3d chordMid = (v.m_start.asVector() + v.m_end.asVector()) * 0.5;
            const CZemVector3d toCentre = chordMid - arcMid.asVector();
            const CZemPoint3d centre = arcMid + toCentre * (r / toCentre.abs());
            double length = 0.0;
            for (int k = 0; k < p.len(); ++k) {
                EXPECT_NEAR(p[k].distanceTo(centre), r, 1e-9 * r);
                if (k == 0) continue;
                const CZemPoint3d m((p[k].x + p[k - 1].x) / 2, (p[k].y + p[k - 1].y) / 2, 0);
                EXPECT_LE(r - m.distanceTo(centre), tol * (1 + 1e-9));
                length += p[k].distanceTo(p[k - 1]);
            }
            EXPECT_LE(length, v.bulgLen() + 1e-9);
        }
    }
    EXPECT_EQ(CZemVertexArray(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(4, 0, 0), 1.0)).pts(false, 0.1).len(), 2);
}

TEST(VertexArray, BreakingSplitsInsideOnly) {
    CZemVertexArray arc(CZemVertex(CZemPoint3d(2, 0, 0), CZemPoint3d(-2, 0, 0), 1.0));
    const double whole = totalLength(arc);
    const CZemPoint3d on(2 * std::cos(1.0), 2 * std::sin(1.0), 0);
    arc.breakVertex(0, on);
    ASSERT_EQ(arc.len(), 2);
    EXPECT_EQ(arc[0].m_end, on);
    EXPECT_EQ(arc[1].m_start, on);
    EXPECT_NEAR(arc[0].bulgLen(), 2.0, 1e-12) << "one radian of radius 2";
    EXPECT_NEAR(totalLength(arc), whole, 1e-12);
    EXPECT_TRUE(arc[1].isPoint(CZemPoint3d(0, 2, 0)));

    CZemVertexArray line(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(4, 0, 0), 0.0));
    EXPECT_EQ(line.breakVertex(0, CZemPoint3d(0, 0, 0)).len(), 1) << "an end does not split";
    EXPECT_EQ(line.breakVertex(0, CZemPoint3d(2, 0.1, 0)).len(), 1) << "a point off the vertex does not split";
    EXPECT_EQ(line.breakVertex(3, CZemPoint3d(2, 0, 0)).len(), 1);
    EXPECT_EQ(line.breakVertex(0, CZemPoint3d(1, 0, 0)).len(), 2);
}

TEST(VertexArray, FromPointsMakesStraightSegments) {
    CZemPoint3dArray p;
    p.append(CZemPoint3d(0, 0, 0)).append(CZemPoint3d(1, 0, 0)).append(CZemPoint3d(1, 0, 0)).append(CZemPoint3d(1, 1, 0));
    CZemVertexArray vl(CZemVertex(CZemPoint3d(9, 9, 9), CZemPoint3d(8, 8, 8), 0.5));
    vl.fromPoints(p, true);
    ASSERT_EQ(vl.len(), 3) << "the repeated point is skipped and the list closed";
    EXPECT_TRUE(vl.isClosed());
    EXPECT_TRUE(vl.isContinuous());
    EXPECT_EQ(vl[2].m_end, CZemPoint3d(0, 0, 0));
    EXPECT_EQ(vl[1].m_bulge, 0.0);
    EXPECT_EQ(vl.fromPoints(p, false).len(), 2);
    EXPECT_EQ(vl.fromPoints(CZemPoint3dArray(), true).len(), 0);
}
