#include "RenderTestSupport.h"
#include "ScreenTestSupport.h"

#include <gtest/gtest.h>

using namespace rendertest;
using screentest::ScreenWindow;

namespace {

constexpr COLORREF kGreen = RGB(0, 255, 0);

// A control of 110 by 110 pixels fitted to the list: a list point (x, y)
// lies at (x + 5, 105 - y), as in a metafile of that size.
struct Shown {
    explicit Shown(CZemGDX& list) : window(control)
    {
        control.set_dpList(&list);
        control.zoomExtents();
        window.paint();
    }
    CZemDplistImage control;
    ScreenWindow window;
};

// No two pixels of color touch, so each is a dot of its own.
bool allApart(const ScreenWindow& window, COLORREF color)
{
    for (int k = 0; k < 109 * 109; ++k) {
        const int x = k % 109, y = k / 109;
        if (window.pixel(x, y) == color && (window.pixel(x + 1, y) == color || window.pixel(x, y + 1) == color))
            return false;
    }
    return true;
}

void addRegion(CZemGDX& list, unsigned long flags, const CZemArrayTempl<CZemVertexArray>& regl,
               const CZemColor& color = ole(kBlue), unsigned long thickn = 0, const wchar_t* pattern = L"")
{
    list.imageReg(stack(1), flags, regl, color, CZemMatrix3d::kIdentity, doubles({1.0}), 1.0, thickn, ole(kRed),
                  CZemHatchProp(pattern, 0.0, 1.0));
}

}  // namespace

TEST(ScreenPaint, AColourEqualToTheBackgroundIsInvertedWithItsRegionFill)
{
    for (COLORREF back : {kRed, kBlack}) {
        CZemGDX list = makeList();
        list.backColorSet(ole(back));
        addLine(list, polyline({{10, 50, 0}, {90, 50, 0}}), doubles({1.0}), 1.0, 0, 0, back);
        addRegion(list, GDX_FILL, rings({square(20.5, 60.5, 20)}), CZemColor().setColorIndex(-1));
        Shown shown(list);
        EXPECT_EQ(shown.window.pixel(50, 55), back ^ 0xFFFFFF) << "the line";
        EXPECT_EQ(shown.window.pixel(35, 35), back ^ 0xFFFFFF) << "fill of a contrast item, whatever its fill colour";
        EXPECT_EQ(shown.window.pixel(5, 5), back);
    }
}

TEST(ScreenPaint, DotsAreSinglePixelsInTheColourOfTheirLines)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{10, 50, 0}, {90, 50, 0}}), doubles({0.0, 0.0, 1.0}), 1.0, 5);
    Shown dotted(list);
    EXPECT_GE(dotted.window.count(kBlue), 10);
    EXPECT_EQ(dotted.window.count(kBlue, -1, 55), dotted.window.count(kBlue)) << "one pixel, not the pen's width";
    EXPECT_TRUE(allApart(dotted.window, kBlue));

    PatternApp app;
    app.add(L"DOTS", {0.0, 0.0, 0.0, 0.0, 10.0, 0.0, -10.0});
    CZemGDX hatched = makeList();
    addRegion(hatched, GDX_HATCH, rings({square(20.5, 20.5, 40)}), ole(kBlue), 5, L"DOTS");
    Shown dots(hatched);
    EXPECT_GE(dots.window.count(kRed), 4) << "hatch dots take the fill colour";
    EXPECT_EQ(dots.window.count(kBlue), 0);
    EXPECT_TRUE(allApart(dots.window, kRed));
}

// The square lies at x 25.5 to 65.5 and y 44.5 to 84.5, its hole at x 45.5
// to 55.5 and y 54.5 to 64.5. An outline is one pixel wide on screen whatever
// the item's thickness: the square's sides cross row 65 at x 25 and 65.
TEST(ScreenPaint, ASolidFillIsAPolygonBorderedByTheItemsPenWithItsHolesOpenAndOutlinesAreThin)
{
    CZemGDX list = makeList();
    addRegion(list, GDX_FILL, rings({square(20.5, 20.5, 40), square(40.5, 40.5, 10)}));
    Shown shown(list);
    EXPECT_EQ(shown.window.pixel(50, 60), kWhite) << "the hole";
    EXPECT_EQ(shown.window.pixel(25, 70), kBlue) << "the border";
    EXPECT_EQ(shown.window.pixel(65, 70), kBlue);
    EXPECT_EQ(shown.window.count(kRed, -1, 70), 39);

    CZemGDX outlined = makeList();
    addRegion(outlined, GDX_EDGE, rings({square(20.5, 20.5, 40)}), ole(kBlue), 5);
    Shown thin(outlined);
    EXPECT_EQ(thin.window.count(kBlue, -1, 65), 2);
    EXPECT_EQ(thin.window.pixel(25, 65), kBlue);
    EXPECT_EQ(thin.window.pixel(65, 65), kBlue);
}

// A point at (55, 55). Sizes a little above the whole pixels, as the
// view's scale may lie a little below 1.
TEST(ScreenPaint, PointSquaresAndFramesFollowTheScreensSizeRules)
{
    const struct {
        double size;
        unsigned long mode;
        int pixels;
    } cases[] = {{5.2, 64 | 1, 3 * 3 - 1}, {6.2, 64 | 1, 6 * 6 - 4 * 4}, {5.2, 8, 5 * 5}};
    for (const auto& c : cases) {
        CZemGDX list = makeList();
        list.imagePt(stack(1), 0, CZemPoint3d(50, 50, 0), ole(kBlue), CZemMatrix3d::kIdentity, c.size, c.mode);
        Shown shown(list);
        EXPECT_EQ(shown.window.count(kBlue), c.pixels) << c.size << " " << c.mode;
    }
}

// The second point is the size: (10, 10) and (30, 20) give 30 by 20 pixels
// from (10, 10).
TEST(ScreenPaint, APictureIsABitmapFileAtItsStoredSize)
{
    const std::wstring file = writeBmp(L"screen_green.bmp", 8, kGreen);
    CZemGDX list = makeList();
    list.imagePicture(stack(1), 0, file.c_str(), 0, CZemPoint3d(10, 10, 0), CZemPoint3d(30, 20, 0));
    Shown shown(list);
    EXPECT_EQ(shown.window.count(kGreen), 30 * 20);
    EXPECT_EQ(shown.window.pixel(10, 10), kGreen);
    EXPECT_EQ(shown.window.pixel(39, 29), kGreen);
    list.propSet(stack(1), GDX_PROP_FULL_ON);
    shown.window.paint();
    EXPECT_EQ(shown.window.count(kGreen), 110 * 110);
}

TEST(ScreenPaint, AnEmptyListLeavesTheErasedWindowAndNoListPaintsNothing)
{
    CZemGDX list = makeList();
    list.backColorSet(ole(kRed));
    Shown shown(list);
    EXPECT_EQ(shown.window.count(GetSysColor(COLOR_WINDOW)), 110 * 110);
    EXPECT_FALSE(shown.control.set_dpList(nullptr));
    shown.window.paint();
    EXPECT_FALSE(GetUpdateRect(shown.window.control(), nullptr, FALSE)) << "the paint is acknowledged";
}
