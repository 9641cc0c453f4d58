#include "CHeaderCtrl.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

int CHeaderCtrl::GetItemCount() const { return static_cast<int>(SendMessageW(HDM_GETITEMCOUNT)); }

BOOL CHeaderCtrl::GetItem(int index, HDITEMW* item) const {
    return static_cast<BOOL>(SendMessageW(HDM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::SetItem(int index, const HDITEMW* item) {
    return static_cast<BOOL>(SendMessageW(HDM_SETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item)));
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const {
    return static_cast<BOOL>(SendMessageW(HDM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
}
