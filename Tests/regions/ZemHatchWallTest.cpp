#include "RegionsTestSupport.h"
#include "ZemHatch.h"
#include "ZemPatternFile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

// A wall elevation 6000 by 2800, the door opening cut into its outline and
// the window opening a hole, hatched with the patterns of the shipped
// pattern file. Pictures go to regions_wall_<pattern>.png in the build tree.
TEST(HatchWall, ShippedPatternsFillTheWallAndLeaveTheOpeningsFree) {
    CZemPatternFile file;
    const std::string path = std::string(ZEM_SOURCE_DIR) + "/Source/resources/zem.pat";
    ASSERT_TRUE(file.load(std::wstring(path.begin(), path.end()).c_str()));
    regtest::TestApp app;
    const auto wall = regtest::regions(
        {regtest::polygon({{0, 0}, {800, 0}, {800, 2100}, {1800, 2100}, {1800, 0}, {6000, 0}, {6000, 2800}, {0, 2800}}),
         regtest::rectangle(3200, 900, 5000, 2100)});
    const struct {
        const wchar_t* name;
        double scale;
    } cases[] = {{L"ANSI31", 20.0}, {L"BRICK", 8.0}, {L"GRAVEL", 6.0},
                 {L"HONEY", 10.0},  {L"DOTS", 30.0}, {L"NET3", 12.0}};
    for (const auto& c : cases) {
        CZemArrayTempl<CZemArrayTempl<double>> lines;
        ASSERT_TRUE(file.get(c.name, lines)) << c.name;
        app.setPattern(c.name, lines);
        const auto hatch = zem_gdx_image_reg_hatch2(wall, CZemMatrix3d::kIdentity, CZemHatchProp(c.name, 0.0, c.scale));
        EXPECT_GT(hatch.len(), 10) << c.name;
        EXPECT_EQ(regtest::outsidePieces(hatch, wall, 1e-6), "") << c.name;
        if (std::wstring(c.name) == L"ANSI31") {
            const double area = 6000.0 * 2800.0 - 1000.0 * 2100.0 - 1800.0 * 1200.0;
            EXPECT_NEAR(regtest::totalLength(hatch), area / (lines[0][4] * c.scale), std::hypot(2800.0, 2800.0));
        }
        const std::wstring name(c.name);
        const std::string picture = std::string(ZEM_BUILD_DIR) + "/regions_wall_" + std::string(name.begin(), name.end()) + ".png";
        EXPECT_TRUE(regtest::writePicture(picture, hatch, wall, 900)) << picture;
    }
}
