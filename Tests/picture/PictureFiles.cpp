#include "PictureFiles.h"

namespace picturetest {

namespace {

// Little-endian fields of the given byte counts.
void put(std::vector<unsigned char>& bytes, std::initializer_list<std::pair<unsigned, int>> fields)
{
    for (const auto& [value, size] : fields)
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<unsigned char>((value >> (8 * i)) & 0xFF));
}

// The information header of a bottom-up image (an icon's counts its mask
// in the height), then the pixels from the bottom row up, each padded to 4 bytes.
void putImage(std::vector<unsigned char>& bytes, const Raster& raster, int bits, int headerHeight)
{
    const int pixelBytes = bits / 8;
    const int stride = (raster.width * pixelBytes + 3) & ~3;
    put(bytes, {{40, 4}, {static_cast<unsigned>(raster.width), 4}, {static_cast<unsigned>(headerHeight), 4},
                {1, 2}, {static_cast<unsigned>(bits), 2}, {BI_RGB, 4}, {static_cast<unsigned>(stride * raster.height), 4},
                {3780, 4}, {3780, 4}, {0, 4}, {0, 4}});
    for (int y = raster.height - 1; y >= 0; --y) {
        for (int x = 0; x < raster.width; ++x) {
            const COLORREF c = raster.at(x, y);
            bytes.insert(bytes.end(), {GetBValue(c), GetGValue(c), GetRValue(c)});
            if (pixelBytes == 4)
                bytes.push_back(0xFF);
        }
        bytes.resize(bytes.size() + static_cast<std::size_t>(stride - raster.width * pixelBytes), 0);
    }
}

bool writeBytes(const std::wstring& path, const std::vector<unsigned char>& bytes)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL ok = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return ok && written == bytes.size();
}

}  // namespace

Raster quadrants(int width, int height, COLORREF topLeft, COLORREF topRight, COLORREF bottomLeft,
                 COLORREF bottomRight)
{
    Raster raster{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            raster.pixels.push_back(y >= height / 2 ? (x >= width / 2 ? bottomRight : bottomLeft)
                                                    : (x >= width / 2 ? topRight : topLeft));
    return raster;
}

std::wstring imagePath(const wchar_t* name)
{
    std::wstring folder = L"" ZEM_BUILD_DIR "\\Tests\\picture-images";
    for (wchar_t& c : folder)
        c = c == L'/' ? L'\\' : c;
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"\\" + name;
}

bool writeBmp(const std::wstring& path, const Raster& raster)
{
    std::vector<unsigned char> bytes = {'B', 'M'};
    const unsigned imageBytes = static_cast<unsigned>(((raster.width * 3 + 3) & ~3) * raster.height);
    put(bytes, {{54 + imageBytes, 4}, {0, 4}, {54, 4}});
    putImage(bytes, raster, 24, raster.height);
    return writeBytes(path, bytes);
}

// A 32-bit image carries its transparency in its alpha bytes; the AND mask
// after it is all zero, opaque.
bool writeIco(const std::wstring& path, const Raster& raster)
{
    const unsigned colorBytes = static_cast<unsigned>(raster.width * raster.height * 4);
    const unsigned maskBytes = static_cast<unsigned>((raster.width + 31) / 32 * 4 * raster.height);
    std::vector<unsigned char> bytes;
    put(bytes, {{0, 2}, {1, 2}, {1, 2}, {static_cast<unsigned>(raster.width), 1},
                {static_cast<unsigned>(raster.height), 1}, {0, 2}, {1, 2}, {32, 2}, {40 + colorBytes + maskBytes, 4},
                {22, 4}});
    putImage(bytes, raster, 32, raster.height * 2);
    bytes.resize(bytes.size() + maskBytes, 0);
    return writeBytes(path, bytes);
}

bool writeEmf(const std::wstring& path, int width, int height, COLORREF color)
{
    const RECT frame = {0, 0, MulDiv(width, 2540, 96), MulDiv(height, 2540, 96)};
    const HDC dc = CreateEnhMetaFileW(nullptr, path.c_str(), &frame, nullptr);
    const RECT all = {0, 0, width, height};
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &all, brush);
    const HENHMETAFILE metafile = CloseEnhMetaFile(dc);
    DeleteObject(brush);
    return metafile && DeleteEnhMetaFile(metafile);
}

}  // namespace picturetest
