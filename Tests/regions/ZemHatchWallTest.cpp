#include "RegionsTestApp.h"
#include "RegionsTestSupport.h"
#include "ZemHatch.h"
#include "ZemPatternFile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using regtest::rectangle;
using regtest::regions;

namespace {

// The project's own pattern file, as the library ships it.
class ShippedPatterns : public regtest::TestApp {
public:
    ShippedPatterns() {
        const std::string path = std::string(ZEM_SOURCE_DIR) + "/Source/resources/zem.pat";
        m_loaded = m_file.load(std::wstring(path.begin(), path.end()).c_str());
    }
    bool loaded() const { return m_loaded; }
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override {
        return m_file.get(name, lines);
    }

private:
    CZemPatternFile m_file;
    bool m_loaded = false;
};

// A wall elevation 6000 by 2800: the door opening cut into its outline, the
// window opening a hole.
CZemArrayTempl<CZemVertexArray> wall() {
    const auto outline = regtest::polygon(
        {{0, 0}, {800, 0}, {800, 2100}, {1800, 2100}, {1800, 0}, {6000, 0}, {6000, 2800}, {0, 2800}});
    return regions({outline, rectangle(3200, 900, 5000, 2100)});
}

}  // namespace

TEST(HatchWall, ShippedPatternsFillTheWallAndLeaveTheOpeningsFree) {
    ShippedPatterns app;
    ASSERT_TRUE(app.loaded());
    const regtest::AppGuard guard(&app);
    const auto regs = wall();
    const struct {
        const wchar_t* name;
        double scale;
        const char* file;
    } cases[] = {{L"ANSI31", 20.0, "ansi31"}, {L"BRICK", 8.0, "brick"}, {L"GRAVEL", 6.0, "gravel"},
                 {L"HONEY", 10.0, "honey"}, {L"DOTS", 30.0, "dots"}, {L"NET3", 12.0, "net3"}};
    for (const auto& c : cases) {
        const auto lines = zem_gdx_image_reg_hatch2(regs, CZemMatrix3d::kIdentity, CZemHatchProp(c.name, 0.0, c.scale));
        EXPECT_GT(lines.len(), 10) << c.file;
        EXPECT_EQ(regtest::outsidePieces(lines, regs, 1e-6), "") << c.file;
        const std::string picture = std::string(ZEM_BUILD_DIR) + "/regions_wall_" + c.file + ".png";
        EXPECT_TRUE(regtest::writePicture(picture, lines, regs, 900)) << picture;
    }
}

TEST(HatchWall, ContinuousHatchCoversTheWallByAreaOverSpacing) {
    ShippedPatterns app;
    ASSERT_TRUE(app.loaded());
    const regtest::AppGuard guard(&app);
    CZemArrayTempl<CZemArrayTempl<double>> ansi31;
    ASSERT_TRUE(app.hatchPattern(L"ANSI31", ansi31));
    const double spacing = ansi31[0][4] * 20.0;
    const auto regs = wall();
    const auto lines = zem_gdx_image_reg_hatch2(regs, CZemMatrix3d::kIdentity, CZemHatchProp(L"ANSI31", 0.0, 20.0));
    const double area = 6000.0 * 2800.0 - 1000.0 * 2100.0 - 1800.0 * 1200.0;
    EXPECT_NEAR(regtest::totalLength(lines), area / spacing, std::hypot(2800.0, 2800.0));
}
