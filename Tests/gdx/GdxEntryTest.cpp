#include "GdxTestSupport.h"

TEST(GdxEntry, DefaultsOfTheColourTablePointsAndRegions) {
    CZemGDX g = newList();
    EXPECT_TRUE(g.ColorTabLenGet() == 0 && g.colorTabGet(GDX_CM_BASE) == CZemColor());
    EXPECT_FALSE(g.ColorTabSet(GDX_CM_CONTRAST, indexColor(1)));
    ASSERT_TRUE(g.ColorTabSet(GDX_CMODE(14), indexColor(9)));
    EXPECT_TRUE(g.ColorTabLenGet() == 14 && g.colorTabGet(GDX_CM_ITEM).colorIndex() == 9) << "mode 0: the last";
    CZemGDX h = newList();
    h.ColorTabSet(GDX_CM_HIGHLIGHT, indexColor(4));
    ASSERT_TRUE(h.ColorTabSet(GDX_CMODE(12), h.colorTabGet(GDX_CM_HIGHLIGHT))) << "copied while the table grows";
    EXPECT_EQ(h.colorTabGet(GDX_CMODE(12)).colorIndex(), 4);

    addPoint(g, path({1}), CZemPoint3d(1, 1, 0));
    g.imagePt(path({2}), 1036, CZemPoint3d(), indexColor(1), CZemMatrix3d(), 2.5, 35);
    g.pdModeSet(66UL);
    EXPECT_TRUE(g.pdModeGet(0) == 66UL && g.pdSizeGet(0) == 2.0) << "style 0xFFFFFFFF, size 0: the list's";
    EXPECT_TRUE(g.pdModeGet(1) == 35UL && g.pdSizeGet(1) == 2.5 && g.flagGet(1) == 1036UL);
    EXPECT_TRUE(g.typeGet(-1) == GDX_PT && g.typeGet(7) == ZemDisplayObj{} && g.pdModeGet(7) == 66UL);
    EXPECT_EQ(g.lenGet(), 2) << "reading behind the end changes nothing";

    // A region's fill colour below 0 stands for its line colour; without a
    // fill it has none.
    CZemGDX r = newList();
    const CZemArrayTempl<CZemVertexArray> regl = region({square(0, 0, 4, 4), square(1, 1, 2, 2)});
    r.imageReg(path({3}), GDX_FILL, regl, indexColor(6), CZemMatrix3d(), {}, 1, 1, indexColor(-1));
    r.imageReg(path({4}), 0, regl, indexColor(6), CZemMatrix3d(), {}, 1, 1, indexColor(8));
    EXPECT_TRUE(r.fcolorGet(0).colorIndex() == 6 && r.fcolorGet(1) == CZemColor());
}

