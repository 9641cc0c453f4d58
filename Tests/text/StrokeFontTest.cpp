#include "TextTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace {

typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> Glyph;

const double kW = 0.022373;
const double kLeft = 0.155932;
const double kRight = 0.844746;

std::vector<int> fontCodes() {
    std::vector<int> codes;
    for (int c = 33; c <= 126; ++c) codes.push_back(c);
    for (int c : {177, 178, 179, 186, 188, 189, 190, 196, 214, 220, 223, 228, 246, 252}) codes.push_back(c);
    return codes;
}

// Holes of each region, region by region, as the font's structure table has
// them; every character not listed is one region without a hole.
std::vector<int> expectedHoles(int code) {
    struct Row {
        std::vector<int> codes;
        std::vector<int> holes;
    };
    static const std::vector<Row> rows = {
        {{'#', '0', '4', '6', '9', '@', 'A', 'D', 'O', 'P', 'Q', 'R', 'a', 'b', 'd', 'e', 'g', 'o', 'p', 'q', 186},
         {1}},
        {{'$', '&', '8', 'B'}, {2}},
        {{'!', '"', ':', ';', '=', '?', 'i', 'j', 177}, {0, 0}},
        {{'%'}, {1, 1, 0}},
        {{196, 214, 228, 246}, {1, 0, 0}},
        {{220, 252, 189}, {0, 0, 0}},
        {{188, 190}, {0, 0, 1}},
    };
    for (const Row& row : rows) {
        for (int c : row.codes) {
            if (c == code) return row.holes;
        }
    }
    return {0};
}

double signedArea(const CZemVertexArray& c) { return texttest::signedArea2(c) / 2; }

double areaOf(const Glyph& g) {
    double a = 0;
    for (int r = 0; r < g.len(); ++r) {
        a += std::fabs(signedArea(g[r][0]));
        for (int h = 1; h < g[r].len(); ++h) a -= std::fabs(signedArea(g[r][h]));
    }
    return a;
}

bool inside(const CZemVertexArray& c, double x, double y) {
    bool in = false;
    for (int v = 0; v < c.len(); ++v) {
        const CZemPoint3d& a = c[v].m_start;
        const CZemPoint3d& b = c[v].m_end;
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) in = !in;
    }
    return in;
}

bool segmentsCross(const CZemVertex& s, const CZemVertex& t) {
    auto side = [](const CZemPoint3d& a, const CZemPoint3d& b, const CZemPoint3d& p) {
        return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    };
    const double d1 = side(s.m_start, s.m_end, t.m_start), d2 = side(s.m_start, s.m_end, t.m_end);
    const double d3 = side(t.m_start, t.m_end, s.m_start), d4 = side(t.m_start, t.m_end, s.m_end);
    if (d1 == 0 && d2 == 0) {
        // On one line: they meet only if their extents overlap.
        return std::fmax(s.m_start.x, s.m_end.x) >= std::fmin(t.m_start.x, t.m_end.x) &&
               std::fmax(t.m_start.x, t.m_end.x) >= std::fmin(s.m_start.x, s.m_end.x) &&
               std::fmax(s.m_start.y, s.m_end.y) >= std::fmin(t.m_start.y, t.m_end.y) &&
               std::fmax(t.m_start.y, t.m_end.y) >= std::fmin(s.m_start.y, s.m_end.y);
    }
    return d1 * d2 <= 0 && d3 * d4 <= 0;
}

std::string name(int code) { return code < 128 ? std::string(1, static_cast<char>(code)) : std::to_string(code); }

void expectPoints(const CZemVertexArray& c, const std::vector<std::vector<double>>& points, const std::string& what) {
    ASSERT_EQ(c.len(), static_cast<int>(points.size())) << what;
    for (size_t k = 0; k < points.size(); ++k) {
        EXPECT_DOUBLE_EQ(c[static_cast<int>(k)].m_start.x, points[k][0]) << what << " vertex " << k;
        EXPECT_DOUBLE_EQ(c[static_cast<int>(k)].m_start.y, points[k][1]) << what << " vertex " << k;
    }
}

}  // namespace

