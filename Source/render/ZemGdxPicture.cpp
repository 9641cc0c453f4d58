#include "ZemGdxPicture.h"

#include <array>
#include <utility>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

// Masks out the pixels of the key colour: a blit from colour to one bit
// makes the source's background colour white and every other colour black.
// On dc, an image XOR, the mask AND and the image XOR again leave dc's own
// pixels under white mask bits and the image's under black ones; dc's
// background white and text black turn the mask bits into those colours.
void blitWithoutKey(CDC& dc, int x, int y, CDC& image, const BITMAP& size)
{
    BITMAP record = size;
    const COLORREF key = zem_gdx_picture_bkcolor_get(&image, &record);
    CDC mask;
    mask.CreateCompatibleDC(&dc);
    CBitmap maskBits;
    if (!maskBits.CreateBitmap(size.bmWidth, size.bmHeight, 1, 1, nullptr))
        return;
    const CZemDCSelect maskSelected = mask.SelectObject(maskBits);
    image.SetBkColor(key);
    mask.BitBlt(0, 0, size.bmWidth, size.bmHeight, &image, 0, 0, SRCCOPY);
    dc.BitBlt(x, y, size.bmWidth, size.bmHeight, &image, 0, 0, SRCINVERT);
    dc.BitBlt(x, y, size.bmWidth, size.bmHeight, &mask, 0, 0, SRCAND);
    dc.BitBlt(x, y, size.bmWidth, size.bmHeight, &image, 0, 0, SRCINVERT);
}

}  // namespace

DWORD zem_gdx_picture_bkcolor_get(CDC* dc, BITMAP* bitmap)
{
    if (!dc || !bitmap)
        return CLR_INVALID;
    const int right = bitmap->bmWidth - 1;
    const int bottom = bitmap->bmHeight - 1;
    const std::array<std::pair<int, int>, 5> points = {{
        {0, 0},
        {right, 0},
        {0, bottom},
        {static_cast<int>(right * 0.5), static_cast<int>(bottom * 0.5)},
        {right, bottom},
    }};
    std::array<COLORREF, 5> colors = {};
    for (std::size_t i = 0; i < points.size(); ++i)
        colors[i] = dc->GetPixel(points[i].first, points[i].second);
    COLORREF best = CLR_INVALID;
    int bestCount = 0;
    for (const COLORREF color : colors) {
        int count = 0;
        for (const COLORREF other : colors)
            count += other == color ? 1 : 0;
        if (count > bestCount || (count == bestCount && color < best)) {
            best = color;
            bestCount = count;
        }
    }
    return best;
}

bool zem_gdx_picture_transparent(CDC* dc, int x, int y, int, int, CBitmap* bitmap)
{
    if (!dc || !bitmap || !bitmap->GetSafeHandle())
        return true;
    const COLORREF formerBack = dc->SetBkColor(kWhite);
    const COLORREF formerText = dc->SetTextColor(kBlack);
    CDC image;
    image.CreateCompatibleDC(dc);
    BITMAP size = {};
    bitmap->GetBitmap(&size);
    {
        // A bitmap selected in another device can't be drawn from here.
        const CZemDCSelect imageSelected = image.SelectObject(*bitmap);
        if (imageSelected.selected() && size.bmWidth > 0 && size.bmHeight > 0)
            blitWithoutKey(*dc, x, y, image, size);
    }
    dc->SetBkColor(formerBack);
    dc->SetTextColor(formerText);
    return true;
}
