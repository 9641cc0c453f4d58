#include "RenderTestSupport.h"

#include <gtest/gtest.h>

#include <map>

using namespace rendertest;

namespace {

// The square (20.5, 20.5) side 40 lies at device x 25.5 to 65.5 and y 44.5
// to 84.5: rows 45 to 84 cross it from x 25 to 65. Its hole (40.5, 40.5)
// side 10 splits the rows 55 to 64.
void addRegion(CZemGDX& list, unsigned long flags, COLORREF fill, const wchar_t* pattern = L"", bool hole = false,
               unsigned long thickn = 0, const CZemArrayTempl<double>& linetype = doubles({1.0}))
{
    const CZemArrayTempl<CZemVertexArray> regl =
        hole ? rings({square(20.5, 20.5, 40), square(40.5, 40.5, 10)}) : rings({square(20.5, 20.5, 40)});
    list.imageReg(stack(1), flags, regl, ole(kBlue), CZemMatrix3d::kIdentity, linetype, 1.0, thickn, ole(fill),
                  CZemHatchProp(pattern, 0.0, 1.0));
}

// Pieces per pixel row; a slanted line fails.
std::map<int, int> rows(const std::vector<Segment>& lines)
{
    std::map<int, int> out;
    for (const Segment& s : lines) {
        EXPECT_EQ(s.from.y, s.to.y) << s;
        out[s.from.y]++;
    }
    return out;
}

}  // namespace

TEST(RefreshRegions, SolidFillIsOneLinePerPixelRowWithTheFillColour)
{
    CZemGDX list = makeList();
    addRegion(list, GDX_FILL, kRed, L"", true);
    const Emf emf = refreshed(list);
    EXPECT_EQ(emf.count(EMR_POLYGON) + emf.count(EMR_POLYGON16), 0);
    EXPECT_TRUE(emf.pens()[1].lopnColor == kRed && emf.pens()[1].lopnWidth.x == 1);
    std::map<int, int> expected;
    for (int y = 45; y <= 84; ++y) expected[y] = y >= 55 && y <= 64 ? 2 : 1;
    EXPECT_EQ(rows(emf.segments()), expected);
    EXPECT_EQ(emf.segments().front(), (Segment{{25, 45}, {65, 45}}));

    CZemGDX white = makeList();
    addRegion(white, GDX_FILL, kWhite);
    EXPECT_EQ(refreshed(white).pens()[1].lopnColor, kBlack) << "white fills with a black pen";
}

// Steps of 0.1 give 400 repetitions over the square, too many to read: it
// is filled solid for this drawing, and the item keeps its flags. Steps of
// 10 are drawn: lines at y 30, 40, 50 and 60.
TEST(RefreshRegions, IllegibleHatchFallsBackToSolidFillAndKeepsTheOutline)
{
    PatternApp app;
    app.add(L"FINE", {0, 0, 0, 0, 0.1});
    app.add(L"LINES", {0, 0, 0, 0, 10});
    CZemGDX list = makeList();
    addRegion(list, GDX_HATCH | GDX_EDGE, kRed, L"FINE", false, 5);
    const Emf emf = refreshed(list);
    ASSERT_EQ(emf.pens().size(), 3u);
    EXPECT_TRUE(emf.pens()[1].lopnColor == kRed && emf.pens()[2].lopnColor == kBlue);
    EXPECT_EQ(emf.pens()[2].lopnWidth.x, 5);
    EXPECT_EQ(emf.segments().size(), 40u + 4u) << "rows and outline";
    EXPECT_EQ(list.flagGet(0) & (GDX_HATCH | GDX_FILL), static_cast<unsigned long>(GDX_HATCH));

    CZemGDX legible = makeList();
    addRegion(legible, GDX_HATCH, kRed, L"LINES");
    EXPECT_EQ(rows(refreshed(legible).segments()), (std::map<int, int>{{45, 1}, {55, 1}, {65, 1}, {75, 1}}));
}

// Dashes of 0.1 without gaps make runs of touching pieces, drawn as lines
// mostly within one pixel; the pieces of "DOTS" are always dots.
TEST(RefreshRegions, PiecesOfTheDotsPatternAreDotsEvenInOneRun)
{
    PatternApp app;
    app.add(L"SHORT", {0, 0, 0, 0, 10, 0.1});
    app.add(L"DOTS", {0, 0, 0, 0, 10, 0.1});
    std::map<std::wstring, std::map<int, int>> widths;
    for (const wchar_t* name : {L"SHORT", L"DOTS"}) {
        CZemGDX list = makeList();
        addRegion(list, GDX_HATCH, kRed, name);
        for (const Segment& s : refreshed(list).segments()) widths[name][s.to.x - s.from.x]++;
    }
    EXPECT_EQ(widths[L"DOTS"], (std::map<int, int>{{1, 4 * 400}})) << "4 rows of 40 units in pieces of 0.1";
    EXPECT_GT(widths[L"SHORT"][0], 1200);
}

// Sides of 40 units take two repetitions of a dash of 10 and a gap of 4, as
// four pieces from half dash to half dash; sides of 10 stay whole.
TEST(RefreshRegions, OutlineCarriesTheItemsThicknessAndLineType)
{
    CZemGDX list = makeList();
    addRegion(list, GDX_EDGE, kRed, L"", true, 5, doubles({1.0, 1.0, 0.0}));
    const Emf emf = refreshed(list);
    ASSERT_EQ(emf.pens().size(), 2u);
    EXPECT_TRUE(emf.pens()[1].lopnWidth.x == 5 && emf.pens()[1].lopnColor == kBlue);
    EXPECT_EQ(emf.segments().size(), 4u * 4u + 4u);
}
