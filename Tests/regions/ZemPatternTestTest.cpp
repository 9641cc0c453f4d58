#include "RegionsTestSupport.h"
#include "ZemPatternTest.h"

#include <gtest/gtest.h>

using regtest::values;

namespace {

// The pattern test of a 10 wide region of the given height, at a zoom.
bool legible(double height, std::initializer_list<CZemArrayTempl<double>> lines, double zoom, double scale = 1.0) {
    regtest::TestApp app;
    app.setPattern(L"P", regtest::pattern(lines));
    CZemMatrix3d device;
    device.setToScaling(zoom, CZemPoint3d(3.0, 4.0, 0.0));
    return zem_gdx_pattern_test(regtest::regions({regtest::rectangle(0, 0, 10, height)}),
                                CZemHatchProp(L"P", 0.0, scale), device);
}

}  // namespace

// Fewer than 95 repetitions pass at any zoom; steps of 2.3 device units or
// less fail.
TEST(PatternTest, RepetitionCountAndStepOnTheDevice) {
    const auto step = values({0.0, 0.0, 0.0, 0.0, 1.0});
    EXPECT_TRUE(legible(94.0, {step}, 3.0));
    EXPECT_FALSE(legible(95.0, {step}, 300.0)) << "zooming in does not help a count";
    EXPECT_TRUE(legible(94.0, {values({0.0, 0.0, 0.0, 0.0, 0.5})}, 6.0, 2.0)) << "steps are scaled";
    EXPECT_TRUE(legible(200.0, {values({90.0, 0.0, 0.0, 0.0, 1.0})}, 3.0)) << "10 wide across upright lines";
    EXPECT_TRUE(legible(10.0, {step}, 2.31));
    EXPECT_FALSE(legible(10.0, {step}, 2.3));
    EXPECT_TRUE(legible(10.0, {step}, 1.2, 2.0)) << "scale 2 doubles the step";
}

// Only present non-zero dx count, negative ones only by length; any failing
// line fails, and an unknown pattern passes.
TEST(PatternTest, WhichStepsCountAndWhichLinesDecide) {
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, 0.0, 1.0, 0.5, -0.5})}, 3.0)) << "dx 0 does not count";
    EXPECT_FALSE(legible(10.0, {values({0.0, 0.0, 0.0, 0.1, 1.0})}, 30.0)) << "100 dx across 10 wide";
    EXPECT_TRUE(legible(10.0, {values({0.0, 0.0, 0.0, -0.01, 1.0})}, 300.0)) << "negative counts never rise";
    EXPECT_FALSE(legible(10.0, {values({0.0, 0.0, 0.0, -1.0, 10.0})}, 2.0)) << "but |-1| is a step";
    const auto fine = values({0.0, 0.0, 0.0, 0.0, 1.0});
    EXPECT_FALSE(legible(10.0, {fine, values({90.0, 0.0, 0.0, 0.0, 0.1})}, 30.0));
    EXPECT_TRUE(legible(10.0, {}, 0.001)) << "no lines pass while the zoom is above 0";
    EXPECT_FALSE(legible(10.0, {}, 0.0));
}
