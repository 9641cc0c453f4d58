#pragma once

#include "ZemDplistImage.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

// A display list control of a given client size in a visible host window,
// painted as the platform paints it; its pixels are read back from the window.
class ScreenWindow {
public:
    static constexpr UINT kControlId = 1234;

    ScreenWindow(CZemDplistImage& control, int width = 110, int height = 110)
        : m_host(width + 60, height + 80), m_control(control), m_width(width), m_height(height)
    {
        control.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, m_host.hwnd(),
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kControlId)));
    }

    HWND control() const { return m_control.m_hWnd; }
    // Invalidates and repaints now, then reads the client area.
    void paint()
    {
        m_control.Invalidate();
        m_control.UpdateWindow();
        const HDC window = GetDC(m_control);
        m_pixels.clear();
        for (int k = 0; k < m_width * m_height; ++k) m_pixels.push_back(GetPixel(window, k % m_width, k / m_width));
        ReleaseDC(m_control, window);
    }
    COLORREF pixel(int x, int y) const { return m_pixels[static_cast<size_t>(y) * m_width + x]; }
    // Pixels of color in the whole client area, or in row y (column -1), or in column x (row -1).
    int count(COLORREF color, int x = -1, int y = -1) const
    {
        int n = 0;
        for (int k = 0; k < m_width * m_height; ++k)
            n += (x < 0 || k % m_width == x) && (y < 0 || k / m_width == y) && m_pixels[k] == color;
        return n;
    }
    // A mouse message at a client point, sent as the platform sends it.
    void mouse(UINT message, POINT at, UINT keys = 0) const
    {
        SendMessageW(m_control, message, keys, MAKELPARAM(at.x, at.y));
    }
    // The LPARAMs of the picks posted to the host, taken off its queue.
    std::vector<LPARAM> picks() const
    {
        std::vector<LPARAM> out;
        MSG msg;
        while (PeekMessageW(&msg, m_host.hwnd(), kControlId, kControlId, PM_REMOVE)) {
            EXPECT_EQ(msg.wParam, 0u);
            out.push_back(msg.lParam);
        }
        return out;
    }

private:
    CZemTestHost m_host;
    CZemDplistImage& m_control;
    int m_width, m_height;
    std::vector<COLORREF> m_pixels;
};
