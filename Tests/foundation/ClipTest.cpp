#include "GeometryShapes.h"
#include "ZemClip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace shapes;

namespace {

// The square [0,10] x [0,10] with a bite out of its bottom (an arc about
// (5, -3.75) of radius 6.25) and a bump on its right (about (4.75, 5), 7.25).
CZemVertexArray bitten() {
    CZemVertexArray vl(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(10, 0, 0), -0.5));
    vl.append(CZemVertex(CZemPoint3d(10, 0, 0), CZemPoint3d(10, 10, 0), 0.4));
    vl.append(CZemVertex(CZemPoint3d(10, 10, 0), CZemPoint3d(0, 10, 0), 0.0));
    return vl.append(CZemVertex(CZemPoint3d(0, 10, 0), CZemPoint3d(0, 0, 0), 0.0));
}

// Signed distance to the bitten square's boundary where that is clear, and
// whether the point is inside.
bool bittenInside(double x, double y, double& margin) {
    const double bite = std::hypot(x - 5, y + 3.75) - 6.25, bump = std::hypot(x - 4.75, y - 5) - 7.25;
    margin = std::fmin(std::fmin(std::fabs(bite), std::fabs(bump)), std::fmin(std::fabs(x), std::fabs(x - 10)));
    margin = std::fmin(margin, std::fmin(std::fabs(y), std::fabs(y - 10)));
    return (x > 0 && x < 10 && y > 0 && y < 10 && bite > 0) || (x >= 10 && bump < 0);
}

}  // namespace

TEST(Clip, InsideTestAgreesWithWindingAndShape) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> coord(-3, 14);
    const CZemVertexArray shape = bitten();
    CZemVertexArray reversed = shape;
    reversed.revert();
    for (int k = 0; k < 3000; ++k) {
        const double x = coord(rng), y = coord(rng);
        double margin;
        const bool expected = bittenInside(x, y, margin);
        if (margin > 1e-6) {
            EXPECT_EQ(ZEM::g_vl_pt_inside(shape, CZemPoint3d(x, y, 0), true), expected) << x << "," << y;
            EXPECT_EQ(ZEM::g_vl_pt_inside(reversed, CZemPoint3d(x, y, 3), false), expected) << x << "," << y;
        }
    }
    const CZemVertexArray star = polygon({{0, 0, 0}, {5, 9, 0}, {10, 0, 0}, {-1, 6, 0}, {11, 6, 0}});
    EXPECT_TRUE(ZEM::g_vl_pt_inside(star, CZemPoint3d(5, 4, 0), false)) << "wound twice, inside by the nonzero rule";
    EXPECT_TRUE(ZEM::g_vl_pt_inside(star, CZemPoint3d(5, 7, 0), false) && !ZEM::g_vl_pt_inside(star, CZemPoint3d(1, 2, 0), true));
}

TEST(Clip, TheBoundaryCountsAsTheFlagSaysAndBadInputIsOutside) {
    const CZemPoint3d onBump(4.75 + 7.25 * std::cos(0.3), 5 + 7.25 * std::sin(0.3), 0);
    for (const CZemPoint3d& p : {onBump, CZemPoint3d(5, 2.5, 0), CZemPoint3d(0, 10, 0)}) {
        EXPECT_TRUE(ZEM::g_vl_pt_inside(bitten(), p, true));
        EXPECT_FALSE(ZEM::g_vl_pt_inside(bitten(), p, false));
    }
    EXPECT_FALSE(ZEM::g_vl_pt_inside(bitten(), CZemPoint3d(std::nan(""), 1, 0), true));
    EXPECT_FALSE(ZEM::g_vl_pt_inside(CZemVertexArray(), CZemPoint3d(0, 0, 0), true));
    CZemVertexArray open = square(0, 0, 4);
    open.removeAt(3);
    EXPECT_TRUE(ZEM::g_vl_pt_inside(open, CZemPoint3d(1, 2, 0), true)) << "an open list is read closed";

    const CZemVertexArray vl = line(0, 0, 10, 0);
    EXPECT_EQ(ZEM::g_vl_punch_reg(vl, CZemArrayTempl<CZemVertexArray>(), true).len(), 0);
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(vl, CZemArrayTempl<CZemVertexArray>(), false)), 10, 1e-12);
    CZemVertexArray dot;
    for (int k = 0; k < 4; ++k) dot.append(CZemVertex(CZemPoint3d(5, 0, 0), CZemPoint3d(5, 0, 0), 0.0));
    EXPECT_EQ(ZEM::g_vl_punch(vl, dot, true).len(), 0) << "a contour of one point has no inside";
}