TEST(StrokeFont, CharactersOutsideTheFontGiveEmptyGlyphs) {
    EXPECT_EQ(get_ascii_from_map(L' ').len(), 0);
    EXPECT_EQ(get_ascii_from_map(0x20AC).len(), 0);
    EXPECT_EQ(get_ascii_from_map(L'\n').len(), 0);
    std::set<int> present;
    for (int c = 0; c <= 0xFFFF; ++c) {
        if (get_ascii_from_map(c).len() > 0) present.insert(c);
    }
    const std::vector<int> codes = fontCodes();
    EXPECT_EQ(present, std::set<int>(codes.begin(), codes.end()));
}

TEST(StrokeFont, IntCodesAreCutToSixteenBits) {
    const Glyph a = get_ascii_from_map(L'A');
    for (int c : {65 + 65536, 65 + 0x7FFF0000, 65 - 65536}) {
        const Glyph g = get_ascii_from_map(c);
        ASSERT_EQ(g.len(), 1) << c;
        ASSERT_EQ(g[0].len(), 2) << c;
        EXPECT_EQ(g[0][0].len(), a[0][0].len()) << c;
        EXPECT_EQ(g[0][0][3].m_start, a[0][0][3].m_start) << c;
    }
}

TEST(StrokeFont, GlyphsHaveTheirFixedOutlines) {
    const Glyph a = get_ascii_from_map(L'A');
    ASSERT_EQ(a.len(), 1);
    ASSERT_EQ(a[0].len(), 2);
    expectPoints(a[0][0],
                 {{0.844746, 0}, {0.822373, 0}, {0.822373, 0.322712}, {0.178305, 0.322712}, {0.178305, 0},
                  {0.155932, 0}, {0.155932, 0.336271}, {0.487458, 1.0}, {0.51322, 1.0}, {0.844746, 0.336271}},
                 "A outer");
    expectPoints(a[0][1], {{0.815593, 0.344407}, {0.500339, 0.974915}, {0.185085, 0.344407}}, "A hole");

    const Glyph bang = get_ascii_from_map(L'!');
    ASSERT_EQ(bang.len(), 2);
    expectPoints(bang[1][0], {{0.178305, 0}, {0.155932, 0}, {0.155932, 0.16678}, {0.178305, 0.16678}}, "! dot");
}

// Each glyph has the regions and holes of the font's structure table, every
// contour a closed polygon of straight vertices.
TEST(StrokeFont, EveryGlyphHasTheStructureOfTheFontInClosedContours) {
    int contours = 0;
    for (int code : fontCodes()) {
        const Glyph g = get_ascii_from_map(code);
        std::vector<int> holes;
        for (int r = 0; r < g.len(); ++r) holes.push_back(g[r].len() - 1);
        EXPECT_EQ(holes, expectedHoles(code)) << "glyph " << name(code);
        for (int r = 0; r < g.len(); ++r) {
            for (int c = 0; c < g[r].len(); ++c, ++contours) {
                const CZemVertexArray& contour = g[r][c];
                ASSERT_GE(contour.len(), 3) << name(code);
                EXPECT_GT(std::fabs(signedArea(contour)), 1e-4) << name(code) << " region " << r << " contour " << c;
                for (int v = 0; v < contour.len(); ++v) {
                    const CZemVertex& vertex = contour[v];
                    EXPECT_TRUE(vertex.m_bulge == 0.0 && vertex.m_start.z == 0.0 && vertex.m_start != vertex.m_end)
                        << name(code) << " vertex " << v;
                    EXPECT_EQ(vertex.m_end, contour[(v + 1) % contour.len()].m_start) << name(code) << " vertex " << v;
                }
            }
        }
    }
    EXPECT_EQ(contours, 174);
}

TEST(StrokeFont, HolesLieInsideTheirRegionAndRegionsStayApart) {
    for (int code : fontCodes()) {
        const Glyph g = get_ascii_from_map(code);
        for (int r = 0; r < g.len(); ++r) {
            for (int h = 1; h < g[r].len(); ++h) {
                for (int v = 0; v < g[r][h].len(); ++v) {
                    const CZemPoint3d& p = g[r][h][v].m_start;
                    EXPECT_TRUE(inside(g[r][0], p.x, p.y)) << name(code) << " hole " << h << " vertex " << v;
                }
            }
            for (int s = r + 1; s < g.len(); ++s) {
                const CZemVertexArray& a = g[r][0];
                const CZemVertexArray& b = g[s][0];
                EXPECT_FALSE(inside(a, b[0].m_start.x, b[0].m_start.y)) << name(code) << " regions " << r << ", " << s;
                EXPECT_FALSE(inside(b, a[0].m_start.x, a[0].m_start.y)) << name(code) << " regions " << r << ", " << s;
                for (int i = 0; i < a.len(); ++i) {
                    for (int j = 0; j < b.len(); ++j) {
                        ASSERT_FALSE(segmentsCross(a[i], b[j])) << name(code) << " regions " << r << ", " << s;
                    }
                }
            }
        }
    }
}

