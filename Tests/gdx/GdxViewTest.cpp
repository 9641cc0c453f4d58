#include "GdxTestSupport.h"
#include "ZemViewMatrix.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace gdxtest;

TEST(GdxView, RecomputedExtentsOfPointsPicturesAndTexts) {
    CZemGDX g = newList();
    EXPECT_TRUE(g.projMtxSet(CZemMatrix3d().setToScaling(3.0, CZemPoint3d())));
    expectExtents(g, CZemPoint3d(), CZemPoint3d());
    addPoint(g, path({1}), CZemPoint3d(1, 1, 1), 0, CZemMatrix3d().setToTranslation(CZemVector3d(1, 2, 3)));
    g.projMtxSet(CZemMatrix3d().setToScaling(2.0, CZemPoint3d()));
    expectExtents(g, CZemPoint3d(4, 6, 8), CZemPoint3d(4, 6, 8));

    // A picture, which goes to index 0, leaves the first counted bounds at
    // the origin.
    CZemGDX p = newList();
    addLine(p, path({1}), CZemPoint3d(10, 10, 0), CZemPoint3d(20, 30, 0));
    p.imagePicture(path({2}), GDX_NOEXT, L"a.bmp", 0, CZemPoint3d(), CZemPoint3d());
    p.projMtxSet(p.projMtxGet());
    expectExtents(p, CZemPoint3d(10, 10, 0), CZemPoint3d(20, 30, 0));
    p.imagePicture(path({3}), 0, L"b.bmp", 0, CZemPoint3d(), CZemPoint3d());
    p.projMtxSet(p.projMtxGet());
    expectExtents(p, CZemPoint3d(0, 0, 0), CZemPoint3d(20, 30, 0));

    // Of a text the first part gives all three coordinates, further parts
    // widen x and y only.
    CZemDisplayItem text;
    text.m_type = GDX_TXT;
    CZemVertexArray low = square(0, 0, 1, 1), high = square(3, -1, 4, 0.5);
    low.transformBy(CZemMatrix3d().setToTranslation(CZemVector3d(0, 0, 2)));
    high.transformBy(CZemMatrix3d().setToTranslation(CZemVector3d(0, 0, -9)));
    text.m_txtRegl.append(region({low, square(0.2, 0.2, 0.4, 0.4)}));
    text.m_txtRegl.append(region({high}));
    CZemArrayTempl<CZemDisplayItem> items;
    items.append(text);
    CZemGDX t = newList();
    ASSERT_TRUE(t.addDisplayList(items));
    t.projMtxSet(t.projMtxGet());
    expectExtents(t, CZemPoint3d(0, -1, 2), CZemPoint3d(4, 1, 2));
}

// Seen from the south, east stays right, up turns up and north runs away.
TEST(GdxView, ViewDirectionAndViewExtents) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(0, 10, 0));
    addPoint(g, path({2}), CZemPoint3d(3, 0, 5));
    EXPECT_FALSE(g.viewDirectionSet(L"p"));
    EXPECT_TRUE(g.viewDirectionMtxGet() == CZemMatrix3d());
    ASSERT_TRUE(g.viewDirectionSet(L"S"));
    expectExtents(g, CZemPoint3d(0, 0, -10), CZemPoint3d(3, 5, 0));
    ASSERT_TRUE(g.viewDirectionSet(L"NO"));
    expectPoint(CZemPoint3d(1, 1, 1) * g.viewDirectionMtxGet(), 0, 0, std::sqrt(3.0));
    const CZemMatrix3d back = ZEM::g_mtx_view(CZemVector3d(1, 1, 1), CZemPoint3d(), false);
    expectPoint(CZemPoint3d(0, 0, 1) * g.viewDirectionMtxGet() * back, 0, 0, 1);
    ASSERT_TRUE(g.viewDirectionSet(L"P"));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(3, 10, 5));

    CZemPoint3d lo, hi;
    g.extMaxViewGet(lo, hi);
    expectPoint(hi, 3, 10, 5);
    g.extMaxViewSet();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(80, 80, 0));
    g.extMaxViewGet(lo, hi);
    expectPoint(hi, 3, 10, 5);
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
    ASSERT_TRUE(g.extmaxGet(path({1}), lo, hi));
    expectPoint(lo, 5, 1, 0);
    EXPECT_FALSE(g.extmaxGet(path({3}), lo, hi) || g.extmaxGet(CZemArrayTempl<int>(), lo, hi));
}

TEST(GdxView, TargetPointsGoBackToListSpace) {
    CZemGDX g = newList(CZemMatrix3d().setToRotation(0.4, CZemVector3d(1, 1, 1), CZemPoint3d(3, 0, 0)));
    g.viewDirectionSet(L"SO");
    g.viewMtxSet(getViewMtx(CZemPoint3d(-10, -10, 0), CZemPoint3d(10, 10, 0), 300, 400, 0.05));
    g.zoomMtxSet(CZemMatrix3d().setToScaling(1.7, CZemPoint3d(200, 150, 0)));
    const CZemPoint3d p(2, -3, 0.5);
    const CZemPoint3d pixel = p * (g.zoomMtxGet() * g.projMtxGet() * g.viewMtxGet() * g.viewDirectionMtxGet());
    expectPoint(g.imagePtWc(pixel), 2, -3, 0.5);
}

