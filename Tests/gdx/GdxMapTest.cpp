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
};

template <class T>
void put(CZemDataItem& dir, const wchar_t* key, const T& value) {
    const CZemDataKey path(key);
    ZEM::dataItemSet(&dir, &path, value);
}

}  // namespace

// The search by powers of two against a set, over counts that cross several
// powers of two and the growth of the node array past 16.
TEST_F(GdxMap, AgreesWithASetUnderRandomInsertionsAndRemovals) {
    EXPECT_EQ(gdxMapKeyNew(), 1);
    EXPECT_EQ(gdxMapKeyNew(), 1) << "asking does not reserve the key";
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
    const int key = *expected.begin();
    CZemGDX* stored = getGdxFromMap(key);
    g.ColorTabSet(GDX_CM_AXIS, indexColor(5));
    gdxMapSetAt(key, g);
    EXPECT_EQ(getGdxFromMap(key), stored) << "replacing keeps the address";
    EXPECT_TRUE(stored != &g && stored->ColorTabLenGet() == 3);
}

// Point defaults and colours in the forms the configuration knows, then the
// settings a caller stores.
TEST_F(GdxMap, NewListsTakeTheConfigurationAndStoredSettings) {
    const CZemGDX* bare = getGdxFromMap(createGdxInMap(nullptr));
    ASSERT_NE(bare, nullptr);
    EXPECT_TRUE(bare->projMtxGet() == CZemMatrix3d() && bare->ColorTabLenGet() == 5 && bare->pdModeGet() == 0UL);
    CZemDataItem root(CZemDataItem::typeDir);
    put(root, L"KAL_MENU\\COLOR\\PDSIZE", 4);
    put(root, L"KAL_MENU\\COLOR\\PDMODE", 35);
    put(root, L"KAL_MENU\\COLOR\\BASE", 5);
    put(root, L"KAL_MENU\\COLOR\\HIGHLIGHT", L"255,0,0");
    put(root, L"KAL_MENU\\COLOR\\BACKGROUND", 7);
    ZEM::cfgSet(&root);
    const CZemGDX made;
    for (const CZemGDX* g : {static_cast<const CZemGDX*>(getGdxFromMap(createGdxInMap(nullptr))), &made}) {
        EXPECT_TRUE(g->pdSizeGet() == 4.0 && g->pdModeGet() == 35UL);
        EXPECT_EQ(g->colorTabGet(GDX_CM_BASE).colorIndex(), 5);
        EXPECT_EQ(g->colorTabGet(GDX_CM_HIGHLIGHT).oleColor(), 0x0000FFUL);
        EXPECT_TRUE(g->colorTabGet(GDX_CM_REFER) == CZemColor());
        EXPECT_EQ(g->backColorGet().oleColor(), indexColor(7).oleColor());
    }

    CZemDataItem settings(CZemDataItem::typeDir);
    put(settings, L"PDSIZE", 9);
    CZemPoint3dArray corners;
    put(settings, L"EXTVIEW", corners.append(CZemPoint3d(-1, -2, 0)).append(CZemPoint3d(5, 6, 0)));
    CZemMatrix3d proj;
    proj.setToRotation(0.5, CZemVector3d(0, 0, 1), CZemPoint3d(1, 1, 0));
    put(settings, L"MTX", static_cast<const CZemMatrix3d::Cells&>(proj));
    put(settings, L"RGB", L"65280");
    const CZemGDX* g = getGdxFromMap(createGdxInMap(&settings));
    ASSERT_NE(g, nullptr);
    EXPECT_TRUE(g->pdSizeGet() == 9.0 && g->pdModeGet() == 35UL && g->projMtxGet() == proj);
    CZemPoint3d lo, hi;
    g->extMaxViewGet(lo, hi);
    EXPECT_TRUE(lo == CZemPoint3d(-1, -2, 0) && hi == CZemPoint3d(5, 6, 0));
    EXPECT_EQ(g->backColorGet().colorIndex(), 7) << "RGB without COLOR is ignored";
    put(settings, L"COLOR", 3);
    put(settings, L"TBL", L"RAL");
    g = getGdxFromMap(createGdxInMap(&settings));
    EXPECT_TRUE(g->backColorGet().oleColor() == 0x00FF00UL && g->backColorGet().bookName() == L"RAL");
    CZemDataItem value;
    ZEM::dataItemSet(&value, nullptr, 9);
    EXPECT_EQ(getGdxFromMap(createGdxInMap(&value))->pdSizeGet(), 4.0) << "a value is no settings directory";
}
