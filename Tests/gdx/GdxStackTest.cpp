#include "GdxTestSupport.h"
#include "ZemBase.h"
#include "ZemRegScan.h"

#include <algorithm>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace {

// Points of the stacks (1), (1,2), (1,3), (2), with (1) first or last.
CZemGDX groups(bool parentFirst) {
    CZemGDX g = newList();
    if (parentFirst) addPoint(g, path({1}), CZemPoint3d(0, 0, 0));
    addPoint(g, path({1, 2}), CZemPoint3d(1, 0, 0));
    addPoint(g, path({1, 3}), CZemPoint3d(2, 0, 0));
    addPoint(g, path({2}), CZemPoint3d(3, 0, 0));
    if (!parentFirst) addPoint(g, path({1}), CZemPoint3d(0, 0, 0));
    return g;
}

int stackAt(const CZemGDX& g, int i, int level = 0) {
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, i);
    return stack[level];
}

void addWithMode(CZemGDX& g, int id, int mode, double y = 0) {
    addLine(g, path({id}), CZemPoint3d(0, y, 0), CZemPoint3d(1, y, 0), static_cast<unsigned long>(mode) << 8);
}

}  // namespace

TEST(GdxStack, PropertyCodesColourModesAndHatchesSwitchTheirOwnBits) {
    const struct {
        unsigned long code, before, after;
    } codes[] = {{1, 0x4, 0x0}, {4, 0x0, 0x8}, {6, 0x11, 0x1}, {9, 0x0, 0x40}, {11, 0x5, 0x5}, {2, 0x304, 0x304}};
    for (const auto& c : codes) {
        CZemGDX g = newList();
        g.imagePt(path({1}), c.before, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
        EXPECT_TRUE(g.propSet(path({1}), c.code)) << c.code;
        EXPECT_EQ(g.flagGet(0), c.after) << c.code;
    }
    CZemGDX g = newList();
    EXPECT_FALSE(g.redraw(CZemArrayTempl<int>(), GDX_PROP_HIDE)) << "empty list";
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    addLine(g, path({2}), CZemPoint3d(5, 5, 0), CZemPoint3d(9, 8, 0));
    EXPECT_FALSE(g.propSet(CZemArrayTempl<int>(), GDX_PROP_HIDE));
    EXPECT_TRUE(g.redraw(CZemArrayTempl<int>(), GDX_PROP_HIDE));
    EXPECT_TRUE(g.flagGet(0) == GDX_HIDE && g.flagGet(1) == GDX_HIDE) << "an empty stack means every item";
    EXPECT_TRUE(g.redraw(path({5}), GDX_PROP_SHOW)) << "true also when nothing matched";
    ASSERT_TRUE(g.propSet(path({2}), GDX_PROP_EXT_OFF));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));

    // The colour mode and the hatch leave the other flag bits.
    CZemGDX m = newList();
    addRegion(m, path({1}), region({square(0, 0, 1, 1)}), 0x40C);
    m.imagePt(path({1, 1}), 0x3F04, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
    ASSERT_TRUE(m.cModeSet(path({1}), GDX_CM_HIGHLIGHT));
    EXPECT_EQ(m.flagGet(0), 0x10CUL);
    EXPECT_EQ(m.flagGet(1), 0x104UL) << "bits 12 and up go with the old mode";
    ASSERT_TRUE(m.hatchSet(path({1}), CZemHatchProp(L"DOTS", 1.5, 3.0, true)));
    CZemHatchProp hatch;
    EXPECT_TRUE(m.hatchGet(0, hatch) && hatch.name == L"DOTS" && hatch.flag);
    EXPECT_EQ(m.flagGet(0), 0x10CUL);
}

