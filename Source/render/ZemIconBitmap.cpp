#include "ZemIconBitmap.h"

#include "CBitmap.h"
#include "CDC.h"

namespace {

// The bitmaps of an icon, owned for the span of a conversion.
struct IconParts {
    explicit IconParts(HICON icon)
    {
        ICONINFO info = {};
        if (!::GetIconInfo(icon, &info)) return;
        mask.Attach(info.hbmMask);
        color.Attach(info.hbmColor);
    }

    // 32 by 32 unless a bitmap tells; a mask without colour holds the AND
    // and the XOR image one above the other.
    SIZE size() const
    {
        BITMAP info = {};
        if (color.GetSafeHandle() != nullptr && color.GetBitmap(&info)) return {info.bmWidth, info.bmHeight};
        if (mask.GetSafeHandle() != nullptr && mask.GetBitmap(&info)) return {info.bmWidth, info.bmHeight / 2};
        return {32, 32};
    }

    CBitmap mask;
    CBitmap color;
};

// On white: the mask blacks out the icon's shape, the inverted mask clears
// the colour image outside it, and the colour image goes in by XOR.
void compose(CDC& result, const CDC& display, IconParts& parts, SIZE size)
{
    CDC maskDC, colorDC;
    maskDC.CreateCompatibleDC(&display);
    colorDC.CreateCompatibleDC(&display);
    const CZemDCSelect maskSelected = maskDC.SelectObject(parts.mask);
    const CZemDCSelect colorSelected = colorDC.SelectObject(parts.color);
    result.FillSolidRect(0, 0, size.cx, size.cy, 0xFFFFFF);
    result.BitBlt(0, 0, size.cx, size.cy, &maskDC, 0, 0, SRCAND);
    maskDC.BitBlt(0, 0, size.cx, size.cy, &maskDC, 0, 0, DSTINVERT);
    colorDC.BitBlt(0, 0, size.cx, size.cy, &maskDC, 0, 0, SRCAND);
    result.BitBlt(0, 0, size.cx, size.cy, &colorDC, 0, 0, SRCINVERT);
}

}  // namespace

HBITMAP zem_icon_to_bitmap(HICON icon)
{
    if (icon == nullptr) return nullptr;
    HBITMAP out = nullptr;
    {
        CDC display, memory;
        display.Attach(::CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
        memory.CreateCompatibleDC(&display);
        IconParts parts(icon);
        const SIZE size = parts.size();
        CBitmap bitmap;
        if (display.GetSafeHdc() != nullptr && memory.GetSafeHdc() != nullptr &&
            bitmap.CreateCompatibleBitmap(&display, size.cx, size.cy)) {
            const CZemDCSelect selected = memory.SelectObject(bitmap);
            compose(memory, display, parts, size);
        }
        out = static_cast<HBITMAP>(bitmap.Detach());
    }
    ::DestroyIcon(icon);
    return out;
}
