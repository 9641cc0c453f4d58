#include "CListBox.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, L"LISTBOX", nullptr, style | WS_CHILD, rect, parent, id);
}

int CListBox::AddString(LPCWSTR text) {
    return static_cast<int>(SendMessageW(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CListBox::InsertString(int index, LPCWSTR text) {
    return static_cast<int>(SendMessageW(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CListBox::DeleteString(UINT index) { return static_cast<int>(SendMessageW(LB_DELETESTRING, index)); }

void CListBox::ResetContent() { SendMessageW(LB_RESETCONTENT); }

int CListBox::GetCount() const { return static_cast<int>(SendMessageW(LB_GETCOUNT)); }

int CListBox::GetCurSel() const { return static_cast<int>(SendMessageW(LB_GETCURSEL)); }

int CListBox::SetCurSel(int index) { return static_cast<int>(SendMessageW(LB_SETCURSEL, static_cast<WPARAM>(index))); }

int CListBox::GetSel(int index) const { return static_cast<int>(SendMessageW(LB_GETSEL, static_cast<WPARAM>(index))); }

int CListBox::SetSel(int index, BOOL select) {
    return static_cast<int>(SendMessageW(LB_SETSEL, static_cast<WPARAM>(select), index));
}

int CListBox::GetSelCount() const { return static_cast<int>(SendMessageW(LB_GETSELCOUNT)); }

DWORD_PTR CListBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessageW(LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CListBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(SendMessageW(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

int CListBox::GetTextLen(int index) const {
    return static_cast<int>(SendMessageW(LB_GETTEXTLEN, static_cast<WPARAM>(index)));
}

void CListBox::GetText(int index, CString& text) const {
    const int length = GetTextLen(index);
    if (length < 0) {
        text.Empty();
        return;
    }
    const LRESULT copied =
        SendMessageW(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer(copied < 0 ? 0 : static_cast<int>(copied));
}

int CListBox::FindStringExact(int startAfter, LPCWSTR text) const {
    return static_cast<int>(
        SendMessageW(LB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CListBox::GetTopIndex() const { return static_cast<int>(SendMessageW(LB_GETTOPINDEX)); }

int CListBox::SetTopIndex(int index) { return static_cast<int>(SendMessageW(LB_SETTOPINDEX, static_cast<WPARAM>(index))); }
