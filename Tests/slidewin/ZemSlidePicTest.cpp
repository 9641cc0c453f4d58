#include "SlideTestSupport.h"
#include "SlideWindow.h"
#include "ZemGdiCount.h"

#include <gtest/gtest.h>

#include <string>

using slidetest::SlideBuilder;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

const std::wstring kSlides = L"" ZEM_TESTDATA_DIR "/slides/";

// A raster of 100 by 50 dots: a green square from (10, 10) to (40, 40), then
// a red vertical vector at x = 50 over the whole height.
std::vector<unsigned char> squareAndLine()
{
    return SlideBuilder().header(2, 100, 50).color(3).fillRecord(4, -1).fillRecord(10, 10).fillRecord(40, 10)
        .fillRecord(40, 40).fillRecord(10, 40).fillRecord(0, -1).color(1).vector(50, 0, 50, 50).end().bytes();
}

// A white vector from (0, 25) to (100, 25) of a 100 by 50 raster.
std::vector<unsigned char> whiteLine() { return SlideBuilder().header(2, 100, 50).color(7).vector(0, 25, 100, 25).end().bytes(); }

}  // namespace

// A window of 301 by 101 pixels fits the raster at 2 pixels a dot, 50 pixels
// in from the left; one of 101 by 301 at 1 pixel a dot, 125 pixels down.
TEST(ZemSlidePic, PaintsTheSlideCentredOnItsBackground)
{
    SlideWindow wide(301, 101);
    wide.show(squareAndLine());
    EXPECT_EQ(wide.pic().SetBkColor(5), 1);
    wide.paint();
    EXPECT_EQ(wide.pixel(100, 50), kGreen) << "inside the square";
    EXPECT_EQ(wide.pixel(150, 10), kRed);
    EXPECT_EQ(wide.pixel(20, 50), kBlue) << "the background left of the raster";
    EXPECT_EQ(wide.pixel(151, 50), kBlue);

    wide.pic().SetBkColor(2);
    wide.paint();
    EXPECT_EQ(wide.pixel(20, 50), RGB(255, 255, 0));

    SlideWindow tall(101, 301);
    tall.show(squareAndLine());
    tall.paint();
    EXPECT_EQ(tall.pixel(50, 150), kRed);
    EXPECT_EQ(tall.pixel(50, 100), kBlack) << "above the raster: the default background 0";
}

TEST(ZemSlidePic, WhiteOnAWhiteBackgroundDrawsBlackAndATransparentControlDrawsOverWhatLiesBehind)
{
    SlideWindow opaque(101, 51);
    opaque.show(whiteLine());
    opaque.pic().SetBkColor(7);
    opaque.paint();
    EXPECT_EQ(opaque.pixel(50, 25), kBlack);
    EXPECT_EQ(opaque.pixel(50, 10), kWhite);
    opaque.pic().SetBkColor(1);
    opaque.paint();
    EXPECT_EQ(opaque.pixel(50, 25), kWhite);

    SlideWindow window(101, 51, WS_EX_TRANSPARENT);
    window.show(whiteLine());
    window.paint();
    const HDC dc = GetDC(window.pic());
    const RECT all = {0, 0, 101, 51};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    ReleaseDC(window.pic(), dc);
    InvalidateRect(window.pic(), nullptr, FALSE);
    window.pic().UpdateWindow();
    EXPECT_EQ(window.pixel(50, 10), RGB(128, 128, 128));
    EXPECT_EQ(window.pixel(50, 25), kWhite);
}

// The pens the metafile makes, the objects it selects and whether it fills a background.
TEST(ZemSlidePic, AMetafileGoesOnWhitePaperWithNothingLeftSelectedAndNothingLeaked)
{
    const int before = zemGdiObjectCount();
    {
        SlideWindow window(101, 51);
        std::vector<unsigned char> slide = whiteLine();
        // Colour 1, vectors at y = 15 and 5.
        slide.insert(slide.end() - 2, {0x01, 0xFF, 10, 0, 15, 0, 90, 0, 15, 0, 10, 0, 5, 0, 90, 0, 5, 0});
        window.show(slide);
        window.pic().SetBkColor(5);
        window.paint();
        const HENHMETAFILE metafile = window.pic().CreateEnhMetaFileW(CRect(0, 0, 101, 51));
        ASSERT_NE(metafile, nullptr);
        EXPECT_EQ(window.pic().BackColor(), 5) << "restored";
        struct {
            std::vector<COLORREF> pens;
            std::vector<DWORD> selected;
            bool rectangle = false;
        } records;
        EnumEnhMetaFile(nullptr, metafile, [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) -> int {
            auto& found = *reinterpret_cast<decltype(records)*>(data);
            found.rectangle |= record->iType == EMR_RECTANGLE;
            if (record->iType == EMR_CREATEPEN)
                found.pens.push_back(reinterpret_cast<const EMRCREATEPEN*>(record)->lopn.lopnColor);
            if (record->iType == EMR_SELECTOBJECT)
                found.selected.push_back(reinterpret_cast<const EMRSELECTOBJECT*>(record)->ihObject);
            return 1;
        }, &records, nullptr);
        DeleteEnhMetaFile(metafile);
        EXPECT_FALSE(records.rectangle) << "no background";
        EXPECT_EQ(records.pens, (std::vector<COLORREF>{kBlack, kRed})) << "colour 7 draws black";
        ASSERT_GE(records.selected.size(), 2u);
        for (std::size_t i = records.selected.size() - 2; i < records.selected.size(); ++i)
            EXPECT_NE(records.selected[i] & ENHMETA_STOCK_OBJECT, 0u) << "the context's own objects go back in";
    }
    EXPECT_EQ(zemGdiObjectCount(), before);
}

