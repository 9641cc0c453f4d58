#include "ZemAciTable.h"
#include "ZemColor.h"

#include <gtest/gtest.h>

namespace {

unsigned long rgb(int r, int g, int b) { return r + 256ul * g + 65536ul * b; }

}  // namespace

TEST(Color, IndexTableHasTheHostColours) {
    EXPECT_EQ(zem_aci_rgb(0), rgb(0, 0, 0));
    EXPECT_EQ(zem_aci_rgb(1), rgb(255, 0, 0));
    EXPECT_EQ(zem_aci_rgb(5), rgb(0, 0, 255));
    EXPECT_EQ(zem_aci_rgb(7), rgb(255, 255, 255));
    EXPECT_EQ(zem_aci_rgb(8), rgb(127, 127, 127));
    EXPECT_EQ(zem_aci_rgb(9), rgb(191, 191, 191));
    EXPECT_EQ(zem_aci_rgb(10), rgb(255, 0, 0));
    EXPECT_EQ(zem_aci_rgb(11), rgb(255, 127, 127));
    EXPECT_EQ(zem_aci_rgb(12), rgb(165, 0, 0));
    EXPECT_EQ(zem_aci_rgb(20), rgb(255, 63, 0));
    EXPECT_EQ(zem_aci_rgb(90), rgb(0, 255, 0));
    EXPECT_EQ(zem_aci_rgb(170), rgb(0, 0, 255));
    EXPECT_EQ(zem_aci_rgb(250), rgb(84, 84, 84));
    EXPECT_EQ(zem_aci_rgb(255), rgb(255, 255, 255));
    EXPECT_EQ(zem_aci_rgb(-1), 0ul);
    EXPECT_EQ(zem_aci_rgb(256), 0ul);
}

TEST(Color, EachSideSetsTheColour) {
    CZemColor c;
    EXPECT_EQ(c.colorIndex(), 0) << "a new colour is index 0";
    c.setColorIndex(3);
    EXPECT_EQ(c.oleColor(), rgb(0, 255, 0));
    c.setColor(0x102030);
    EXPECT_EQ(c.oleColor(), rgb(0x10, 0x20, 0x30));
    EXPECT_EQ(c.red(), 0x10);
    EXPECT_EQ(c.blue(), 0x30);
    EXPECT_GT(c.colorIndex(), 0) << "a true colour never reads as a special index";
    c.setOleColor(rgb(255, 0, 0));
    EXPECT_EQ(c.colorIndex(), 1);
    c.setNames(L"BOOK", L"RED 1");
    EXPECT_EQ(c.oleColor(), rgb(255, 0, 0));
    EXPECT_TRUE(c.colorName() == L"RED 1");
    c.setColorIndex(-1);
    EXPECT_EQ(c.colorIndex(), -1);
}
