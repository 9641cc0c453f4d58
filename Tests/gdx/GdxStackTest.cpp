#include "GdxTestSupport.h"

#include <gtest/gtest.h>

using namespace gdxtest;

namespace {

// Items of the stacks (1), (1,2), (1,3), (2), in this order or with (1) last.
CZemGDX groups(bool parentFirst) {
    CZemGDX g = newList();
    if (parentFirst) addPoint(g, path({1}), CZemPoint3d(0, 0, 0));
    addPoint(g, path({1, 2}), CZemPoint3d(1, 0, 0));
    addPoint(g, path({1, 3}), CZemPoint3d(2, 0, 0));
    addPoint(g, path({2}), CZemPoint3d(3, 0, 0));
    if (!parentFirst) addPoint(g, path({1}), CZemPoint3d(0, 0, 0));
    return g;
}

int firstElement(const CZemGDX& g, int i) {
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, i);
    return stack.isEmpty() ? -99 : stack[0] * 10 + (stack.len() > 1 ? stack[1] : 0);
}

}  // namespace

TEST(GdxStack, PrefixAndExactMatching) {
    CZemGDX g = groups(true);
    const CZemArrayTempl<int> numbers = g.StackToItemNr(path({1}));
    ASSERT_EQ(numbers.len(), 3);
    EXPECT_TRUE(numbers[0] == 0 && numbers[1] == 1 && numbers[2] == 2);
    EXPECT_EQ(g.StackToItemNr(CZemArrayTempl<int>()).len(), 0);
    EXPECT_EQ(g.StackToItemNr(path({1, 2, 5})).len(), 0);
    EXPECT_TRUE(g.pdModeSet(path({1}), 64));
    EXPECT_EQ(g.pdModeGet(0), 64UL);
    EXPECT_EQ(g.pdModeGet(1), 3UL) << "exact match only";
    EXPECT_TRUE(g.pdSizeSet(path({1, 3}), 7.5));
    EXPECT_EQ(g.pdSizeGet(2), 7.5);
    EXPECT_FALSE(g.pdSizeSet(path({1, 4}), 1.0));
    EXPECT_FALSE(g.pdModeSet(CZemArrayTempl<int>(), 1));
}

TEST(GdxStack, HighestStackElements) {
    CZemGDX first = groups(true), last = groups(false);
    EXPECT_EQ(first.stackGet(), 2);
    EXPECT_EQ(first.stackGet(path({1})), 3);
    EXPECT_EQ(last.stackGet(path({1})), 0) << "the group's own item came last";
    EXPECT_EQ(first.stackGet(path({9})), -1);
    EXPECT_EQ(first.stackGet(CZemArrayTempl<int>()), -1);
    EXPECT_EQ(first.stackGet(path({2})), 0);
    CZemGDX empty = newList();
    EXPECT_EQ(empty.stackGet(), 0);
    addPoint(empty, path({-4}), CZemPoint3d());
    EXPECT_EQ(empty.stackGet(), 0);
}

TEST(GdxStack, PropertyCodesSwitchOneBitEach) {
    const struct {
        unsigned long code, before, after;
    } codes[] = {{1, 0x4, 0x0},   {2, 0x0, 0x4},   {3, 0x8, 0x0},   {4, 0x0, 0x8},   {5, 0x0, 0x10},  {6, 0x10, 0x0},
                 {7, 0x0, 0x20},  {8, 0x20, 0x0},  {9, 0x0, 0x40},  {10, 0x40, 0x0}, {11, 0x5, 0x5},  {0, 0x5, 0x5},
                 {2, 0x304, 0x304}, {6, 0x311, 0x301}};
    for (const auto& c : codes) {
        CZemGDX g = newList();
        g.imagePt(path({1}), c.before, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
        EXPECT_TRUE(g.propSet(path({1}), c.code)) << c.code;
        EXPECT_EQ(g.flagGet(0), c.after) << c.code;
    }
    CZemGDX g = newList();
    EXPECT_FALSE(g.redraw(CZemArrayTempl<int>(), GDX_PROP_HIDE)) << "empty list";
    addPoint(g, path({1}), CZemPoint3d());
    addPoint(g, path({2}), CZemPoint3d());
    EXPECT_FALSE(g.propSet(CZemArrayTempl<int>(), GDX_PROP_HIDE));
    EXPECT_EQ(g.flagGet(0), 0UL);
    EXPECT_TRUE(g.redraw(CZemArrayTempl<int>(), GDX_PROP_HIDE));
    EXPECT_TRUE(g.flagGet(0) == GDX_HIDE && g.flagGet(1) == GDX_HIDE) << "an empty stack means every item";
    EXPECT_TRUE(g.redraw(path({5}), GDX_PROP_SHOW)) << "true also when nothing matched";
    EXPECT_FALSE(g.propSet(path({5}), GDX_PROP_SHOW));
}

TEST(GdxStack, ExtentsFollowTheExtentFlag) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    addLine(g, path({2}), CZemPoint3d(5, 5, 0), CZemPoint3d(9, 8, 0));
    ASSERT_TRUE(g.propSet(path({2}), GDX_PROP_EXT_OFF));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    ASSERT_TRUE(g.redraw(path({2}), GDX_PROP_EXT_ON));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(9, 8, 0));
    ASSERT_TRUE(g.propSet(path({2}), GDX_PROP_HIDE));
    SCOPED_TRACE("hidden items still count");
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(9, 8, 0));
}

