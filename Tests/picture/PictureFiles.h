#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Images of solid colour blocks that the picture tests write into the build
// tree: bitmaps and icons byte by byte, metafiles through GDI.
namespace picturetest {

// Pixels row by row from the top.
struct Raster {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> pixels;
    COLORREF at(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

// Four blocks of a width by height image: top left, top right, bottom left, bottom right.
Raster quadrants(int width, int height, COLORREF topLeft, COLORREF topRight, COLORREF bottomLeft,
                 COLORREF bottomRight);

// The full Windows path of name in the tests' image folder, made on first use.
std::wstring imagePath(const wchar_t* name);

// A bottom-up 24-bit bitmap file.
bool writeBmp(const std::wstring& path, const Raster& raster);
// An icon file with one 32-bit image of at most 255 pixels a side.
bool writeIco(const std::wstring& path, const Raster& raster);
// An enhanced metafile, framed width by height screen pixels, filled with colour.
bool writeEmf(const std::wstring& path, int width, int height, COLORREF color);

}  // namespace picturetest
