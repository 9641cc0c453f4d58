#include "RenderTestSupport.h"
#include "ScreenTestSupport.h"
#include "ZemVllImage.h"
#include "ZemVlMtxView.h"

#include <gtest/gtest.h>

using namespace rendertest;

namespace {

// A control of 110 by 110 pixels fitted to a list of a vertical line at x 50.5
// (client column 55.5), stack 7, and a point at (20, 80) (client (25, 25)), stack 3.
struct Viewer : testing::Test {
    Viewer() : window(control)
    {
        list.imageVl(stack(7), 0, polyline({{50.5, 0, 0}, {50.5, 100, 0}}), ole(kBlue), CZemMatrix3d::kIdentity,
                     doubles({1.0}), 1.0, 0);
        list.imagePt(stack(3), 0, CZemPoint3d(20, 80, 0), ole(kBlue), CZemMatrix3d::kIdentity, 1.0, 1);
        control.set_dpList(&list);
        control.zoomExtents();
    }
    // The client column the line is painted in.
    int lineColumn()
    {
        window.paint();
        int x = 0;
        while (x < 110 && window.count(kBlue, x) <= 50) ++x;
        return x;
    }
    // Where the zoom takes the client point (x, y), and how far that is from (toX, toY).
    double zoomMiss(double x, double y, double toX, double toY)
    {
        return (CZemPoint3d(x, y, 0) * list.zoomMtxGet()).distanceTo(CZemPoint3d(toX, toY, 0));
    }
    LRESULT wheel(short delta, POINT at, UINT keys = 0) { return CZemTestHost::wheel(control, delta, at, keys); }

    CZemGDX list = makeList();
    CZemDplistImage control;
    ScreenWindow window;
};

// The square (0, 0) - (100, 100), then upright lines: with the base point at
// its corner, in 110 by 110 pixels its left edge is column 5.
CZemArrayTempl<CZemVertexArray> squareAnd(int more)
{
    CZemArrayTempl<CZemVertexArray> out = CZemArrayTempl<CZemVertexArray>().append(square(0, 0, 100));
    for (int k = 0; k < more; ++k) out.append(polyline({{10.0 * k, 20, 0}, {10.0 * k, 80, 0}}));
    return out;
}

int cmodeOf(CZemVllImage& image, int element)
{
    CZemGDX& list = *image.get_dpList();
    const CZemArrayTempl<int> items = list.StackToItemNr(stack(element));
    return items.len() == 1 ? zem_gdx_cmode(list.flagGet(items[0])) : -1;
}

}  // namespace

// About (30, 40): one notch takes column 55.5 to 30 + 1.2 * 25.5 = 60.6, and
// half a notch then to 30 + 0.6 * 30.6 = 48.36.
TEST_F(Viewer, TheWheelScalesLinearlyByItsAmountAboutTheCursor)
{
    EXPECT_EQ(lineColumn(), 55);
    EXPECT_EQ(wheel(120, {30, 40}), 1);
    EXPECT_EQ(lineColumn(), 60);
    EXPECT_NEAR(zoomMiss(30, 40, 30, 40), 0.0, 1e-9) << "the cursor's point stays put";
    wheel(60, {30, 40});
    EXPECT_EQ(lineColumn(), 48) << "half a notch shrinks";

    const CZemMatrix3d before = list.zoomMtxGet();
    EXPECT_EQ(wheel(120, {30, 40}, MK_MBUTTON), 0) << "no zoom during a pan";
    EXPECT_EQ(wheel(0, {30, 40}), 0);
    EXPECT_TRUE(list.zoomMtxGet() == before);
}

// After a notch about (30, 40) the translation is (-6, -8); a drag by
// (15, -5) makes it (9, -13) and puts the line at column 75. The pan cursor
// is the library's own. A middle double click fits again.
TEST_F(Viewer, TheMiddleButtonPansWithCaptureAndItsCursorAndADoubleClickFits)
{
    const HCURSOR pan = LoadCursorW(GetModuleHandleW(L"Zem_Mfc.dll"), MAKEINTRESOURCEW(2006));
    ASSERT_NE(pan, nullptr);
    wheel(120, {30, 40});
    CZemTestHost::focus(control);
    window.mouse(WM_MBUTTONDOWN, {50, 50}, MK_MBUTTON);
    EXPECT_EQ(GetCapture(), window.control());
    EXPECT_EQ(GetCursor(), pan);
    window.mouse(WM_MOUSEMOVE, {50, 50}, MK_MBUTTON);
    EXPECT_NEAR(zoomMiss(0, 0, -6, -8), 0.0, 1e-9) << "the pan doesn't jump";
    window.mouse(WM_MOUSEMOVE, {65, 45}, MK_MBUTTON);
    EXPECT_NEAR(zoomMiss(10, 0, 9 + 12, -13), 0.0, 1e-9) << "moved, the scale kept";
    EXPECT_EQ(lineColumn(), 75);
    window.mouse(WM_MBUTTONUP, {65, 45});
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS));

    ValidateRect(control, nullptr);
    window.mouse(WM_MBUTTONDBLCLK, {30, 40}, MK_MBUTTON);
    EXPECT_TRUE(GetUpdateRect(control, nullptr, FALSE));
    EXPECT_EQ(lineColumn(), 55);
}