// Entering items folds their bounds one by one; recomputing folds them all at
// once. Without a view direction, pictures and a single first point the two
// agree, arcs and group matrices included.
TEST(GdxView, RecomputationAgreesWithTheEntryFold) {
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> coord(-100.0, 100.0), angle(-3.0, 3.0), scale(0.2, 4.0);
    auto point = [&] { return CZemPoint3d(coord(random), coord(random), coord(random) / 10); };
    auto matrix = [&] {
        CZemMatrix3d turn, grow;
        turn.setToRotation(angle(random), CZemVector3d(coord(random), coord(random), coord(random)), point());
        return grow.setToScaling(scale(random), point()) * turn;
    };
    auto polyline = [&] {
        CZemVertexArray vl;
        CZemPoint3d at = point();
        for (int k = 0, n = 1 + static_cast<int>(random() % 5); k < n; ++k) {
            const CZemPoint3d next = point();
            vl.append(CZemVertex(at, next, random() % 3 == 0 ? angle(random) / 3 : 0.0));
            at = next;
        }
        return vl;
    };
    for (int round = 0; round < 200; ++round) {
        CZemGDX g = newList(matrix());
        bool counted = false;
        for (int k = 0, n = 1 + static_cast<int>(random() % 12); k < n; ++k) {
            const unsigned long flags = random() % 5 == 0 ? static_cast<unsigned long>(GDX_NOEXT) : 0UL;
            const int kind = static_cast<int>(random() % (counted ? 3 : 2));
            counted = counted || flags == 0;
            if (kind == 0) g.imageVl(path({k}), flags, polyline(), indexColor(1), matrix(), {}, 1, 1);
            if (kind == 1) addRegion(g, path({k}), region({polyline(), polyline()}), flags, matrix());
            if (kind == 2) addPoint(g, path({k}), point(), flags, matrix());
        }
        CZemPoint3d entryLo, entryHi, lo, hi;
        g.extmaxGet(entryLo, entryHi);
        g.projMtxSet(g.projMtxGet());
        g.extmaxGet(lo, hi);
        for (int c = 0; c < 3; ++c) {
            const double tolerance = 1e-9 * std::max(1.0, std::fabs(hi[c] - lo[c]));
            EXPECT_NEAR(entryLo[c], lo[c], tolerance) << "round " << round << " axis " << c;
            EXPECT_NEAR(entryHi[c], hi[c], tolerance) << "round " << round << " axis " << c;
        }
    }
}

// Scale and centre computed apart: the box with its margin fills the tighter
// direction of the target, its centre lands in the middle, y runs down.
TEST(GdxView, ViewMatrixFitsTheBoxCentredWithYDown) {
    const CZemMatrix3d m = getViewMtx(CZemPoint3d(0, 0, 0), CZemPoint3d(100, 100, 0), 100, 200, 0.0);
    expectPoint(CZemPoint3d(0, 0, 0) * m, 50, 100, 0);
    expectPoint(CZemPoint3d(100, 100, 0) * m, 150, 0, 0);
    expectPoint(CZemPoint3d(320, 240, 0) * getViewMtx(CZemPoint3d(), CZemPoint3d(320, 240, 0), 0, 0, 0.0), 320, 0, 0);
    const double cases[][6] = {{-10, 5, 90, 55, 100, 200}, {0, 0, 10, 80, 300, 200}};
    for (const auto& c : cases) {
        const double dx = c[2] - c[0], dy = c[3] - c[1], margin = 0.05 * std::max(dx, dy);
        const double s = std::min(c[5] / (dx + 2 * margin), c[4] / (dy + 2 * margin));
        const CZemMatrix3d v = getViewMtx(CZemPoint3d(c[0], c[1], 7), CZemPoint3d(c[2], c[3], -7), int(c[4]),
                                          int(c[5]), 0.05);
        const CZemPoint3d lo = CZemPoint3d(c[0], c[1], 0) * v, hi = CZemPoint3d(c[2], c[3], 0) * v;
        EXPECT_TRUE(std::fabs(hi.x - lo.x - s * dx) < 1e-9 && std::fabs(lo.y - hi.y - s * dy) < 1e-9);
        expectPoint(CZemPoint3d((c[0] + c[2]) / 2, (c[1] + c[3]) / 2, 0) * v, c[5] / 2, c[4] / 2, 0);
    }
    const CZemPoint3d one(12, -4, 0);
    expectPoint(one * getViewMtx(one, one, 100, 200, 0.05), 100, 50, 0);
    const double inf = std::numeric_limits<double>::infinity();
    const CZemPoint3d q = CZemPoint3d(0.5, 0.5, 0) * getViewMtx(CZemPoint3d(-inf, 0, 0), CZemPoint3d(), 100, 100, 0);
    EXPECT_TRUE(std::isfinite(q.x) && std::isfinite(q.y));
}
