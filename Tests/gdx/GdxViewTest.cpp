#include "GdxTestSupport.h"
#include "ZemViewMatrix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace gdxtest;

TEST(GdxView, RecomputedExtentsOfSimpleLists) {
    CZemGDX g = newList();
    EXPECT_TRUE(g.projMtxSet(CZemMatrix3d().setToScaling(3.0, CZemPoint3d())));
    expectExtents(g, CZemPoint3d(), CZemPoint3d());

    CZemMatrix3d mtx;
    mtx.setToTranslation(CZemVector3d(1, 2, 3));
    addPoint(g, path({1}), CZemPoint3d(1, 1, 1), 0, mtx);
    g.projMtxSet(CZemMatrix3d().setToScaling(2.0, CZemPoint3d()));
    expectExtents(g, CZemPoint3d(4, 6, 8), CZemPoint3d(4, 6, 8));
}

TEST(GdxView, APictureCountsTheOriginUnlessLeftOut) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(10, 10, 0), CZemPoint3d(20, 30, 0));
    g.imagePicture(path({2}), GDX_NOEXT, L"a.bmp", 0, CZemPoint3d(), CZemPoint3d());
    g.projMtxSet(g.projMtxGet());
    expectExtents(g, CZemPoint3d(10, 10, 0), CZemPoint3d(20, 30, 0));
    g.imagePicture(path({3}), 0, L"b.bmp", 0, CZemPoint3d(), CZemPoint3d());
    g.projMtxSet(g.projMtxGet());
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(20, 30, 0));
}

// Of a text the first part gives all three coordinates; further parts widen
// x and y only.
TEST(GdxView, TextExtentsTakeDepthFromTheFirstPart) {
    CZemDisplayItem text;
    text.m_type = GDX_TXT;
    CZemVertexArray high = square(3, -1, 4, 0.5);
    for (int k = 0; k < high.len(); ++k) high[k].m_start.z = high[k].m_end.z = 9;
    CZemVertexArray low = square(0, 0, 1, 1);
    for (int k = 0; k < low.len(); ++k) low[k].m_start.z = low[k].m_end.z = 2;
    text.m_txtRegl.append(region({low, square(0.2, 0.2, 0.4, 0.4)}));
    text.m_txtRegl.append(region({high}));
    CZemArrayTempl<CZemDisplayItem> items;
    items.append(text);
    CZemGDX g = newList();
    ASSERT_TRUE(g.addDisplayList(items));
    expectExtents(g, CZemPoint3d(), CZemPoint3d());
    g.projMtxSet(g.projMtxGet());
    expectExtents(g, CZemPoint3d(0, -1, 2), CZemPoint3d(4, 1, 2));
}

TEST(GdxView, ViewExtentsStandInOnlyWhenSet) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(2, 1, 0));
    CZemPoint3d lo, hi;
    g.extMaxViewGet(lo, hi);
    expectPoint(hi, 2, 1, 0);
    g.extMaxViewSet();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(8, 8, 0));
    g.extMaxViewGet(lo, hi);
    expectPoint(hi, 2, 1, 0);
    g.extMaxViewSet(CZemPoint3d(-1, -1, 0), CZemPoint3d(1, 1, 0));
    g.extMaxViewGet(lo, hi);
    expectPoint(lo, -1, -1, 0);
}

// Seen from the south, east stays right, up turns up and north runs away
// from the viewer.
TEST(GdxView, DirectionWordsTurnTheExtents) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(0, 10, 0));
    addPoint(g, path({2}), CZemPoint3d(3, 0, 5));
    const CZemMatrix3d before = g.viewDirectionMtxGet();
    EXPECT_FALSE(g.viewDirectionSet(L"p"));
    EXPECT_TRUE(g.viewDirectionMtxGet() == before);
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(3, 10, 5));
    ASSERT_TRUE(g.viewDirectionSet(L"S"));
    expectExtents(g, CZemPoint3d(0, 0, -10), CZemPoint3d(3, 5, 0));
    ASSERT_TRUE(g.viewDirectionSet(L"P"));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(3, 10, 5));
    ASSERT_TRUE(g.viewDirectionMtxSet(CZemMatrix3d().setToScaling(2.0, CZemPoint3d())));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(6, 20, 10));
}

