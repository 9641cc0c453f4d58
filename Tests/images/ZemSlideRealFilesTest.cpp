#include "SlideTestSupport.h"
#include "ZemGDX.h"
#include "ZemGdxImageSld.h"
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"
#include "ZemSlideImage.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using slidetest::RecordingSink;

namespace {

const std::filesystem::path kSlides = std::filesystem::path(ZEM_TESTDATA_DIR) / "slides";

struct Totals {
    int lines = 0, colors = 0, fillRecords = 0, outside = 0;
};

// Decodes data to its end record and adds up what it holds: a fill of k
// points (closing point included) spans k + 1 fill records; points outside
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
    totals.lines = static_cast<int>(sink.lines.size());
    totals.colors = static_cast<int>(sink.colors.size());
    return totals;
}

// What a slide should turn into, found by walking its records by their sizes
// alone (every real slide is level 2, low byte first): a fill is every
// solid-fill record from one of negative Y to the next one of negative Y.
struct Item {
    bool fill;
    int color;
    bool fullVector;
    int from[2], to[2];
};

int word(const unsigned char* p) { return static_cast<short>(p[0] | p[1] << 8); }

std::vector<Item> walk(const unsigned char* bytes, std::uint32_t size)
{
    std::vector<Item> items;
    int color = 0;
    bool inFill = false;
    for (std::uint32_t at = 31; at + 2 <= size;) {
        const int high = bytes[at + 1];
        const unsigned char* r = bytes + at;
        if (high <= 0x7F) {
            items.push_back({false, color, true, {word(r), word(r + 2)}, {word(r + 4), word(r + 6)}});
            at += 8;
        } else if (high == 0xFB || high == 0xFE) {
            items.push_back({false, color, false, {}, {}});
            at += high == 0xFB ? 5 : 3;
        } else if (high == 0xFF) {
            color = r[0];
            at += 2;
        } else if (high == 0xFD && at + 6 <= size) {
            if (!inFill)
                items.push_back({true, color, false, {}, {}});
            inFill = !inFill || word(r + 4) >= 0;
            at += 6;
        } else {
            break;
        }
    }
    return items;
}

// The items of gdx against the walk of the slide's bytes.
void compare(const CZemGDX& gdx, const std::vector<Item>& expected, const std::string& what)
{
    EXPECT_EQ(gdx.lenGet(), static_cast<int>(expected.size())) << what;
    const int n = std::min(gdx.lenGet(), static_cast<int>(expected.size()));
    for (int i = 0; i < n; ++i) {
        const Item& e = expected[static_cast<std::size_t>(i)];
        ASSERT_EQ(gdx.typeGet(i), e.fill ? GDX_REG : GDX_VL) << what << " item " << i;
        ASSERT_EQ(gdx.colorGet(i).colorIndex(), e.color) << what << " item " << i;
        CZemArrayTempl<int> stack;
        gdx.itemStackGet(stack, i);
        ASSERT_TRUE(stack.len() == 1 && stack[0] == i + 1) << what << " item " << i;
        CZemVertexArray vl;
        gdx.geomGet(vl, i);
        ASSERT_TRUE(!e.fullVector || (vl[0].m_start == CZemPoint3d(e.from[0], e.from[1], 0) &&
                                      vl[0].m_end == CZemPoint3d(e.to[0], e.to[1], 0)))
            << what << " item " << i;
    }
}

CZemGDX emptyList() { return CZemGDX(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d()); }

// A directory name as the wide name that code page 1252 turns back into it.
std::wstring wideName(const std::string& bytes)
{
    static const std::vector<wchar_t> byByte = [] {
        std::vector<wchar_t> table(256, L'?');
        for (wchar_t c = 1; c < 0x2200; ++c) {
            const wchar_t one[2] = {c, 0};
            const std::string converted = CZemSlideImage::cp1252(one);
            if (converted != "?")
                table[static_cast<unsigned char>(converted[0])] = c;
        }
        return table;
    }();
    std::wstring name;
    for (char b : bytes)
        name += byByte[static_cast<unsigned char>(b)];
    return name;
}

}  // namespace

