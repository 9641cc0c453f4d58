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

using slidetest::Slide;
using slidetest::SlideBuilder;

namespace {

// A slide library written into the build tree for the time of one test.
class LibraryFile {
public:
    LibraryFile(const char* fileName, const std::vector<Slide>& slides)
        : m_path(std::filesystem::path(ZEM_BUILD_DIR) / fileName)
    {
        std::ofstream(m_path, std::ios::binary) << slidetest::library(slides);
    }
    ~LibraryFile() { std::filesystem::remove(m_path); }
    std::wstring path() const { return m_path.wstring(); }

private:
    std::filesystem::path m_path;
};

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
    for (const wchar_t* name : {L"leer", L"Leer", L"LEER"}) {
        CZemGDX gdx = emptyList();
        ASSERT_TRUE(zem_gdx_image_sld(&gdx, name, nullptr, 0x11, nullptr)) << "without a library";
        ASSERT_EQ(gdx.lenGet(), 1);
        EXPECT_EQ(gdx.typeGet(0), GDX_PT);
        EXPECT_EQ(gdx.flagGet(0), static_cast<unsigned long>(GDX_HIDE)) << "the caller's flags don't apply";
        EXPECT_TRUE(stackOf(gdx, 0).empty());
        CZemPoint3d point(1, 1, 1);
        gdx.geomGet(point, 0);
        EXPECT_TRUE(point == CZemPoint3d::kOrigin);
    }
    CZemGDX gdx = emptyList();
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"leere", nullptr, 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(nullptr, L"leer", nullptr, 0, nullptr));
}

TEST(ZemSlideImage, RefusedSlidesMakeNoItem)
{
    std::vector<unsigned char> level3 = SlideBuilder().header(2, 10, 10).vector(1, 1, 2, 2).end().bytes();
    level3[18] = 3;
    const LibraryFile library("slide_image_refused.slb",
                              {{"LINE", SlideBuilder().header(2, 10, 10).vector(1, 1, 2, 2).end().bytes()},
                               {"LEVEL3", level3},
                               {"COLOURS", SlideBuilder().header(2, 10, 10).color(1).color(2).end().bytes()}});
    const std::wstring lib = library.path();
    CZemGDX gdx = emptyList();
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, nullptr, lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LINE", nullptr, 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LINE", (lib + L".missing").c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LINES", lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"LEVEL3", lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"colours", lib.c_str(), 0, nullptr)) << "colour records make no item";
    EXPECT_EQ(gdx.lenGet(), 0);
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"line", lib.c_str(), 0, nullptr));
    EXPECT_EQ(gdx.lenGet(), 1);
}

