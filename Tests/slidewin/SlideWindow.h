#pragma once

#include "ZemSlidePic.h"
#include "ZemTestHost.h"

#include <vector>

// A slide control of a given client size in a host window, painted as the
// platform paints it, with the pixels of its window read back.
class SlideWindow {
public:
    explicit SlideWindow(int width, int height, DWORD exStyle = 0) : m_host(width + 60, height + 80)
    {
        m_pic.CreateEx(exStyle, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, m_host.hwnd(), nullptr);
    }

    CZemSlidePic& pic() { return m_pic; }
    void show(const std::vector<unsigned char>& bytes)
    {
        m_pic.show(const_cast<unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    }
    void paint()
    {
        m_pic.Invalidate();
        m_pic.UpdateWindow();
    }
    COLORREF pixel(int x, int y) const
    {
        const HDC dc = GetDC(m_pic);
        const COLORREF color = GetPixel(dc, x, y);
        ReleaseDC(m_pic, dc);
        return color;
    }

private:
    CZemTestHost m_host;
    CZemSlidePic m_pic;
};
