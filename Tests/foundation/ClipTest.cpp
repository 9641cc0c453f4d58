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


void expectPoints(const CZemPoint3dArray& got, std::initializer_list<CZemPoint3d> want) {
    ASSERT_EQ(got.len(), static_cast<int>(want.size()));
    int k = 0;
    for (const CZemPoint3d& p : want) EXPECT_NEAR(got[k++].distanceTo(p), 0.0, 1e-9) << "point " << k;
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

TEST(Intersect, JointsTangentsCornersAndEdgesCountOnce) {
    const CZemVertexArray c = circle(0, 0, 5);
    for (const unsigned mode : {0u, 3u}) {
        expectPoints(line(10, -3, -10, -3).intersectWith(c, mode), {{4, -3, 0}, {-4, -3, 0}});
        expectPoints(line(0, -9, 0, 9).intersectWith(c, mode), {{0, -5, 0}, {0, 5, 0}});  // through the arcs' joints
    }
    // A tangent touches: a meeting point, but no crossing.
    expectPoints(line(-10, 5, 10, 5).intersectWith(c, 0), {{0, 5, 0}});
    EXPECT_EQ(line(-10, -5, 10, -5).intersectWith(c, 3).len(), 0);
    CZemPoint3dArray out;
    out.append(CZemPoint3d(1, 1, 1));
    EXPECT_FALSE(line(-10, 6, 10, 6).intersectWith(out, c, 3));
    EXPECT_EQ(out.len(), 0) << "the output is replaced";
    expectPoints(circle(0, 0, 5).intersectWith(circle(6, 0, 5), 0), {{3, 4, 0}, {3, -4, 0}});

    const CZemVertexArray diamond = polygon({{2, 0, 0}, {4, 2, 0}, {2, 4, 0}, {0, 2, 0}});
    EXPECT_EQ(line(-1, 4, 5, 4).intersectWith(diamond, 3).len(), 0) << "touching the top corner";
    expectPoints(line(-1, 4, 5, 4).intersectWith(diamond, 0), {{2, 4, 0}});
    // Along an edge: the square lies on the left of the bottom edge run to
    // +x, so nothing crosses; on the right of the top edge, so both ends.
    const CZemVertexArray sq = square(0, 0, 4);
    EXPECT_EQ(line(-1, 0, 5, 0).intersectWith(sq, 3).len(), 0);
    expectPoints(line(-1, 4, 5, 4).intersectWith(sq, 3), {{0, 4, 0}, {4, 4, 0}});
    expectPoints(line(-1, 0, 5, 0).intersectWith(sq, 0), {{0, 0, 0}, {4, 0, 0}});
    // A stair whose middle edge lies on the line is crossed once, at its start.
    const CZemVertexArray stair = polygon({{0, 0, 0}, {6, 0, 0}, {6, 2, 0}, {3, 2, 0}, {3, 4, 0}, {0, 4, 0}});
    expectPoints(line(-1, 2, 7, 2).intersectWith(stair, 3), {{0, 2, 0}, {6, 2, 0}});
    expectPoints(line(0, 0, 4, 0).intersectWith(line(2, 0, 6, 0), 0), {{2, 0, 0}, {4, 0, 0}});
    EXPECT_EQ(line(std::nan(""), 0, 10, 0).intersectWith(sq, 3).len(), 0);
    EXPECT_EQ(line(-10, 2, 10, 2).intersectWith(CZemVertexArray(), 3).len(), 0);
}

TEST(Intersect, CrossingsAlternateBetweenOutsideAndInside) {
    CZemVertexArray blob;
    const CZemPoint3d corners[] = {{0, 0, 0}, {8, 1, 0}, {9, 7, 0}, {4, 5, 0}, {4, 3, 0}, {1, 8, 0}};
    const double bulges[] = {0.6, -0.4, 2.5, 0.0, 0.0, -0.9};
    for (int k = 0; k < 6; ++k) blob.append(CZemVertex(corners[k], corners[(k + 1) % 6], bulges[k]));
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> angle(0, 6.283185307179586), offset(-6, 6);
    int crossed = 0;
    for (int k = 0; k < 400; ++k) {
        // Lines through the corners and at random, reaching well outside.
        const double a = angle(rng);
        const CZemPoint3d through = k % 4 == 0 ? corners[k / 4 % 6] : CZemPoint3d(4 + offset(rng), 4 + offset(rng), 0);
        const CZemVertexArray l = line(through.x - 30 * std::cos(a), through.y - 30 * std::sin(a),
                                       through.x + 30 * std::cos(a), through.y + 30 * std::sin(a));
        const CZemPoint3dArray p = l.intersectWith(blob, 3);
        ASSERT_EQ(p.len() % 2, 0) << k;
        crossed += p.len() > 0;
        for (int i = 0; i + 1 < p.len(); ++i) {
            EXPECT_LT((p[i] - l[0].m_start).abs(), (p[i + 1] - l[0].m_start).abs()) << "in order along the line";
            const CZemPoint3d m((p[i].x + p[i + 1].x) / 2, (p[i].y + p[i + 1].y) / 2, 0);
            if (p[i].distanceTo(p[i + 1]) > 1e-6) {
                EXPECT_EQ(ZEM::g_vl_pt_inside(blob, m, false), i % 2 == 0) << k;
            }
        }
    }
    EXPECT_GT(crossed, 200);
}
