#include "ZemSlideFit.h"

#include <gtest/gtest.h>

namespace {

std::pair<int, int> mapped(const CZemSlideFit& fit, int x, int y)
{
    fit.trans(x, y);
    return {x, y};
}

}  // namespace

TEST(ZemSlideFit, TheSlideIsCentredAndKeepsItsProportions)
{
    // 101 x 51 pixels span 100 x 50; a 200 x 50 raster is limited by its width
    // (half a pixel per dot) and leaves 25 pixels of height, split 12 above.
    CZemSlideFit wide;
    wide.SetCoordSystem(101, 51, 200, 50);
    EXPECT_DOUBLE_EQ(wide.scale(), 0.5);
    EXPECT_EQ(mapped(wide, 0, 0), std::make_pair(0, 37)) << "the origin is the bottom left";
    EXPECT_EQ(mapped(wide, 200, 50), std::make_pair(100, 12));

    // A tall window: the height limits; 7 spare pixels of width give an offset of 3.
    CZemSlideFit tall;
    tall.SetCoordSystem(18, 101, 10, 100);
    EXPECT_TRUE(tall.scale() == 1.0 && tall.offX() == 3);
    EXPECT_EQ(mapped(tall, 10, 100), std::make_pair(13, 0));
}

TEST(ZemSlideFit, DegenerateWindowsAndRasters)
{
    CZemSlideFit narrow;
    narrow.SetCoordSystem(1, 500, 640, 480);
    EXPECT_EQ(narrow.scale(), 0.0);
    EXPECT_EQ(mapped(narrow, 0, 0), mapped(narrow, 640, 480)) << "every point lands on one spot";
    CZemSlideFit dot;
    dot.SetCoordSystem(100, 100, 0, 0);
    EXPECT_EQ(mapped(dot, 32767, -32768), mapped(dot, 0, 0));
    // A huge window over a one-dot-wide raster clamps instead of overflowing.
    CZemSlideFit huge;
    huge.SetCoordSystem(2000000000, 2000000000, 1, 1);
    EXPECT_EQ(mapped(huge, 30000, 1).first, 2147483647);
}
