#pragma once

#include "ZemPicture.h"
#include "ZemTestHost.h"

// A picture control of a given client size in a host window, painted as the
// platform paints it, with its state and the pixels of its window read back.
class PictureWindow {
public:
    // The control's own state, for the checks that pixels can't make.
    class Probe : public CZemPicture {
    public:
        double zoom() const { return m_zoom; }
        POINT position() const { return {m_x, m_y}; }
    };

    explicit PictureWindow(int width = 400, int height = 400, DWORD exStyle = 0) : m_host(width + 60, height + 80)
    {
        m_pic.CreateEx(exStyle, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, m_host.hwnd(), nullptr);
    }

    Probe& pic() { return m_pic; }
    HWND hwnd() const { return m_pic.m_hWnd; }
    void paint()
    {
        m_pic.Invalidate();
        m_pic.UpdateWindow();
    }
    // Paints what is pending and nothing more.
    void update() { m_pic.UpdateWindow(); }
    COLORREF pixel(int x, int y) const
    {
        const HDC dc = GetDC(m_pic);
        const COLORREF color = GetPixel(dc, x, y);
        ReleaseDC(m_pic, dc);
        return color;
    }
    LRESULT wheel(short delta, POINT client) { return CZemTestHost::wheel(m_pic, delta, client); }
    void send(UINT message, WPARAM keys, POINT client)
    {
        SendMessageW(m_pic, message, keys, MAKELPARAM(client.x, client.y));
    }

private:
    CZemTestHost m_host;
    Probe m_pic;
};
