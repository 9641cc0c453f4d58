#include "GdxTestSupport.h"

#include <gtest/gtest.h>

using namespace gdxtest;

TEST(GdxEntry, ColourTableGrowsOnDemandAndRefusesModesOutsideOneToFourteen) {
    CZemGDX g = newList();
    EXPECT_EQ(g.ColorTabLenGet(), 0);
    EXPECT_TRUE(g.colorTabGet(GDX_CM_BASE) == CZemColor());
    EXPECT_TRUE(g.colorTabGet(GDX_CM_ITEM) == CZemColor());
    EXPECT_FALSE(g.ColorTabSet(GDX_CM_ITEM, indexColor(1)));
    EXPECT_FALSE(g.ColorTabSet(GDX_CM_CONTRAST, indexColor(1)));
    EXPECT_EQ(g.ColorTabLenGet(), 0);
    EXPECT_TRUE(g.ColorTabSet(GDX_CMODE(14), indexColor(9)));
    EXPECT_EQ(g.ColorTabLenGet(), 14);
    EXPECT_EQ(g.colorTabGet(GDX_CMODE(14)).colorIndex(), 9);
    EXPECT_EQ(g.colorTabGet(GDX_CM_ITEM).colorIndex(), 9) << "mode 0 reads the last entry";
    EXPECT_TRUE(g.ColorTabSet(GDX_CM_AXIS, indexColor(3)));
    EXPECT_EQ(g.ColorTabLenGet(), 14);
    EXPECT_EQ(g.colorTabGet(GDX_CM_AXIS).colorIndex(), 3);
}

TEST(GdxEntry, PointsLeaveStyleAndSizeToTheList) {
    CZemGDX g = newList();
    addPoint(g, path({1}), CZemPoint3d(1, 1, 0));
    g.imagePt(path({2}), 1036, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 2.5, 35);
    EXPECT_EQ(g.pdModeGet(0), 3UL);
    EXPECT_EQ(g.pdSizeGet(0), 2.0);
    g.pdModeSet(66UL);
    g.pdSizeSet(-4.0);
    EXPECT_EQ(g.pdModeGet(0), 66UL) << "follows later changes of the list's default";
    EXPECT_EQ(g.pdSizeGet(0), -4.0);
    EXPECT_EQ(g.pdModeGet(1), 35UL);
    EXPECT_EQ(g.pdSizeGet(1), 2.5);
    EXPECT_EQ(g.flagGet(1), 1036UL);
    EXPECT_EQ(zem_gdx_cmode(g.flagGet(1)), 4);
}

TEST(GdxEntry, LinesAndRegionsStoreWhatTheyAreGiven) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 0, 0));
    ASSERT_EQ(g.linetypeGet(0).len(), 1) << "no line type: continuous";
    EXPECT_EQ(g.linetypeGet(0)[0], 1.0);
    CZemArrayTempl<double> dashes;
    dashes.append(2.0);
    dashes.append(-1.0);
    g.imageVl(path({2}), 0, segment(CZemPoint3d(), CZemPoint3d(1, 1, 0)), indexColor(5), CZemMatrix3d(), dashes, 0.5,
              3);
    EXPECT_EQ(g.linetypeGet(1).len(), 2);
    EXPECT_EQ(g.ltscaleGet(1), 0.5);
    EXPECT_EQ(g.thicknGet(1), 3);

    const CZemArrayTempl<CZemVertexArray> regl = region({square(0, 0, 4, 4), square(1, 1, 2, 2)});
    const CZemColor byLine = indexColor(-1);
    g.imageReg(path({3}), GDX_FILL, regl, indexColor(6), CZemMatrix3d(), dashes, 1, 1, byLine);
    g.imageReg(path({4}), 0, regl, indexColor(6), CZemMatrix3d(), dashes, 1, 1, indexColor(8));
    g.imageReg(path({5}), GDX_HATCH, regl, indexColor(6), CZemMatrix3d(), dashes, 1, 1, indexColor(8),
               CZemHatchProp(L"GRAVEL", 0.5, 2.0, true));
    EXPECT_EQ(g.fcolorGet(2).colorIndex(), 6) << "a fill colour below 0 stands for the line colour";
    EXPECT_TRUE(g.fcolorGet(3) == CZemColor()) << "no fill, no fill colour";
    EXPECT_EQ(g.fcolorGet(4).colorIndex(), 8);
    CZemHatchProp hatch;
    ASSERT_TRUE(g.hatchGet(3, hatch));
    EXPECT_NEAR(hatch.angle, 0.7853981633974483, 1e-16);
    EXPECT_EQ(hatch.scale, 10.0);
    ASSERT_TRUE(g.hatchGet(4, hatch));
    EXPECT_TRUE(hatch.name == L"GRAVEL" && hatch.angle == 0.5 && hatch.scale == 2.0 && hatch.flag);
    EXPECT_FALSE(g.hatchGet(5, hatch));
    CZemArrayTempl<CZemVertexArray> back;
    g.geomGet(back, 2);
    ASSERT_EQ(back.len(), 2);
    EXPECT_EQ(back[1].len(), 4);

    CZemArrayTempl<int> stack = path({9, 9, 9, 9});
    g.itemStackGet(stack, 4);
    EXPECT_EQ(stack.len(), 1);
    EXPECT_EQ(stack[0], 5);
}