TEST(ZemSlidePic, CopyPutsTheSlideOnTheClipboardInItsRasterSize)
{
    SlideWindow window(200, 100);
    window.show(squareAndLine());
    window.paint();
    ASSERT_TRUE(window.pic().Copy());
    ASSERT_TRUE(OpenClipboard(window.pic()));
    const auto metafile = static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE));
    ASSERT_NE(metafile, nullptr);
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(metafile, sizeof header, &header);
    CloseClipboard();
    // Fitted into 100 by 50 pixels, whose 99 by 49 units between pixel
    // centres give 0.98 pixels a dot: the square's left side at 9.8, the
    // vector at 49 from top to bottom.
    EXPECT_EQ(header.rclBounds.left, 9);
    EXPECT_EQ(header.rclBounds.right, 49);
    EXPECT_EQ(header.rclBounds.top, 0);
    EXPECT_EQ(header.rclBounds.bottom, 49);

    window.pic().show(nullptr, 0);
    ASSERT_TRUE(window.pic().Copy());
    ASSERT_TRUE(OpenClipboard(window.pic()));
    GetEnhMetaFileHeader(static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE)), sizeof header, &header);
    CloseClipboard();
    EXPECT_EQ(header.nRecords, 2u) << "an empty control: header and end only";
}

TEST(ZemSlidePic, SlidesComeFromFilesLibrariesResourcesAndMemory)
{
    SlideWindow window(101, 51);
    CZemSlidePic& pic = window.pic();
    long width = 0, height = 0;
    EXPECT_TRUE(pic.show((kSlides + L"velisp/slide_up.sld").c_str(), nullptr));
    window.paint();  // the size is known once painted
    ASSERT_TRUE(pic.getSize(width, height));
    EXPECT_EQ(width, 302);
    EXPECT_TRUE(pic.show(L"sLiDe2", (kSlides + L"velisp/mylib.slb").c_str())) << "the last slide, in any case";
    EXPECT_TRUE(pic.show(L"SLIDE1", (kSlides + L"velisp/mylib.slb").c_str()));
    window.paint();
    ASSERT_TRUE(pic.getSize(width, height));
    EXPECT_EQ(width, 572);
    EXPECT_FALSE(pic.show(L"SLIDE3", (kSlides + L"velisp/mylib.slb").c_str()));
    EXPECT_FALSE(pic.getSize(width, height)) << "a failed load leaves the control empty";
    window.paint();
    EXPECT_EQ(window.pixel(50, 25), GetSysColor(COLOR_BTNFACE));
    EXPECT_FALSE(pic.show(nullptr, nullptr));
    EXPECT_FALSE(pic.show(L"SLIDE1", (kSlides + L"velisp/none.slb").c_str()));
    EXPECT_FALSE(pic.show((kSlides + L"velisp/none.sld").c_str(), nullptr));
    EXPECT_FALSE(pic.show(std::wstring(32, L'S').c_str(), (kSlides + L"velisp/mylib.slb").c_str()));

    EXPECT_FALSE(pic.LoadSlide(101, L"SLIDE"));
    ASSERT_TRUE(pic.LoadSlide(100, L"SLIDE"));
    window.paint();
    ASSERT_TRUE(pic.getSize(width, height));
    EXPECT_EQ(width, 100);
    EXPECT_EQ(height, 50);
    EXPECT_EQ(window.pixel(50, 25), kRed) << "the resource's vector runs through the middle";
    EXPECT_EQ(window.pixel(50, 10), kBlack);
    pic.show(nullptr, 100);
    EXPECT_FALSE(pic.getSize(width, height)) << "no bytes, no slide";
}
