#include "TextTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

const double kW = 0.022373;
const double kLeft = 0.155932, kRight = 0.844746;

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
    for (const Row& row : rows)
        if (std::find(row.codes.begin(), row.codes.end(), code) != row.codes.end()) return row.holes;
    return {0};
}

double areaOf(const Regions& g) {
    double a = 0;
    for (int r = 0; r < g.len(); ++r) {
        a += std::fabs(signedArea2(g[r][0])) / 2;
        for (int h = 1; h < g[r].len(); ++h) a -= std::fabs(signedArea2(g[r][h])) / 2;
    }
    return a;
}

bool inside(const CZemVertexArray& c, double x, double y) {
    bool in = false;
    for (int v = 0; v < c.len(); ++v) {
        const CZemPoint3d &a = c[v].m_start, &b = c[v].m_end;
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) in = !in;
    }
    return in;
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

TEST(StrokeFont, CodesOutsideTheFontGiveEmptyGlyphsIntCodesAreCutAndGlyphsHaveTheirFixedOutlines) {
    std::set<int> present;
    for (int c = 0; c <= 0xFFFF; ++c) {
        if (get_ascii_from_map(c).len() > 0) present.insert(c);
    }
    const std::vector<int> codes = fontCodes();
    EXPECT_EQ(present, std::set<int>(codes.begin(), codes.end()));

    const Regions a = get_ascii_from_map(L'A');
    for (int c : {65 + 65536, 65 + 0x7FFF0000, 65 - 65536}) {
        SCOPED_TRACE(c);
        expectMoved(a, get_ascii_from_map(c), 0, 0, 0);
    }

    ASSERT_EQ(a.len(), 1);
    ASSERT_EQ(a[0].len(), 2);
    expectPoints(a[0][0],
                 {{0.844746, 0}, {0.822373, 0}, {0.822373, 0.322712}, {0.178305, 0.322712}, {0.178305, 0},
                  {0.155932, 0}, {0.155932, 0.336271}, {0.487458, 1.0}, {0.51322, 1.0}, {0.844746, 0.336271}},
                 "A outer");
    expectPoints(a[0][1], {{0.815593, 0.344407}, {0.500339, 0.974915}, {0.185085, 0.344407}}, "A hole");

    // Areas of glyphs made of upright and level bars, summed bar by bar.
    const double width = kRight - kLeft;
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'H')), 2 * kW + (width - 2 * kW) * kW, 1e-9);
    EXPECT_NEAR(areaOf(get_ascii_from_map(L'I')), 2 * (0.500339 - kLeft) * kW + (1 - 2 * kW) * kW, 1e-9);
}

// Each glyph has the regions and holes of the font's structure table, every
// contour a closed polygon of straight vertices; holes lie inside their region
// and no region starts inside another. Capitals and ascenders reach the round
// top of the cell, other small letters the x-height; nothing goes below the
// descender of g.
TEST(StrokeFont, EveryGlyphHasTheStructureOfTheFontInClosedContours) {
    int contours = 0;
    for (int code : fontCodes()) {
        const Regions g = get_ascii_from_map(code);
        std::vector<int> holes;
        for (int r = 0; r < g.len(); ++r) holes.push_back(g[r].len() - 1);
        EXPECT_EQ(holes, expectedHoles(code)) << "glyph " << name(code);
        const Box b = glyphBox(static_cast<wchar_t>(code));
        const bool small = code >= 'a' && code <= 'z' && !std::strchr("bdfhijklt", code);
        EXPECT_TRUE(code > 127 || (b.y1 <= (small ? 0.677966 : 1.01085) + 1e-9 && b.y0 >= -0.343729 - 1e-9)) << name(code);
        for (int r = 0; r < g.len(); ++r) {
            for (int c = 0; c < g[r].len(); ++c, ++contours) {
                const CZemVertexArray& contour = g[r][c];
                ASSERT_GE(contour.len(), 3) << name(code);
                EXPECT_GT(std::fabs(signedArea2(contour)), 2e-4) << name(code) << " region " << r << " contour " << c;
                for (int v = 0; v < contour.len(); ++v) {
                    const CZemVertex& vertex = contour[v];
                    EXPECT_TRUE(vertex.m_bulge == 0.0 && vertex.m_start.z == 0.0 && vertex.m_start != vertex.m_end)
                        << name(code) << " vertex " << v;
                    EXPECT_EQ(vertex.m_end, contour[(v + 1) % contour.len()].m_start) << name(code) << " vertex " << v;
                    EXPECT_TRUE(c == 0 || inside(g[r][0], vertex.m_start.x, vertex.m_start.y))
                        << name(code) << " hole " << c << " vertex " << v;
                }
            }
            for (int s = r + 1; s < g.len(); ++s) {
                EXPECT_FALSE(inside(g[r][0], g[s][0][0].m_start.x, g[s][0][0].m_start.y) ||
                             inside(g[s][0], g[r][0][0].m_start.x, g[r][0][0].m_start.y))
                    << name(code) << " regions " << r << ", " << s;
            }
        }
    }
    EXPECT_EQ(contours, 174);
}