TEST(GdxEntry, ExtentsGrowByEachEntryButForgetAFirstSinglePoint) {
    CZemGDX g = newList();
    addPoint(g, path({1}), CZemPoint3d(1, 1, 0));
    addPoint(g, path({1}), CZemPoint3d(2, 2, 0));
    expectExtents(g, CZemPoint3d(2, 2, 0), CZemPoint3d(2, 2, 0));
    addLine(g, path({2}), CZemPoint3d(3, 0, 0), CZemPoint3d(4, 1, 0));
    expectExtents(g, CZemPoint3d(3, 0, 0), CZemPoint3d(4, 1, 0));
    addPoint(g, path({3}), CZemPoint3d(-1, 5, 2));
    expectExtents(g, CZemPoint3d(-1, 0, 0), CZemPoint3d(4, 5, 2));
    addLine(g, path({4}), CZemPoint3d(-50, 0, 0), CZemPoint3d(50, 0, 0), GDX_NOEXT);
    expectExtents(g, CZemPoint3d(-1, 0, 0), CZemPoint3d(4, 5, 2));
}

// Bounds through the item's matrix, then the projection; of a region only
// the outer contour counts.
TEST(GdxEntry, ExtentsApplyItemMatrixThenProjection) {
    CZemMatrix3d proj, mtx;
    proj.setToScaling(2.0, CZemPoint3d());
    mtx.setToTranslation(CZemVector3d(10, 0, 0));
    CZemGDX g = newList(proj);
    addRegion(g, path({1}), region({square(0, 0, 1, 3), square(-100, -100, 100, 100)}), 0, mtx);
    expectExtents(g, CZemPoint3d(20, 0, 0), CZemPoint3d(22, 6, 0));
    addPoint(g, path({2}), CZemPoint3d(0, -1, 0), 0, mtx);
    expectExtents(g, CZemPoint3d(20, -2, 0), CZemPoint3d(22, 6, 0));
}

TEST(GdxEntry, PicturesGoBeneathEverythingAndLeaveTheExtents) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    addPoint(g, path({2}), CZemPoint3d(5, 5, 0));
    ASSERT_TRUE(g.imagePicture(path({3}), GDX_PIC_FULL, L"logo.bmp", 0x7FFFFFFF, CZemPoint3d(1, 1, 0),
                               CZemPoint3d(1, 1, 0)));
    g.imagePicture(path({4}), 0, L"", 0x7FFFFFFF, CZemPoint3d(0, 0, 0), CZemPoint3d(30, 20, 0));
    g.imagePicture(path({5}), 0, nullptr, 32512, CZemPoint3d(0, 0, 0), CZemPoint3d(30, 20, 0));
    ASSERT_EQ(g.lenGet(), 5);
    EXPECT_EQ(g.typeGet(0), GDX_PICTURE);
    EXPECT_EQ(g.typeGet(3), GDX_VL) << "earlier items move up";
    EXPECT_EQ(g.typeGet(4), GDX_PT);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(5, 5, 0));

    CZemString file;
    int number = 0;
    EXPECT_TRUE(g.pictureGet(0, file, number));
    EXPECT_EQ(number, 32512);
    EXPECT_FALSE(g.pictureGet(1, file, number)) << "no number and no file";
    EXPECT_TRUE(g.pictureGet(2, file, number));
    EXPECT_TRUE(file == L"logo.bmp");
    CZemVertexArray placement;
    g.geomGet(placement, 2);
    EXPECT_EQ(placement.len(), 0) << "equal corners: the whole target";
    g.geomGet(placement, 1);
    ASSERT_EQ(placement.len(), 1);
    expectPoint(placement[0].m_end, 30, 20, 0);
}

