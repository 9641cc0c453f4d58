#pragma once

#include "CWnd.h"

#include <commctrl.h>

// The header of a list control.
class CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    int GetItemCount() const;                         // HDM_GETITEMCOUNT
    BOOL GetItem(int index, HDITEMW* item) const;     // HDM_GETITEMW
    BOOL SetItem(int index, const HDITEMW* item);     // HDM_SETITEMW
    BOOL GetItemRect(int index, LPRECT rect) const;   // HDM_GETITEMRECT
};
