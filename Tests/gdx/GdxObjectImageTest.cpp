#include "ZemApp.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemGdxObjectImage.h"

#include "GdxTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class GdxObjectImage : public ::testing::Test {
protected:
    void SetUp() override {
        const CZemDataItem empty(CZemDataItem::typeDir);
        ZEM::cfgSet(&empty);
    }
    void TearDown() override { ZEM::cfgSet(nullptr); }

    template <class T>
    static void set(CZemDataItem* item, const wchar_t* key, const T& value) {
        ZEM::dataItemSet(item, &CZemDataKey().set(key), value);
    }

    // A machining as the sheet dialog stores it: an outline rectangle, moved.
    static CZemDataItem* rectangleHole(double width, double height, const CZemVector3d& move) {
        CZemDataItem* hole = new CZemDataItem(CZemDataItem::typeDir);
        set(hole, L"GEN\\TYPE", L"OUTLINE");
        set(hole, L"GEN\\ID", 1);
        set(hole, L"GEN\\PARM1", width);
        set(hole, L"GEN\\PARM2", height);
        set(hole, L"MOV", move);
        return hole;
    }
};

void expectBox(const CZemGDX& gdx, int item, double x0, double y0, double x1, double y1) {
    CZemVertexArray vl;
    gdx.geomGet(vl, item);
    CZemPoint3d low, high;
    ASSERT_TRUE(vl.extents(low, high)) << item;
    EXPECT_NEAR(x0, low.x, 1e-9) << item;
    EXPECT_NEAR(y0, low.y, 1e-9) << item;
    EXPECT_NEAR(x1, high.x, 1e-9) << item;
    EXPECT_NEAR(y1, high.y, 1e-9) << item;
}

}  // namespace

TEST_F(GdxObjectImage, SheetWithItsMachiningsThroughTheDefaultHost) {
    CZemDataItem sheet(CZemDataItem::typeDir);
    set(&sheet, L"VL", gdxtest::square(0, 0, 200, 100));
    sheet.mkDir()->insert(&CZemDataKey().set(L"HOLE\\1"), rectangleHole(10, 20, CZemVector3d(100, 10, 0)), 0);
    CZemDataItem* drawn = new CZemDataItem(CZemDataItem::typeDir);
    set(drawn, L"GEN", gdxtest::square(0, 0, 1, 1));
    set(drawn, L"MOV", CZemVector3d(5, 5, 0));
    set(drawn, L"INSUNIT", 5);
    sheet.getDir()->insert(&CZemDataKey().set(L"HOLE\\2"), drawn, 0);
    sheet.getDir()->insert(&CZemDataKey().set(L"HOLE\\3"), new CZemDataItem(CZemDataItem::typeDir), 0);

    CZemDataItem parameters(CZemDataItem::typeDir);
    set(&parameters, L"STACK", gdxtest::path({5, 2}));
    set(&parameters, L"CMODE", 0x401);
    set(&parameters, L"COLOR", L"255,0,0");
    const double move[4][4] = {{1, 0, 0, 7}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    set(&parameters, L"MTX", move);

    CZemGDX gdx = gdxtest::newList();
    ASSERT_TRUE(zemAppPtr()->imageObject(&gdx, &sheet, &parameters));
    ASSERT_EQ(3, gdx.lenGet()) << "the sheet and two machinings; the empty one draws nothing";
    expectBox(gdx, 0, 0, 0, 200, 100);
    expectBox(gdx, 1, 100, 10, 110, 30);
    expectBox(gdx, 2, 50, 50, 60, 60);
    CZemArrayTempl<int> stack;
    gdx.itemStackGet(stack, 1);
    ASSERT_EQ(2, stack.len());
    EXPECT_EQ(5, stack[0]);
    EXPECT_EQ(2, stack[1]);
    EXPECT_EQ(0x401UL, gdx.flagGet(1));
    EXPECT_EQ(0x0000FFUL, gdx.colorGet(1).oleColor());
    EXPECT_DOUBLE_EQ(7.0, gdx.mtxGet(1)[0][3]);
}

TEST_F(GdxObjectImage, OutlinesPartsAndTheirSideView) {
    CZemDataItem part(CZemDataItem::typeDir);
    set(&part, L"GEN\\TYPE", L"OUTLINE");
    set(&part, L"GEN\\ID", 2);
    set(&part, L"GEN\\PARM1", 30.0);
    set(&part, L"HEIGHT", 4.0);
    CZemGDX gdx = gdxtest::newList();
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    expectBox(gdx, 0, -15, -15, 15, 15);
    EXPECT_EQ(7, gdx.colorGet(0).colorIndex()) << "the default colour";
    set(&part, L"VIEW", 1);
    set(&part, L"ELEV", 1.0);
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &part, nullptr));
    expectBox(gdx, 1, -15, 1, 15, 5);

    CZemDataItem outline(CZemDataItem::typeDir);
    set(&outline, L"TYPE", L"OUTLINE");
    set(&outline, L"ID", 1);
    set(&outline, L"PARM1", 2.0);
    set(&outline, L"PARM2", 3.0);
    CZemDataItem parameters(CZemDataItem::typeDir);
    set(&parameters, L"STACK", 9);
    ASSERT_TRUE(zem_gdx_image_object(&gdx, &outline, &parameters));
    expectBox(gdx, 2, 0, 0, 2, 3);
    CZemArrayTempl<int> stack;
    gdx.itemStackGet(stack, 2);
    EXPECT_EQ(1, stack.len());
    EXPECT_EQ(9, stack[0]) << "one int for a stack";

    CZemDataItem other(CZemDataItem::typeDir);
    set(&other, L"TYPE", L"DRILL");
    EXPECT_FALSE(zem_gdx_image_object(&gdx, &other, nullptr));
    CZemDataItem value;
    EXPECT_FALSE(zem_gdx_image_object(&gdx, &value, nullptr));
    EXPECT_FALSE(zem_gdx_image_object(nullptr, &outline, nullptr));
    EXPECT_EQ(3, gdx.lenGet()) << "what draws nothing leaves the list alone";
}
