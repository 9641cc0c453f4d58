#include "CBitmap.h"
#include "CClientDC.h"
#include "ZemGdiCount.h"
#include "ZemGdxPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);

using Painter = std::function<COLORREF(int x, int y)>;

// A bitmap like the screen's, painted pixel by pixel, selected in a memory
// device until release().
class MemoryImage {
public:
    MemoryImage(int width, int height, const Painter& paint) : m_screen(nullptr)
    {
        m_dc.CreateCompatibleDC(&m_screen);
        m_bitmap.CreateCompatibleBitmap(&m_screen, width, height);
        m_selected = m_dc.SelectObject(m_bitmap);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                m_dc.SetPixel(x, y, paint(x, y));
        m_bitmap.GetBitmap(&m_size);
    }
    CDC& dc() { return m_dc; }
    CBitmap& bitmap() { return m_bitmap; }
    BITMAP& size() { return m_size; }
    void release() { m_selected.Restore(); }

private:
    CClientDC m_screen;
    CDC m_dc;
    CBitmap m_bitmap;
    CZemDCSelect m_selected;
    BITMAP m_size = {};
};

}  // namespace

// Five points are read: the corners of a 10 by 7 bitmap and (4, 3).
TEST(ZemGdxPicture, TheBackgroundIsTheCommonestOfCornersAndCentreTheLowestOnATie)
{
    const auto corner = [](int x, int y) { return (x == 0 || x == 9) && (y == 0 || y == 6); };
    MemoryImage whiteCorners(10, 7, [&](int x, int y) { return corner(x, y) ? kWhite : kBlack; });
    EXPECT_EQ(zem_gdx_picture_bkcolor_get(&whiteCorners.dc(), &whiteCorners.size()), kWhite);

    MemoryImage tie(10, 7, [&](int x, int y) { return corner(x, y) ? (x == 0 ? kWhite : kBlack) : kRed; });
    EXPECT_EQ(zem_gdx_picture_bkcolor_get(&tie.dc(), &tie.size()), kBlack) << "black (0) beats white";

    const COLORREF five[] = {RGB(9, 1, 1), RGB(3, 200, 7), RGB(80, 0, 3), RGB(1, 1, 9), RGB(40, 40, 40)};
    MemoryImage allDifferent(10, 7, [&](int x, int y) {
        if (x == 4 && y == 3)
            return five[4];
        return corner(x, y) ? five[(x == 9 ? 1 : 0) + (y == 6 ? 2 : 0)] : kWhite;
    });
    EXPECT_EQ(zem_gdx_picture_bkcolor_get(&allDifferent.dc(), &allDifferent.size()),
              *std::min_element(std::begin(five), std::end(five)));
    EXPECT_EQ(zem_gdx_picture_bkcolor_get(nullptr, &allDifferent.size()), CLR_INVALID);
}

// A 20 by 10 sprite on white, drawn at (7, 11) over a gradient: every pixel
// of the target shows the sprite where it isn't white and the gradient
// elsewhere. A colour one step off white is drawn, not keyed.
TEST(ZemGdxPicture, TheTransparentBlitLeavesTheBackgroundOfTheBitmapOut)
{
    const Painter sprite = [](int x, int y) {
        if (x >= 3 && x <= 6 && y >= 3 && y <= 6)
            return kBlack;
        if (y == 8 && x >= 10 && x <= 15)
            return kRed;
        if (x == 17 && y == 2)
            return RGB(254, 255, 255);
        return kWhite;
    };
    const Painter gradient = [](int x, int y) { return RGB(x * 6, y * 8, 128); };
    MemoryImage source(20, 10, sprite);
    source.release();
    MemoryImage target(40, 30, gradient);
    target.dc().SetBkColor(RGB(1, 2, 3));
    target.dc().SetTextColor(RGB(4, 5, 6));
    const int gdiObjects = zemGdiObjectCount();

    EXPECT_TRUE(zem_gdx_picture_transparent(&target.dc(), 7, 11, -5, 99999, &source.bitmap()));
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const bool over = x >= 7 && x < 27 && y >= 11 && y < 21;
            const COLORREF drawn = over ? sprite(x - 7, y - 11) : kWhite;
            const COLORREF expected = over && drawn != kWhite ? drawn : gradient(x, y);
            ASSERT_EQ(target.dc().GetPixel(x, y), expected) << "at " << x << ", " << y;
        }
    EXPECT_EQ(target.dc().GetBkColor(), RGB(1, 2, 3));
    EXPECT_EQ(target.dc().GetTextColor(), RGB(4, 5, 6));
    EXPECT_EQ(zemGdiObjectCount(), gdiObjects);
    CDC other;
    other.CreateCompatibleDC(&target.dc());
    EXPECT_TRUE(other.SelectObject(source.bitmap()).selected()) << "the bitmap is free again";

    EXPECT_TRUE(zem_gdx_picture_transparent(&target.dc(), 0, 0, 0, 0, nullptr));
    EXPECT_TRUE(zem_gdx_picture_transparent(nullptr, 0, 0, 0, 0, &source.bitmap()));
}
