#pragma once

#include "CWnd.h"

// A list box. Indices are 0-based; LB_ERR (-1) stands for none.
class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCWSTR text);                   // LB_ADDSTRING
    int InsertString(int index, LPCWSTR text);     // LB_INSERTSTRING
    int DeleteString(UINT index);                  // LB_DELETESTRING
    void ResetContent();                           // LB_RESETCONTENT
    int GetCount() const;                          // LB_GETCOUNT
    int GetCurSel() const;                         // LB_GETCURSEL
    int SetCurSel(int index);                      // LB_SETCURSEL
    int GetSel(int index) const;                   // LB_GETSEL
    int SetSel(int index, BOOL select = TRUE);     // LB_SETSEL
    int GetSelCount() const;                       // LB_GETSELCOUNT
    DWORD_PTR GetItemData(int index) const;        // LB_GETITEMDATA
    int SetItemData(int index, DWORD_PTR data);    // LB_SETITEMDATA
    int GetTextLen(int index) const;               // LB_GETTEXTLEN
    // The text of an entry; empty for a bad index.
    void GetText(int index, CString& text) const;  // LB_GETTEXT
    int FindStringExact(int startAfter, LPCWSTR text) const;  // LB_FINDSTRINGEXACT
    int GetTopIndex() const;                       // LB_GETTOPINDEX
    int SetTopIndex(int index);                    // LB_SETTOPINDEX
};
