#include "ZemApp.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemGdxObjectImage.h"

#include "GdxTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

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
    CZemPoint3d low, high;
    if (vl.extents(low, high) && std::hypot(low.x - x0, low.y - y0) + std::hypot(high.x - x1, high.y - y1) < 1e-9)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "item " << item << ": " << low.x << ", " << low.y << " to " << high.x << ", " << high.y;
}

}  // namespace

TEST(GdxObjectImage, SheetWithItsMachiningsThroughTheDefaultHost) {
    const CZemDataItem empty(CZemDataItem::typeDir);
    ZEM::cfgSet(&empty);
    CZemDataItem sheet(CZemDataItem::typeDir);
    set(&sheet, L"VL", gdxtest::square(0, 0, 200, 100));
    sheet.mkDir()->insert(&CZemDataKey().set(L"HOLE\\1"),
                          set(outline(new CZemDataItem, L"GEN\\", 1, 10, 20), L"MOV", CZemVector3d(100, 10, 0)), 0);
    CZemDataItem* drawn = set(new CZemDataItem, L"GEN", gdxtest::square(0, 0, 1, 1));
    sheet.getDir()->insert(&CZemDataKey().set(L"HOLE\\2"), set(set(drawn, L"MOV", CZemVector3d(5, 5, 0)), L"INSUNIT", 5), 0);
    sheet.getDir()->insert(&CZemDataKey().set(L"HOLE\\3"), new CZemDataItem(CZemDataItem::typeDir), 0);
    CZemDataItem parameters(CZemDataItem::typeDir);
    set(set(&parameters, L"STACK", gdxtest::path({5, 2})), L"CMODE", 0x401);
    set(&parameters, L"COLOR", L"255,0,0");
    const double move[4][4] = {{1, 0, 0, 7}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    set(&parameters, L"MTX", move);

    CZemGDX gdx = gdxtest::newList();
    ASSERT_TRUE(zemAppPtr()->imageObject(&gdx, &sheet, &parameters));
    ASSERT_EQ(3, gdx.lenGet()) << "the sheet and two machinings; the empty one draws nothing";
    EXPECT_TRUE(box(gdx, 0, 0, 0, 200, 100));
    EXPECT_TRUE(box(gdx, 1, 100, 10, 110, 30));
    EXPECT_TRUE(box(gdx, 2, 50, 50, 60, 60)) << "a drawn polyline in centimetres";
    CZemArrayTempl<int> stack;
    gdx.itemStackGet(stack, 1);
    EXPECT_TRUE(stack.len() == 2 && stack[0] == 5 && stack[1] == 2);
    EXPECT_EQ(0x401UL, gdx.flagGet(1));
    EXPECT_EQ(0x0000FFUL, gdx.colorGet(1).oleColor());
    EXPECT_DOUBLE_EQ(7.0, gdx.mtxGet(1)[0][3]);
    ZEM::cfgSet(nullptr);
}

TEST(GdxObjectImage, OutlinesPartsAndTheirSideView) {
    CZemDataItem part(CZemDataItem::typeDir);
    set(outline(&part, L"GEN\\", 2, 30, 0), L"HEIGHT", 4.0);
    CZemGDX gdx = gdxtest::newList();
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    EXPECT_TRUE(box(gdx, 0, -15, -15, 15, 15));
    EXPECT_EQ(7, gdx.colorGet(0).colorIndex()) << "the default colour";
    set(set(&part, L"VIEW", 1), L"ELEV", 1.0);
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    EXPECT_TRUE(box(gdx, 1, -15, 1, 15, 5)) << "the side: the plan's Y extent by the height from the elevation";
    CZemDataItem rectangle(CZemDataItem::typeDir);
    CZemDataItem parameters(CZemDataItem::typeDir);
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
