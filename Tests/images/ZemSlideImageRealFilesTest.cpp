#include "ZemGDX.h"
#include "ZemGdxImageSld.h"
#include "ZemSlideData.h"
#include "ZemSlideImage.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace {

const std::filesystem::path kSlides = std::filesystem::path(ZEM_TESTDATA_DIR) / "slides";

// What a slide should turn into, found by walking its records by their sizes
// alone (every real slide is level 2, low byte first): a fill is every
// solid-fill record from one of negative Y to the next one of negative Y.
struct Expected {
    bool fill;
    int color;
    bool fullVector;
    int from[2], to[2];
};

int word(const unsigned char* p) { return static_cast<short>(p[0] | p[1] << 8); }

std::vector<Expected> walk(const unsigned char* bytes, std::uint32_t size)
{
    std::vector<Expected> items;
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
void compare(const CZemGDX& gdx, const std::vector<Expected>& expected, const std::string& what)
{
    EXPECT_EQ(gdx.lenGet(), static_cast<int>(expected.size())) << what;
    const int n = std::min(gdx.lenGet(), static_cast<int>(expected.size()));
    for (int i = 0; i < n; ++i) {
        const Expected& e = expected[static_cast<std::size_t>(i)];
        ASSERT_EQ(gdx.typeGet(i), e.fill ? GDX_REG : GDX_VL) << what << " item " << i;
        ASSERT_EQ(gdx.colorGet(i).colorIndex(), e.color) << what << " item " << i;
        CZemArrayTempl<int> stack;
        gdx.itemStackGet(stack, i);
        ASSERT_TRUE(stack.len() == 1 && stack[0] == i + 1) << what << " item " << i;
        if (!e.fullVector)
            continue;
        CZemVertexArray vl;
        gdx.geomGet(vl, i);
        ASSERT_TRUE(vl[0].m_start == CZemPoint3d(e.from[0], e.from[1], 0)) << what << " item " << i;
        ASSERT_TRUE(vl[0].m_end == CZemPoint3d(e.to[0], e.to[1], 0)) << what << " item " << i;
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

TEST(ZemSlideImageRealFiles, EverySlideFileBecomesItsItems)
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
        const std::vector<Expected> expected = walk(data.bytes(), data.size());
        EXPECT_EQ(image.image(gdx, 0, nullptr), !expected.empty()) << file.path();
        compare(gdx, expected, file.path().filename().string());
        total += gdx.lenGet();
    }
    EXPECT_GT(total, 20000) << "the slide files of the test data";
}

TEST(ZemSlideImageRealFiles, EverySlideOfEachLibraryBecomesItsItemsByName)
{
    for (const char* name : {"velisp/mylib.slb", "autolisp-cn/LISP.SLB", "autolisp-cn/xyp1964.slb"}) {
        const std::filesystem::path path = kSlides / name;
        std::ifstream in(path, std::ios::binary);
        const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(in);
        ASSERT_FALSE(entries.empty()) << name;
        for (const CZemSlideLibrary::Entry& entry : entries) {
            CZemSlideData data;
            ASSERT_TRUE(data.loadFromLibrary(in, entry.name.c_str()));
            const std::vector<Expected> expected = walk(data.bytes(), data.size());
            const std::wstring slide = wideName(entry.name);
            CZemGDX gdx = emptyList();
            EXPECT_EQ(zem_gdx_image_sld(&gdx, slide.c_str(), path.wstring().c_str(), 0, nullptr), !expected.empty())
                << name << " " << entry.name;
            compare(gdx, expected, entry.name);
        }
    }
}
