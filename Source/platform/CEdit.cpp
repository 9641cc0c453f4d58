#include "CEdit.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, L"EDIT", nullptr, style | WS_CHILD, rect, parent, id);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    SendMessageW(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll) SendMessageW(EM_SCROLLCARET);
}

void CEdit::GetSel(int& start, int& end) const {
    DWORD first = 0;
    DWORD last = 0;
    SendMessageW(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

BOOL CEdit::GetModify() const { return static_cast<BOOL>(SendMessageW(EM_GETMODIFY)); }

void CEdit::SetModify(BOOL modified) { SendMessageW(EM_SETMODIFY, static_cast<WPARAM>(modified)); }

void CEdit::ReplaceSel(LPCWSTR text, BOOL canUndo) {
    SendMessageW(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
}

void CEdit::LimitText(int chars) { SendMessageW(EM_LIMITTEXT, static_cast<WPARAM>(chars)); }

BOOL CEdit::SetReadOnly(BOOL readOnly) { return static_cast<BOOL>(SendMessageW(EM_SETREADONLY, readOnly)); }

BOOL CEdit::CanUndo() const { return static_cast<BOOL>(SendMessageW(EM_CANUNDO)); }

int CEdit::GetLineCount() const { return static_cast<int>(SendMessageW(EM_GETLINECOUNT)); }
