#include "ZemRectUnion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

double signedArea(const CZemVertexArray& ring)
{
    double twice = 0.0;
    for (int k = 0; k < ring.len(); ++k)
        twice += ring[k].m_start.x * ring[k].m_end.y - ring[k].m_end.x * ring[k].m_start.y;
    return twice / 2.0;
}

struct Box {
    int x0, y0, x1, y1;
};

}  // namespace

// A wall ring with a window cut through it and a flue cut inside: the window
// opens the ring into one part whose contour runs round the rooms, the flue
// is a hole.
TEST(RectUnion, AnOpeningSplitsAndAFlueIsAHole)
{
    CZemRectUnion walls;
    walls.add(0, 0, 10, 1).add(0, 9, 10, 10).add(0, 0, 1, 10).add(9, 0, 10, 10).add(4, 1, 6, 3);
    walls.cut(4, 9, 6, 10).cut(4.5, 1.5, 5.5, 2.5);
    const auto regions = walls.regions();
    ASSERT_EQ(regions.len(), 1);
    ASSERT_EQ(regions[0].len(), 2) << "the flue is the one hole";
    EXPECT_TRUE(signedArea(regions[0][0]) > 0.0 && regions[0][0].isClosed()) << "outer contour counter-clockwise";
    EXPECT_DOUBLE_EQ(signedArea(regions[0][1]), -1.0);
    EXPECT_DOUBLE_EQ(signedArea(regions[0][0]) + signedArea(regions[0][1]), 36.0 - 2.0 + 4.0 - 1.0);
    EXPECT_EQ(regions[0][1].len(), 4) << "straight runs are merged into one side";
}

// Random rectangles on a unit grid against the cells counted one by one.
TEST(RectUnion, AreasAndPartsMatchACellCount)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> coordinate(0, 12);
    for (int round = 0; round < 200; ++round) {
        std::vector<Box> added, cut;
        CZemRectUnion joined;
        for (int k = 0; k < 5; ++k) {
            const Box b = {coordinate(random), coordinate(random), coordinate(random), coordinate(random)};
            (k < 4 ? added : cut).push_back(b);
            if (k < 4)
                joined.add(b.x0, b.y0, b.x1, b.y1);
            else
                joined.cut(b.x0, b.y0, b.x1, b.y1);
        }
        const auto inside = [](const Box& b, int x, int y) {
            return std::min(b.x0, b.x1) <= x && x < std::max(b.x0, b.x1) && std::min(b.y0, b.y1) <= y &&
                   y < std::max(b.y0, b.y1);
        };
        int cells = 0;
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 12; ++x) {
                bool on = false;
                for (const Box& b : added)
                    on = on || inside(b, x, y);
                cells += on && !inside(cut[0], x, y);
            }
        }
        double area = 0.0;
        const auto regions = joined.regions();
        for (int r = 0; r < regions.len(); ++r) {
            EXPECT_GT(signedArea(regions[r][0]), 0.0) << "round " << round;
            for (int k = 0; k < regions[r].len(); ++k)
                area += signedArea(regions[r][k]);
        }
        ASSERT_DOUBLE_EQ(area, cells) << "round " << round;
    }
}
