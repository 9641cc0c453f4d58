#include "RenderTestSupport.h"
#include "ScreenTestSupport.h"

#include <gtest/gtest.h>

using namespace rendertest;
using screentest::ScreenWindow;

namespace {

// A control of 110 by 110 pixels fitted to a list that holds a vertical line
// at x 50.5 (client column 55.5) with stack 7 and a point at (20, 80)
// (client (25, 25)) with stack 3.
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
        for (int x = 0; x < 110; ++x) {
            if (window.count(kBlue, x) > 50) return x;
        }
        return -1;
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

}  // namespace

// About (30, 40): one notch takes column 55.5 to 30 + 1.2 * 25.5 = 60.6,
// half a notch then to 30 + 0.6 * 30.6 = 48.36, and half a notch back to 60.6.
TEST_F(Viewer, TheWheelScalesLinearlyByItsAmountAboutTheCursor)
{
    EXPECT_EQ(lineColumn(), 55);
    EXPECT_EQ(wheel(120, {30, 40}), 1);
    EXPECT_EQ(lineColumn(), 60);
    EXPECT_NEAR(zoomMiss(30, 40, 30, 40), 0.0, 1e-9) << "the cursor's point stays put";
    wheel(60, {30, 40});
    EXPECT_EQ(lineColumn(), 48) << "half a notch shrinks";
    wheel(-60, {30, 40});
    EXPECT_EQ(lineColumn(), 60);

    const CZemMatrix3d before = list.zoomMtxGet();
    EXPECT_EQ(wheel(120, {30, 40}, MK_MBUTTON), 0) << "no zoom during a pan";
    EXPECT_EQ(wheel(0, {30, 40}), 0);
    EXPECT_TRUE(list.zoomMtxGet() == before);
}

// After a notch about (30, 40) the translation is (-6, -8); a drag by
// (15, -5) makes it (9, -13) and puts the line at column 75. The pan cursor
// is the library's own.
TEST_F(Viewer, TheMiddleButtonPansFromTheZoomedViewWithCaptureAndItsCursor)
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

    CZemTestHost::focus(window.host());
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    SetCursor(arrow);
    window.mouse(WM_MOUSEMOVE, {90, 90}, MK_MBUTTON);
    EXPECT_NEAR(zoomMiss(0, 0, 9, -13), 0.0, 1e-9) << "without the focus nothing moves";
    EXPECT_EQ(GetCursor(), arrow);
}

TEST_F(Viewer, ADoubleClickOfTheMiddleButtonFitsAndRepaintsAndALeftClickPicks)
{
    wheel(240, {30, 40});
    ValidateRect(control, nullptr);
    EXPECT_TRUE(control.zoomExtents());
    EXPECT_TRUE(list.zoomMtxGet() == CZemMatrix3d::kIdentity);
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE));

    wheel(240, {30, 40});
    ValidateRect(control, nullptr);
    window.mouse(WM_MBUTTONDBLCLK, {30, 40}, MK_MBUTTON);
    EXPECT_TRUE(GetUpdateRect(control, nullptr, FALSE));
    EXPECT_EQ(lineColumn(), 55);

    // A left click posts the pick's stack element to the parent under the control's id.
    window.mouse(WM_LBUTTONDOWN, {55, 70}, MK_LBUTTON);
    EXPECT_EQ(window.picks(), std::vector<LPARAM>{7});
    EXPECT_EQ(GetFocus(), window.control());
    window.mouse(WM_LBUTTONDOWN, {26, 24}, MK_LBUTTON);
    EXPECT_EQ(window.picks(), std::vector<LPARAM>{3});
    window.mouse(WM_LBUTTONDOWN, {100, 5}, MK_LBUTTON);
    EXPECT_TRUE(window.picks().empty()) << "a miss posts nothing";
}

TEST(ScreenView, WithoutAListEveryInputIsHarmless)
{
    CZemDplistImage control;
    ScreenWindow window(control);
    EXPECT_EQ(CZemTestHost::wheel(control, 120, {10, 10}), 0);
    CZemTestHost::focus(control);
    for (UINT message : {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_MOUSEMOVE, WM_MBUTTONUP, WM_MBUTTONDBLCLK})
        window.mouse(message, {10, 10}, MK_MBUTTON);
    window.paint();
    EXPECT_TRUE(window.picks().empty());
}
