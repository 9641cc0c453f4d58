#pragma once

#include "CWnd.h"

#include <commctrl.h>

// A tab control. Indices are 0-based; -1 stands for none.
class CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // The index of the new tab, or -1.
    LONG InsertItem(UINT mask, int item, LPCWSTR text, int image, LPARAM param);  // TCM_INSERTITEMW
    LONG InsertItem(int item, LPCWSTR text);
    BOOL DeleteItem(int item);                    // TCM_DELETEITEM
    BOOL DeleteAllItems();                        // TCM_DELETEALLITEMS
    int GetItemCount() const;                     // TCM_GETITEMCOUNT
    int GetCurSel() const;                        // TCM_GETCURSEL
    int SetCurSel(int item);                      // TCM_SETCURSEL
    int GetCurFocus() const;                      // TCM_GETCURFOCUS
    void SetCurFocus(int item);                   // TCM_SETCURFOCUS
    BOOL GetItemRect(int item, LPRECT rect) const;  // TCM_GETITEMRECT
    void AdjustRect(BOOL larger, LPRECT rect);    // TCM_ADJUSTRECT
};
