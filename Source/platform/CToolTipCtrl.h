#pragma once

#include "CWnd.h"

#include <commctrl.h>

// A tool tip control. Tools watch their windows themselves (TTF_SUBCLASS).
class CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    // A tool tip pop-up owned by parent.
    BOOL Create(CWnd* parent, DWORD style = 0);

    // A tool for a whole window when rect is null and id 0 (its text asked
    // of the window's parent with TTF_IDISHWND), else for a rectangle of it.
    BOOL AddTool(CWnd* wnd, LPCWSTR text = LPSTR_TEXTCALLBACKW, LPCRECT rect = nullptr,
                 UINT_PTR id = 0);                                           // TTM_ADDTOOLW
    void DelTool(CWnd* wnd, UINT_PTR id = 0);                                // TTM_DELTOOLW
    void UpdateTipText(LPCWSTR text, CWnd* wnd, UINT_PTR id = 0);            // TTM_UPDATETIPTEXTW
    int GetToolCount() const;                                                // TTM_GETTOOLCOUNT
    void Activate(BOOL activate);                                            // TTM_ACTIVATE
    int SetMaxTipWidth(int width);                                           // TTM_SETMAXTIPWIDTH
    void RelayEvent(MSG* msg);                                               // TTM_RELAYEVENT

private:
    static TOOLINFOW toolFor(CWnd* wnd, UINT_PTR id, LPCRECT rect, LPCWSTR text);
};
