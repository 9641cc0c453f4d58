#pragma once

#include "ZemDplistImage.h"
#include "ZemTestHost.h"

#include <windows.h>

#include <vector>

namespace screentest {

constexpr UINT kControlId = 1234;

// A display list control of a given client size in a visible host window,
// painted as the platform paints it; its pixels are read back from the window.
class ScreenWindow {
public:
    ScreenWindow(CZemDplistImage& control, int width = 110, int height = 110);

    HWND host() const { return m_host.hwnd(); }
    HWND control() const { return m_control.m_hWnd; }
    // Invalidates and repaints now, then copies the client area.
    void paint();
    COLORREF pixel(int x, int y) const { return m_pixels[static_cast<size_t>(y) * m_width + x]; }
    // Pixels of color in the whole client area, or in row y (column -1), or in column x (row -1).
    int count(COLORREF color, int x = -1, int y = -1) const;
    // A mouse message at a client point, sent as the platform sends it.
    void mouse(UINT message, POINT at, UINT keys = 0) const;
    // The LPARAMs of the picks posted to the host, taken off its queue.
    std::vector<LPARAM> picks() const;

private:
    CZemTestHost m_host;
    CZemDplistImage& m_control;
    int m_width, m_height;
    std::vector<COLORREF> m_pixels;
};

}  // namespace screentest
