#pragma once

#include "CWnd.h"

// A combo box. Indices are 0-based; CB_ERR (-1) stands for none.
class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCWSTR text);                   // CB_ADDSTRING
    int InsertString(int index, LPCWSTR text);     // CB_INSERTSTRING
    int DeleteString(UINT index);                  // CB_DELETESTRING
    void ResetContent();                           // CB_RESETCONTENT
    int GetCount() const;                          // CB_GETCOUNT
    int GetCurSel() const;                         // CB_GETCURSEL
    int SetCurSel(int index);                      // CB_SETCURSEL
    DWORD_PTR GetItemData(int index) const;        // CB_GETITEMDATA
    int SetItemData(int index, DWORD_PTR data);    // CB_SETITEMDATA
    int GetLBTextLen(int index) const;             // CB_GETLBTEXTLEN
    // The text of an entry; empty for a bad index.
    void GetLBText(int index, CString& text) const;  // CB_GETLBTEXT
    int FindStringExact(int startAfter, LPCWSTR text) const;  // CB_FINDSTRINGEXACT
    int SelectString(int startAfter, LPCWSTR text);           // CB_SELECTSTRING
    BOOL SetEditSel(int start, int end);           // CB_SETEDITSEL
    BOOL LimitText(int chars);                     // CB_LIMITTEXT
    void ShowDropDown(BOOL show = TRUE);           // CB_SHOWDROPDOWN
    BOOL GetDroppedState() const;                  // CB_GETDROPPEDSTATE
};
