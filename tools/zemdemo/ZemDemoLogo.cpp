#include "ZemDemoLogo.h"

#include <windows.h>

#include <cstdio>

namespace {

void paintLogo(HDC dc, int size)
{
    const RECT all = {0, 0, size, size};
    HBRUSH tile = CreateSolidBrush(RGB(30, 70, 140));
    FillRect(dc, &all, tile);
    DeleteObject(tile);
    const int s = size;
    const POINT roof[] = {{s / 2, s / 6}, {s * 5 / 6, s / 2}, {s / 6, s / 2}};
    const POINT body[] = {{s / 4, s / 2}, {s * 3 / 4, s / 2}, {s * 3 / 4, s * 5 / 6}, {s / 4, s * 5 / 6}};
    const POINT door[] = {{s * 9 / 20, s * 5 / 8}, {s * 11 / 20, s * 5 / 8}, {s * 11 / 20, s * 5 / 6},
                          {s * 9 / 20, s * 5 / 6}};
    HGDIOBJ pen = SelectObject(dc, GetStockObject(NULL_PEN));
    HBRUSH red = CreateSolidBrush(RGB(200, 50, 40));
    HGDIOBJ before = SelectObject(dc, red);
    Polygon(dc, roof, 3);
    SelectObject(dc, GetStockObject(WHITE_BRUSH));
    Polygon(dc, body, 4);
    SelectObject(dc, red);
    Polygon(dc, door, 4);
    SelectObject(dc, before);
    SelectObject(dc, pen);
    DeleteObject(red);
}

bool writeBmp(const wchar_t* path, const BITMAPINFOHEADER& header, const void* bits)
{
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + header.biSizeImage;
    FILE* out = _wfopen(path, L"wb");
    if (!out)
        return false;
    const bool written = std::fwrite(&file, sizeof file, 1, out) == 1 && std::fwrite(&header, sizeof header, 1, out) == 1 &&
                         std::fwrite(bits, header.biSizeImage, 1, out) == 1;
    return std::fclose(out) == 0 && written;
}

}  // namespace

bool zem_demo_logo_write(const wchar_t* path, int size)
{
    if (size <= 0)
        return false;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = size;
    info.bmiHeader.biHeight = size;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(((size * 3 + 3) & ~3) * size);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HDC dc = CreateCompatibleDC(nullptr);
    bool written = false;
    if (bitmap && dc) {
        const HGDIOBJ before = SelectObject(dc, bitmap);
        paintLogo(dc, size);
        GdiFlush();
        written = writeBmp(path, info.bmiHeader, bits);
        SelectObject(dc, before);
    }
    if (dc)
        DeleteDC(dc);
    if (bitmap)
        DeleteObject(bitmap);
    return written;
}
