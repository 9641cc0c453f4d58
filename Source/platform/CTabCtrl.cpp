#include "CTabCtrl.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, WC_TABCONTROLW, nullptr, style | WS_CHILD, rect, parent, id);
}

LONG CTabCtrl::InsertItem(UINT mask, int item, LPCWSTR text, int image, LPARAM param) {
    TCITEMW tab = {};
    tab.mask = mask;
    tab.pszText = const_cast<LPWSTR>(text);
    tab.iImage = image;
    tab.lParam = param;
    return static_cast<LONG>(SendMessageW(TCM_INSERTITEMW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&tab)));
}

LONG CTabCtrl::InsertItem(int item, LPCWSTR text) { return InsertItem(TCIF_TEXT, item, text, 0, 0); }

BOOL CTabCtrl::DeleteItem(int item) { return static_cast<BOOL>(SendMessageW(TCM_DELETEITEM, static_cast<WPARAM>(item))); }

BOOL CTabCtrl::DeleteAllItems() { return static_cast<BOOL>(SendMessageW(TCM_DELETEALLITEMS)); }

int CTabCtrl::GetItemCount() const { return static_cast<int>(SendMessageW(TCM_GETITEMCOUNT)); }

int CTabCtrl::GetCurSel() const { return static_cast<int>(SendMessageW(TCM_GETCURSEL)); }

int CTabCtrl::SetCurSel(int item) { return static_cast<int>(SendMessageW(TCM_SETCURSEL, static_cast<WPARAM>(item))); }

int CTabCtrl::GetCurFocus() const { return static_cast<int>(SendMessageW(TCM_GETCURFOCUS)); }

void CTabCtrl::SetCurFocus(int item) { SendMessageW(TCM_SETCURFOCUS, static_cast<WPARAM>(item)); }

BOOL CTabCtrl::GetItemRect(int item, LPRECT rect) const {
    return static_cast<BOOL>(SendMessageW(TCM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(rect)));
}

void CTabCtrl::AdjustRect(BOOL larger, LPRECT rect) {
    SendMessageW(TCM_ADJUSTRECT, static_cast<WPARAM>(larger), reinterpret_cast<LPARAM>(rect));
}
