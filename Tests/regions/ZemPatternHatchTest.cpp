#include "RegionsTestSupport.h"
#include "ZemHatch.h"
#include "ZemUnits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using regtest::pattern;
using regtest::rectangle;
using regtest::regions;
using regtest::values;

namespace {

const double kPi = 3.14159265358979323846;

// Pattern hatching of regs with one pattern, through the application object.
CZemArrayTempl<CZemVertexArray> hatch(const CZemArrayTempl<CZemVertexArray>& regs,
                                      const CZemArrayTempl<CZemArrayTempl<double>>& lines, double rotation = 0.0,
                                      double scale = 1.0, const wchar_t* name = L"TEST") {
    regtest::TestApp app;
    app.setPattern(name, lines);
    return zem_gdx_image_reg_hatch2(regs, CZemMatrix3d::kIdentity, CZemHatchProp(name, rotation, scale));
}

std::set<long> rowsOf(const CZemArrayTempl<CZemVertexArray>& lines) {
    std::set<long> rows;
    for (int k = 0; k < lines.len(); ++k) rows.insert(std::lround(lines[k][0].m_start.y * 1e6));
    return rows;
}

}  // namespace

TEST(PatternHatch, ContinuousLinesGiveOneElementPerLineAndOneVertexPerSpan) {
    const auto holed = regions({rectangle(0, 0, 10, 10), rectangle(3, 3, 7, 7)});
    const auto lines = hatch(holed, pattern({values({45.0, 0.0, 0.0, 0.0, 0.5})}));
    int twoSpans = 0;
    for (int k = 0; k < lines.len(); ++k) {
        ASSERT_TRUE(lines[k].len() == 1 || lines[k].len() == 2) << "line " << k;
        twoSpans += lines[k].len() == 2;
    }
    EXPECT_GT(twoSpans, 8) << "lines across the hole have two spans";
    EXPECT_NEAR(regtest::totalLength(lines), (100.0 - 16.0) / 0.5, std::hypot(10.0, 10.0));
    EXPECT_EQ(regtest::outsidePieces(lines, holed, 1e-7), "");
}

TEST(PatternHatch, ALineWithAnOddNumberOfDistinctCrossingsIsDroppedWhole) {
    // The hole shares the contour's left edge: lines past it cross x = 0
    // twice at one place, counted once, which leaves three crossings.
    const auto regs = regions({rectangle(0, 0, 10, 10), rectangle(0, 2.2, 4, 7.2)});
    const auto lines = hatch(regs, pattern({values({0.0, 0.0, 0.5, 0.0, 1.0})}));
    EXPECT_EQ(rowsOf(lines), (std::set<long>{500000, 1500000, 7500000, 8500000, 9500000}));
}

TEST(PatternHatch, DashesKeepTheirPhaseAndDotsAreShortDashes) {
    // Dash 1, gap 1 from base x 0.3, each line shifted by dx 0.25.
    const auto wide = regions({rectangle(0.05, 0.05, 20.05, 6.05)});
    const auto lines = hatch(wide, pattern({values({0.0, 0.3, 0.0, 0.25, 1.0, 1.0, -1.0})}));
    ASSERT_EQ(lines.len(), 6);
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) {
            const double a = std::min(lines[k][v].m_start.x, lines[k][v].m_end.x);
            const double b = std::max(lines[k][v].m_start.x, lines[k][v].m_end.x);
            if (a <= 0.05 + 1e-9 || b >= 20.05 - 1e-9) continue;
            const double phase = (a - 0.3 - 0.25 * lines[k][v].m_start.y) / 2.0;
            EXPECT_NEAR(b - a, 1.0, 1e-9);
            EXPECT_NEAR(phase, std::round(phase), 1e-9) << "line " << k;
        }
    }
    double dotLen = 0.2;
    ZEM::acadUnitCv(dotLen, Zem::unitMillimeters, Zem::unitCurrent);
    const auto dots = hatch(regions({rectangle(0.5, 0.5, 10.5, 3.5)}), pattern({values({0, 0, 0, 0, 1, 0, -1})}));
    ASSERT_EQ(dots.len(), 3);
    ASSERT_GE(dots[1].len(), 8);
    for (int v = 1; v + 1 < dots[1].len(); ++v) {
        EXPECT_NEAR(dots[1][v].m_start.distanceTo(dots[1][v].m_end), dotLen, 1e-9) << "a dot is a short dash";
        EXPECT_NEAR(dots[1][v + 1].m_start.x - dots[1][v].m_start.x, 1.0 + dotLen, 1e-9);
    }
}

