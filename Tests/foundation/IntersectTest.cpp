#include "GeometryShapes.h"
#include "ZemClip.h"
#include "ZemVertexArray.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace shapes;

namespace {

void expectPoints(const CZemPoint3dArray& got, std::initializer_list<CZemPoint3d> want) {
    ASSERT_EQ(got.len(), static_cast<int>(want.size()));
    int k = 0;
    for (const CZemPoint3d& p : want) {
        EXPECT_NEAR(got[k].x, p.x, 1e-9) << "point " << k;
        EXPECT_NEAR(got[k].y, p.y, 1e-9) << "point " << k;
        ++k;
    }
}

}  // namespace

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
    expectPoints(line(-1, 2, 5, 2).intersectWith(diamond, 3), {{0, 2, 0}, {4, 2, 0}});
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
