#include "GdxTestSupport.h"
#include "ZemBase.h"

using namespace gdxtest;

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

}  // namespace

TEST(GdxStack, MatchingAndHighestElements) {
    CZemGDX g = groups(true);
    const CZemArrayTempl<int> numbers = g.StackToItemNr(path({1}));
    ASSERT_EQ(numbers.len(), 3);
    EXPECT_TRUE(numbers[0] == 0 && numbers[1] == 1 && numbers[2] == 2);
    EXPECT_EQ(g.StackToItemNr(CZemArrayTempl<int>()).len(), 0);
    EXPECT_TRUE(g.pdModeSet(path({1}), 64));
    EXPECT_TRUE(g.pdModeGet(0) == 64UL && g.pdModeGet(1) == 3UL) << "exact match only";
    EXPECT_FALSE(g.pdSizeSet(path({1, 4}), 1.0));
    EXPECT_EQ(g.stackGet(), 2);
    EXPECT_EQ(g.stackGet(path({1})), 3);
    EXPECT_EQ(groups(false).stackGet(path({1})), 0) << "the group's own item came last";
    EXPECT_EQ(g.stackGet(path({9})), -1);
    EXPECT_EQ(g.stackGet(CZemArrayTempl<int>()), -1);
}

TEST(GdxStack, PropertyCodesSwitchOneBitEach) {
    const struct {
        unsigned long code, before, after;
    } codes[] = {{1, 0x4, 0x0},  {2, 0x0, 0x4},   {3, 0x8, 0x0},  {4, 0x0, 0x8},  {5, 0x0, 0x10},
                 {6, 0x11, 0x1}, {7, 0x0, 0x20},  {8, 0x20, 0x0}, {9, 0x0, 0x40}, {10, 0x40, 0x0},
                 {11, 0x5, 0x5}, {2, 0x304, 0x304}};
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
}

TEST(GdxStack, ColourModeAndHatchLeaveTheFlagBits) {
    CZemGDX g = newList();
    addRegion(g, path({1}), region({square(0, 0, 1, 1)}), 0x40C);
    g.imagePt(path({1, 1}), 0x3F04, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
    ASSERT_TRUE(g.cModeSet(path({1}), GDX_CM_HIGHLIGHT));
    EXPECT_EQ(g.flagGet(0), 0x10CUL);
    EXPECT_EQ(g.flagGet(1), 0x104UL) << "bits 12 and up go with the old mode";
    ASSERT_TRUE(g.hatchSet(path({1}), CZemHatchProp(L"DOTS", 1.5, 3.0, true)));
    CZemHatchProp h;
    EXPECT_TRUE(g.hatchGet(0, h) && h.name == L"DOTS" && h.flag);
    EXPECT_EQ(g.flagGet(0), 0x10CUL);
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
    EXPECT_TRUE(h.mtxGet(1) == m) << "without an item at exactly q the last match leads";
    EXPECT_FALSE(h.mtxSet(path({3}), m));
    const CZemMatrix3d wanted = h.mtxGet(0);
    ASSERT_TRUE(h.mtxSet(path({1}), h.mtxGet(0)));
    EXPECT_TRUE(h.mtxGet(1) == wanted) << "the new matrix may be a member's own";
}

TEST(GdxStack, RemovalsKeepTheOrderAndRecomputeOnlyWhenTheyRemove) {
    CZemGDX g = newList();
    const int stacks[] = {1, 2, 3, 2, 4}, kept[] = {0, 2, 4};
    for (int k = 0; k < 5; ++k) {
        const double far = stacks[k] == 2 ? 50 : 1;
        addLine(g, path({stacks[k], k}), CZemPoint3d(k, k, 0), CZemPoint3d(far * (k + 1), k + 1, 0));
    }
    ASSERT_TRUE(g.removeItemStack(path({2})));
    CZemArrayTempl<int> stack;
    for (int i = 0; i < 3; ++i) {
        g.itemStackGet(stack, i);
        EXPECT_EQ(stack[1], kept[i]);
    }
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
}
