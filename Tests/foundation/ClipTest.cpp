#include "ZemClip.h"
#include "ZemGeomTolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace {

const double kPi = 3.141592653589793;

double lengthOf(const CZemVertexArray& vl) {
    double sum = 0.0;
    for (int k = 0; k < vl.len(); ++k) sum += vl[k].bulgLen();
    return sum;
}

double lengthOf(const CZemArrayTempl<CZemVertexArray>& pieces) {
    double sum = 0.0;
    for (int k = 0; k < pieces.len(); ++k) sum += lengthOf(pieces[k]);
    return sum;
}

CZemVertexArray line(double x0, double y0, double x1, double y1) {
    return CZemVertexArray(CZemVertex(CZemPoint3d(x0, y0, 0), CZemPoint3d(x1, y1, 0), 0.0));
}

CZemVertexArray square(double x0, double y0, double side) {
    CZemPoint3dArray p;
    p.append(CZemPoint3d(x0, y0, 0)).append(CZemPoint3d(x0 + side, y0, 0));
    p.append(CZemPoint3d(x0 + side, y0 + side, 0)).append(CZemPoint3d(x0, y0 + side, 0));
    return CZemVertexArray().fromPoints(p, true);
}

CZemVertexArray circle(double cx, double cy, double r) {
    CZemVertexArray vl;
    vl.append(CZemVertex(CZemPoint3d(cx + r, cy, 0), CZemPoint3d(cx - r, cy, 0), 1.0));
    vl.append(CZemVertex(CZemPoint3d(cx - r, cy, 0), CZemPoint3d(cx + r, cy, 0), 1.0));
    return vl;
}

// A stadium: the points within 2 of the segment from (0,2) to (10,2).
CZemVertexArray stadium() {
    CZemVertexArray vl;
    vl.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(10, 0, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(10, 0, 0), CZemPoint3d(10, 4, 0), 1.0));
    vl.append(CZemVertex(CZemPoint3d(10, 4, 0), CZemPoint3d(0, 4, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(0, 4, 0), CZemPoint3d(0, 0, 0), 1.0));
    return vl;
}

double stadiumDistance(double x, double y) {
    const double cx = x < 0 ? 0 : (x > 10 ? 10 : x);
    return std::hypot(x - cx, y - 2) - 2.0;
}

// Winding number of a polygon given by its corners, the test's own count.
int polygonWinding(const std::vector<CZemPoint3d>& poly, double x, double y) {
    int w = 0;
    for (size_t k = 0; k < poly.size(); ++k) {
        const CZemPoint3d& a = poly[k];
        const CZemPoint3d& b = poly[(k + 1) % poly.size()];
        const double left = (b.x - a.x) * (y - a.y) - (x - a.x) * (b.y - a.y);
        if (a.y <= y && b.y > y && left > 0) ++w;
        if (a.y > y && b.y <= y && left < 0) --w;
    }
    return w;
}

// A vertex list's arcs traced from their circles, point by point.
std::vector<CZemPoint3d> traced(const CZemVertexArray& vl, int steps) {
    std::vector<CZemPoint3d> out;
    for (int k = 0; k < vl.len(); ++k) {
        const CZemVertex& v = vl[k];
        const double sweep = 4 * std::atan(v.m_bulge);
        const double c = v.m_start.distanceTo(v.m_end);
        if (v.m_bulge == 0.0) {
            out.push_back(v.m_start);
            continue;
        }
        const double r = c / (2 * std::sin(std::fabs(sweep) / 2));
        const double mx = (v.m_start.x + v.m_end.x) / 2, my = (v.m_start.y + v.m_end.y) / 2;
        const double d = std::sqrt(std::max(0.0, r * r - c * c / 4)) * (std::fabs(sweep) > kPi ? -1 : 1);
        const double sgn = sweep > 0 ? 1 : -1;
        const double cx = mx - sgn * d * (v.m_end.y - v.m_start.y) / c, cy = my + sgn * d * (v.m_end.x - v.m_start.x) / c;
        const double a0 = std::atan2(v.m_start.y - cy, v.m_start.x - cx);
        for (int s = 0; s < steps; ++s) {
            const double a = a0 + sweep * s / steps;
            out.push_back(CZemPoint3d(cx + r * std::cos(a), cy + r * std::sin(a), 0));
        }
    }
    return out;
}

}  // namespace

