#include "GdxTestSupport.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemGdxMap.h"
#include "ZemGdxObjectImage.h"

#include <cmath>
#include <random>
#include <set>

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
CZemDataItem* set(CZemDataItem* item, const wchar_t* key, const T& value) {
    ZEM::dataItemSet(item, &CZemDataKey().set(key), value);
    return item;
}

// An outline item below prefix (L"" or L"GEN\\"), as the sheet dialog writes it.
CZemDataItem* outline(CZemDataItem* item, const CZemString& prefix, int id, double a, double b) {
    set(set(set(item, prefix + L"TYPE", L"OUTLINE"), prefix + L"ID", id), prefix + L"PARM1", a);
    return b ? set(item, prefix + L"PARM2", b) : item;
}

::testing::AssertionResult box(const CZemGDX& gdx, int item, double x0, double y0, double x1, double y1) {
    CZemVertexArray vl;
    gdx.geomGet(vl, item);
    CZemPoint3d lo, hi;
    if (vl.extents(lo, hi) && std::hypot(lo.x - x0, lo.y - y0) + std::hypot(hi.x - x1, hi.y - y1) < 1e-9)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "item " << item << ": " << lo.x << ", " << lo.y << " to " << hi.x << ", " << hi.y;
}

}  // namespace

// The search by powers of two against a set, over counts that cross several
// powers of two and the growth of the node array past 16.
TEST_F(GdxMap, AgreesWithASetAndNewListsTakeTheConfigurationAndStoredSettings) {
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

    // Point defaults and colours in the forms the configuration knows, then the
    // settings a caller stores.
    CZemDataItem root(CZemDataItem::typeDir);
    set(set(set(&root, L"KAL_MENU\\COLOR\\PDSIZE", 4), L"KAL_MENU\\COLOR\\PDMODE", 35), L"KAL_MENU\\COLOR\\BASE", 5);
    set(set(&root, L"KAL_MENU\\COLOR\\HIGHLIGHT", L"255,0,0"), L"KAL_MENU\\COLOR\\BACKGROUND", 7);
    ZEM::cfgSet(&root);
    const CZemGDX made;
    for (const CZemGDX* list : {static_cast<const CZemGDX*>(getGdxFromMap(createGdxInMap(nullptr))), &made}) {
        EXPECT_TRUE(list->pdSizeGet() == 4.0 && list->pdModeGet() == 35UL);
        EXPECT_EQ(list->colorTabGet(GDX_CM_BASE).colorIndex(), 5);
        EXPECT_EQ(list->colorTabGet(GDX_CM_HIGHLIGHT).oleColor(), 0x0000FFUL);
        EXPECT_EQ(list->backColorGet().oleColor(), indexColor(7).oleColor());
    }

    CZemDataItem settings(CZemDataItem::typeDir);
    set(set(&settings, L"PDSIZE", 9), L"RGB", L"65280");
    set(&settings, L"EXTVIEW", CZemPoint3dArray().append(CZemPoint3d(-1, -2, 0)).append(CZemPoint3d(5, 6, 0)));
    const CZemMatrix3d proj = CZemMatrix3d().setToRotation(0.5, CZemVector3d(0, 0, 1), CZemPoint3d(1, 1, 0));
    set(&settings, L"MTX", static_cast<const CZemMatrix3d::Cells&>(proj));
    const CZemGDX* list = getGdxFromMap(createGdxInMap(&settings));
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->pdSizeGet() == 9.0 && list->pdModeGet() == 35UL && list->projMtxGet() == proj);
    CZemPoint3d lo, hi;
    list->extMaxViewGet(lo, hi);
    EXPECT_TRUE(lo == CZemPoint3d(-1, -2, 0) && hi == CZemPoint3d(5, 6, 0));
    EXPECT_EQ(list->backColorGet().colorIndex(), 7) << "RGB without COLOR is ignored";
    set(set(&settings, L"COLOR", 3), L"TBL", L"RAL");
    list = getGdxFromMap(createGdxInMap(&settings));
    EXPECT_TRUE(list->backColorGet().oleColor() == 0x00FF00UL && list->backColorGet().bookName() == L"RAL");
    CZemDataItem value;
    ZEM::dataItemSet(&value, nullptr, 9);
    EXPECT_EQ(getGdxFromMap(createGdxInMap(&value))->pdSizeGet(), 4.0) << "a value is no settings directory";
}

TEST(GdxObjectImage, OutlinesPartsAndTheirSideView) {
    CZemDataItem part(CZemDataItem::typeDir);
    set(outline(&part, L"GEN\\", 2, 30, 0), L"HEIGHT", 4.0);
    CZemGDX gdx = newList();
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    EXPECT_TRUE(box(gdx, 0, -15, -15, 15, 15));
    set(set(&part, L"VIEW", 1), L"ELEV", 1.0);
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    EXPECT_TRUE(box(gdx, 1, -15, 1, 15, 5)) << "the side: the plan's Y extent by the height from the elevation";
    CZemDataItem rectangle(CZemDataItem::typeDir), parameters(CZemDataItem::typeDir);
    ASSERT_TRUE(zem_gdx_image_object(&gdx, outline(&rectangle, L"", 1, 2, 3), set(&parameters, L"STACK", 9)));
    EXPECT_TRUE(box(gdx, 2, 0, 0, 2, 3));
    CZemArrayTempl<int> stack;
    gdx.itemStackGet(stack, 2);
    EXPECT_TRUE(stack.len() == 1 && stack[0] == 9) << "one int for a stack";
    CZemDataItem drill(CZemDataItem::typeDir), value;
    EXPECT_FALSE(zem_gdx_image_object(&gdx, set(&drill, L"TYPE", L"DRILL"), nullptr));
    EXPECT_FALSE(zem_gdx_image_object(&gdx, &value, nullptr) || zem_gdx_image_object(nullptr, &rectangle, nullptr));
    EXPECT_EQ(3, gdx.lenGet()) << "what draws nothing leaves the list alone";
}
