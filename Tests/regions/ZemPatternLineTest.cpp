#include "ZemPatternLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

CZemArrayTempl<double> line(std::initializer_list<double> values) {
    CZemArrayTempl<double> out;
    for (double v : values) out.append(v);
    return out;
}

}  // namespace

TEST(PatternLine, ContinuousFamilyTakesScaledBaseAndStepAndALongPrototype) {
    const CZemPatternLine family(line({45.0, 1.0, 2.0, 0.5, 0.125}), CZemHatchProp(L"ANSI31", 0.0, 2.0), 0.2);
    ASSERT_TRUE(family.hasLines());
    EXPECT_DOUBLE_EQ(family.angle(), std::atan(1.0));
    EXPECT_DOUBLE_EQ(family.base().x, 2.0);
    EXPECT_DOUBLE_EQ(family.base().y, 4.0);
    EXPECT_DOUBLE_EQ(family.dx(), 1.0);
    EXPECT_DOUBLE_EQ(family.dy(), 0.25);
    EXPECT_FALSE(family.isDashed());
    double half = 0.0;
    ASSERT_TRUE(family.halfLength(10.0, half));
    EXPECT_DOUBLE_EQ(half, 150.0);
    long long bound = 0;
    ASSERT_TRUE(family.sweepBound(2.6, bound));
    EXPECT_EQ(bound, 11 * 20) << "trunc(2.6 / 0.25 + 1) lines, times 20";
}

TEST(PatternLine, DashedPrototypeIsAWholeNumberOfPeriodsWithDotsCountingOne) {
    const CZemPatternLine family(line({0.0, 0.0, 0.0, 0.0, 1.0, 0.5, -0.25, 0.0}), CZemHatchProp(L"X", 0.0, 2.0), 0.2);
    ASSERT_TRUE(family.isDashed());
    ASSERT_EQ(family.dashes().len(), 3);
    EXPECT_DOUBLE_EQ(family.dashes()[0], 1.0);
    EXPECT_DOUBLE_EQ(family.dashes()[1], -0.5);
    EXPECT_DOUBLE_EQ(family.dashes()[2], 0.2);
    EXPECT_DOUBLE_EQ(family.period(), 2.5);
    EXPECT_DOUBLE_EQ(family.laidPeriod(), 1.7);
    EXPECT_TRUE(family.laysDashes());
    double half = 0.0;
    ASSERT_TRUE(family.halfLength(10.0, half));
    EXPECT_DOUBLE_EQ(half, 5.0 * 2.5 * 20.0);
}

TEST(PatternLine, GravelGetsLongerPrototypesAndFineGravelTenTimesTheSweep) {
    const CZemArrayTempl<double> stones = line({0.0, 0.0, 0.0, 0.0, 1.0, 1.0, -1.0});
    const double diagonal = 10.0;
    const auto halfOf = [&](const wchar_t* name, double scale) {
        double half = 0.0;
        EXPECT_TRUE(CZemPatternLine(stones, CZemHatchProp(name, 0.0, scale), 0.2).halfLength(diagonal, half));
        const double period = 2.0 * scale;
        return half / ((std::trunc(diagonal / period) + 1.0) * period);
    };
    const auto boundOf = [&](const wchar_t* name, double scale) {
        long long bound = 0;
        EXPECT_TRUE(CZemPatternLine(stones, CZemHatchProp(name, 0.0, scale), 0.2).sweepBound(9.5, bound));
        return bound / static_cast<long long>(std::trunc(9.5 / scale + 1.0));
    };
    EXPECT_DOUBLE_EQ(halfOf(L"GRAVEL", 0.5), 200.0);
    EXPECT_DOUBLE_EQ(halfOf(L"GRAVEL", 1.0), 150.0);
    EXPECT_DOUBLE_EQ(halfOf(L"gravel", 0.5), 20.0);
    EXPECT_DOUBLE_EQ(halfOf(L"BRICK", 0.5), 20.0);
    EXPECT_EQ(boundOf(L"GRAVEL", 0.5), 200);
    EXPECT_EQ(boundOf(L"GRAVEL", 1.0), 20);
    EXPECT_EQ(boundOf(L"gravel", 0.5), 20);
}

TEST(PatternLine, FamiliesWithoutLinesOrWithOverflowingCountsAreRecognised) {
    const CZemHatchProp prop(L"X", 0.0, 1.0);
    EXPECT_FALSE(CZemPatternLine(line({45.0, 0.0}), prop, 0.2).hasLines());
    EXPECT_FALSE(CZemPatternLine(line({45.0, 0.0, 0.0, 1.0}), prop, 0.2).hasLines()) << "no dy";
    EXPECT_FALSE(CZemPatternLine(line({45.0, 0.0, 0.0, 1.0, 0.0}), prop, 0.2).hasLines()) << "dy of 0";
    EXPECT_FALSE(CZemPatternLine(line({45.0, 0.0, NAN, 0.0, 1.0}), prop, 0.2).hasLines());
    EXPECT_TRUE(CZemPatternLine(line({45.0, 0.0, 0.0}), prop, 0.2).dashes().isEmpty());

    const CZemPatternLine dense(line({0.0, 0.0, 0.0, 0.0, 1e-300, 1e-300, -1e-300}), prop, 0.2);
    ASSERT_TRUE(dense.hasLines());
    long long bound = 0;
    double half = 0.0;
    EXPECT_FALSE(dense.sweepBound(1.0, bound));
    EXPECT_FALSE(dense.halfLength(1.0, half));
}
