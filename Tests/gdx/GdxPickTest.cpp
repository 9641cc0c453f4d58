#include "GdxTestSupport.h"
#include "ZemRegScan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace gdxtest;

namespace {

int stackAt(const CZemGDX& g, int i) {
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, i);
    return stack[0];
}

void addWithMode(CZemGDX& g, int id, int mode) {
    g.imageVl(path({id}), static_cast<unsigned long>(mode) << 8, segment(CZemPoint3d(), CZemPoint3d(1, 0, 0)),
              indexColor(1), CZemMatrix3d(), CZemArrayTempl<double>(), 1, 1);
}

}  // namespace

TEST(GdxPick, SortBringsTheListIntoDrawingOrder) {
    CZemGDX g = newList();
    EXPECT_FALSE(g.displListSort());
    addLine(g, path({1}), CZemPoint3d(), CZemPoint3d(1, 1, 0));
    addRegion(g, path({2}), region({square(0, 0, 1, 1)}));
    g.imagePicture(path({3}), 0, L"p.bmp", 0, CZemPoint3d(), CZemPoint3d());
    addWithMode(g, 4, GDX_CM_HIGHLIGHT);
    addWithMode(g, 5, GDX_CM_REFER);
    addWithMode(g, 6, GDX_CM_AXIS);
    addWithMode(g, 7, GDX_CM_HIGHLIGHT);
    addWithMode(g, 8, GDX_CM_ITEM);
    addRegion(g, path({9}), region({square(0, 0, 1, 1)}), GDX_HIDE | (GDX_CM_HIGHLIGHT << 8));
    addRegion(g, path({10}), region({square(0, 0, 1, 1)}), GDX_HIDE);
    // The picture went to index 0 on entry.
    ASSERT_TRUE(g.displListSort());
    const int expected[] = {3, 2, 10, 1, 6, 8, 5, 4, 7, 9};
    ASSERT_EQ(g.lenGet(), 10);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(stackAt(g, i), expected[i]) << i;
    ASSERT_TRUE(g.displListSort());
    for (int i = 0; i < 10; ++i) EXPECT_EQ(stackAt(g, i), expected[i]) << "sorting twice changes nothing";
    CZemVertexArray square1;
    g.geomGet(square1, 3);
    EXPECT_EQ(square1.len(), 1) << "items move whole";
}

TEST(GdxPick, ToleranceIsFiveListUnits) {
    CZemGDX g = newList();
    EXPECT_EQ(g.imageItemGet(CZemPoint3d()), -1);
    addLine(g, path({1}), CZemPoint3d(0, 4.9, 0), CZemPoint3d(10, 4.9, 0));
    addLine(g, path({2}), CZemPoint3d(0, -5.1, 0), CZemPoint3d(10, -5.1, 0));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(5, 0, 0)), 1);
    g.removeItemStack(path({1}));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(5, 0, 0)), -1);
    addPoint(g, path({3}), CZemPoint3d(8, 4, 0));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(5, 0, 0)), 3) << "a point exactly 5.0 away";
}

TEST(GdxPick, TopmostItemWinsOverNearerOnes) {
    CZemGDX g = newList();
    addWithMode(g, 1, GDX_CM_HIGHLIGHT);
    g.imageVl(path({2}), 0, segment(CZemPoint3d(0, 30, 0), CZemPoint3d(1, 30, 0)), indexColor(1), CZemMatrix3d(),
              CZemArrayTempl<double>(), 1, 1);
    addLine(g, path({3}), CZemPoint3d(0, 0.5, 0), CZemPoint3d(1, 0.5, 0), GDX_HIDE);
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0.5, 0.5, 0)), 1);
    EXPECT_EQ(zem_gdx_cmode(g.flagGet(0)), 1) << "left reversed: the item drawn last comes first";
    EXPECT_EQ(stackAt(g, 2), 2);
    g.cModeSet(path({1}), GDX_CM_ITEM);
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0.5, 0.5, 0)), 3) << "hidden items can be picked";
}

TEST(GdxPick, RegionsArePickedByTheirOutline) {
    CZemGDX g = newList();
    addRegion(g, path({4}), region({square(-50, -50, 50, 50), square(-2, -2, 2, 2)}));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0, 0, 0)), -1) << "inside, far from the outer contour";
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0, 47, 0)), 4);
    CZemMatrix3d moved;
    moved.setToTranslation(CZemVector3d(1000, 0, 0));
    ASSERT_TRUE(g.mtxSet(path({4}), moved));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(0, 47, 0)), -1);
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(1000, 47, 0)), 4);
}

TEST(GdxPick, PickPointPassesThroughTheView) {
    CZemGDX g = newList();
    addPoint(g, CZemArrayTempl<int>(), CZemPoint3d(10, 10, 0));
    g.viewMtxSet(CZemMatrix3d().setToScaling(10.0, CZemPoint3d()));
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(140, 100, 0)), 0) << "an empty stack gains element 0";
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(160, 100, 0)), -1) << "tolerance in list units, not pixels";
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, 0);
    EXPECT_EQ(stack.len(), 1);
}

TEST(GdxPick, ScanLinesFillTheRegionRowByRow) {
    const CZemArrayTempl<CZemVertexArray> lines = regScanLines(region({square(0.5, 0.5, 3.5, 3.5)}));
    ASSERT_EQ(lines.len(), 3);
    for (int k = 0; k < 3; ++k) {
        CZemPoint3d lo, hi;
        lines[k].extents(lo, hi);
        EXPECT_NEAR(lo.y, k + 1.0, 1e-12);
        EXPECT_NEAR(hi.y, k + 1.0, 1e-12);
        EXPECT_NEAR(hi.x - lo.x, 3.0, 1e-9);
    }
    const CZemArrayTempl<CZemVertexArray> holed =
        regScanLines(region({square(-10.2, -3.5, 10.2, 4.5), square(-2, -10, 2, 10)}));
    double covered = 0.0;
    for (int k = 0; k < holed.len(); ++k) {
        CZemPoint3d lo, hi;
        holed[k].extents(lo, hi);
        covered += hi.x - lo.x;
    }
    EXPECT_EQ(holed.len(), 2 * 8) << "rows -3 to 4, two pieces each";
    EXPECT_NEAR(covered, 8 * (20.4 - 4.0), 1e-9);
    EXPECT_EQ(regScanLines(CZemArrayTempl<CZemVertexArray>()).len(), 0);
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(regScanLines(region({square(0, 0, 5, inf)})).len(), 0);
}
