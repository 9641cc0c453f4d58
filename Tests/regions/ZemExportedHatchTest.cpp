#include "RegionsTestApp.h"
#include "RegionsTestSupport.h"
#include "ZemHatch.h"
#include "ZemPatternHatcher.h"
#include "ZemPatternTest.h"

#include <gtest/gtest.h>

using regtest::rectangle;
using regtest::regions;

TEST(ExportedHatch, PatternHatchingTakesThePatternFromTheApplication) {
    regtest::TestApp app;
    app.setPattern(L"STRIPES", {{0.0, 0.0, 0.25, 0.0, 1.0}, {90.0, 0.5, 0.0, 0.0, 2.0, 0.5, -0.5}});
    const regtest::AppGuard guard(&app);
    const auto regs = regions({rectangle(0, 0, 8, 6), rectangle(3, 2, 5, 4)});
    const CZemHatchProp prop(L"STRIPES", 0.0, 1.0);
    const auto lines = zem_gdx_image_reg_hatch2(regs, CZemMatrix3d::kIdentity, prop);
    CZemArrayTempl<CZemArrayTempl<double>> defined;
    app.hatchPattern(L"STRIPES", defined);
    const auto direct = CZemPatternHatcher(regs, CZemMatrix3d::kIdentity, prop).hatch(defined);
    ASSERT_EQ(lines.len(), direct.len());
    EXPECT_EQ(lines.len(), 6 + 4);
    EXPECT_NEAR(regtest::totalLength(lines), regtest::totalLength(direct), 1e-9);
    EXPECT_EQ(zem_gdx_image_reg_hatch2(regs, CZemMatrix3d::kIdentity, CZemHatchProp(L"NONE", 0.0, 1.0)).len(), 0);

    CZemMatrix3d lift;
    lift.setToTranslation(CZemVector3d(100.0, 0.0, 5.0));
    CZemArrayTempl<CZemVertexArray> lifted = regs;
    for (int k = 0; k < lifted.len(); ++k) lifted[k].transformBy(lift);
    const auto carried = zem_gdx_image_reg_hatch2(lifted, lift, prop);
    ASSERT_EQ(carried.len(), lines.len());
    EXPECT_NEAR(carried[0][0].m_start.x - lines[0][0].m_start.x, 100.0, 1e-9);
    EXPECT_NEAR(carried[0][0].m_start.z, 5.0, 1e-9);
}

TEST(ExportedHatch, PatternTestAsksTheApplicationForThePattern) {
    regtest::TestApp app;
    app.setPattern(L"LINES", {{0.0, 0.0, 0.0, 0.0, 1.0}});
    const regtest::AppGuard guard(&app);
    const auto tall = regions({rectangle(0, 0, 10, 95)});
    const auto low = regions({rectangle(0, 0, 10, 94)});
    CZemMatrix3d scaled;
    scaled.setToScaling(3.0, CZemPoint3d::kOrigin);
    EXPECT_FALSE(zem_gdx_pattern_test(tall, CZemHatchProp(L"LINES", 0.0, 1.0), scaled));
    EXPECT_TRUE(zem_gdx_pattern_test(low, CZemHatchProp(L"LINES", 0.0, 1.0), scaled));
    EXPECT_TRUE(zem_gdx_pattern_test(tall, CZemHatchProp(L"UNKNOWN", 0.0, 1.0), scaled));
}