TEST(PatternHatch, TurningThePatternEqualsTurningItsLines) {
    const auto regs = regions({rectangle(1, 1, 13, 9), rectangle(4, 3, 6, 5)});
    const auto turned = hatch(regs, pattern({values({45.0, 0.0, 0.0, 0.0, 0.7})}), kPi / 4.0);
    const auto upright = hatch(regs, pattern({values({90.0, 0.0, 0.0, 0.0, 0.7})}));
    ASSERT_GT(upright.len(), 10);
    EXPECT_NEAR(regtest::totalLength(turned), regtest::totalLength(upright), 1e-6);
    std::set<long> a, b;
    for (int k = 0; k < turned.len(); ++k) a.insert(std::lround(turned[k][0].m_start.x * 1e4));
    for (int k = 0; k < upright.len(); ++k) b.insert(std::lround(upright[k][0].m_start.x * 1e4));
    EXPECT_EQ(a, b);
}

TEST(PatternHatch, FineGravelSweepsTenTimesAsFarAsAnyOtherPattern) {
    // Turned by -90 degrees the lines stand upright and the sweep moves them
    // right by 0.5 a pass from x = 0: 2000 passes reach the region. Fine
    // "GRAVEL" allows 3 * 29 * 200 passes, the others 3 * 29 * 20.
    const auto far = regions({rectangle(1000, 0, 1010, 10)});
    const auto line = pattern({values({0.0, 0.0, 0.0, 0.0, 1.0})});
    const auto gravel = hatch(far, line, -kPi / 2.0, 0.5, L"GRAVEL");
    EXPECT_GE(gravel.len(), 19);
    EXPECT_EQ(regtest::outsidePieces(gravel, far, 1e-7), "");
    EXPECT_EQ(hatch(far, line, -kPi / 2.0, 0.5, L"gravel").len(), 0) << "the name is matched exactly";
    EXPECT_EQ(hatch(far, pattern({values({0.0, 0.0, 0.0, 0.0, 0.5})}), -kPi / 2.0, 1.0, L"GRAVEL").len(), 0)
        << "coarse gravel sweeps as far as any other pattern";
}

TEST(PatternHatch, NothingComesOfEmptyOrUnusableInput) {
    const auto square = regions({rectangle(0, 0, 10, 10)});
    EXPECT_EQ(hatch(CZemArrayTempl<CZemVertexArray>(), pattern({values({0, 0, 0, 0, 1})})).len(), 0);
    EXPECT_EQ(hatch(square, pattern({})).len(), 0) << "unknown pattern";
    EXPECT_EQ(hatch(square, pattern({values({0, 0, 0, 1})})).len(), 0) << "no dy";
    EXPECT_EQ(hatch(square, pattern({values({0, 0})})).len(), 0) << "fewer than three entries";
    EXPECT_EQ(hatch(square, pattern({values({0, 0, 0, 0, 1, -1, -1})})).len(), 0) << "gaps only";
    EXPECT_EQ(hatch(square, pattern({values({0, 0, 0, 0, 1})}), NAN).len(), 0);
    EXPECT_EQ(hatch(square, pattern({values({0, 0, 0, 0, 1e-300})})).len(), 0) << "count overflows";
    EXPECT_EQ(hatch(square, pattern({values({0, 0, 1e300, 0, 1e-3})})).len(), 0) << "a step no longer moves";
}

TEST(PatternHatch, LinesAreBuiltInThePlaneOfMtxAndCarriedToTheWorld) {
    const auto regs = regions({rectangle(0, 0, 8, 6), rectangle(3, 2, 5, 4)});
    const auto flat = hatch(regs, pattern({values({0.0, 0.0, 0.25, 0.0, 1.0})}));
    CZemMatrix3d lift;
    lift.setCoordSystem(CZemPoint3d(100, 0, 5), CZemVector3d(0, 1, 0), CZemVector3d(-0.6, 0, 0.8),
                        CZemVector3d(0.8, 0, 0.6));
    CZemArrayTempl<CZemVertexArray> lifted = regs;
    for (int k = 0; k < lifted.len(); ++k) lifted[k].transformBy(lift);
    regtest::TestApp app;
    app.setPattern(L"ROWS", pattern({values({0.0, 0.0, 0.25, 0.0, 1.0})}));
    const auto carried = zem_gdx_image_reg_hatch2(lifted, lift, CZemHatchProp(L"ROWS", 0.0, 1.0));
    ASSERT_EQ(carried.len(), flat.len());
    for (int k = 0; k < flat.len(); ++k) {
        ASSERT_EQ(carried[k].len(), flat[k].len());
        EXPECT_LT(carried[k][0].m_start.distanceTo(flat[k][0].m_start * lift), 1e-9);
    }
}
