#include "ToolsTestSupport.h"
#include "ZemMetafileBitmap.h"

#include <gtest/gtest.h>

#include <vector>

using namespace toolstest;

namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

// A few shapes well inside the picture, so the metafile's own frame is far
// smaller than the picture.
void drawShapes(HDC dc)
{
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(0, 0, 255));
    HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
    const HGDIOBJ oldPen = SelectObject(dc, pen), oldBrush = SelectObject(dc, brush);
    MoveToEx(dc, 40, 30, nullptr);
    LineTo(dc, 40, 150);
    Rectangle(dc, 100, 60, 180, 120);
    MoveToEx(dc, 200, 170, nullptr);
    LineTo(dc, 260, 170);
    SelectObject(dc, oldBrush);
    SelectObject(dc, oldPen);
    DeleteObject(brush);
    DeleteObject(pen);
}

std::vector<COLORREF> pixels(HBITMAP bitmap)
{
    BITMAPINFO info = {{sizeof(BITMAPINFOHEADER), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
    std::vector<COLORREF> out(kWidth * kHeight);
    HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, kHeight, out.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    for (COLORREF& p : out)
        p &= 0xFFFFFF;
    return out;
}

HENHMETAFILE recorded(void (*draw)(HDC))
{
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    draw(dc);
    return CloseEnhMetaFile(dc);
}

}  // namespace

TEST(MetafileBitmap, PlaysEveryRecordAtThePixelItWasDrawnAt)
{
    const HENHMETAFILE metafile = recorded(drawShapes);
    ASSERT_NE(metafile, nullptr);
    const HBITMAP played = zemMetafileBitmap(metafile, kWidth, kHeight);
    ASSERT_NE(played, nullptr);
    const std::vector<COLORREF> a = pixels(played);
    // The rectangle's frame at (100, 60) and the last line's first pixel at
    // (200, 170) with white just before them.
    EXPECT_EQ(a[120 * kWidth + 40], static_cast<COLORREF>(0x0000FF)) << "the line's pixel, blue as 0x00RRGGBB";
    EXPECT_EQ(a[90 * kWidth + 140], static_cast<COLORREF>(0xFF0000)) << "inside the red rectangle";
    EXPECT_TRUE(a[90 * kWidth + 100] == 0x0000FFu && a[90 * kWidth + 99] == 0xFFFFFFu) << "the frame's left side";
    EXPECT_TRUE(a[170 * kWidth + 200] == 0x0000FFu && a[170 * kWidth + 199] == 0xFFFFFFu) << "the last line";
    DeleteObject(played);
    DeleteEnhMetaFile(metafile);
}

TEST(MetafileBitmap, EmptyAndOneColumnMetafilesAndBadSizes)
{
    const HENHMETAFILE empty = recorded([](HDC) {});
    const HENHMETAFILE column = recorded([](HDC dc) {
        MoveToEx(dc, 70, 20, nullptr);
        LineTo(dc, 70, 80);
    });
    const HBITMAP blank = zemMetafileBitmap(empty, kWidth, kHeight);
    ASSERT_NE(blank, nullptr);
    for (COLORREF p : pixels(blank))
        ASSERT_EQ(p, 0xFFFFFFu);
    const HBITMAP line = zemMetafileBitmap(column, kWidth, kHeight);
    const std::vector<COLORREF> lit = pixels(line);
    EXPECT_TRUE(lit[50 * kWidth + 70] == 0u && lit[50 * kWidth + 71] == 0xFFFFFFu)
        << "a metafile one pixel wide still plays where it was drawn";
    EXPECT_EQ(zemMetafileBitmap(empty, 0, kHeight), nullptr);
    EXPECT_FALSE(zemMetafileToPng(L"no such file.emf", kWidth, kHeight, L"never.png"));
    DeleteObject(blank);
    DeleteObject(line);
    DeleteEnhMetaFile(empty);
    DeleteEnhMetaFile(column);
}
