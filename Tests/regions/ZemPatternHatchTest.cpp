#include "RegionsTestSupport.h"
#include "ZemPatternHatcher.h"
#include "ZemUnits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <vector>

using regtest::rectangle;
using regtest::regions;
using regtest::values;

namespace {

const double kPi = 3.14159265358979323846;

CZemArrayTempl<CZemArrayTempl<double>> pattern(std::initializer_list<CZemArrayTempl<double>> lines) {
    CZemArrayTempl<CZemArrayTempl<double>> out;
    for (const auto& line : lines) out.append(line);
    return out;
}

CZemArrayTempl<CZemVertexArray> hatch(const CZemArrayTempl<CZemVertexArray>& regs,
                                      const CZemArrayTempl<CZemArrayTempl<double>>& lines, double rotation = 0.0,
                                      double scale = 1.0, const wchar_t* name = L"TEST",
                                      CZemHatchFamily::Measure measure = CZemHatchFamily::Measure::window) {
    return CZemPatternHatcher(regs, CZemMatrix3d::kIdentity, CZemHatchProp(name, rotation, scale), measure)
        .hatch(lines);
}

// The y of each hatch line of a horizontal family, rounded to 1e-6.
std::set<long> rowsOf(const CZemArrayTempl<CZemVertexArray>& lines) {
    std::set<long> rows;
    for (int k = 0; k < lines.len(); ++k) rows.insert(std::lround(lines[k][0].m_start.y * 1e6));
    return rows;
}

}  // namespace

TEST(PatternHatch, AContinuousFamilyGivesOneElementPerLineAndOneVertexPerSpan) {
    const auto square = regions({rectangle(0, 0, 10, 10)});
    const auto lines = hatch(square, pattern({values({45.0, 0.0, 0.0, 0.0, 0.5})}));
    ASSERT_GT(lines.len(), 20);
    for (int k = 0; k < lines.len(); ++k) ASSERT_EQ(lines[k].len(), 1) << "line " << k;
    EXPECT_NEAR(regtest::totalLength(lines), 100.0 / 0.5, std::hypot(10.0, 10.0));
    EXPECT_EQ(regtest::outsidePieces(lines, square, 1e-7), "");

    const auto holed = regions({rectangle(0, 0, 10, 10), rectangle(3, 3, 7, 7)});
    const auto cut = hatch(holed, pattern({values({45.0, 0.0, 0.0, 0.0, 0.5})}));
    int twoSpans = 0;
    for (int k = 0; k < cut.len(); ++k) twoSpans += cut[k].len() == 2;
    EXPECT_GT(twoSpans, 8) << "lines across the hole have two spans";
    EXPECT_NEAR(regtest::totalLength(cut), (100.0 - 16.0) / 0.5, std::hypot(10.0, 10.0));
    EXPECT_EQ(regtest::outsidePieces(cut, holed, 1e-7), "");
}

TEST(PatternHatch, ALineWithAnOddNumberOfDistinctCrossingsIsDroppedWhole) {
    // The hole shares the contour's left edge: on the lines that pass it the
    // crossing at x = 0 is found twice but counted once, leaving three.
    const auto regs = regions({rectangle(0, 0, 10, 10), rectangle(0, 2.2, 4, 7.2)});
    const auto lines = hatch(regs, pattern({values({0.0, 0.0, 0.5, 0.0, 1.0})}));
    EXPECT_EQ(rowsOf(lines), (std::set<long>{500000, 1500000, 7500000, 8500000, 9500000}));
    EXPECT_EQ(regtest::outsidePieces(lines, regs, 1e-7), "");
}

TEST(PatternHatch, DashesKeepTheirPhaseAtTheBasePointOnEveryLine) {
    // Dash 1, gap 1 from base x 0.3, every line shifted by dx 0.25.
    const auto wide = regions({rectangle(0.05, 0.05, 20.05, 6.05)});
    const auto lines = hatch(wide, pattern({values({0.0, 0.3, 0.0, 0.25, 1.0, 1.0, -1.0})}));
    ASSERT_EQ(lines.len(), 6);
    for (int k = 0; k < lines.len(); ++k) {
        const double y = lines[k][0].m_start.y;
        const double shift = 0.3 + 0.25 * y;
        int whole = 0;
        for (int v = 0; v < lines[k].len(); ++v) {
            const CZemVertex& dash = lines[k][v];
            const double a = std::min(dash.m_start.x, dash.m_end.x), b = std::max(dash.m_start.x, dash.m_end.x);
            if (a <= 0.05 + 1e-9 || b >= 20.05 - 1e-9) continue;
            ++whole;
            EXPECT_NEAR(b - a, 1.0, 1e-9);
            const double phase = (a - shift) / 2.0;
            EXPECT_NEAR(phase, std::round(phase), 1e-9) << "line at y " << y;
        }
        EXPECT_GE(whole, 9);
    }
    EXPECT_NEAR(regtest::totalLength(lines), 6.0 * 10.0, 2.0 * 6.0);
}

TEST(PatternHatch, DotsAreShortDashesOfTheDotLength) {
    const auto regs = regions({rectangle(0.5, 0.5, 10.5, 3.5)});
    const auto lines = hatch(regs, pattern({values({0.0, 0.0, 0.0, 0.0, 1.0, 0.0, -1.0})}));
    ASSERT_EQ(lines.len(), 3);
    double dotLen = 0.2;
    ZEM::acadUnitCv(dotLen, Zem::unitMillimeters, Zem::unitCurrent);
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) {
            const double length = lines[k][v].m_start.distanceTo(lines[k][v].m_end);
            if (lines[k][v].m_start.x > 0.5 + 1e-9 && lines[k][v].m_end.x < 10.5 - 1e-9) {
                EXPECT_NEAR(length, dotLen, 1e-9);
            }
            EXPECT_GT(length, 0.0) << "never a true point";
        }
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
    EXPECT_EQ(regtest::outsidePieces(turned, regs, 1e-7), "");
}