TEST(GdxEntry, AddDisplayListAppendsCopiesAndClearKeepsTheSettings) {
    CZemGDX g = newList();
    EXPECT_FALSE(g.addDisplayList(CZemArrayTempl<CZemDisplayItem>()));
    EXPECT_EQ(g.lenGet(), 0);
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));
    addPoint(g, path({2}), CZemPoint3d(-9, 9, 0), GDX_NOEXT);
    EXPECT_TRUE(g.addDisplayList(g.getDisplayList())) << "a list may take its own items";
    ASSERT_EQ(g.lenGet(), 4);
    EXPECT_EQ(g.typeGet(2), GDX_VL);
    EXPECT_EQ(g.typeGet(3), GDX_PT);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));

    CZemGDX copy(g);
    g.ColorTabSet(GDX_CM_AUX, indexColor(5));
    g.extMaxViewSet();
    ASSERT_TRUE(g.clear());
    EXPECT_EQ(g.lenGet(), 0);
    expectExtents(g, CZemPoint3d(), CZemPoint3d());
    CZemPoint3d lo(1, 1, 1), hi(1, 1, 1);
    g.extMaxViewGet(lo, hi);
    EXPECT_TRUE(lo == CZemPoint3d() && hi == CZemPoint3d());
    EXPECT_EQ(g.ColorTabLenGet(), 5);
    EXPECT_EQ(g.pdModeGet(), 3UL);
    EXPECT_EQ(copy.lenGet(), 4) << "copies are deep";
    EXPECT_EQ(copy.ColorTabLenGet(), 0);

    // Refilling reuses the slots that clear left behind: nothing of the old
    // items may show through.
    g.imagePt(path({7}), 0, CZemPoint3d(1, 2, 3), indexColor(1), CZemMatrix3d(), 0.0, 0xFFFFFFFFUL);
    CZemVertexArray stale;
    g.geomGet(stale, 0);
    EXPECT_EQ(stale.len(), 0);
    EXPECT_EQ(g.linetypeGet(0).len(), 0);
}

TEST(GdxEntry, ReadingBehindTheEndGivesTheDefaultItem) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));
    addPoint(g, path({2}), CZemPoint3d(1, 1, 0));
    EXPECT_EQ(g.typeGet(-1), GDX_PT);
    EXPECT_EQ(g.typeGet(7), ZemDisplayObj{});
    EXPECT_EQ(g.thicknGet(7), 0);
    EXPECT_EQ(g.pdModeGet(7), 3UL) << "a default item leaves the style to the list";
    EXPECT_EQ(g.lenGet(), 2);
}

// Arguments that are parts of the list's own items stay valid while the
// list grows under the entry.
TEST(GdxEntry, EntriesMayCopyFromTheListItself) {
    CZemGDX g = newList();
    addLine(g, path({1, 2, 3}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));
    for (int k = 0; k < 40; ++k) {
        const CZemDisplayItem& first = g.getDisplayList()[0];
        g.imageVl(first.m_stack, 0, first.m_vl, first.m_color, first.m_mtx, first.m_linetype, 1.0, 1);
    }
    ASSERT_EQ(g.lenGet(), 41);
    CZemArrayTempl<int> stack;
    g.itemStackGet(stack, 40);
    EXPECT_EQ(stack.len(), 3);
    EXPECT_EQ(stack[2], 3);
}