TEST(ZemSlideImage, ItemsAreNumberedUnderTheStackPathAndPlacedByTheMatrix)
{
    SlideBuilder slide;
    slide.header(2, 100, 100).vector(1, 2, 3, 4).offsetVector(1, 1, 2, 2).commonEndpoint(3, 3);
    slide.fillRecord(3, -1).fillRecord(0, 0).fillRecord(10, 0).fillRecord(0, 10).fillRecord(0, -1).end();
    CZemMatrix3d mtx;
    mtx.setToSRM(CZemPoint3d(2, 2, 1), 0.5, CZemVector3d(100, 50, 0));
    CZemDataItem item(CZemDataItem::typeDir);
    const CZemDataKey stackKey(L"STACK");
    const CZemDataKey mtxKey(L"MTX");
    CZemArrayTempl<int> path;
    ZEM::dataItemSet(&item, &stackKey, path.append(3).append(7));
    ZEM::dataItemSet(&item, &mtxKey, static_cast<const CZemMatrix3d::Cells&>(mtx));
    CZemGDX gdx = emptyList();
    ASSERT_TRUE(imageOf(slide, gdx, 0, &item));
    ASSERT_EQ(gdx.lenGet(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(stackOf(gdx, i), (std::vector<int>{3, 7, i + 1}));
        EXPECT_TRUE(gdx.mtxGet(i) == mtx) << "item " << i;
    }
    // One number instead of an array, and no item at all.
    ZEM::dataItemSet(&item, &stackKey, 5);
    CZemGDX single = emptyList();
    ASSERT_TRUE(imageOf(slide, single, 0, &item));
    EXPECT_EQ(stackOf(single, 1), (std::vector<int>{5, 2}));
    CZemGDX plain = emptyList();
    ASSERT_TRUE(imageOf(slide, plain));
    EXPECT_EQ(stackOf(plain, 3), std::vector<int>{4});
    EXPECT_TRUE(plain.mtxGet(0) == CZemMatrix3d::kIdentity);
}

TEST(ZemSlideImage, VectorsKeepRasterCoordinatesAndColourIndices)
{
    for (bool highFirst : {false, true}) {
        SlideBuilder slide(highFirst);
        slide.header(2, 1000, 800).vector(10, 20, 30, 400).color(7).offsetVector(-5, 5, 1, 1).color(250);
        slide.commonEndpoint(-10, 20).end();
        CZemGDX gdx = emptyList();
        ASSERT_TRUE(imageOf(slide, gdx));
        ASSERT_EQ(gdx.lenGet(), 3);
        const CZemVertex expected[] = {{{10, 20, 0}, {30, 400, 0}, 0.0},
                                       {{5, 25, 0}, {11, 21, 0}, 0.0},
                                       {{5, 25, 0}, {-5, 45, 0}, 0.0}};
        const int colors[] = {0, 7, 250};
        for (int i = 0; i < 3; ++i) {
            CZemVertexArray vl;
            gdx.geomGet(vl, i);
            EXPECT_TRUE(vl[0].m_start == expected[i].m_start && vl[0].m_end == expected[i].m_end)
                << "item " << i << (highFirst ? " high byte first" : "");
            EXPECT_EQ(gdx.typeGet(i), GDX_VL);
            EXPECT_EQ(gdx.colorGet(i).colorIndex(), colors[i]) << "no exchange of 7 here";
            EXPECT_EQ(gdx.linetypeGet(i).len(), 1);
            EXPECT_EQ(gdx.linetypeGet(i)[0], 1.0);
            EXPECT_EQ(gdx.thicknGet(i), 0);
        }
    }
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
    ASSERT_EQ(gdx.lenGet(), 4);
    EXPECT_EQ(gdx.typeGet(1), GDX_REG);
    CZemArrayTempl<CZemVertexArray> regions;
    gdx.geomGet(regions, 1);
    ASSERT_EQ(regions.len(), 1);
    EXPECT_EQ(regions[0].len(), 4);
    EXPECT_TRUE(regions[0].isClosed());
    EXPECT_TRUE(ZEM::g_vl_orient(regions[0], CZemVector3d::kZAxis));
    EXPECT_EQ(gdx.fcolorGet(1).colorIndex(), 3);
    EXPECT_EQ(gdx.colorGet(1).colorIndex(), 3);
    EXPECT_EQ(gdx.flagGet(0) & 0xFF, flags) << "before the first fill the caller's flags";
    EXPECT_EQ(gdx.flagGet(1) & 0xFF, flags);
    EXPECT_EQ(gdx.flagGet(2) & 0xFF, static_cast<unsigned long>(GDX_EDGE)) << "after a fill without GDX_FILL";
    EXPECT_EQ(gdx.flagGet(3) & 0xFF, flags) << "a fill has it again";
    gdx.geomGet(regions, 3);
    EXPECT_EQ(regions[0].len(), 0);
}

TEST(ZemSlideImage, ATruncatedSlideKeepsTheItemsBeforeTheCut)
{
    std::vector<unsigned char> bytes = SlideBuilder().header(2, 50, 50).vector(1, 1, 2, 2).vector(3, 3, 4, 4).bytes();
    bytes.resize(bytes.size() - 7);  // inside the second vector's first word
    CZemSlideImage image;
    image.assign(bytes.data(), static_cast<long>(bytes.size()));
    CZemGDX gdx = emptyList();
    EXPECT_TRUE(image.image(gdx, 0, nullptr));
    EXPECT_EQ(gdx.lenGet(), 1);
}

TEST(ZemSlideImage, LibraryNamesAreMatchedAsCodePage1252InAnyCase)
{
    EXPECT_EQ(CZemSlideImage::cp1252(L"a\u20AC\u0178\u00FF\u0081\u0100"), "a\x80\x9F\xFF\x81?");
    EXPECT_EQ(CZemSlideImage::cp1252(L"\U0001F600x"), "?x") << "one character, one byte";
    const std::vector<unsigned char> line = SlideBuilder().header(2, 10, 10).vector(1, 1, 2, 2).end().bytes();
    const LibraryFile library("slide_image_names.slb", {{"Caf\xE9", line}, {"\x80UR\xD6", line}});
    const std::wstring lib = library.path();
    CZemGDX gdx = emptyList();
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"CAF\u00E9", lib.c_str(), 0, nullptr));
    EXPECT_TRUE(zem_gdx_image_sld(&gdx, L"\u20ACur\u00D6", lib.c_str(), 0, nullptr));
    EXPECT_FALSE(zem_gdx_image_sld(&gdx, L"Caf\u00C9", lib.c_str(), 0, nullptr)) << "case is ASCII case only";
    EXPECT_EQ(gdx.lenGet(), 2);
}
