#include "ToolsTestSupport.h"
#include "ZemDemoDrawings.h"
#include "ZemGDX.h"
#include "ZemPngFile.h"
#include "ZemViewFrame.h"

#include <gtest/gtest.h>

using namespace toolstest;

namespace {

// The control's client area as the platform painted it, written as a PNG
// for a person to look at; the count of its pixels other than white.
int snapshot(CZemViewFrame& frame, const std::filesystem::path& file)
{
    frame.image().Invalidate();
    frame.image().UpdateWindow();
    RECT client;
    GetClientRect(frame.image().m_hWnd, &client);
    const HDC window = GetDC(frame.image().m_hWnd);
    const HDC memory = CreateCompatibleDC(window);
    const HBITMAP bitmap = CreateCompatibleBitmap(window, client.right, client.bottom);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, client.right, client.bottom, window, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    EXPECT_TRUE(zemWritePng(bitmap, file.c_str())) << file;
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(frame.image().m_hWnd, window);
    return decodePng(file).inked();
}

void pump()
{
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
}

}  // namespace

// The frame fills its client area with the control, fitted, and keeps it
// filled when resized; a wheel notch zooms the drawing in; a click on a line
// names its group in the title.
TEST(ViewFrame, ShowsTheDemoPlanFollowsItsSizeAndNamesAPick)
{
    const std::filesystem::path folder = freshFolder(L"tools-view");
    const ZemDemoDrawing& plan = zem_demo_drawings()[0];
    CZemGDX list;
    std::wstring error;
    ASSERT_TRUE(plan.build(list, plan, {folder.wstring(), L"", L""}, error)) << error;
    CZemViewFrame frame;
    ASSERT_TRUE(frame.open(&list, L"plan", 900, 650));
    frame.MoveWindow(0, 0, 700, 500);
    RECT client, image;
    GetClientRect(frame.m_hWnd, &client);
    GetClientRect(frame.image().m_hWnd, &image);
    EXPECT_TRUE(image.right == client.right && image.bottom == client.bottom) << "the control follows the frame";
    POINT screen = {image.right / 2, image.bottom / 2};
    ClientToScreen(frame.image().m_hWnd, &screen);
    const int before = snapshot(frame, folder / L"plan-view.png");
    EXPECT_GT(before, image.right * image.bottom / 50) << "the plan is drawn";
    for (int notch = 0; notch < 4; ++notch)
        SendMessageW(frame.image().m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(screen.x, screen.y));
    const int zoomed = snapshot(frame, folder / L"plan-zoomed.png");
    EXPECT_NE(zoomed, before) << "the wheel changed the view";
    frame.fit();
    EXPECT_EQ(snapshot(frame, folder / L"plan-fitted.png"), before) << "fitting brings the first view back";

    int item = -1;
    for (int i = 0; i < list.lenGet() && item < 0; ++i)
        item = list.typeGet(i) == GDX_VL ? i : -1;
    ASSERT_GE(item, 0);
    CZemVertexArray vl;
    list.geomGet(vl, item);
    const CZemPoint3d middle((vl[0].m_start.x + vl[0].m_end.x) / 2, (vl[0].m_start.y + vl[0].m_end.y) / 2, 0);
    const CZemPoint3d at = middle * (list.zoomMtxGet() * (list.projMtxGet() * list.viewMtxGet()));
    SendMessageW(frame.image().m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(static_cast<int>(at.x), static_cast<int>(at.y)));
    pump();
    wchar_t title[128] = {};
    GetWindowTextW(frame.m_hWnd, title, 128);
    EXPECT_NE(std::wstring(title).find(L"plan - picked group "), std::wstring::npos) << std::wstring(title);
    frame.DestroyWindow();
    pump();
}
