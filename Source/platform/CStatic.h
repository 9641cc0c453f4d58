#pragma once

#include "CWnd.h"

// A static control: a text, an icon or a bitmap.
class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    BOOL Create(LPCWSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);

    HICON SetIcon(HICON icon);            // STM_SETICON
    HICON GetIcon() const;                // STM_GETICON
    HBITMAP SetBitmap(HBITMAP bitmap);    // STM_SETIMAGE with IMAGE_BITMAP
    HBITMAP GetBitmap() const;            // STM_GETIMAGE with IMAGE_BITMAP
};