TEST(Clip, InsideTestAgreesWithAWindingCount) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> coord(-4, 14);
    const CZemVertexArray st = stadium();
    CZemVertexArray reversed = st;
    reversed.revert();
    for (int k = 0; k < 2000; ++k) {
        const double x = coord(rng), y = coord(rng) - 3;
        const double d = stadiumDistance(x, y);
        if (std::fabs(d) < 1e-6) continue;
        EXPECT_EQ(ZEM::g_vl_pt_inside(st, CZemPoint3d(x, y, 0), true), d < 0) << x << "," << y;
        EXPECT_EQ(ZEM::g_vl_pt_inside(reversed, CZemPoint3d(x, y, 5), true), d < 0) << x << "," << y;
    }
    // A contour with concave and convex arcs of every size, checked against a
    // finely traced polygon away from its boundary.
    CZemVertexArray blob;
    const CZemPoint3d corners[] = {{0, 0, 0}, {8, 1, 0}, {9, 7, 0}, {4, 5, 0}, {1, 8, 0}};
    const double bulges[] = {0.6, -0.4, 2.5, 0.0, -0.9};
    for (int k = 0; k < 5; ++k) blob.append(CZemVertex(corners[k], corners[(k + 1) % 5], bulges[k]));
    const std::vector<CZemPoint3d> fine = traced(blob, 1000);
    std::uniform_real_distribution<double> wide(-8, 18);
    int inside = 0;
    for (int k = 0; k < 1000; ++k) {
        const CZemPoint3d p(wide(rng), wide(rng), 0);
        double nearest = 1e9;
        for (const CZemPoint3d& q : fine) nearest = std::min(nearest, q.distanceTo(p));
        if (nearest < 0.05) continue;
        const bool expected = polygonWinding(fine, p.x, p.y) != 0;
        inside += expected;
        EXPECT_EQ(ZEM::g_vl_pt_inside(blob, p, true), expected) << p.x << "," << p.y;
    }
    EXPECT_GT(inside, 100);
}

TEST(Clip, TheBoundaryCountsAsTheFlagSays) {
    const CZemVertexArray st = stadium();
    const CZemPoint3d onArc(10 + 2 * std::cos(0.3), 2 + 2 * std::sin(0.3), 0);
    for (const CZemPoint3d& p : {onArc, CZemPoint3d(5, 0, 0), CZemPoint3d(0, 4, 0)}) {
        EXPECT_TRUE(ZEM::g_vl_pt_inside(st, p, true));
        EXPECT_FALSE(ZEM::g_vl_pt_inside(st, p, false));
    }
    EXPECT_FALSE(ZEM::g_vl_pt_inside(st, CZemPoint3d(std::nan(""), 1, 0), true));
    EXPECT_FALSE(ZEM::g_vl_pt_inside(CZemVertexArray(), CZemPoint3d(0, 0, 0), true));
    // An open list is read closed.
    CZemVertexArray open = square(0, 0, 4);
    open.removeAt(3);
    EXPECT_TRUE(ZEM::g_vl_pt_inside(open, CZemPoint3d(1, 2, 0), true));
}

TEST(Clip, PiecesInsideAndOutsideMakeUpTheLine) {
    CZemArrayTempl<CZemVertexArray> region;
    region.append(stadium());
    region.append(circle(3, 2, 1));
    region.append(square(6, 1, 1.5));
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> coord(-3, 13);
    for (int k = 0; k < 300; ++k) {
        CZemVertexArray vl = line(coord(rng), coord(rng) - 4, coord(rng), coord(rng) - 4);
        if (k % 3 == 0) vl.append(CZemVertex(vl[0].m_end, CZemPoint3d(coord(rng), coord(rng) - 4, 0), 0.8));
        const CZemArrayTempl<CZemVertexArray> in = ZEM::g_vl_punch_reg(vl, region, true);
        const CZemArrayTempl<CZemVertexArray> out = ZEM::g_vl_punch_reg(vl, region, false);
        EXPECT_NEAR(lengthOf(in) + lengthOf(out), lengthOf(vl), 1e-9) << k;
        for (int i = 0; i < in.len(); ++i) {
            EXPECT_TRUE(in[i].isContinuous());
            for (int j = 0; j < in[i].len(); ++j) {
                const CZemPoint3d m = in[i][j].mid();
                EXPECT_LE(stadiumDistance(m.x, m.y), 1e-9);
                EXPECT_GE(std::hypot(m.x - 3, m.y - 2), 1 - 1e-9);
            }
        }
    }
}

