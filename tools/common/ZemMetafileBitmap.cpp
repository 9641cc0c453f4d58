#include "ZemMetafileBitmap.h"

#include "ZemPngFile.h"

#include <cmath>
#include <vector>

namespace {

// Playing maps the metafile's frame onto the target rectangle. A metafile
// made without a frame has one around what it holds, so playing it into the
// whole bitmap would stretch the drawing. A copy whose frame is the whole
// bitmap, in hundredths of a millimetre of the reference device, plays every
// record at the pixel where it was recorded.
HENHMETAFILE framedCopy(HENHMETAFILE metafile, int width, int height)
{
    const UINT size = GetEnhMetaFileBits(metafile, 0, nullptr);
    if (size < sizeof(ENHMETAHEADER))
        return nullptr;
    std::vector<BYTE> bits(size);
    if (GetEnhMetaFileBits(metafile, size, bits.data()) != size)
        return nullptr;
    auto* header = reinterpret_cast<ENHMETAHEADER*>(bits.data());
    if (header->szlDevice.cx <= 0 || header->szlDevice.cy <= 0 || header->szlMillimeters.cx <= 0 ||
        header->szlMillimeters.cy <= 0)
        return nullptr;
    const double unitsX = header->szlMillimeters.cx * 100.0 / header->szlDevice.cx;
    const double unitsY = header->szlMillimeters.cy * 100.0 / header->szlDevice.cy;
    header->rclFrame = {0, 0, std::lround(width * unitsX), std::lround(height * unitsY)};
    return SetEnhMetaFileBits(size, bits.data());
}

}  // namespace

HBITMAP zemMetafileBitmap(HENHMETAFILE metafile, int width, int height)
{
    if (width <= 0 || height <= 0)
        return nullptr;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* pixels = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    HDC dc = CreateCompatibleDC(nullptr);
    if (!bitmap || !dc) {
        if (bitmap)
            DeleteObject(bitmap);
        if (dc)
            DeleteDC(dc);
        return nullptr;
    }
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const RECT all = {0, 0, width, height};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    if (HENHMETAFILE framed = metafile ? framedCopy(metafile, width, height) : nullptr) {
        PlayEnhMetaFile(dc, framed, &all);
        DeleteEnhMetaFile(framed);
    }
    SelectObject(dc, before);
    DeleteDC(dc);
    return bitmap;
}

bool zemMetafileToPng(const wchar_t* metafilePath, int width, int height, const wchar_t* pngPath)
{
    const HENHMETAFILE metafile = GetEnhMetaFileW(metafilePath);
    if (!metafile)
        return false;
    const HBITMAP bitmap = zemMetafileBitmap(metafile, width, height);
    DeleteEnhMetaFile(metafile);
    if (!bitmap)
        return false;
    const bool written = zemWritePng(bitmap, pngPath);
    DeleteObject(bitmap);
    return written;
}
