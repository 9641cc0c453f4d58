#include "ZemFontMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> Glyph;

// A glyph of one contour with n vertices, so that lookups can tell glyphs apart.
Glyph glyphOf(int n) {
    Glyph g;
    for (int k = 0; k < n; ++k) {
        g[0][0].append(CZemVertex(CZemPoint3d(k, 0, 0), CZemPoint3d(k + 1, 0, 0), 0.0));
    }
    return g;
}

int tagOf(const Glyph& g) { return g.len() == 1 && g[0].len() == 1 ? g[0][0].len() : -1; }

}  // namespace

TEST(FontMap, FindsEveryCodeWhateverTheOrderOfEntry) {
    std::vector<int> codes{0, 1, 2, 65535, 65534, 32768};
    for (int c = 3; c < 60000; c += 211) codes.push_back(c);
    std::mt19937 random(7);
    std::shuffle(codes.begin(), codes.end(), random);

    CZemFontMap map;
    for (int c : codes) map.setAt(static_cast<std::uint16_t>(c), glyphOf(c % 97 + 1));
    EXPECT_EQ(map.count(), static_cast<int>(codes.size()));
    for (int c : codes) {
        Glyph g;
        ASSERT_TRUE(map.lookup(static_cast<std::uint16_t>(c), g)) << "code " << c;
        EXPECT_EQ(tagOf(g), c % 97 + 1) << "code " << c;
    }
    for (int c : {4, 213, 59000, 65533, 32767, 32769}) {
        Glyph g = glyphOf(5);
        EXPECT_FALSE(map.lookup(static_cast<std::uint16_t>(c), g)) << "code " << c;
        EXPECT_EQ(tagOf(g), 5) << "a failed lookup leaves the glyph alone";
    }
}

TEST(FontMap, AnEmptyMapFindsNothing) {
    CZemFontMap map;
    Glyph g;
    EXPECT_TRUE(map.isEmpty());
    EXPECT_FALSE(map.lookup(0, g));
    EXPECT_FALSE(map.lookup(65, g));
}

TEST(FontMap, SettingAPresentCodeReplacesItsGlyph) {
    CZemFontMap map;
    for (int c = 10; c < 30; ++c) map.setAt(static_cast<std::uint16_t>(c), glyphOf(1));
    map.setAt(20, glyphOf(9));
    EXPECT_EQ(map.count(), 20);
    Glyph g;
    ASSERT_TRUE(map.lookup(20, g));
    EXPECT_EQ(tagOf(g), 9);
    ASSERT_TRUE(map.lookup(19, g));
    EXPECT_EQ(tagOf(g), 1);
}

TEST(FontMap, CapacityDoublesFromSixteen) {
    CZemFontMap map;
    EXPECT_EQ(map.capacity(), 0);
    const int expected[] = {16, 16, 32, 64, 128};
    const int counts[] = {1, 16, 17, 33, 65};
    int code = 1000;
    for (int k = 0; k < 5; ++k) {
        while (map.count() < counts[k]) map.setAt(static_cast<std::uint16_t>(code--), glyphOf(1));
        EXPECT_EQ(map.capacity(), expected[k]) << "after " << counts[k] << " codes";
    }
}

TEST(FontMap, StoresAndHandsOutCopies) {
    CZemFontMap map;
    Glyph original = glyphOf(3);
    map.setAt(7, original);
    original[0][0].append(CZemVertex());
    Glyph out;
    ASSERT_TRUE(map.lookup(7, out));
    EXPECT_EQ(tagOf(out), 3) << "the map keeps its own copy";
    out[0].removeAt(0);
    Glyph again;
    ASSERT_TRUE(map.lookup(7, again));
    EXPECT_EQ(tagOf(again), 3) << "a looked-up glyph is a copy";
}