// Counts from the test data's own description: lines are vectors plus offset
// vectors plus common-endpoint vectors; fill records count every FD record.
TEST(ZemSlideRealFiles, SlideFilesDecodeToTheirCounts)
{
    const struct {
        const char* path;
        int width, height, lines, colors, fillRecords;
    } files[] = {
        {"dos-era/AUTODIM.SLD", 942, 694, 50 + 908 + 1525, 55, 45},
        {"dos-era/REGSCRN1.SLD", 732, 533, 103 + 8662 + 1262, 1, 0},
        {"civil3d-2021/ANNO_LEAD_ARRW.sld", 1874, 829, 0, 2, 5},
    };
    for (const auto& file : files) {
        CZemSlideData data;
        ASSERT_TRUE(data.loadFile(kSlides / file.path)) << file.path;
        const Totals totals = decodeWhole(data, file.path);
        EXPECT_TRUE(data.width() == file.width && data.height() == file.height) << file.path;
        EXPECT_TRUE(totals.lines == file.lines && totals.colors == file.colors) << file.path;
        EXPECT_TRUE(totals.fillRecords == file.fillRecords && totals.outside == 0) << file.path;
    }
}

TEST(ZemSlideRealFiles, EverySlideFileBecomesItsItems)
{
    int total = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(kSlides)) {
        const std::string ext = file.path().extension().string();
        if (ext != ".sld" && ext != ".SLD")
            continue;
        CZemSlideData data;
        ASSERT_TRUE(data.loadFile(file.path()));
        CZemSlideImage image;
        image.assign(data.bytes(), static_cast<long>(data.size()));
        CZemGDX gdx = emptyList();
        const std::vector<Item> expected = walk(data.bytes(), data.size());
        EXPECT_EQ(image.image(gdx, 0, nullptr), !expected.empty()) << file.path();
        compare(gdx, expected, file.path().filename().string());
        total += gdx.lenGet();
    }
    EXPECT_GT(total, 20000) << "the slide files of the test data";
}

// Every slide of each library decodes to its end and, looked up by its wide
// name, becomes its items.
TEST(ZemSlideRealFiles, EverySlideOfEachLibrary)
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
        const std::filesystem::path path = kSlides / library.path;
        std::ifstream in(path, std::ios::binary);
        const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(in);
        ASSERT_EQ(entries.size(), library.slides) << library.path;
        Totals sum;
        for (const CZemSlideLibrary::Entry& entry : entries) {
            CZemSlideData data;
            ASSERT_TRUE(data.loadFromLibrary(path, entry.name.c_str())) << entry.name;
            ASSERT_EQ(data.size(), entry.length) << entry.name;
            const std::vector<Item> expected = walk(data.bytes(), data.size());
            const Totals totals = decodeWhole(data, entry.name);
            sum.lines += totals.lines;
            sum.colors += totals.colors;
            sum.fillRecords += totals.fillRecords;
            sum.outside += totals.outside;
            CZemGDX gdx = emptyList();
            EXPECT_EQ(zem_gdx_image_sld(&gdx, wideName(entry.name).c_str(), path.wstring().c_str(), 0, nullptr),
                      !expected.empty())
                << library.path << " " << entry.name;
            compare(gdx, expected, entry.name);
        }
        EXPECT_TRUE(sum.lines == library.lines && sum.colors == library.colors) << library.path;
        EXPECT_TRUE(sum.fillRecords == library.fillRecords && sum.outside == 0) << library.path;
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
    EXPECT_TRUE(sink.width == 572 && sink.height == 292);
    ASSERT_TRUE(!sink.colors.empty() && !sink.lines.empty());
    EXPECT_TRUE(sink.colors[0] == 7 && sink.lines[0] == (RecordingSink::Line{572, 292, 0, 0}));
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
