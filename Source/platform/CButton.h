#pragma once

#include "CWnd.h"

// A push button, check box or radio button.
class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    BOOL Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetCheck() const;             // BM_GETCHECK
    void SetCheck(int check);         // BM_SETCHECK
    UINT GetState() const;            // BM_GETSTATE
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);  // BM_SETSTYLE
    HICON SetIcon(HICON icon);        // BM_SETIMAGE with IMAGE_ICON
    void Click();                     // BM_CLICK
};
