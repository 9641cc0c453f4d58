#include "CToolTipCtrl.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style) {
    return CreateEx(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, parent != nullptr ? parent->m_hWnd : nullptr, nullptr);
}

TOOLINFOW CToolTipCtrl::toolFor(CWnd* wnd, UINT_PTR id, LPCRECT rect, LPCWSTR text) {
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.lpszText = const_cast<LPWSTR>(text);
    HWND hwnd = wnd != nullptr ? wnd->m_hWnd : nullptr;
    if (rect == nullptr && id == 0) {
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = ::GetParent(hwnd);
        tool.uId = reinterpret_cast<UINT_PTR>(hwnd);
    } else {
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = hwnd;
        tool.uId = id;
        if (rect != nullptr) tool.rect = *rect;
    }
    return tool;
}

BOOL CToolTipCtrl::AddTool(CWnd* wnd, LPCWSTR text, LPCRECT rect, UINT_PTR id) {
    TOOLINFOW tool = toolFor(wnd, id, rect, text);
    return static_cast<BOOL>(SendMessageW(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}

void CToolTipCtrl::DelTool(CWnd* wnd, UINT_PTR id) {
    TOOLINFOW tool = toolFor(wnd, id, nullptr, nullptr);
    SendMessageW(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CToolTipCtrl::UpdateTipText(LPCWSTR text, CWnd* wnd, UINT_PTR id) {
    TOOLINFOW tool = toolFor(wnd, id, nullptr, text);
    SendMessageW(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

int CToolTipCtrl::GetToolCount() const { return static_cast<int>(SendMessageW(TTM_GETTOOLCOUNT)); }

void CToolTipCtrl::Activate(BOOL activate) { SendMessageW(TTM_ACTIVATE, static_cast<WPARAM>(activate)); }

int CToolTipCtrl::SetMaxTipWidth(int width) { return static_cast<int>(SendMessageW(TTM_SETMAXTIPWIDTH, 0, width)); }

void CToolTipCtrl::RelayEvent(MSG* msg) { SendMessageW(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(msg)); }
