#include "RegionsTestSupport.h"
#include "ZemPatternTester.h"

#include <gtest/gtest.h>

using regtest::rectangle;
using regtest::regions;
using regtest::values;

namespace {

CZemMatrix3d zoom(double factor) {
    CZemMatrix3d m;
    m.setToScaling(factor, CZemPoint3d(3.0, 4.0, 0.0));
    return m;
}

bool legible(double height, std::initializer_list<CZemArrayTempl<double>> lines, double factor, double scale = 1.0) {
    CZemArrayTempl<CZemArrayTempl<double>> pattern;
    for (const auto& line : lines) pattern.append(line);
    return CZemPatternTester(regions({rectangle(0, 0, 10, height)}), CZemHatchProp(L"P", 0.0, scale), zoom(factor))
        .isLegible(pattern);
}

}  // namespace

TEST(PatternTest, RepetitionsAcrossTheRegionDecideWhateverTheZoom) {
    const auto step = values({0.0, 0.0, 0.0, 0.0, 1.0});
    EXPECT_TRUE(legible(94.0, {step}, 3.0));
    EXPECT_FALSE(legible(95.0, {step}, 3.0)) << "95 repetitions are too many";
    EXPECT_FALSE(legible(95.0, {step}, 300.0)) << "zooming in does not help a count";
    EXPECT_TRUE(legible(94.0, {values({0.0, 0.0, 0.0, 0.0, 0.5})}, 6.0, 2.0)) << "steps are scaled";
}

TEST(PatternTest, StepsOfTwoPointThreeDeviceUnitsOrLessFail) {
    const auto step = values({0.0, 0.0, 0.0, 0.0, 1.0});
    EXPECT_TRUE(legible(10.0, {step}, 2.31));
    EXPECT_FALSE(legible(10.0, {step}, 2.3)) << "2.3 units fail";
    EXPECT_FALSE(legible(10.0, {step}, 1.0));
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, 0.0, 1.0})}, 1.2, 2.0)) << "scale 2 doubles the step";
}

TEST(PatternTest, OnlyPresentNonZeroStepsCountAndNegativeOnesOnlyForTheirLength) {
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, 0.0, 1.0})}, 3.0)) << "dx absent";
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, 0.0, 1.0, 0.5, -0.5})}, 3.0)) << "dx 0 does not count";
    EXPECT_FALSE(legible(10.0, {values({0.0, 0.0, 0.0, 0.1, 1.0})}, 30.0)) << "a dx of 0.1 over 10 wide";
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, -0.01, 1.0})}, 300.0)) << "negative counts never rise";
    EXPECT_FALSE(legible(10.0, {values({0.0, 0.0, 0.0, -1.0, 10.0})}, 2.0)) << "but the length of -1 is a step";
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, -1.0, 10.0})}, 3.0));
    EXPECT_TRUE(legible(200.0, {values({90.0, 0.0, 0.0, 0.0, 1.0})}, 3.0)) << "10 wide across vertical lines";
    EXPECT_FALSE(legible(200.0, {values({0.0, 0.0, 0.0, 0.0, 1.0})}, 3.0)) << "200 high across horizontal ones";
}

TEST(PatternTest, AnyFailingLineFailsThePatternAndNoLinesPass) {
    const auto fine = values({0.0, 0.0, 0.0, 0.0, 1.0});
    const auto dense = values({90.0, 0.0, 0.0, 0.0, 0.1});
    EXPECT_TRUE(legible(10.0, {fine, fine}, 3.0));
    EXPECT_FALSE(legible(10.0, {fine, dense}, 30.0));
    EXPECT_TRUE(legible(10.0, {}, 0.001)) << "no lines pass while the zoom is above 0";
    EXPECT_FALSE(legible(10.0, {}, 0.0));
}
