#include "RegionsTestSupport.h"
#include "ZemLineMeasure.h"
#include "ZemUnits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <cmath>
#include <utility>
#include <vector>

using regtest::values;

namespace {

using Intervals = std::vector<std::pair<double, double>>;

CZemVertexArray segment(double x0, double y0, double x1, double y1, double z = 0.0) {
    return CZemVertexArray(CZemVertex(CZemPoint3d(x0, y0, z), CZemPoint3d(x1, y1, z), 0.0));
}

// The stretches along the X axis that the dashes cover, touching ones merged.
Intervals coveredAlongX(const CZemVertexArray& dashes) {
    Intervals spans;
    for (int k = 0; k < dashes.len(); ++k) {
        spans.emplace_back(std::min(dashes[k].m_start.x, dashes[k].m_end.x),
                           std::max(dashes[k].m_start.x, dashes[k].m_end.x));
    }
    std::sort(spans.begin(), spans.end());
    Intervals merged;
    for (const auto& s : spans) {
        if (!merged.empty() && s.first <= merged.back().second + 1e-9) {
            merged.back().second = std::max(merged.back().second, s.second);
        } else {
            merged.push_back(s);
        }
    }
    return merged;
}

void expectIntervals(const Intervals& actual, const Intervals& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(actual[k].first, expected[k].first, 1e-9) << "interval " << k;
        EXPECT_NEAR(actual[k].second, expected[k].second, 1e-9) << "interval " << k;
    }
}

}  // namespace

// The classic pattern starts and ends with half dashes; every vertex restarts
// it, so that corners get two half dashes; short segments stay solid.
TEST(LineMeasure, HalfDashesAtTheEndsOfEachSegment) {
    CZemVertexArray vl = segment(0, 0, 4, 0);
    ASSERT_TRUE(zem_gdx_image_vl_measure(vl, values({1.0, -0.5}), 1));
    expectIntervals(coveredAlongX(vl), {{0.0, 0.5}, {1.5, 2.5}, {3.5, 4.0}});

    CZemVertexArray corner = segment(0, 0, 4, 0);
    corner.append(CZemVertex(CZemPoint3d(4, 0, 0), CZemPoint3d(4, 4, 0), 0.0));
    ASSERT_TRUE(zem_gdx_image_vl_measure(corner, values({1.0, -0.5}), 1));
    double atCorner = 0.0, total = 0.0;
    for (int k = 0; k < corner.len(); ++k) {
        const double length = corner[k].m_start.distanceTo(corner[k].m_end);
        total += length;
        if (corner[k].m_start == CZemPoint3d(4, 0, 0) || corner[k].m_end == CZemPoint3d(4, 0, 0)) atCorner += length;
    }
    EXPECT_NEAR(atCorner, 1.0, 1e-9);
    EXPECT_NEAR(total, 4.0, 1e-9);

    CZemVertexArray solid = segment(0, 0, 1.5, 0, 2.0);
    ASSERT_TRUE(zem_gdx_image_vl_measure(solid, values({1.0, -0.5}), 1));
    ASSERT_EQ(solid.len(), 1);
    EXPECT_EQ(solid[0].m_end, CZemPoint3d(1.5, 0.0, 2.0)) << "heights kept on a solid segment";
    CZemVertexArray untouched = segment(0, 0, 9, 0, 1.0);
    EXPECT_FALSE(zem_gdx_image_vl_measure(untouched, values({1.0}), 1)) << "a pattern needs two entries";
    ASSERT_EQ(untouched.len(), 1);
    EXPECT_EQ(untouched[0].m_end, CZemPoint3d(9.0, 0.0, 1.0));
}

TEST(LineMeasure, ModeZeroLaysThePatternOnceAlongEachRunOnTheGround) {
    CZemVertexArray vl = segment(0, 0, 2.5, 0, 1.0);
    vl.append(CZemVertex(CZemPoint3d(2.5, 0, 1.0), CZemPoint3d(4, 0, 1.0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(10, 0, 1.0), CZemPoint3d(12, 0, 1.0), 0.0));
    ASSERT_TRUE(zem_gdx_image_vl_measure(vl, values({1.0, -0.5}), 0));
    expectIntervals(coveredAlongX(vl), {{0.0, 1.0}, {1.5, 2.5}, {3.0, 4.0}, {10.0, 11.0}, {11.5, 12.0}});
    for (int k = 0; k < vl.len(); ++k) EXPECT_EQ(vl[k].m_start.z, 0.0);
}

TEST(LineMeasure, DotsAreShortDashesAndArcsAreDashedAlongTheirChords) {
    CZemVertexArray dots = segment(0, 0, 12, 0);
    ASSERT_TRUE(zem_gdx_image_vl_measure(dots, values({0.0, -4.0}), 1));
    double dotLen = 0.2;
    ZEM::acadUnitCv(dotLen, Zem::unitMillimeters, Zem::unitCurrent);
    ASSERT_EQ(dots.len(), 3) << "sum 5 gives two repetitions widened to 6, and a third dot";
    for (int k = 0; k < dots.len(); ++k) EXPECT_NEAR(dots[k].m_start.distanceTo(dots[k].m_end), dotLen, 1e-9);

    const CZemPoint3d c(0, 0, 0);
    CZemVertexArray arc(CZemVertex(CZemPoint3d(3, 0, 0), CZemPoint3d(-3, 0, 0), 1.0));
    ASSERT_TRUE(zem_gdx_image_vl_measure(arc, values({1.0, -0.5}), 1));
    ASSERT_GT(arc.len(), 5);
    for (int k = 0; k < arc.len(); ++k) {
        EXPECT_NEAR(arc[k].m_start.distanceTo(c), 3.0, 0.1 + 1e-9);
        EXPECT_EQ(arc[k].m_bulge, 0.0);
        EXPECT_GE(arc[k].m_start.y, -1e-9);
    }
}

TEST(LineMeasure, FittedRepetitionsFillEverySegmentExactly) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> dash(0.25, 2.0), length(0.1, 40.0);
    for (int round = 0; round < 100; ++round) {
        const double d0 = dash(random), g0 = dash(random), d1 = dash(random), g1 = dash(random), l = length(random);
        CZemVertexArray vl = segment(0, 0, l, 0);
        ASSERT_TRUE(zem_gdx_image_vl_measure(vl, values({d0, -g0, d1, -g1}), 2));
        const double sum = d0 + g0 + d1 + g1;
        if (l <= sum) {
            EXPECT_EQ(vl.len(), 1) << "no longer than one repetition: solid";
            continue;
        }
        // n whole repetitions, the rest spread over the 2 n gaps.
        const double n = std::trunc(l / sum), widen = (l - n * sum) / (2.0 * n);
        double covered = 0.0;
        for (int k = 0; k < vl.len(); ++k) covered += vl[k].m_start.distanceTo(vl[k].m_end);
        EXPECT_NEAR(covered, n * (d0 + d1), 1e-9) << "round " << round;
        EXPECT_NEAR(vl[1].m_start.x - vl[0].m_end.x, g0 + widen, 1e-9) << "round " << round;
    }
}