TEST(GdxView, GroupBoundsWidenTheCallersCorners) {
    CZemGDX g = newList();
    addLine(g, path({1, 1}), CZemPoint3d(5, 5, 0), CZemPoint3d(6, 7, 0), GDX_NOEXT);
    g.imagePicture(path({1, 2}), 0, L"x.bmp", 0, CZemPoint3d(), CZemPoint3d(100, 100, 0));
    addPoint(g, path({1, 3}), CZemPoint3d(8, 1, 0));
    addPoint(g, path({2}), CZemPoint3d(-50, -50, 0));
    CZemPoint3d lo, hi;
    ASSERT_TRUE(g.extmaxGet(path({1}), lo, hi));
    expectPoint(lo, 0, 0, 0);
    expectPoint(hi, 8, 7, 0);
    lo.set(10, 10, 10);
    hi.set(-10, -10, -10);
    ASSERT_TRUE(g.extmaxGet(path({1}), lo, hi));
    expectPoint(lo, 5, 1, 0);
    expectPoint(hi, 8, 7, 0);
    EXPECT_FALSE(g.extmaxGet(path({3}), lo, hi));
    EXPECT_FALSE(g.extmaxGet(CZemArrayTempl<int>(), lo, hi));
}

TEST(GdxView, TargetPointsGoBackToListSpace) {
    CZemGDX g = newList(CZemMatrix3d().setToRotation(0.4, CZemVector3d(1, 1, 1), CZemPoint3d(3, 0, 0)));
    g.viewDirectionSet(L"SO");
    g.viewMtxSet(getViewMtx(CZemPoint3d(-10, -10, 0), CZemPoint3d(10, 10, 0), 300, 400, 0.05));
    CZemMatrix3d zoom;
    zoom.setToScaling(1.7, CZemPoint3d(200, 150, 0));
    g.zoomMtxSet(zoom);
    const CZemPoint3d p(2, -3, 0.5);
    const CZemPoint3d pixel =
        p * (g.zoomMtxGet() * g.projMtxGet() * g.viewMtxGet() * g.viewDirectionMtxGet());
    expectPoint(g.imagePtWc(pixel), 2, -3, 0.5);
}

// Entering items folds their bounds one by one; recomputing folds them all at
// once. Without a view direction, pictures and a single first point the two
// agree.
TEST(GdxView, RecomputationAgreesWithTheEntryFold) {
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> coord(-100.0, 100.0), angle(-3.0, 3.0), scale(0.2, 4.0);
    auto point = [&] { return CZemPoint3d(coord(random), coord(random), coord(random) / 10); };
    auto matrix = [&] {
        CZemMatrix3d turn, move;
        turn.setToRotation(angle(random), CZemVector3d(coord(random), coord(random), coord(random)), point());
        move.setToScaling(scale(random), point());
        return move * turn;
    };
    auto polyline = [&] {
        CZemVertexArray vl;
        CZemPoint3d at = point();
        const int n = 1 + static_cast<int>(random() % 5);
        for (int k = 0; k < n; ++k) {
            const CZemPoint3d next = point();
            vl.append(CZemVertex(at, next, random() % 3 == 0 ? angle(random) / 3 : 0.0));
            at = next;
        }
        return vl;
    };
    for (int round = 0; round < 200; ++round) {
        CZemGDX g = newList(matrix());
        const int items = 1 + static_cast<int>(random() % 12);
        bool counted = false;
        for (int k = 0; k < items; ++k) {
            const unsigned long flags = random() % 5 == 0 ? static_cast<unsigned long>(GDX_NOEXT) : 0UL;
            const int kind = counted ? static_cast<int>(random() % 3) : static_cast<int>(random() % 2);
            counted = counted || flags == 0;
            if (kind == 0) {
                g.imageVl(path({k}), flags, polyline(), indexColor(1), matrix(), CZemArrayTempl<double>(), 1, 1);
            } else if (kind == 1) {
                addRegion(g, path({k}), region({polyline(), polyline()}), flags, matrix());
            } else {
                addPoint(g, path({k}), point(), flags, matrix());
            }
        }
        CZemPoint3d entryLo, entryHi, lo, hi;
        g.extmaxGet(entryLo, entryHi);
        g.projMtxSet(g.projMtxGet());
        g.extmaxGet(lo, hi);
        for (int c = 0; c < 3; ++c) {
            const double size = std::max(1.0, std::fabs(hi[c] - lo[c]));
            EXPECT_NEAR(entryLo[c], lo[c], 1e-9 * size) << "round " << round << " axis " << c;
            EXPECT_NEAR(entryHi[c], hi[c], 1e-9 * size) << "round " << round << " axis " << c;
        }
    }
}