// A group moves as a rigid unit: its reference item gets the new matrix and
// every other item keeps its place relative to it.
TEST(GdxStack, MatrixMovesAGroupRigidly) {
    CZemMatrix3d a, b, m;
    a.setToTranslation(CZemVector3d(1, 0, 0));
    b.setToRotation(0.3, CZemVector3d::kZAxis, CZemPoint3d(2, 2, 0));
    m.setToRotation(1.2, CZemVector3d(0, 1, 1), CZemPoint3d(-3, 1, 0));
    CZemGDX g = newList();
    addPoint(g, path({1, 1}), CZemPoint3d(4, 0, 0), 0, b);
    addPoint(g, path({1}), CZemPoint3d(0, 0, 0), 0, a);
    addPoint(g, path({2}), CZemPoint3d(7, 7, 0), 0, b);
    ASSERT_TRUE(g.mtxSet(path({1}), a));
    EXPECT_TRUE(g.mtxGet(0) == b && g.mtxGet(1) == a) << "the reference's own matrix changes nothing";
    ASSERT_TRUE(g.mtxSet(path({1}), m));
    EXPECT_TRUE(g.mtxGet(1) == m && g.mtxGet(2) == b);
    const CZemPoint3d expected = CZemPoint3d(4, 0, 0) * b * (m * a.inverse());
    expectPoint(CZemPoint3d(4, 0, 0) * g.mtxGet(0), expected.x, expected.y, expected.z);
    const CZemPoint3d others[] = {CZemPoint3d() * m, CZemPoint3d(7, 7, 0) * b};
    expectExtents(g, ZEM::p_min(expected, ZEM::p_min(others[0], others[1])),
                  ZEM::p_max(expected, ZEM::p_max(others[0], others[1])));

    CZemGDX h = newList();
    addPoint(h, path({1, 1}), CZemPoint3d(), 0, a);
    addPoint(h, path({1, 2}), CZemPoint3d(), 0, b);
    ASSERT_TRUE(h.mtxSet(path({1}), m));
    EXPECT_TRUE(h.mtxGet(1) == m && !h.mtxSet(path({3}), m)) << "without an item at exactly q the last match leads";
    const CZemMatrix3d wanted = h.mtxGet(0);
    ASSERT_TRUE(h.mtxSet(path({1}), h.mtxGet(0)));
    EXPECT_TRUE(h.mtxGet(1) == wanted) << "the new matrix may be a member's own";
}

TEST(GdxStack, MatchingRemovalsKeepTheOrderAndRecomputeOnlyWhenTheyRemove) {
    CZemGDX g = newList();
    const int stacks[] = {1, 2, 3, 2, 4}, kept[] = {0, 2, 4};
    for (int k = 0; k < 5; ++k) {
        const double far = stacks[k] == 2 ? 50 : 1;
        addLine(g, path({stacks[k], k}), CZemPoint3d(k, k, 0), CZemPoint3d(far * (k + 1), k + 1, 0));
    }
    ASSERT_TRUE(g.removeItemStack(path({2})));
    for (int i = 0; i < 3; ++i) EXPECT_EQ(stackAt(g, i, 1), kept[i]);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(5, 5, 0));
    EXPECT_FALSE(g.removeItemStack(path({2})));
    EXPECT_TRUE(g.clear(path({3})));
    EXPECT_EQ(g.lenGet(), 2);

    // Two single points: incremental extents that a recomputation would
    // change. A clear that removes nothing leaves them.
    CZemGDX h = newList();
    addPoint(h, path({1}), CZemPoint3d(1, 1, 0));
    addPoint(h, path({1}), CZemPoint3d(2, 2, 0));
    EXPECT_FALSE(h.clear(path({9})));
    EXPECT_FALSE(h.clear(CZemArrayTempl<int>()));
    expectExtents(h, CZemPoint3d(2, 2, 0), CZemPoint3d(2, 2, 0));

    // Items whose stacks match exactly, and the highest elements below a stack.
    CZemGDX q = groups(true);
    const CZemArrayTempl<int> numbers = q.StackToItemNr(path({1}));
    EXPECT_TRUE(numbers.len() == 3 && numbers[0] == 0 && numbers[1] == 1 && numbers[2] == 2);
    EXPECT_EQ(q.StackToItemNr(CZemArrayTempl<int>()).len(), 0);
    EXPECT_TRUE(q.pdModeSet(path({1}), 64));
    EXPECT_TRUE(q.pdModeGet(0) == 64UL && q.pdModeGet(1) == 3UL) << "exact match only";
    EXPECT_FALSE(q.pdSizeSet(path({1, 4}), 1.0));
    EXPECT_EQ(q.stackGet(), 2);
    EXPECT_EQ(q.stackGet(path({1})), 3);
    EXPECT_EQ(groups(false).stackGet(path({1})), 0) << "the group's own item came last";
    EXPECT_TRUE(q.stackGet(path({9})) == -1 && q.stackGet(CZemArrayTempl<int>()) == -1);
}

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
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(-500, -500, 0)), -1);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(stackAt(g, i), expected[9 - i]) << "a pick leaves it reversed, at " << i;
}

