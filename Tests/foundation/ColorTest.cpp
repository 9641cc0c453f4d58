#include "ZemAciTable.h"
#include "ZemColor.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

unsigned long rgb(int r, int g, int b) { return r + 256ul * g + 65536ul * b; }

}  // namespace

TEST(Color, IndexTableAndEachSideSetsTheColour) {
    const std::pair<int, unsigned long> rows[] = {
        {0, rgb(0, 0, 0)},        {1, rgb(255, 0, 0)},      {7, rgb(255, 255, 255)}, {8, rgb(127, 127, 127)},
        {9, rgb(191, 191, 191)},  {11, rgb(255, 127, 127)}, {12, rgb(165, 0, 0)},    {20, rgb(255, 63, 0)},
        {170, rgb(0, 0, 255)},    {250, rgb(84, 84, 84)},   {-1, 0ul},               {256, 0ul}};
    for (const auto& [index, colour] : rows) EXPECT_EQ(zem_aci_rgb(index), colour) << index;

    CZemColor c;
    EXPECT_EQ(c.colorIndex(), 0) << "a new colour is index 0";
    c.setColorIndex(3);
    EXPECT_EQ(c.oleColor(), rgb(0, 255, 0));
    c.setColor(0x102030);
    EXPECT_EQ(c.oleColor(), rgb(0x10, 0x20, 0x30)) << "red in the high byte of the number set";
    EXPECT_GT(c.colorIndex(), 0) << "a true colour never reads as a special index";
    c.setOleColor(rgb(255, 0, 0));
    EXPECT_EQ(c.colorIndex(), 1);
    c.setNames(L"BOOK", L"RED 1");
    EXPECT_EQ(c.oleColor(), rgb(255, 0, 0)) << "names keep the colour";
}
