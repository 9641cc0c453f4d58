#include "CBitmap.h"

#include "CDC.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

BOOL CBitmap::CreateCompatibleBitmap(const CDC* dc, int width, int height) {
    if (dc == nullptr || dc->m_hDC == nullptr) return FALSE;
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
}

int CBitmap::GetBitmap(BITMAP* info) const { return GetObjectW(sizeof(BITMAP), info); }
