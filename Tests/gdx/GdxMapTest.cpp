#include "GdxTestSupport.h"
#include "ZemGdxMap.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

using namespace gdxtest;

namespace {

// Each test leaves the process-wide registry as it found it: empty.
class GdxMap : public ::testing::Test {
protected:
    void TearDown() override {
        for (int key = 1; key <= 600; ++key) gdxMapRemoveAt(key);
    }
};

}  // namespace

TEST_F(GdxMap, NewKeysCountUpFromOneAndReuseGaps) {
    EXPECT_EQ(gdxMapKeyNew(), 1);
    EXPECT_EQ(gdxMapKeyNew(), 1) << "asking does not reserve the key";
    CZemGDX g = newList();
    for (int key : {1, 2, 4}) gdxMapSetAt(key, g);
    EXPECT_EQ(gdxMapKeyNew(), 3);
    gdxMapSetAt(3, g);
    EXPECT_EQ(gdxMapKeyNew(), 5);
    EXPECT_TRUE(gdxMapRemoveAt(2));
    EXPECT_EQ(gdxMapKeyNew(), 2);
    EXPECT_FALSE(gdxMapRemoveAt(2)) << "a key removed before is absent";
    EXPECT_EQ(getGdxFromMap(2), nullptr);
}

TEST_F(GdxMap, SetAtStoresACopyAndReplacesInPlace) {
    CZemGDX first = newList();
    first.ColorTabSet(GDX_CMODE(3), indexColor(5));
    gdxMapSetAt(7, first);
    CZemGDX* stored = getGdxFromMap(7);
    ASSERT_NE(stored, nullptr);
    EXPECT_NE(stored, &first);
    first.ColorTabSet(GDX_CMODE(9), indexColor(6));
    EXPECT_EQ(stored->ColorTabLenGet(), 3) << "the map holds its own copy";

    CZemGDX second(indexColor(250), CZemMatrix3d().setToScaling(2.0, CZemPoint3d()), 4.0, 35, CZemPoint3d(),
                   CZemPoint3d(1, 1, 0));
    gdxMapSetAt(7, second);
    EXPECT_EQ(getGdxFromMap(7), stored) << "replacing keeps the address";
    EXPECT_EQ(stored->ColorTabLenGet(), 0) << "the colour table is replaced too";
    EXPECT_EQ(stored->pdModeGet(), 35UL);
    EXPECT_EQ(stored->backColorGet().colorIndex(), 250);
    EXPECT_TRUE(stored->projMtxGet() == second.projMtxGet());
}

TEST_F(GdxMap, FindsEveryKeyWhateverTheOrderOfInsertion) {
    CZemGDX g = newList();
    for (int key : {5, 1, 3}) {
        g.pdSizeSet(key);
        gdxMapSetAt(key, g);
    }
    for (int key : {1, 3, 5}) {
        ASSERT_NE(getGdxFromMap(key), nullptr) << key;
        EXPECT_EQ(getGdxFromMap(key)->pdSizeGet(), key);
    }
    for (int key : {0, 2, 4, 6, -1}) EXPECT_EQ(getGdxFromMap(key), nullptr) << key;
}

// The search by powers of two against a plain set, over counts that cross
// several powers of two and the growth of the node array past 16.
TEST_F(GdxMap, AgreesWithASetUnderRandomInsertionsAndRemovals) {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> keys(1, 600);
    std::set<int> expected;
    CZemGDX g = newList();
    for (int step = 0; step < 3000; ++step) {
        const int key = keys(random);
        if (random() % 3 == 0) {
            EXPECT_EQ(gdxMapRemoveAt(key), expected.erase(key) == 1) << key;
        } else {
            g.pdModeSet(static_cast<unsigned long>(key));
            gdxMapSetAt(key, g);
            expected.insert(key);
        }
    }
    int firstFree = 1;
    while (expected.count(firstFree)) ++firstFree;
    EXPECT_EQ(gdxMapKeyNew(), firstFree);
    for (int key = 0; key <= 601; ++key) {
        CZemGDX* found = getGdxFromMap(key);
        ASSERT_EQ(found != nullptr, expected.count(key) == 1) << key;
        if (found) {
            EXPECT_EQ(found->pdModeGet(), static_cast<unsigned long>(key));
        }
    }
}