TEST(PatternHatch, EmptyInputsAndFamiliesWithoutStepGiveNothing) {
    const auto square = regions({rectangle(0, 0, 10, 10)});
    EXPECT_EQ(hatch(CZemArrayTempl<CZemVertexArray>(), pattern({values({0.0, 0.0, 0.0, 0.0, 1.0})})).len(), 0);
    EXPECT_EQ(hatch(square, pattern({})).len(), 0);
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0, 0.0, 1.0})})).len(), 0) << "no dy";
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0})})).len(), 0) << "fewer than three entries";
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0, 0.0, 0.0, 1.0, -1.0, -1.0})})).len(), 0) << "gaps only";
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0, 0.0, 0.0, 1.0})}), NAN).len(), 0);
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0, 0.0, 0.0, 1e-300})})).len(), 0) << "count overflows";
    EXPECT_EQ(hatch(square, pattern({values({0.0, 0.0, 1e300, 0.0, 1e-3})})).len(), 0)
        << "a base point so far that a step no longer moves the line";
}

TEST(PatternHatch, MeasuringOnlyTheWindowGivesTheSameLinesAsMeasuringWholePrototypes) {
    const auto wall = regions({regtest::polygon({{0, 0}, {12, 0}, {12, 5}, {6, 7}, {0, 5}}), rectangle(2, 1, 4, 4),
                               rectangle(7, 1.5, 10, 3)});
    struct Case {
        const wchar_t* name;
        double rotation, scale;
        std::vector<double> line;
    };
    const Case cases[] = {
        {L"A", 0.0, 1.0, {0.0, 0.1, 0.2, 0.3, 0.5, 0.8, -0.3}},
        {L"B", 0.4, 0.5, {30.0, 1.0, -2.0, 0.7, 0.9, 1.5, -0.25, 0.0, -0.25}},
        {L"GRAVEL", 0.0, 0.5, {117.0, 0.3, 0.1, -1.2, 2.1, 0.4, -3.1}},
        {L"C", -1.3, 2.0, {90.0, 0.0, 0.0, 0.0, -0.35, 0.0, -0.12}},
    };
    for (const Case& c : cases) {
        CZemArrayTempl<double> line;
        for (double v : c.line) line.append(v);
        CZemPatternHatcher window(wall, CZemMatrix3d::kIdentity, CZemHatchProp(c.name, c.rotation, c.scale));
        CZemPatternHatcher whole(wall, CZemMatrix3d::kIdentity, CZemHatchProp(c.name, c.rotation, c.scale),
                                 CZemHatchFamily::Measure::whole);
        const auto fast = window.hatch(pattern({line}));
        const auto slow = whole.hatch(pattern({line}));
        ASSERT_GT(slow.len(), 0) << "case " << c.name;
        ASSERT_EQ(fast.len(), slow.len()) << "case " << c.name;
        for (int k = 0; k < slow.len(); ++k) {
            ASSERT_EQ(fast[k].len(), slow[k].len()) << "case " << c.name << " line " << k;
            for (int v = 0; v < slow[k].len(); ++v) {
                EXPECT_LT(fast[k][v].m_start.distanceTo(slow[k][v].m_start), 1e-9);
                EXPECT_LT(fast[k][v].m_end.distanceTo(slow[k][v].m_end), 1e-9);
            }
        }
        EXPECT_EQ(regtest::outsidePieces(fast, wall, 1e-7), "") << "case " << c.name;
        EXPECT_LT(window.measuredDashes() * 20, whole.measuredDashes()) << "case " << c.name;
        EXPECT_LT(window.measuredDashes(), 4 * regtest::vertexCount(fast) + 8 * fast.len()) << "case " << c.name;
    }
}

TEST(PatternHatch, FineGravelSweepsTenTimesAsFarAsAnyOtherPattern) {
    // Turned by -90 degrees the lines become vertical and the sweep moves
    // them to the right, 0.5 a pass from x = 0: 2000 passes reach the
    // region. Fine "GRAVEL" allows 3 * 29 * 200 passes, the others 3 * 29 * 20.
    const auto far = regions({rectangle(1000, 0, 1010, 10)});
    const auto line = pattern({values({0.0, 0.0, 0.0, 0.0, 1.0})});
    const auto gravel = hatch(far, line, -kPi / 2.0, 0.5, L"GRAVEL");
    EXPECT_GE(gravel.len(), 19);
    EXPECT_EQ(regtest::outsidePieces(gravel, far, 1e-7), "");
    EXPECT_EQ(hatch(far, line, -kPi / 2.0, 0.5, L"gravel").len(), 0) << "the name is matched exactly";
    EXPECT_EQ(hatch(far, line, -kPi / 2.0, 0.5, L"BRICK").len(), 0);
    EXPECT_EQ(hatch(far, pattern({values({0.0, 0.0, 0.0, 0.0, 0.5})}), -kPi / 2.0, 1.0, L"GRAVEL").len(), 0)
        << "coarse gravel sweeps as far as any other pattern";
}
