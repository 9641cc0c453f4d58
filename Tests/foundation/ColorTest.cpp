#include "ZemAciTable.h"
#include "ZemColor.h"

#include <gtest/gtest.h>

TEST(Color, IndexTableAndEachSideSetsTheColour) {
    const auto rgb = [](unsigned long r, unsigned long g, unsigned long b) { return r + 256 * g + 65536 * b; };
    const int index[] = {0, 1, 7, 8, 9, 11, 12, 20, 170, 250, -1, 256};
    const unsigned long colour[] = {rgb(0, 0, 0),     rgb(255, 0, 0),   rgb(255, 255, 255), rgb(127, 127, 127),
                                    rgb(191, 191, 191), rgb(255, 127, 127), rgb(165, 0, 0), rgb(255, 63, 0),
                                    rgb(0, 0, 255),   rgb(84, 84, 84),  0,                  0};
    for (int k = 0; k < 12; ++k) EXPECT_EQ(zem_aci_rgb(index[k]), colour[k]) << index[k];
    CZemColor c;
    EXPECT_EQ(c.colorIndex(), 0) << "a new colour is index 0";
    EXPECT_EQ(c.setColorIndex(3).oleColor(), rgb(0, 255, 0));
    EXPECT_EQ(c.setColor(0x102030).oleColor(), rgb(0x10, 0x20, 0x30)) << "red in the high byte of the number set";
    EXPECT_GT(c.colorIndex(), 0) << "a true colour never reads as a special index";
    EXPECT_EQ(c.setOleColor(rgb(255, 0, 0)).colorIndex(), 1);
    EXPECT_EQ(c.setNames(L"BOOK", L"RED 1").oleColor(), rgb(255, 0, 0)) << "names keep the colour";
}