TEST(Clip, PiecesInsideAndOutsideMakeUpTheLine) {
    CZemArrayTempl<CZemVertexArray> region;
    region.append(bitten()).append(circle(3, 6, 1)).append(square(6, 5, 1.5));
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> coord(-3, 14);
    for (int k = 0; k < 300; ++k) {
        CZemVertexArray vl = line(coord(rng), coord(rng), coord(rng), coord(rng));
        if (k % 3 == 0) vl.append(CZemVertex(vl[0].m_end, CZemPoint3d(coord(rng), coord(rng), 0), 0.8));
        const CZemArrayTempl<CZemVertexArray> in = ZEM::g_vl_punch_reg(vl, region, true);
        EXPECT_NEAR(lengthOf(in) + lengthOf(ZEM::g_vl_punch_reg(vl, region, false)), lengthOf(vl), 1e-9) << k;
        for (int i = 0; i < in.len(); ++i) {
            EXPECT_TRUE(in[i].isContinuous());
            for (int j = 0; j < in[i].len(); ++j) {
                const CZemPoint3d m = in[i][j].mid();
                double margin;
                EXPECT_TRUE(bittenInside(m.x, m.y, margin) || margin < 1e-9) << k;
                EXPECT_GE(std::hypot(m.x - 3, m.y - 6), 1 - 1e-9) << k;
            }
        }
    }
}

TEST(Clip, LinesThroughAContourWithAHole) {
    CZemArrayTempl<CZemVertexArray> region;
    region.append(square(0, 0, 10)).append(circle(5, 5, 2));
    const CZemArrayTempl<CZemVertexArray> across = ZEM::g_vl_punch_reg(line(15, 5, -5, 5), region, true);
    ASSERT_EQ(across.len(), 2);
    EXPECT_NEAR(across[0][0].m_start.x, 10, 1e-12) << "pieces in order along the line";
    EXPECT_NEAR(across[0][-1].m_end.x, 7, 1e-12);
    EXPECT_NEAR(across[1][0].m_start.x, 3, 1e-12);
    EXPECT_NEAR(across[1][-1].m_end.x, 0, 1e-12);
    const CZemArrayTempl<CZemVertexArray> tangent = ZEM::g_vl_punch_reg(line(-5, 3, 15, 3), region, true);
    ASSERT_EQ(tangent.len(), 1) << "a line touching the hole stays one piece";
    EXPECT_NEAR(lengthOf(tangent), 10, 1e-9);
    // Along the contour's edge: inside; along a hole's: outside.
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(line(-5, 0, 15, 0), region, true)), 10, 1e-9);
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch(line(-5, 0, 15, 0), square(0, 0, 10), false)), 10, 1e-9);
    region.append(square(1, 1, 2));
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(line(-5, 1, 15, 1), region, true)), 8, 1e-9);
    const CZemArrayTempl<CZemVertexArray> right = ZEM::g_vl_punch(circle(0, 0, 3), square(0, -5, 10), true);
    ASSERT_EQ(right.len(), 1) << "the arc over a closed list's start stays one piece";
    EXPECT_NEAR(lengthOf(right), 3 * kPi, 1e-9);
}

TEST(Clip, CutTakesTheStretchBetweenTwoPoints) {
    CZemVertexArray path = line(0, 0, 4, 0);
    path.append(CZemVertex(CZemPoint3d(4, 0, 0), CZemPoint3d(4, 4, 0), 1.0));  // half circle through (6, 2)
    path.append(CZemVertex(CZemPoint3d(4, 4, 0), CZemPoint3d(0, 4, 0), 0.0));
    const CZemPoint3d a(1, 0, 0), b(2, 4, 0);
    const CZemVertexArray cut = ZEM::g_vl_cut(path, b, a);
    EXPECT_NEAR(lengthOf(cut), 3 + 2 * kPi + 2, 1e-9);
    EXPECT_EQ(cut[0].m_start, a) << "in the direction of the list";
    const CZemPoint3d at45(4 + std::sqrt(2.0), 2 - std::sqrt(2.0), 0);
    EXPECT_NEAR(lengthOf(ZEM::g_vl_cut(path, CZemPoint3d(8, 2, 0), at45)), kPi / 2, 1e-9);
    EXPECT_EQ(ZEM::g_vl_cut(path, a, a).len(), 0);
}
