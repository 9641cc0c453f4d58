#include "ScreenTestSupport.h"

#include "RenderTestSupport.h"

#include <gtest/gtest.h>

namespace screentest {

ScreenWindow::ScreenWindow(CZemDplistImage& control, int width, int height)
    : m_host(width + 60, height + 80), m_control(control), m_width(width), m_height(height)
{
    control.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, m_host.hwnd(),
                     reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kControlId)));
}

void ScreenWindow::paint()
{
    m_control.Invalidate();
    m_control.UpdateWindow();
    const HDC window = GetDC(m_control);
    const HDC memory = CreateCompatibleDC(window);
    const HBITMAP bitmap = CreateCompatibleBitmap(window, m_width, m_height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, m_width, m_height, window, 0, 0, SRCCOPY);
    m_pixels.clear();
    for (int k = 0; k < m_width * m_height; ++k) m_pixels.push_back(GetPixel(memory, k % m_width, k / m_width));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(m_control, window);
}

int ScreenWindow::count(COLORREF color, int x, int y) const
{
    int n = 0;
    for (int k = 0; k < m_width * m_height; ++k) {
        if ((x < 0 || k % m_width == x) && (y < 0 || k / m_width == y)) n += m_pixels[k] == color;
    }
    return n;
}

void ScreenWindow::mouse(UINT message, POINT at, UINT keys) const
{
    SendMessageW(m_control, message, keys, MAKELPARAM(at.x, at.y));
}

std::vector<LPARAM> ScreenWindow::picks() const
{
    std::vector<LPARAM> out;
    MSG msg;
    while (PeekMessageW(&msg, m_host.hwnd(), kControlId, kControlId, PM_REMOVE)) {
        EXPECT_EQ(msg.wParam, 0u);
        out.push_back(msg.lParam);
    }
    return out;
}

}  // namespace screentest
