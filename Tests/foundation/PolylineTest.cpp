#include "GeometryShapes.h"
#include "ZemGeomTolerance.h"
#include "ZemMatrix3d.h"
#include "ZemPolyline.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace shapes;

TEST(Polyline, OrientationFollowsTheEnclosedArea) {
    CZemVertexArray sq = square(0, 0, 4), c = circle(0, 0, 2);
    EXPECT_TRUE(ZEM::g_vl_orient(sq, CZemVector3d::kZAxis));
    EXPECT_FALSE(ZEM::g_vl_orient(sq, -CZemVector3d::kZAxis) || ZEM::g_vl_orient(sq.revert(), CZemVector3d::kZAxis));
    // Two half circles: the chords enclose nothing, the arcs everything.
    EXPECT_TRUE(ZEM::g_vl_orient(c, CZemVector3d::kZAxis));
    EXPECT_FALSE(ZEM::g_vl_orient(c.revert(), CZemVector3d::kZAxis));
    // A deep concave bite: the arcs outweigh the chords.
    CZemVertexArray bitten = line(0, 0, 1, 0);
    bitten.append(CZemVertex(CZemPoint3d(1, 0, 0), CZemPoint3d(0, 0.001, 0), -20.0));
    EXPECT_FALSE(ZEM::g_vl_orient(bitten, CZemVector3d::kZAxis));
    CZemMatrix3d tilt;
    tilt.setToRotation(2.0, CZemVector3d(1, 1, 0), CZemPoint3d(3, 3, 3));
    const CZemVector3d n = CZemVector3d::kZAxis * static_cast<const double (*)[4]>(tilt);
    EXPECT_TRUE(ZEM::g_vl_orient(circle(0, 0, 2).getTransformedCopy(tilt), n));
    EXPECT_FALSE(ZEM::g_vl_orient(CZemVertexArray(), CZemVector3d::kZAxis));
}

TEST(Polyline, BoxesInATurnedFrame) {
    // Turned by 45 degrees the unit square spans sqrt 2 along the frame's x and
    // from -1/sqrt 2 to 1/sqrt 2 across it; the box comes back in drawing space.
    const CZemPoint3dArray turned = ZEM::g_vl_extmax(square(0, 0, 1), kPi / 4);
    EXPECT_NEAR(turned[0].distanceTo(CZemPoint3d(0.5, -0.5, 0)) + turned[1].distanceTo(CZemPoint3d(0.5, 1.5, 0)), 0, 1e-12);
    const CZemPoint3dArray round = ZEM::g_vl_extmax(circle(0, 0, 3), 1.0);
    EXPECT_NEAR(round[0].distanceTo(round[1]), 6 * std::sqrt(2.0), 1e-9) << "a circle's box is the same at every angle";
    const CZemVertexArray rect = g_vl_extrect(square(0, 0, 1), kPi / 4);
    EXPECT_TRUE(rect.len() == 4 && rect.isClosed() && ZEM::g_vl_orient(rect, CZemVector3d::kZAxis));
    EXPECT_NEAR(rect[0].bulgLen() * rect[1].bulgLen(), 2.0, 1e-12) << "sqrt 2 by sqrt 2";
}

TEST(Polyline, ChordCountsAreTheFewestWithinTheTolerance) {
    for (const double tol : {0.01, 0.1}) {
        for (const double bulge : {0.05, 1.0, 3.0, -2.0}) {
            const CZemVertex v(CZemPoint3d(0, 0, 0), CZemPoint3d(0, 7, 5), bulge);
            const int n = ZEM::g_vx_split_dif(v, tol);
            const double sweep = 4 * std::atan(std::fabs(bulge)), r = v.m_start.distanceTo(v.m_end) / (2 * std::sin(sweep / 2));
            EXPECT_LE(r * (1 - std::cos(sweep / (2 * n))), tol * (1 + 1e-12)) << tol << " " << bulge;
            EXPECT_TRUE(n == 1 || r * (1 - std::cos(sweep / (2 * (n - 1)))) > tol) << tol << " " << bulge;
        }
    }
    EXPECT_EQ(ZEM::g_vx_split_dif(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(9, 0, 0), 0.0), 0.01), 1);
    EXPECT_EQ(ZEM::g_vx_split_dif(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(1e9, 0, 0), 1.0), 1e-9), ZEM::kMaxChords);
    EXPECT_GE(ZEM::g_vx_split_dif(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(1, 0, 0), 1.0), std::nan("")), 1);
}

TEST(Polyline, ExplodedArcsKeepTheirEndsAndListsCutIntoRuns) {
    CZemVertexArray vl = line(0, 0, 1, 0);
    vl.append(CZemVertex(CZemPoint3d(1, 0, 0), CZemPoint3d(-1, 0, 0), 1.0));
    CZemMatrix3d tilt;
    tilt.setToRotation(0.9, CZemVector3d(0, 1, 0), CZemPoint3d(0, 0, 0));
    vl.transformBy(tilt);
    const CZemVertexArray e = ZEM::g_vl_expl(vl, 8);
    ASSERT_EQ(e.len(), 9);
    EXPECT_EQ(e[8].m_end, vl[1].m_end);
    const CZemPoint3d top = CZemPoint3d(0, 1, 0) * static_cast<const double (*)[4]>(tilt);
    EXPECT_NEAR(e[5].m_start.distanceTo(top), 0.0, 1e-12) << "the half circle's middle, in its tilted plane";
    for (int k = 1; k < 9; ++k) EXPECT_NEAR(e[k].m_start.asVector().abs(), 1.0, 1e-12);

    CZemVertexArray runs = line(0, 0, 1, 0);
    runs.append(CZemVertex(CZemPoint3d(1, 0, 0), CZemPoint3d(2, 0, 3), 0.5));
    runs += line(5, 0, 6, 0);
    runs += line(7, 0, 8, 0);
    runs.setNormal(CZemVector3d(0, 1, 0));
    const CZemArrayTempl<CZemVertexArray> cut = zem_g_vl_to_vll(runs);
    ASSERT_EQ(cut.len(), 3);
    EXPECT_TRUE(cut[0].len() == 2 && cut[2].normal() == CZemVector3d(0, 1, 0));
    CZemVertex v = runs[1];
    EXPECT_EQ(zem_g_vx_xy(v).m_end, CZemPoint3d(2, 0, 0));
}