TEST(StrokeFont, GlyphsKeepTheMetricsOfTheCell) {
    struct Expect {
        int code;
        double x0, y0, x1, y1;
    };
    const double round0 = -0.0101695, round1 = 1.01085, xh = 0.677966;
    const Expect exact[] = {
        {'O', kLeft, round0, kRight, round1},  {'H', kLeft, 0, kRight, 1},          {'V', kLeft, 0, 1.17627, 1},
        {'l', kLeft, 0, 0.341695, 1},          {'|', kLeft, -0.1, kLeft + kW, 1},   {'o', kLeft, round0, kRight, xh},
        {'g', kLeft, -0.343729, kRight, xh},   {'p', kLeft, -0.332203, kRight, xh},
        {'i', kLeft, 0, kLeft + kW, 1},        {'_', kLeft, -0.176949, kRight, -0.176949 + kW},
    };
    for (const Expect& e : exact) {
        const texttest::Box b = texttest::glyphBox(static_cast<wchar_t>(e.code));
        const double off = std::fmax(std::fmax(std::fabs(b.x0 - e.x0), std::fabs(b.y0 - e.y0)),
                                     std::fmax(std::fabs(b.x1 - e.x1), std::fabs(b.y1 - e.y1)));
        EXPECT_LT(off, 1e-9) << name(e.code) << " " << b.x0 << ", " << b.y0 << " to " << b.x1 << ", " << b.y1;
    }
    EXPECT_NEAR(texttest::glyphBox(L',').y0, -0.174237, 1e-9);
    EXPECT_NEAR(texttest::glyphBox(L'j').y0, -0.343729, 1e-9);
    for (wchar_t code : {178, 179}) {
        const texttest::Box b = texttest::glyphBox(code);
        EXPECT_TRUE(b.x0 > 0.03 && b.x1 < 0.44 && b.y0 > 0.37 && b.y1 < 0.98) << "superscript " << int(code);
    }
    for (int code : {188, 189, 190}) EXPECT_NEAR(texttest::glyphBox(static_cast<wchar_t>(code)).x1, 1.01, 0.01) << code;
    for (int code : fontCodes()) {
        if (code == 'i' || code == 'j' || code > 127) continue;
        const texttest::Box b = texttest::glyphBox(static_cast<wchar_t>(code));
        const bool ascender = std::string("bdfhklt").find(static_cast<char>(code)) != std::string::npos;
        const bool lowercase = code >= 'a' && code <= 'z' && !ascender;
        EXPECT_LE(b.y1, lowercase ? xh + 1e-9 : round1 + 1e-9) << name(code);
        EXPECT_GE(b.y0, -0.343729 - 1e-9) << name(code);
    }
}

// Areas of glyphs made of upright and level bars, summed bar by bar.
TEST(StrokeFont, BarGlyphsAreStrokesOfTheStrokeWidth) {
    const double width = kRight - kLeft;
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'.')), kW * 0.16678, 1e-12);
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'H')), 2 * kW + (width - 2 * kW) * kW, 1e-9);
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'T')), width * kW + (1 - kW) * kW, 1e-9);
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'I')), 2 * (0.500339 - kLeft) * kW + (1 - 2 * kW) * kW, 1e-9);
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'L')), kW + (width - kW) * kW, 1e-9);
}

TEST(StrokeFont, ChangingAReturnedGlyphLeavesTheFontAlone) {
    Glyph g = get_ascii_from_map(L'B');
    const int outer = g[0][0].len();
    g[0][0].append(CZemVertex());
    g[0].removeAt(1);
    g.setLogicalLength(0);
    const Glyph again = get_ascii_from_map(L'B');
    ASSERT_EQ(again.len(), 1);
    EXPECT_EQ(again[0].len(), 3);
    EXPECT_EQ(again[0][0].len(), outer);
}
