#include "ZemDashPattern.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <random>

namespace {

CZemArrayTempl<double> entries(std::initializer_list<double> values) {
    CZemArrayTempl<double> out;
    for (double v : values) out.append(v);
    return out;
}

void expectEntries(const CZemArrayTempl<double>& actual, std::initializer_list<double> expected) {
    ASSERT_EQ(actual.len(), static_cast<int>(expected.size()));
    int k = 0;
    for (double v : expected) EXPECT_DOUBLE_EQ(actual[k++], v) << "entry " << k - 1;
}

double laidLength(const CZemArrayTempl<double>& pattern) {
    double sum = 0.0;
    for (int k = 0; k < pattern.len(); ++k) sum += std::fabs(pattern[k]);
    return sum;
}

}  // namespace

TEST(DashPattern, ClassicDashGapStartsWithHalfDashesAndFillsAFourUnitSegment) {
    const CZemDashPattern pattern(entries({1.0, -0.5}), 1, 0.2);
    ASSERT_TRUE(pattern.isUsable());
    expectEntries(pattern.entries(), {0.5, -0.5, 0.5});
    EXPECT_DOUBLE_EQ(pattern.sum(), 1.5);

    CZemArrayTempl<double> fitted;
    ASSERT_TRUE(pattern.fitTo(4.0, fitted));
    expectEntries(fitted, {0.5, -1.0, 0.5});
    EXPECT_DOUBLE_EQ(2.0 * laidLength(fitted), 4.0);

    EXPECT_FALSE(pattern.fitTo(1.5, fitted)) << "a segment no longer than one repetition stays solid";
    EXPECT_FALSE(pattern.fitTo(0.0, fitted));
}

TEST(DashPattern, OnlyADashLongerThan021FollowedByAGapStartsThePattern) {
    expectEntries(CZemDashPattern(entries({-0.5, 1.0}), 1, 0.2).entries(), {0.5, -0.5, 0.5});
    expectEntries(CZemDashPattern(entries({0.21, -0.5, 0.1, -0.2}), 1, 0.2).entries(), {0.21, -0.5, 0.1, -0.2});
    expectEntries(CZemDashPattern(entries({0.1, -0.2, 0.3, 0.4, -0.1}), 1, 0.2).entries(),
                  {0.2, -0.1, 0.1, -0.2, 0.3, 0.2});
    expectEntries(CZemDashPattern(entries({1.0, -0.5}), 0, 0.2).entries(), {1.0, -0.5});
    expectEntries(CZemDashPattern(entries({1.0, -0.5}), 2, 0.2).entries(), {1.0, -0.5});
}

TEST(DashPattern, DotsBecomeShortDashesThatCountOneInTheSum) {
    const CZemDashPattern pattern(entries({0.0, -4.0}), 1, 0.125);
    expectEntries(pattern.entries(), {0.125, -4.0});
    EXPECT_DOUBLE_EQ(pattern.sum(), 5.0);
}

TEST(DashPattern, UnusablePatternsAreRefused) {
    EXPECT_FALSE(CZemDashPattern(entries({1.0}), 1, 0.2).isUsable());
    EXPECT_FALSE(CZemDashPattern(entries({}), 1, 0.2).isUsable());
    EXPECT_FALSE(CZemDashPattern(entries({1.0, NAN}), 1, 0.2).isUsable());
    EXPECT_FALSE(CZemDashPattern(entries({1.0, -INFINITY}), 0, 0.2).isUsable());
}

TEST(DashPattern, FittedRepetitionsFillEverySegmentExactly) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> dash(0.05, 2.0), length(0.1, 50.0);
    for (int round = 0; round < 200; ++round) {
        const CZemDashPattern pattern(entries({dash(random), -dash(random), dash(random), -dash(random)}), 1, 0.2);
        const double l = length(random);
        CZemArrayTempl<double> fitted;
        if (!pattern.fitTo(l, fitted)) {
            EXPECT_LE(l, pattern.sum());
            continue;
        }
        const double repeats = std::trunc(l / pattern.sum());
        EXPECT_NEAR(repeats * laidLength(fitted), l, 1e-9) << "round " << round;
        for (int k = 0; k < fitted.len(); ++k) {
            if (pattern.entries()[k] > 0.0) EXPECT_EQ(fitted[k], pattern.entries()[k]);
            else EXPECT_LE(fitted[k], pattern.entries()[k]);
        }
    }
}

TEST(DashPattern, APatternWithoutGapsOrTooFineToCountStaysAsItIs) {
    const CZemDashPattern dashes(entries({1.0, 2.0}), 1, 0.2);
    CZemArrayTempl<double> fitted;
    ASSERT_TRUE(dashes.fitTo(10.0, fitted));
    expectEntries(fitted, {1.0, 2.0});
    const CZemDashPattern fine(entries({1e-300, -1e-300}), 0, 0.2);
    EXPECT_FALSE(fine.fitTo(1.0, fitted)) << "more repetitions than can be counted keeps the vertex solid";
}
