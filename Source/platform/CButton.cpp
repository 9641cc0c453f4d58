#include "CButton.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

BOOL CButton::Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, L"BUTTON", caption, style | WS_CHILD, rect, parent, id);
}

int CButton::GetCheck() const { return static_cast<int>(SendMessageW(BM_GETCHECK)); }

void CButton::SetCheck(int check) { SendMessageW(BM_SETCHECK, static_cast<WPARAM>(check)); }

UINT CButton::GetState() const { return static_cast<UINT>(SendMessageW(BM_GETSTATE)); }

void CButton::SetButtonStyle(UINT style, BOOL redraw) { SendMessageW(BM_SETSTYLE, style, redraw); }

HICON CButton::SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(SendMessageW(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

void CButton::Click() { SendMessageW(BM_CLICK); }
