#include "SlideTestSupport.h"
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using slidetest::RecordingSink;

namespace {

const std::filesystem::path kSlides = std::filesystem::path(ZEM_TESTDATA_DIR) / "slides";

// Record counts from the test data's own description: lines are vectors plus
// offset vectors plus common-endpoint vectors; fill records count every FD
// record, and a fill of k points (closing point included) spans k + 1 of them.
struct Expected {
    const char* path;
    int width, height, lines, colors, fillRecords;
};

const Expected kFiles[] = {
    {"dos-era/AUTODIM.SLD", 942, 694, 50 + 908 + 1525, 55, 45},
    {"dos-era/BACKINGR.SLD", 1167, 959, 8 + 14 + 63, 4, 0},
    {"dos-era/DWL-S.sld", 1279, 925, 8 + 5 + 20, 5, 0},
    {"dos-era/FIELD.SLD", 1167, 959, 5 + 52 + 25, 3, 105},
    {"dos-era/FIN2.SLD", 1167, 959, 11 + 7, 3, 0},
    {"dos-era/FIN3.SLD", 1167, 959, 11 + 7, 3, 0},
    {"dos-era/NUT-Z.sld", 1279, 918, 137 + 302 + 107, 1, 0},
    {"dos-era/PPC.SLD", 572, 333, 26 + 2720 + 2581, 4, 24},
    {"dos-era/REGSCRN1.SLD", 732, 533, 103 + 8662 + 1262, 1, 0},
    {"dos-era/S6.SLD", 572, 414, 21 + 39 + 81, 16, 0},
    {"dos-era/SHAFTBRK.SLD", 1167, 959, 8 + 2 + 31, 1, 0},
    {"dos-era/SSN-Z.sld", 1279, 918, 45 + 72 + 22, 1, 0},
    {"dos-era/ZOOMS.SLD", 642, 284, 24 + 632 + 5, 1, 0},
    {"dos-era/ab30-02c.sld", 760, 534, 753, 133, 0},
    {"velisp/slide_kz.sld", 1164, 815, 15, 34, 170},
    {"velisp/slide_kss.sld", 849, 827, 110, 52, 0},
    {"velisp/slide_up.sld", 302, 252, 27, 28, 0},
    {"civil3d-2021/LOGO_COA_DYN.sld", 1874, 829, 0, 0, 0},
    {"civil3d-2021/ANNO_LEAD_ARRW.sld", 1874, 829, 0, 2, 5},
    {"civil3d-2021/STRP_ARRW_LT.sld", 1874, 829, 28, 44, 200},
    {"civil3d-2021/PLNT_ACAC_HUIS.sld", 1874, 829, 150, 21, 40},
};

struct Totals {
    int lines = 0, colors = 0, fillRecords = 0, outside = 0;
};

// Decodes data to its end record and adds up what it holds; points outside
// the raster are counted.
Totals decodeWhole(CZemSlideData& data, const std::string& what)
{
    RecordingSink sink;
    Totals totals;
    EXPECT_TRUE(CZemSlideDecoder(sink).draw(data)) << what;
    EXPECT_EQ(data.pos(), data.size()) << what << " ends at its end record";
    auto check = [&](int x, int y) { totals.outside += x < 0 || y < 0 || x > sink.width || y > sink.height; };
    for (const RecordingSink::Line& line : sink.lines) {
        check(line[0], line[1]);
        check(line[2], line[3]);
    }
    for (const auto& polygon : sink.polygons) {
        totals.fillRecords += static_cast<int>(polygon.size()) + 1;
        for (const auto& point : polygon)
            check(point.first, point.second);
    }
    for (int color : sink.colors)
        EXPECT_TRUE(color >= 0 && color <= 255);
    totals.lines = static_cast<int>(sink.lines.size());
    totals.colors = static_cast<int>(sink.colors.size());
    return totals;
}

}  // namespace

