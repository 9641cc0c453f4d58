#include "ZemFontMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using Glyph = CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>;

// A glyph of one contour with n vertices, so that lookups can tell glyphs apart.
Glyph glyphOf(int n) {
    Glyph g;
    for (int k = 0; k < n; ++k) g[0][0].append(CZemVertex(CZemPoint3d(k, 0, 0), CZemPoint3d(k + 1, 0, 0), 0.0));
    return g;
}

int tagOf(const Glyph& g) { return g.len() == 1 && g[0].len() == 1 ? g[0][0].len() : -1; }

}  // namespace

TEST(FontMap, FindsEveryCodeWhateverTheOrderOfEntryAndHandsOutCopies) {
    CZemFontMap map;
    Glyph none;
    EXPECT_TRUE(map.isEmpty() && !map.lookup(0, none) && !map.lookup(65, none)) << "an empty map finds nothing";
    std::vector<int> codes{0, 1, 2, 65535, 65534, 32768};
    for (int c = 3; c < 60000; c += 211) codes.push_back(c);
    std::mt19937 random(7);
    std::shuffle(codes.begin(), codes.end(), random);
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
    map.setAt(214, glyphOf(98));
    Glyph g;
    EXPECT_EQ(map.count(), static_cast<int>(codes.size())) << "setting a present code replaces its glyph";
    EXPECT_TRUE(map.lookup(214, g) && tagOf(g) == 98);
    EXPECT_TRUE(map.lookup(425, g) && tagOf(g) == 425 % 97 + 1) << "its neighbour keeps its own";

    // The map stores and hands out copies.
    Glyph original = glyphOf(3);
    map.setAt(7, original);
    original[0][0].append(CZemVertex());
    ASSERT_TRUE(map.lookup(7, g));
    EXPECT_EQ(tagOf(g), 3) << "the map keeps its own copy";
    g[0].removeAt(0);
    Glyph again;
    ASSERT_TRUE(map.lookup(7, again));
    EXPECT_EQ(tagOf(again), 3) << "a looked-up glyph is a copy";
}
