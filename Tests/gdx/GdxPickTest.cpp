#include "GdxTestSupport.h"
#include "ZemRegScan.h"

#include <limits>

using namespace gdxtest;

namespace {

int stackAt(const CZemGDX& g, int i) {
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, i);
    return stack[0];
}

void addWithMode(CZemGDX& g, int id, int mode, double y = 0) {
    g.imageVl(path({id}), static_cast<unsigned long>(mode) << 8, segment(CZemPoint3d(0, y, 0), CZemPoint3d(1, y, 0)),
              indexColor(1), CZemMatrix3d(), CZemArrayTempl<double>(), 1, 1);
}

}  // namespace

TEST(GdxPick, SortBringsTheListIntoDrawingOrder) {
    CZemGDX g = newList();
    EXPECT_FALSE(g.displListSort());
    addLine(g, path({1}), CZemPoint3d(), CZemPoint3d(1, 1, 0));
    addRegion(g, path({2}), region({square(0, 0, 1, 1)}));
    g.imagePicture(path({3}), 0, L"p.bmp", 0, CZemPoint3d(), CZemPoint3d());
    const int modes[] = {GDX_CM_HIGHLIGHT, GDX_CM_REFER, GDX_CM_AXIS, GDX_CM_HIGHLIGHT, GDX_CM_ITEM};
    for (int k = 0; k < 5; ++k) addWithMode(g, 4 + k, modes[k]);
    addRegion(g, path({9}), region({square(0, 0, 1, 1)}), GDX_HIDE | (GDX_CM_HIGHLIGHT << 8));
    addRegion(g, path({10}), region({square(0, 0, 1, 1)}), GDX_HIDE);
    const int expected[] = {3, 2, 10, 1, 6, 8, 5, 4, 7, 9};
    for (int pass = 0; pass < 2; ++pass) {
        ASSERT_TRUE(g.displListSort());
        ASSERT_EQ(g.lenGet(), 10);
        for (int i = 0; i < 10; ++i) EXPECT_EQ(stackAt(g, i), expected[i]) << "pass " << pass << " at " << i;
    }
    CZemVertexArray moved;
    g.geomGet(moved, 3);
    EXPECT_TRUE(moved.len() == 1 && moved[0].m_end == CZemPoint3d(1, 1, 0)) << "items move whole";
}

TEST(GdxPick, TheTopmostItemWithinFiveListUnitsWins) {
    CZemGDX g = newList();
    EXPECT_EQ(g.imageItemGet(CZemPoint3d()), -1);
    addWithMode(g, 1, GDX_CM_ITEM, 4.9);
    addWithMode(g, 2, GDX_CM_ITEM, -5.1);
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0.5, 0, 0)), 1);
    g.removeItemStack(path({1}));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0.5, 0, 0)), -1);
    addPoint(g, path({3}), CZemPoint3d(3.5, 4, 0));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0.5, 0, 0)), 3) << "a point exactly 5.0 away";

    CZemGDX h = newList();
    addWithMode(h, 1, GDX_CM_HIGHLIGHT, 3.0);
    addWithMode(h, 2, GDX_CM_ITEM, 30.0);
    addWithMode(h, 3, GDX_CM_ITEM, 0.5);
    h.redraw(path({3}), GDX_PROP_HIDE);
    EXPECT_EQ(h.imageItemGet(CZemPoint3d(0.5, 0.5, 0)), 1) << "highlighted beats nearer";
    EXPECT_TRUE(zem_gdx_cmode(h.flagGet(0)) == 1 && stackAt(h, 2) == 2) << "left reversed";
    h.cModeSet(path({1}), GDX_CM_ITEM);
    EXPECT_EQ(h.imageItemGet(CZemPoint3d(0.5, 0.5, 0)), 3) << "hidden items can be picked";
}

TEST(GdxPick, RegionsByTheirOutlineAndPointsThroughTheView) {
    CZemGDX g = newList();
    addRegion(g, path({4}), region({square(-50, -50, 50, 50), square(-2, -2, 2, 2)}));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0, 0, 0)), -1) << "inside, far from the outer contour";
    CZemMatrix3d moved;
    moved.setToTranslation(CZemVector3d(1000, 0, 0));
    ASSERT_TRUE(g.mtxSet(path({4}), moved));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0, 47, 0)), -1);
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(1000, 47, 0)), 4);

    CZemGDX h = newList();
    addPoint(h, CZemArrayTempl<int>(), CZemPoint3d(10, 10, 0));
    h.viewMtxSet(CZemMatrix3d().setToScaling(10.0, CZemPoint3d()));
    EXPECT_EQ(h.imageItemGet(CZemPoint3d(140, 100, 0)), 0) << "an empty stack gains element 0";
    EXPECT_EQ(h.imageItemGet(CZemPoint3d(160, 100, 0)), -1) << "tolerance in list units, not pixels";
}

TEST(GdxPick, ScanLinesFillTheRegionRowByRow) {
    const CZemArrayTempl<CZemVertexArray> lines = regScanLines(region({square(0.5, 0.5, 3.5, 3.5)}));
    ASSERT_EQ(lines.len(), 3) << "rows 0 to 3; row 0 misses";
    for (int k = 0; k < 3; ++k) {
        expectPoint(lines[k][0].m_start, 0.5, k + 1.0, 0);
        expectPoint(lines[k][-1].m_end, 3.5, k + 1.0, 0);
    }
    const CZemArrayTempl<CZemVertexArray> holed =
        regScanLines(region({square(-10.2, -3.5, 10.2, 4.5), square(-2, -10, 2, 10)}));
    double covered = 0.0;
    for (int k = 0; k < holed.len(); ++k) covered += holed[k][-1].m_end.x - holed[k][0].m_start.x;
    EXPECT_EQ(holed.len(), 2 * 8) << "rows -3 to 4, two pieces each";
    EXPECT_NEAR(covered, 8 * (20.4 - 4.0), 1e-9);
    EXPECT_EQ(regScanLines(CZemArrayTempl<CZemVertexArray>()).len(), 0);
    EXPECT_EQ(regScanLines(region({square(0, 0, 5, std::numeric_limits<double>::infinity())})).len(), 0);
}