TEST(Clip, LinesThroughAContourWithAHole) {
    CZemArrayTempl<CZemVertexArray> region;
    region.append(square(0, 0, 10));
    region.append(circle(5, 5, 2));
    const CZemArrayTempl<CZemVertexArray> across = ZEM::g_vl_punch_reg(line(-5, 5, 15, 5), region, true);
    ASSERT_EQ(across.len(), 2);
    EXPECT_NEAR(across[0][0].m_start.x, 0, 1e-12);
    EXPECT_NEAR(across[0][-1].m_end.x, 3, 1e-12);
    EXPECT_NEAR(across[1][0].m_start.x, 7, 1e-12);
    EXPECT_NEAR(across[1][-1].m_end.x, 10, 1e-12);
    const CZemArrayTempl<CZemVertexArray> back = ZEM::g_vl_punch_reg(line(15, 5, -5, 5), region, true);
    ASSERT_EQ(back.len(), 2);
    EXPECT_NEAR(back[0][0].m_start.x, 10, 1e-12) << "pieces in order along the line";
    // Tangent to the hole: one piece, cut where it touches.
    const CZemArrayTempl<CZemVertexArray> tangent = ZEM::g_vl_punch_reg(line(-5, 3, 15, 3), region, true);
    ASSERT_EQ(tangent.len(), 1);
    EXPECT_NEAR(lengthOf(tangent), 10, 1e-9);
    // Along the contour's edge: inside; along the hole's: outside.
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(line(-5, 0, 15, 0), region, true)), 10, 1e-9);
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch(line(-5, 0, 15, 0), square(0, 0, 10), false)), 10, 1e-9);
    region.append(square(1, 1, 2));
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(line(-5, 1, 15, 1), region, true)), 8, 1e-9);
    // A circle clipped by a box keeps the arc over its start in one piece.
    const CZemArrayTempl<CZemVertexArray> right = ZEM::g_vl_punch(circle(0, 0, 3), square(0, -5, 10), true);
    ASSERT_EQ(right.len(), 1);
    EXPECT_NEAR(lengthOf(right), 3 * kPi, 1e-9);
    EXPECT_TRUE(right[0].isContinuous());
}

TEST(Clip, BadInputHasADefinedOutcome) {
    const CZemVertexArray vl = line(0, 0, 10, 0);
    EXPECT_EQ(ZEM::g_vl_punch_reg(vl, CZemArrayTempl<CZemVertexArray>(), true).len(), 0);
    EXPECT_NEAR(lengthOf(ZEM::g_vl_punch_reg(vl, CZemArrayTempl<CZemVertexArray>(), false)), 10, 1e-12);
    EXPECT_EQ(ZEM::g_vl_punch(vl, CZemVertexArray(), true).len(), 0);
    CZemVertexArray odd = line(-5, 1, 15, 1);
    odd.append(CZemVertex(CZemPoint3d(15, 1, 0), CZemPoint3d(15, 1, 0), 0.0));
    odd.append(CZemVertex(CZemPoint3d(15, 1, 0), CZemPoint3d(INFINITY, 3, 0), 0.0));
    odd.append(CZemVertex(CZemPoint3d(std::nan(""), 3, 0), CZemPoint3d(1, 2, 0), 0.3));
    const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_punch(odd, square(0, 0, 10), true);
    ASSERT_EQ(pieces.len(), 1);
    EXPECT_NEAR(lengthOf(pieces), 10, 1e-12);
    // A contour of coincident points has no inside.
    CZemVertexArray dot;
    for (int k = 0; k < 4; ++k) dot.append(CZemVertex(CZemPoint3d(5, 0, 0), CZemPoint3d(5, 0, 0), 0.0));
    EXPECT_EQ(ZEM::g_vl_punch(vl, dot, true).len(), 0);
}

TEST(Clip, CutTakesTheStretchBetweenTwoPoints) {
    CZemVertexArray path = line(0, 0, 4, 0);
    path.append(CZemVertex(CZemPoint3d(4, 0, 0), CZemPoint3d(4, 4, 0), 1.0));  // half circle through (6, 2)
    path.append(CZemVertex(CZemPoint3d(4, 4, 0), CZemPoint3d(0, 4, 0), 0.0));
    const CZemPoint3d a(1, 0, 0), b(2, 4, 0);
    const CZemVertexArray cut = ZEM::g_vl_cut(path, b, a);
    EXPECT_NEAR(lengthOf(cut), 3 + 2 * kPi + 2, 1e-9);
    EXPECT_EQ(cut[0].m_start, a) << "in the direction of the list";
    EXPECT_NEAR(cut[-1].m_end.distanceTo(b), 0, 1e-12);
    const CZemPoint3d at45(4 + std::sqrt(2.0), 2 - std::sqrt(2.0), 0);
    const CZemVertexArray onArc = ZEM::g_vl_cut(path, CZemPoint3d(8, 2, 0), at45);
    EXPECT_NEAR(lengthOf(onArc), kPi / 2, 1e-9) << "an eighth of the circle of radius 2";
    EXPECT_EQ(ZEM::g_vl_cut(path, a, a).len(), 0);
    EXPECT_EQ(ZEM::g_vl_cut(CZemVertexArray(), a, b).len(), 0);
}
