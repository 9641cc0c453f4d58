#include "GdxTestSupport.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemGdxMap.h"

#include <random>
#include <set>

using namespace gdxtest;

namespace {

// Each test leaves the process-wide registry empty and the configuration
// unset.
class GdxMap : public ::testing::Test {
protected:
    void TearDown() override {
        for (int key = 1; key <= 600; ++key) gdxMapRemoveAt(key);
        ZEM::cfgReset();
    }

    // Point defaults and colours in the forms the configuration knows.
    static void configure() {
        CZemDataItem root(CZemDataItem::typeDir);
        const CZemDataKey size(L"KAL_MENU\\COLOR\\PDSIZE"), style(L"KAL_MENU\\COLOR\\PDMODE"),
            base(L"KAL_MENU\\COLOR\\BASE"), highlight(L"KAL_MENU\\COLOR\\HIGHLIGHT"),
            back(L"KAL_MENU\\COLOR\\BACKGROUND");
        ZEM::dataItemSet(&root, &size, 4);
        ZEM::dataItemSet(&root, &style, 35);
        ZEM::dataItemSet(&root, &base, 5);
        ZEM::dataItemSet(&root, &highlight, L"255,0,0");
        ZEM::dataItemSet(&root, &back, 7);
        ZEM::cfgSet(&root);
    }
};

}  // namespace

TEST_F(GdxMap, KeysAndReplacement) {
    EXPECT_EQ(gdxMapKeyNew(), 1);
    EXPECT_EQ(gdxMapKeyNew(), 1) << "asking does not reserve the key";
    CZemGDX g = newList();
    g.ColorTabSet(GDX_CM_AXIS, indexColor(5));
    for (int key : {4, 1, 2}) gdxMapSetAt(key, g);
    EXPECT_EQ(gdxMapKeyNew(), 3);
    CZemGDX* stored = getGdxFromMap(4);
    ASSERT_TRUE(stored && stored != &g && stored->ColorTabLenGet() == 3);
    CZemGDX other(indexColor(250), CZemMatrix3d().setToScaling(2.0, CZemPoint3d()), 4.0, 35, CZemPoint3d(),
                  CZemPoint3d(1, 1, 0));
    gdxMapSetAt(4, other);
    EXPECT_EQ(getGdxFromMap(4), stored) << "replacing keeps the address";
    EXPECT_TRUE(stored->ColorTabLenGet() == 0 && stored->pdModeGet() == 35UL);
    EXPECT_TRUE(gdxMapRemoveAt(2));
    EXPECT_FALSE(gdxMapRemoveAt(2));
    EXPECT_EQ(gdxMapKeyNew(), 2);
}

// The search by powers of two against a set, over counts that cross several
// powers of two and the growth of the node array past 16.
TEST_F(GdxMap, AgreesWithASetUnderRandomInsertionsAndRemovals) {
    std::mt19937 random(17);
    std::set<int> expected;
    CZemGDX g = newList();
    for (int step = 0; step < 3000; ++step) {
        const int key = 1 + static_cast<int>(random() % 600);
        if (random() % 3 == 0) {
            EXPECT_EQ(gdxMapRemoveAt(key), expected.erase(key) == 1) << key;
            continue;
        }
        g.pdModeSet(static_cast<unsigned long>(key));
        gdxMapSetAt(key, g);
        expected.insert(key);
    }
    int firstFree = 1;
    while (expected.count(firstFree)) ++firstFree;
    EXPECT_EQ(gdxMapKeyNew(), firstFree);
    for (int key = 0; key <= 601; ++key) {
        const CZemGDX* found = getGdxFromMap(key);
        ASSERT_EQ(found != nullptr, expected.count(key) == 1) << key;
        EXPECT_TRUE(!found || found->pdModeGet() == static_cast<unsigned long>(key)) << key;
    }
}

TEST_F(GdxMap, NewListsTakeTheConfiguration) {
    const CZemGDX* bare = getGdxFromMap(createGdxInMap(nullptr));
    ASSERT_NE(bare, nullptr);
    EXPECT_TRUE(bare->projMtxGet() == CZemMatrix3d() && bare->ColorTabLenGet() == 5 && bare->pdModeGet() == 0UL);
    configure();
    const CZemGDX made;
    for (const CZemGDX* g : {static_cast<const CZemGDX*>(getGdxFromMap(createGdxInMap(nullptr))), &made}) {
        EXPECT_TRUE(g->pdSizeGet() == 4.0 && g->pdModeGet() == 35UL);
        EXPECT_EQ(g->colorTabGet(GDX_CM_BASE).colorIndex(), 5);
        EXPECT_EQ(g->colorTabGet(GDX_CM_HIGHLIGHT).oleColor(), 0x0000FFUL);
        EXPECT_TRUE(g->colorTabGet(GDX_CM_REFER) == CZemColor());
        EXPECT_EQ(g->backColorGet().oleColor(), indexColor(7).oleColor());
    }
}

TEST_F(GdxMap, NewListsReadStoredSettings) {
    configure();
    CZemDataItem settings(CZemDataItem::typeDir);
    const CZemDataKey size(L"PDSIZE"), view(L"EXTVIEW"), matrix(L"MTX"), rgb(L"RGB"), color(L"COLOR"), book(L"TBL");
    ZEM::dataItemSet(&settings, &size, 9);
    CZemPoint3dArray corners;
    corners.append(CZemPoint3d(-1, -2, 0));
    corners.append(CZemPoint3d(5, 6, 0));
    ZEM::dataItemSet(&settings, &view, corners);
    CZemMatrix3d proj;
    proj.setToRotation(0.5, CZemVector3d(0, 0, 1), CZemPoint3d(1, 1, 0));
    ZEM::dataItemSet(&settings, &matrix, static_cast<const CZemMatrix3d::Cells&>(proj));
    ZEM::dataItemSet(&settings, &rgb, L"65280");
    const CZemGDX* g = getGdxFromMap(createGdxInMap(&settings));
    ASSERT_NE(g, nullptr);
    EXPECT_TRUE(g->pdSizeGet() == 9.0 && g->pdModeGet() == 35UL && g->projMtxGet() == proj);
    CZemPoint3d lo, hi;
    g->extMaxViewGet(lo, hi);
    EXPECT_TRUE(lo == CZemPoint3d(-1, -2, 0) && hi == CZemPoint3d(5, 6, 0));
    EXPECT_EQ(g->backColorGet().colorIndex(), 7) << "RGB without COLOR is ignored";

    ZEM::dataItemSet(&settings, &color, 3);
    ZEM::dataItemSet(&settings, &book, L"RAL");
    g = getGdxFromMap(createGdxInMap(&settings));
    EXPECT_TRUE(g->backColorGet().oleColor() == 0x00FF00UL && g->backColorGet().bookName() == L"RAL");
    CZemDataItem value;
    ZEM::dataItemSet(&value, nullptr, 9);
    EXPECT_EQ(getGdxFromMap(createGdxInMap(&value))->pdSizeGet(), 4.0) << "a value is no settings directory";
}
