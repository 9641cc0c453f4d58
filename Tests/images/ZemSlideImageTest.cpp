#include "SlideTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemGDX.h"
#include "ZemGdxImageSld.h"
#include "ZemPolyline.h"
#include "ZemSlideImage.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using slidetest::SlideBuilder;

namespace {

CZemGDX emptyList() { return CZemGDX(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d()); }

std::vector<int> stackOf(const CZemGDX& gdx, int i)
{
    CZemArrayTempl<int> stack;
    gdx.itemStackGet(stack, i);
    return std::vector<int>(stack.data(), stack.data() + stack.len());
}

bool imageOf(const SlideBuilder& slide, CZemGDX& gdx, unsigned long flags = 0, const CZemDataItem* item = nullptr)
{
    CZemSlideImage image;
    image.assign(slide.bytes().data(), static_cast<long>(slide.bytes().size()));
    return image.image(gdx, flags, item);
}

}  // namespace

TEST(ZemSlideImage, TheEmptySlideIsOneHiddenPointAtTheOrigin)
{
    CZemGDX gdx = emptyList();
    ASSERT_TRUE(zem_gdx_image_sld(&gdx, L"Leer", nullptr, 0x11, nullptr)) << "without a library, in any case";
    ASSERT_TRUE(gdx.lenGet() == 1 && gdx.typeGet(0) == GDX_PT);
    EXPECT_EQ(gdx.flagGet(0), static_cast<unsigned long>(GDX_HIDE)) << "the caller's flags don't apply";
    CZemPoint3d point(1, 1, 1);
    gdx.geomGet(point, 0);
    EXPECT_TRUE(point == CZemPoint3d::kOrigin && stackOf(gdx, 0).empty());
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"leere", nullptr, 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(nullptr, L"leer", nullptr, 0, nullptr));
}

// Names are looked up as code page 1252, in ASCII case only; slides that
// cannot be read, or that hold only colours, make no item.
TEST(ZemSlideImage, SlidesOfALibraryByName)
{
    EXPECT_EQ(CZemSlideImage::cp1252(L"a\u20AC\u0178\u00FF\u0081\u0100"), "a\x80\x9F\xFF\x81?");
    EXPECT_EQ(CZemSlideImage::cp1252(L"\U0001F600x"), "?x") << "one character, one byte";
    const std::vector<unsigned char> line = SlideBuilder().header(2, 10, 10).vector(1, 1, 2, 2).end().bytes();
    std::vector<unsigned char> level3 = line;
    level3[18] = 3;
    const std::filesystem::path file = std::filesystem::path(ZEM_BUILD_DIR) / "slide_image_names.slb";
    std::ofstream(file, std::ios::binary) << slidetest::library(
        {{"LINE", line}, {"LEVEL3", level3}, {"COLOURS", SlideBuilder().header(2, 10, 10).color(1).end().bytes()},
         {"Caf\xE9", line}, {"\x80UR\xD6", line}});
    const std::wstring lib = file.wstring();
    CZemGDX gdx = emptyList();
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, nullptr, lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LINE", (lib + L".missing").c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LEVEL3", lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"colours", lib.c_str(), 0, nullptr)) << "colour records make no item";
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"Caf\u00C9", lib.c_str(), 0, nullptr)) << "case is ASCII case only";
    EXPECT_EQ(gdx.lenGet(), 0);
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"line", lib.c_str(), 0, nullptr));
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"CAF\u00E9", lib.c_str(), 0, nullptr));
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"\u20ACur\u00D6", lib.c_str(), 0, nullptr));
    EXPECT_EQ(gdx.lenGet(), 3);
    std::filesystem::remove(file);
}

TEST(ZemSlideImage, ItemsAreNumberedUnderTheStackPathAndPlacedByTheMatrix)
{
    SlideBuilder slide;
    slide.header(2, 100, 100).vector(1, 2, 3, 4).offsetVector(1, 1, 2, 2).commonEndpoint(3, 3);
    slide.fillRecord(3, -1).fillRecord(0, 0).fillRecord(10, 0).fillRecord(0, 10).fillRecord(0, -1).end();
    CZemMatrix3d mtx;
    mtx.setToSRM(CZemPoint3d(2, 2, 1), 0.5, CZemVector3d(100, 50, 0));
    CZemDataItem item(CZemDataItem::typeDir);
    const CZemDataKey stackKey(L"STACK"), mtxKey(L"MTX");
    ZEM::dataItemSet(&item, &stackKey, CZemArrayTempl<int>().append(3).append(7));
    ZEM::dataItemSet(&item, &mtxKey, static_cast<const CZemMatrix3d::Cells&>(mtx));
    CZemGDX gdx = emptyList();
    ASSERT_TRUE(imageOf(slide, gdx, 0, &item));
    ASSERT_EQ(gdx.lenGet(), 4);
    EXPECT_TRUE(stackOf(gdx, 3) == (std::vector<int>{3, 7, 4}) && gdx.mtxGet(3) == mtx);
    // One number instead of an array.
    ZEM::dataItemSet(&item, &stackKey, 5);
    CZemGDX single = emptyList();
    ASSERT_TRUE(imageOf(slide, single, 0, &item));
    EXPECT_EQ(stackOf(single, 1), (std::vector<int>{5, 2}));
}

TEST(ZemSlideImage, FillsBecomeCounterClockwiseRegionsAndEndTheFillFlag)
{
    SlideBuilder slide;
    slide.header(1, 100, 100).color(3).vector(0, 0, 1, 1);
    // Clockwise in the raster: the region runs the other way round.
    slide.fillRecord(4, -1).fillRecord(10, 10).fillRecord(10, 20).fillRecord(20, 20).fillRecord(20, 10);
    slide.fillRecord(0, -1).vector(2, 2, 3, 3);
    // One vertex: a polygon of one point, which encloses nothing.
    slide.fillRecord(1, -1).fillRecord(7, 8).fillRecord(0, -1).end();
    CZemGDX gdx = emptyList();
    const unsigned long flags = GDX_FILL | GDX_EDGE;
    ASSERT_TRUE(imageOf(slide, gdx, flags));
    ASSERT_TRUE(gdx.lenGet() == 4 && gdx.typeGet(1) == GDX_REG);
    CZemArrayTempl<CZemVertexArray> regions;
    gdx.geomGet(regions, 1);
    ASSERT_EQ(regions.len(), 1);
    EXPECT_TRUE(regions[0].len() == 4 && regions[0].isClosed());
    EXPECT_TRUE(ZEM::g_vl_orient(regions[0], CZemVector3d::kZAxis));
    EXPECT_TRUE(gdx.fcolorGet(1).colorIndex() == 3 && gdx.colorGet(1).colorIndex() == 3);
    EXPECT_EQ(gdx.flagGet(0) & 0xFF, flags) << "before the first fill the caller's flags";
    EXPECT_EQ(gdx.flagGet(1) & 0xFF, flags);
    EXPECT_EQ(gdx.flagGet(2) & 0xFF, static_cast<unsigned long>(GDX_EDGE)) << "after a fill without GDX_FILL";
    EXPECT_EQ(gdx.flagGet(3) & 0xFF, flags) << "a fill has it again";
    gdx.geomGet(regions, 3);
    EXPECT_EQ(regions[0].len(), 0);
}
