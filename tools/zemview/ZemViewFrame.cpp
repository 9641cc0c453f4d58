#include "ZemViewFrame.h"

#include "ZemGDX.h"

BEGIN_MESSAGE_MAP(CZemViewFrame, CWnd)
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_DESTROY()
ON_MESSAGE(CZemViewFrame::kImageId, OnPick)
END_MESSAGE_MAP()

bool CZemViewFrame::open(CZemGDX* list, const std::wstring& title, int width, int height, bool visible)
{
    m_title = title;
    const DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | (visible ? WS_VISIBLE : 0);
    if (!CreateEx(0, nullptr, title.c_str(), style, CW_USEDEFAULT, CW_USEDEFAULT, width, height, nullptr, nullptr))
        return false;
    RECT client;
    ::GetClientRect(m_hWnd, &client);
    if (!m_image.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, client.right, client.bottom, m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kImageId))))
        return false;
    m_image.set_dpList(list);
    fit();
    m_image.SetFocus();
    return true;
}

void CZemViewFrame::fit()
{
    m_image.zoomExtents();
    m_image.Invalidate();
}

// The control follows the window's client area, and the list is fitted to
// its new size.
void CZemViewFrame::OnSize(UINT type, int width, int height)
{
    if (type != SIZE_MINIMIZED && m_image.m_hWnd) {
        m_image.MoveWindow(0, 0, width, height);
        fit();
    }
    Default();
}

// The wheel and the pan work while the control has the focus.
void CZemViewFrame::OnSetFocus(CWnd*)
{
    if (m_image.m_hWnd)
        m_image.SetFocus();
}

void CZemViewFrame::OnDestroy()
{
    ::PostQuitMessage(0);
    Default();
}

LRESULT CZemViewFrame::OnPick(WPARAM, LPARAM group)
{
    SetWindowTextW((m_title + L" - picked group " + std::to_wstring(group)).c_str());
    return 0;
}
