#include "CComboBox.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, L"COMBOBOX", nullptr, style | WS_CHILD, rect, parent, id);
}

int CComboBox::AddString(LPCWSTR text) {
    return static_cast<int>(SendMessageW(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::InsertString(int index, LPCWSTR text) {
    return static_cast<int>(SendMessageW(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::DeleteString(UINT index) { return static_cast<int>(SendMessageW(CB_DELETESTRING, index)); }

void CComboBox::ResetContent() { SendMessageW(CB_RESETCONTENT); }

int CComboBox::GetCount() const { return static_cast<int>(SendMessageW(CB_GETCOUNT)); }

int CComboBox::GetCurSel() const { return static_cast<int>(SendMessageW(CB_GETCURSEL)); }

int CComboBox::SetCurSel(int index) { return static_cast<int>(SendMessageW(CB_SETCURSEL, static_cast<WPARAM>(index))); }

DWORD_PTR CComboBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessageW(CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(SendMessageW(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

int CComboBox::GetLBTextLen(int index) const {
    return static_cast<int>(SendMessageW(CB_GETLBTEXTLEN, static_cast<WPARAM>(index)));
}

void CComboBox::GetLBText(int index, CString& text) const {
    const int length = GetLBTextLen(index);
    if (length < 0) {
        text.Empty();
        return;
    }
    const LRESULT copied =
        SendMessageW(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer(copied < 0 ? 0 : static_cast<int>(copied));
}

int CComboBox::FindStringExact(int startAfter, LPCWSTR text) const {
    return static_cast<int>(
        SendMessageW(CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::SelectString(int startAfter, LPCWSTR text) {
    return static_cast<int>(SendMessageW(CB_SELECTSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
}

BOOL CComboBox::SetEditSel(int start, int end) {
    return static_cast<BOOL>(SendMessageW(CB_SETEDITSEL, 0, MAKELPARAM(start, end)));
}

BOOL CComboBox::LimitText(int chars) { return static_cast<BOOL>(SendMessageW(CB_LIMITTEXT, static_cast<WPARAM>(chars))); }

void CComboBox::ShowDropDown(BOOL show) { SendMessageW(CB_SHOWDROPDOWN, static_cast<WPARAM>(show)); }

BOOL CComboBox::GetDroppedState() const { return static_cast<BOOL>(SendMessageW(CB_GETDROPPEDSTATE)); }
