#pragma once

#include <windows.h>

class CWnd;

// One run of a window's DoDataExchange: the direction, and whether an
// exchange failed.
class CDataExchange {
public:
    CDataExchange(CWnd* dlgWnd, BOOL saveAndValidate);

    // The control's window, or null (and the run fails) if the dialog has none.
    HWND PrepareCtrl(int id);
    void Fail() { m_failed = true; }
    bool failed() const { return m_failed; }

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

private:
    bool m_failed = false;
};

// Binds control to the dialog's control id (subclassing it) the first time;
// later runs leave a bound control alone.
void DDX_Control(CDataExchange* dx, int id, CWnd& control);