TEST(GdxEntry, ExtentsGrowByEachEntryButForgetAFirstSinglePointAndPictures) {
    CZemGDX g = newList();
    addPoint(g, path({1}), CZemPoint3d(1, 1, 0));
    addPoint(g, path({1}), CZemPoint3d(2, 2, 0));
    expectExtents(g, CZemPoint3d(2, 2, 0), CZemPoint3d(2, 2, 0));
    addLine(g, path({2}), CZemPoint3d(3, 0, 0), CZemPoint3d(4, 1, 0));
    expectExtents(g, CZemPoint3d(3, 0, 0), CZemPoint3d(4, 1, 0));
    addPoint(g, path({3}), CZemPoint3d(-1, 5, 2));
    addLine(g, path({4}), CZemPoint3d(-50, 0, 0), CZemPoint3d(50, 0, 0), GDX_NOEXT);
    expectExtents(g, CZemPoint3d(-1, 0, 0), CZemPoint3d(4, 5, 2));

    // Through the item's matrix, then the projection; of a region only the
    // outer contour counts.
    CZemMatrix3d proj, mtx;
    proj.setToScaling(2.0, CZemPoint3d());
    mtx.setToTranslation(CZemVector3d(10, 0, 0));
    CZemGDX h = newList(proj);
    addRegion(h, path({1}), region({square(0, 0, 1, 3), square(-100, -100, 100, 100)}), 0, mtx);
    expectExtents(h, CZemPoint3d(20, 0, 0), CZemPoint3d(22, 6, 0));

    // Pictures go beneath everything and leave the extents.
    CZemGDX p = newList();
    addLine(p, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    p.imagePicture(path({3}), GDX_PIC_FULL, L"logo.bmp", 0x7FFFFFFF, CZemPoint3d(1, 1, 0), CZemPoint3d(1, 1, 0));
    p.imagePicture(path({4}), 0, L"", 0x7FFFFFFF, CZemPoint3d(0, 0, 0), CZemPoint3d(30, 20, 0));
    p.imagePicture(path({5}), 0, nullptr, 32512, CZemPoint3d(), CZemPoint3d());
    ASSERT_EQ(p.lenGet(), 4);
    EXPECT_TRUE(p.typeGet(0) == GDX_PICTURE && p.typeGet(3) == GDX_VL);
    expectExtents(p, CZemPoint3d(0, 0, 0), CZemPoint3d(1, 1, 0));
    CZemString file;
    int number = 0;
    EXPECT_TRUE(p.pictureGet(0, file, number) && number == 32512);
    EXPECT_FALSE(p.pictureGet(1, file, number)) << "no number and no file";
    EXPECT_TRUE(p.pictureGet(2, file, number) && file == L"logo.bmp");
    EXPECT_TRUE(p.getDisplayList()[2].m_vl.len() == 0 && p.getDisplayList()[1].m_vl[0].m_end == CZemPoint3d(30, 20, 0));
}

TEST(GdxEntry, AddDisplayListClearAndEntriesFromTheListItself) {
    CZemGDX g = newList();
    EXPECT_FALSE(g.addDisplayList(CZemArrayTempl<CZemDisplayItem>()));
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));
    addPoint(g, path({2}), CZemPoint3d(-9, 9, 0), GDX_NOEXT);
    EXPECT_TRUE(g.addDisplayList(g.getDisplayList())) << "a list may take its own items";
    ASSERT_EQ(g.lenGet(), 4);
    EXPECT_TRUE(g.typeGet(2) == GDX_VL && g.typeGet(3) == GDX_PT);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));

    g.ColorTabSet(GDX_CM_AUX, indexColor(5));
    g.extMaxViewSet(CZemPoint3d(), CZemPoint3d(1, 1, 1));
    ASSERT_TRUE(g.clear());
    CZemPoint3d lo(1, 1, 1), hi(1, 1, 1);
    g.extMaxViewGet(lo, hi);
    EXPECT_TRUE(lo == CZemPoint3d() && hi == CZemPoint3d()) << "no view extents, and list extents at the origin";
    EXPECT_TRUE(g.lenGet() == 0 && g.ColorTabLenGet() == 5 && g.pdModeGet() == 3UL);

    // Refilling reuses the slots that clear left: nothing old may show.
    addPoint(g, path({7}), CZemPoint3d(1, 2, 3));
    CZemVertexArray stale;
    g.geomGet(stale, 0);
    EXPECT_TRUE(stale.len() == 0 && g.linetypeGet(0).len() == 0);

    // Arguments that are parts of the list's own items stay valid while the
    // list grows under the entry.
    CZemGDX s = newList();
    addLine(s, path({1, 2, 3}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 2, 0));
    for (int k = 0; k < 40; ++k) {
        const CZemDisplayItem& first = s.getDisplayList()[0];
        s.imageVl(first.m_stack, 0, first.m_vl, first.m_color, first.m_mtx, first.m_linetype, 1.0, 1);
    }
    CZemArrayTempl<int> stack;
    s.itemStackGet(stack, 40);
    EXPECT_TRUE(s.lenGet() == 41 && stack.len() == 3 && stack[2] == 3);
}
