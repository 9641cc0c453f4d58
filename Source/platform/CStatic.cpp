#include "CStatic.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, L"STATIC", text, style | WS_CHILD, rect, parent, id);
}

HICON CStatic::SetIcon(HICON icon) {
    return reinterpret_cast<HICON>(SendMessageW(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

HICON CStatic::GetIcon() const { return reinterpret_cast<HICON>(SendMessageW(STM_GETICON)); }

HBITMAP CStatic::SetBitmap(HBITMAP bitmap) {
    return reinterpret_cast<HBITMAP>(SendMessageW(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CStatic::GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessageW(STM_GETIMAGE, IMAGE_BITMAP)); }
