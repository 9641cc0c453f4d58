#include "RenderTestSupport.h"
#include "ScreenTestSupport.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace rendertest;

namespace {

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

void addRegion(CZemGDX& list, unsigned long flags, const CZemArrayTempl<CZemVertexArray>& regl,
               const CZemColor& color = ole(kBlue), unsigned long thickn = 0)
{
    list.imageReg(stack(1), flags, regl, color, CZemMatrix3d::kIdentity, doubles({1.0}), 1.0, thickn, ole(kRed),
                  CZemHatchProp(L"", 0.0, 1.0));
}

}  // namespace

TEST(ScreenPaint, AColourEqualToTheBackgroundIsInvertedWithItsRegionFillAndAnEmptyListIsNotPainted)
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
    CZemGDX empty = makeList();
    empty.backColorSet(ole(kRed));
    Shown shown(empty);
    EXPECT_EQ(shown.window.count(GetSysColor(COLOR_WINDOW)), 110 * 110) << "an empty list leaves the erased window";
}

TEST(ScreenPaint, DotsOfALineAreSinglePixelsInItsColour)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{10, 50, 0}, {90, 50, 0}}), doubles({0.0, 0.0, 1.0}), 1.0, 5);
    Shown dotted(list);
    EXPECT_GE(dotted.window.count(kBlue), 10);
    EXPECT_EQ(dotted.window.count(kBlue, -1, 55), dotted.window.count(kBlue)) << "one pixel, not the pen's width";
    const auto blue = [&dotted](int x, int y) { return dotted.window.pixel(x, y) == kBlue; };
    for (int k = 0; k < 109 * 109; ++k)
        EXPECT_FALSE(blue(k % 109, k / 109) && (blue(k % 109 + 1, k / 109) || blue(k % 109, k / 109 + 1)))
            << "dots touch at " << k % 109 << ", " << k / 109;
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
    for (const auto& [size, mode, pixels] : {std::tuple{5.2, 64ul | 1, 3 * 3 - 1}, {6.2, 64ul | 1, 6 * 6 - 4 * 4},
                                              {5.2, 8ul, 5 * 5}}) {
        CZemGDX list = makeList();
        list.imagePt(stack(1), 0, CZemPoint3d(50, 50, 0), ole(kBlue), CZemMatrix3d::kIdentity, size, mode);
        Shown shown(list);
        EXPECT_EQ(shown.window.count(kBlue), pixels) << size << " " << mode;
    }
}

// The second point is the size: (10, 10) and (30, 20) give 30 by 20 pixels
// from (10, 10).
TEST(ScreenPaint, APictureIsABitmapFileAtItsStoredSize)
{
    const std::wstring file = writeBmp(L"screen_blue.bmp", 8, kBlue);
    CZemGDX list = makeList();
    list.imagePicture(stack(1), 0, file.c_str(), 0, CZemPoint3d(10, 10, 0), CZemPoint3d(30, 20, 0));
    Shown shown(list);
    EXPECT_EQ(shown.window.count(kBlue), 30 * 20);
    EXPECT_TRUE(shown.window.pixel(10, 10) == kBlue && shown.window.pixel(39, 29) == kBlue) << "from (10, 10)";
    list.propSet(stack(1), GDX_PROP_FULL_ON);
    shown.window.paint();
    EXPECT_EQ(shown.window.count(kBlue), 110 * 110);
}