TEST(GdxStack, ColourModeKeepsTheFlagBits) {
    CZemGDX g = newList();
    g.imagePt(path({1}), 0x40C, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
    g.imagePt(path({1, 1}), 0x3F04, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 0.0, 0);
    ASSERT_TRUE(g.cModeSet(path({1}), GDX_CM_HIGHLIGHT));
    EXPECT_EQ(g.flagGet(0), 0x10CUL);
    EXPECT_EQ(g.flagGet(1), 0x104UL) << "bits 12 and up go with the old mode";
    EXPECT_FALSE(g.cModeSet(path({3}), GDX_CM_HIGHLIGHT));
    EXPECT_FALSE(g.cModeSet(CZemArrayTempl<int>(), GDX_CM_HIGHLIGHT));
}

TEST(GdxStack, HatchSetChangesTheHatchOnly) {
    CZemGDX g = newList();
    addRegion(g, path({1}), region({square(0, 0, 1, 1)}), GDX_FILL | GDX_EDGE);
    ASSERT_TRUE(g.hatchSet(path({1}), CZemHatchProp(L"DOTS", 1.5, 3.0, true)));
    CZemHatchProp h;
    g.hatchGet(0, h);
    EXPECT_TRUE(h.name == L"DOTS" && h.angle == 1.5 && h.scale == 3.0 && h.flag);
    EXPECT_EQ(g.flagGet(0), static_cast<unsigned long>(GDX_FILL | GDX_EDGE));
    EXPECT_FALSE(g.hatchSet(path({2}), h));
}

// A group moves as a rigid unit: its reference item gets the new matrix and
// every other item keeps its place relative to it.
TEST(GdxStack, MatrixMovesAGroupRigidly) {
    CZemMatrix3d a, b, m;
    a.setToTranslation(CZemVector3d(1, 0, 0));
    b.setToRotation(0.3, CZemVector3d::kZAxis, CZemPoint3d(2, 2, 0));
    m.setToRotation(1.2, CZemVector3d(0, 0, 1), CZemPoint3d(-3, 1, 0));
    CZemGDX g = newList();
    addPoint(g, path({1, 1}), CZemPoint3d(4, 0, 0), 0, b);
    addPoint(g, path({1}), CZemPoint3d(0, 0, 0), 0, a);
    addPoint(g, path({2}), CZemPoint3d(7, 7, 0), 0, b);

    ASSERT_TRUE(g.mtxSet(path({1}), a));
    EXPECT_TRUE(g.mtxGet(0) == b && g.mtxGet(1) == a) << "the reference's own matrix changes nothing";

    ASSERT_TRUE(g.mtxSet(path({1}), m));
    EXPECT_TRUE(g.mtxGet(1) == m);
    const CZemMatrix3d delta = m * a.inverse();
    expectPoint(CZemPoint3d(4, 0, 0) * g.mtxGet(0), (CZemPoint3d(4, 0, 0) * b * delta).x,
                (CZemPoint3d(4, 0, 0) * b * delta).y, 0);
    EXPECT_TRUE(g.mtxGet(2) == b) << "other groups stay";
    CZemPoint3d lo, hi;
    g.extmaxGet(lo, hi);
    const CZemPoint3d moved = CZemPoint3d(4, 0, 0) * g.mtxGet(0);
    EXPECT_LE(lo.x, moved.x);
    EXPECT_GE(hi.x, moved.x - 1e-12);

    // Without an item at exactly (1) the last match is the reference.
    CZemGDX h = newList();
    addPoint(h, path({1, 1}), CZemPoint3d(), 0, a);
    addPoint(h, path({1, 2}), CZemPoint3d(), 0, b);
    ASSERT_TRUE(h.mtxSet(path({1}), m));
    EXPECT_TRUE(h.mtxGet(1) == m);
    EXPECT_FALSE(h.mtxSet(path({3}), m));
    EXPECT_FALSE(h.mtxSet(CZemArrayTempl<int>(), m));
}

TEST(GdxStack, RemovingAGroupKeepsTheOrderOfTheRest) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    addLine(g, path({2, 1}), CZemPoint3d(0, 0, 0), CZemPoint3d(50, 50, 0));
    addLine(g, path({3}), CZemPoint3d(2, 2, 0), CZemPoint3d(3, 3, 0));
    addLine(g, path({2}), CZemPoint3d(0, 0, 0), CZemPoint3d(-50, 50, 0));
    addLine(g, path({4}), CZemPoint3d(4, 4, 0), CZemPoint3d(5, 5, 0));
    ASSERT_TRUE(g.removeItemStack(path({2})));
    ASSERT_EQ(g.lenGet(), 3);
    EXPECT_EQ(firstElement(g, 0), 10);
    EXPECT_EQ(firstElement(g, 1), 30);
    EXPECT_EQ(firstElement(g, 2), 40);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(5, 5, 0));
    EXPECT_FALSE(g.removeItemStack(path({2})));
    EXPECT_TRUE(g.clear(path({3})));
    EXPECT_EQ(g.lenGet(), 2);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(5, 5, 0));
}

// The incremental extents of two single points differ from a recomputation;
// a clear that removes nothing must leave them as they are.
TEST(GdxStack, ClearOfNothingLeavesTheExtents) {
    CZemGDX g = newList();
    addPoint(g, path({1}), CZemPoint3d(1, 1, 0));
    addPoint(g, path({1}), CZemPoint3d(2, 2, 0));
    EXPECT_FALSE(g.clear(path({9})));
    EXPECT_FALSE(g.clear(CZemArrayTempl<int>()));
    expectExtents(g, CZemPoint3d(2, 2, 0), CZemPoint3d(2, 2, 0));
    EXPECT_TRUE(g.clear(path({1})));
    EXPECT_EQ(g.lenGet(), 0);
}
