#include "ScreenTestSupport.h"

#include "RenderTestSupport.h"

#include <gtest/gtest.h>

#include <fstream>

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

std::wstring writeBmp(const wchar_t* name, int side, COLORREF color)
{
    const int stride = (side * 3 + 3) & ~3;
    BITMAPFILEHEADER file = {0x4D42, 0, 0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
    const BITMAPINFOHEADER info = {sizeof(BITMAPINFOHEADER), side, side, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    file.bfSize = file.bfOffBits + stride * side;
    std::string row(stride, '\0');
    for (int x = 0; x < side * 3; ++x) row[x] = static_cast<char>(color >> (8 * (2 - x % 3)));
    const std::wstring path = rendertest::outPath(name);
    std::ofstream out(path.c_str(), std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file).write(reinterpret_cast<const char*>(&info), sizeof info);
    for (int y = 0; y < side; ++y) out.write(row.data(), stride);
    return path;
}

}  // namespace screentest