// Long cycles of the reordering, where it reads ahead along each cycle, and
// the short ones of a reversal, against a stable sort of the layers.
TEST(GdxPick, LongListsSortStablyAndAPickReversesThem) {
    std::mt19937 random(7);
    const int modes[] = {GDX_CM_ITEM, GDX_CM_HIGHLIGHT, GDX_CM_REFER, GDX_CM_AXIS};
    const int layerOfMode[] = {2, 4, 3, 2};
    CZemGDX g = newList();
    std::vector<std::pair<int, int>> expected;  // layer, stack
    for (int id = 0; id < 3000; ++id) {
        const int m = static_cast<int>(random() % 4);
        const bool isRegion = random() % 3 == 0;
        const unsigned long flags = static_cast<unsigned long>(modes[m]) << 8;
        if (isRegion) {
            addRegion(g, path({id}), region({square(0, 0, 1, 1)}), flags);
        } else {
            addLine(g, path({id}), CZemPoint3d(), CZemPoint3d(1, 0, 0), flags);
        }
        expected.emplace_back(layerOfMode[m] == 2 && isRegion ? 1 : layerOfMode[m], id);
    }
    std::stable_sort(expected.begin(), expected.end(),
                     [](const std::pair<int, int>& a, const std::pair<int, int>& b) { return a.first < b.first; });
    ASSERT_TRUE(g.displListSort());
    for (int i = 0; i < 3000; ++i) ASSERT_EQ(stackAt(g, i), expected[i].second) << "sorted, at " << i;
    EXPECT_EQ(g.imageItemGet(CZemPoint3d(-500, -500, 0)), -1);
    for (int i = 0; i < 3000; ++i) ASSERT_EQ(stackAt(g, i), expected[2999 - i].second) << "picked, at " << i;
}

TEST(GdxPick, TheTopmostItemWithinFiveListUnitsWinsRegionsByTheirOutline) {
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

    // A region by its outline only; points through the view, the tolerance in list units.
    CZemGDX r = newList();
    addRegion(r, path({4}), region({square(-50, -50, 50, 50), square(-2, -2, 2, 2)}));
    EXPECT_EQ(r.imageItemGet(CZemPoint3d(0, 0, 0)), -1) << "inside, far from the outer contour";
    CZemMatrix3d moved;
    moved.setToTranslation(CZemVector3d(1000, 0, 0));
    ASSERT_TRUE(r.mtxSet(path({4}), moved));
    EXPECT_EQ(r.imageItemGet(CZemPoint3d(0, 47, 0)), -1);
    EXPECT_EQ(r.imageItemGet(CZemPoint3d(1000, 47, 0)), 4);

    CZemGDX v = newList();
    addPoint(v, CZemArrayTempl<int>(), CZemPoint3d(10, 10, 0));
    v.viewMtxSet(CZemMatrix3d().setToScaling(10.0, CZemPoint3d()));
    EXPECT_EQ(v.imageItemGet(CZemPoint3d(140, 100, 0)), 0) << "an empty stack gains element 0";
    EXPECT_EQ(v.imageItemGet(CZemPoint3d(160, 100, 0)), -1) << "tolerance in list units, not pixels";
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
