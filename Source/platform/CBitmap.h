#pragma once

#include "CGdiObject.h"

class CDC;

// An owned bitmap.
class CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

    BOOL CreateCompatibleBitmap(const CDC* dc, int width, int height);                   // CreateCompatibleBitmap
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);  // CreateBitmap
    int GetBitmap(BITMAP* info) const;                                                    // GetObjectW
};
