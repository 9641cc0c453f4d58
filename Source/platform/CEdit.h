#pragma once

#include "CWnd.h"

// An edit control.
class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    // A child edit control bound to this object from its first message on.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    void SetSel(int start, int end, BOOL noScroll = FALSE);  // EM_SETSEL
    void GetSel(int& start, int& end) const;                 // EM_GETSEL
    BOOL GetModify() const;                                  // EM_GETMODIFY
    void SetModify(BOOL modified = TRUE);                    // EM_SETMODIFY
    void ReplaceSel(LPCWSTR text, BOOL canUndo = FALSE);     // EM_REPLACESEL
    void LimitText(int chars = 0);                           // EM_LIMITTEXT
    BOOL SetReadOnly(BOOL readOnly = TRUE);                  // EM_SETREADONLY
    BOOL CanUndo() const;                                    // EM_CANUNDO
    int GetLineCount() const;                                // EM_GETLINECOUNT
};
