#include "ZemSlidePalette.h"

#include <gtest/gtest.h>

TEST(ZemSlidePalette, ColourIndicesAsWindowsColoursAndWhiteOnWhite)
{
    // Windows colours are 0x00BBGGRR.
    EXPECT_EQ(CZemSlidePalette::acadRGB(9), 0xBFBFBFul);
    EXPECT_EQ(CZemSlidePalette::acadRGB(20), 0x003FFFul);
    EXPECT_EQ(CZemSlidePalette::acadRGB(250), 0x545454ul);
    // White on a white background draws black.
    CZemSlidePalette palette;
    EXPECT_EQ(palette.BackColor(), 0);
    EXPECT_EQ(palette.drawRGB(7), 0xFFFFFFul);
    palette.SetBkColor(7);
    EXPECT_EQ(palette.drawRGB(7), 0ul);
    EXPECT_EQ(palette.drawIndex(1), 1);
    palette.SetBkColor(2);
    EXPECT_EQ(palette.drawIndex(7), 7);
}
