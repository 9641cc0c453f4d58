#include "ZemSlidePalette.h"

#include <gtest/gtest.h>

namespace {

unsigned long rgb(unsigned long r, unsigned long g, unsigned long b) { return r + 256 * g + 65536 * b; }

}  // namespace

TEST(ZemSlidePalette, ColourIndicesAsWindowsColoursAndWhiteOnWhite)
{
    const struct {
        int index;
        unsigned long value;
    } known[] = {{7, rgb(255, 255, 255)}, {9, rgb(191, 191, 191)}, {11, rgb(255, 127, 127)},
                 {20, rgb(255, 63, 0)}, {250, rgb(84, 84, 84)}, {255, rgb(255, 255, 255)}};
    for (const auto& k : known)
        EXPECT_EQ(CZemSlidePalette::acadRGB(k.index), k.value) << "index " << k.index;
    // White on a white background draws black.
    CZemSlidePalette palette;
    EXPECT_EQ(palette.BackColor(), 0);
    EXPECT_EQ(palette.drawRGB(7), rgb(255, 255, 255));
    palette.SetBkColor(7);
    EXPECT_EQ(palette.drawRGB(7), rgb(0, 0, 0));
    EXPECT_EQ(palette.drawIndex(1), 1);
    palette.SetBkColor(2);
    EXPECT_EQ(palette.drawIndex(7), 7);
}