TEST(ZemSlideRealFiles, EverySlideFileDecodesToItsEnd)
{
    for (const Expected& file : kFiles) {
        CZemSlideData data;
        ASSERT_TRUE(data.loadFile(kSlides / file.path)) << file.path;
        const Totals totals = decodeWhole(data, file.path);
        EXPECT_EQ(data.width(), file.width) << file.path;
        EXPECT_EQ(data.height(), file.height) << file.path;
        EXPECT_EQ(totals.lines, file.lines) << file.path;
        EXPECT_EQ(totals.colors, file.colors) << file.path;
        EXPECT_EQ(totals.fillRecords, file.fillRecords) << file.path;
        EXPECT_EQ(totals.outside, 0) << file.path;
    }
}

TEST(ZemSlideRealFiles, EverySlideOfEachLibraryDecodesToItsEnd)
{
    const struct {
        const char* path;
        std::size_t slides;
        int lines, colors, fillRecords;
    } libraries[] = {
        {"velisp/mylib.slb", 2, 12 + 1 + 3, 11, 0},
        {"autolisp-cn/LISP.SLB", 22, 734 + 7962 + 3252, 186, 1286},
        {"autolisp-cn/xyp1964.slb", 38, 5891, 18708, 83165},
    };
    for (const auto& library : libraries) {
        std::ifstream in(kSlides / library.path, std::ios::binary);
        const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(in);
        ASSERT_EQ(entries.size(), library.slides) << library.path;
        Totals sum;
        for (const CZemSlideLibrary::Entry& entry : entries) {
            CZemSlideData data;
            ASSERT_TRUE(data.loadFromLibrary(kSlides / library.path, entry.name.c_str())) << entry.name;
            ASSERT_EQ(data.size(), entry.length) << entry.name;
            const Totals totals = decodeWhole(data, entry.name);
            sum.lines += totals.lines;
            sum.colors += totals.colors;
            sum.fillRecords += totals.fillRecords;
            sum.outside += totals.outside;
        }
        EXPECT_EQ(sum.lines, library.lines) << library.path;
        EXPECT_EQ(sum.colors, library.colors) << library.path;
        EXPECT_EQ(sum.fillRecords, library.fillRecords) << library.path;
        EXPECT_EQ(sum.outside, 0) << library.path;
    }
}

// The first slide of this library is the annotated example of the format's
// public description: 572 by 292 dots, colour 7, then a vector from the
// raster's top right corner to its origin.
TEST(ZemSlideRealFiles, TheDocumentedExampleSlide)
{
    CZemSlideData data;
    ASSERT_TRUE(data.loadFromLibrary(kSlides / "velisp/mylib.slb", "slide1"));
    RecordingSink sink;
    ASSERT_TRUE(CZemSlideDecoder(sink).draw(data));
    EXPECT_EQ(sink.width, 572);
    EXPECT_EQ(sink.height, 292);
    ASSERT_FALSE(sink.colors.empty());
    EXPECT_EQ(sink.colors[0], 7);
    ASSERT_FALSE(sink.lines.empty());
    EXPECT_EQ(sink.lines[0], (RecordingSink::Line{572, 292, 0, 0}));
}

// A slide cut at any byte decodes what lies before the cut: the same lines and
// polygons as the whole slide, except the record that the cut runs through.
TEST(ZemSlideRealFiles, CutSlidesDecodeTheirHead)
{
    CZemSlideData whole;
    ASSERT_TRUE(whole.loadFile(kSlides / "dos-era/FIELD.SLD"));
    RecordingSink full;
    ASSERT_TRUE(CZemSlideDecoder(full).draw(whole));
    for (std::uint32_t cut = 0; cut <= whole.size(); ++cut) {
        CZemSlideData data;
        data.assign(whole.bytes(), static_cast<long>(cut));
        RecordingSink sink;
        ASSERT_EQ(CZemSlideDecoder(sink).draw(data), cut >= 23) << "cut at " << cut;
        ASSERT_LE(data.pos(), cut);
        ASSERT_LE(sink.lines.size(), full.lines.size());
        ASSERT_LE(sink.polygons.size(), full.polygons.size());
        for (std::size_t i = 0; i + 1 < sink.lines.size(); ++i)
            ASSERT_EQ(sink.lines[i], full.lines[i]) << "cut at " << cut;
        for (std::size_t i = 0; i + 1 < sink.polygons.size(); ++i)
            ASSERT_EQ(sink.polygons[i], full.polygons[i]) << "cut at " << cut;
    }
}