// A left click posts the pick's stack element to the parent under the control's id.
TEST_F(Viewer, ALeftClickPicksAndWithoutAListEveryInputIsHarmless)
{
    window.mouse(WM_LBUTTONDOWN, {55, 70}, MK_LBUTTON);
    EXPECT_EQ(window.picks(), std::vector<LPARAM>{7});
    EXPECT_EQ(GetFocus(), window.control());
    window.mouse(WM_LBUTTONDOWN, {100, 5}, MK_LBUTTON);
    EXPECT_TRUE(window.picks().empty()) << "a miss posts nothing";

    EXPECT_FALSE(control.set_dpList(nullptr));
    EXPECT_EQ(wheel(120, {10, 10}), 0);
    for (UINT message : {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_MOUSEMOVE, WM_MBUTTONUP, WM_MBUTTONDBLCLK})
        window.mouse(message, {10, 10}, MK_MBUTTON);
    window.paint();
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE)) << "the paint is acknowledged";
    EXPECT_TRUE(window.picks().empty());
}

// A grey of mean 128 counts as light. Polyline i is picked as i + 1.
TEST(VllImage, LinesAreBlackOnLightWhiteOnDarkPickedByTheirIndexAndAHiddenBaseLeavesTheExtents)
{
    CZemVllImage image;
    ScreenWindow window(image);
    image.setVll(squareAnd(0));
    image.SetBkColor(RGB(128, 128, 128));
    window.paint();
    EXPECT_GE(window.count(kBlack, 5), 90);
    EXPECT_EQ(window.pixel(50, 50), RGB(128, 128, 128));
    image.SetBkColor(RGB(127, 128, 128));
    window.paint();
    EXPECT_GE(window.count(kWhite, 5), 90) << "the lines follow without a new setVll";

    window.mouse(WM_LBUTTONDOWN, {5, 50}, MK_LBUTTON);
    EXPECT_EQ(window.picks(), std::vector<LPARAM>{1});
    CZemTestHost::wheel(image, 240, {50, 50});
    window.mouse(WM_LBUTTONDBLCLK, {50, 50}, MK_LBUTTON);
    EXPECT_TRUE(image.get_dpList()->zoomMtxGet() == CZemMatrix3d::kIdentity) << "the left double click fits";

    // A hidden base point leaves the extents; an empty set has nothing to fit and draws nothing.
    image.setVll(CZemArrayTempl<CZemVertexArray>().append(square(50, 50, 10)));
    EXPECT_TRUE(image.setDrawBase(true));
    CZemPoint3d min, max;
    image.get_dpList()->extmaxGet(min, max);
    EXPECT_EQ(min, CZemPoint3d(0, 0, 0)) << "a shown base point widens the extents";
    EXPECT_TRUE(image.setDrawBase(false));
    image.get_dpList()->extmaxGet(min, max);
    EXPECT_EQ(min, CZemPoint3d(50, 50, 0));
    image.setVll(CZemArrayTempl<CZemVertexArray>());
    window.paint();
    EXPECT_EQ(window.count(window.pixel(0, 0)), 110 * 110);
}

TEST(VllImage, TheMarkMovesBetweenPolylinesAndSurvivesANewSet)
{
    CZemVllImage image;
    image.setVll(squareAnd(2));
    EXPECT_EQ(image.SetCurVl(1), -1);
    EXPECT_EQ(image.SetCurVl(1), 1);
    EXPECT_EQ(cmodeOf(image, 2), GDX_CM_HIGHLIGHT) << "set back, then marked again";
    EXPECT_EQ(image.SetCurVl(-1), 1);
    EXPECT_EQ(cmodeOf(image, 2), 6);
    image.SetCurVl(2);
    image.setVll(squareAnd(2));
    EXPECT_EQ(cmodeOf(image, 3), 6) << "a new set has no mark";
    EXPECT_EQ(image.SetCurVl(2), 2);
    EXPECT_EQ(cmodeOf(image, 3), GDX_CM_HIGHLIGHT);
}

// Seen from +X with Z up, world Y is the view's x and world Z its y.
TEST(VlMtxView, APolylineSeenFromADirectionLiesFlatInXY)
{
    const CZemVector3d fromX(1, 0, 0);
    const CZemVertexArray seen = zem_g_vl_mtx_view(polyline({{4, 2, 3}, {4, 5, 3}}), fromX, CZemPoint3d(), true);
    ASSERT_EQ(seen.len(), 1);
    EXPECT_NEAR(seen[0].m_start.distanceTo(CZemPoint3d(2, 3, 0)) + seen[0].m_end.distanceTo(CZemPoint3d(5, 3, 0)), 0.0,
                1e-12);
    const CZemVertexArray back = zem_g_vl_mtx_view(polyline({{2, 3, 1}, {5, 3, 1}}), fromX, CZemPoint3d(), false);
    EXPECT_NEAR(back[0].m_start.distanceTo(CZemPoint3d(1, 2, 0)), 0.0, 1e-12) << "the inverse, flattened";
}
