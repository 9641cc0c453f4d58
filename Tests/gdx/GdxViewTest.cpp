#include "GdxTestSupport.h"
#include "ZemViewMatrix.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

// Recomputed, a picture, which goes to index 0, leaves the first counted
// bounds at the origin.
TEST(GdxView, RecomputedExtentsOfPicturesAndTexts) {
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
    text.m_txtRegl.append(region({low, square(0.2, 0.2, 0.4, 0.4)})).append(region({high}));
    CZemGDX t = newList();
    ASSERT_TRUE(t.addDisplayList(CZemArrayTempl<CZemDisplayItem>().append(text)));
    t.projMtxSet(t.projMtxGet());
    expectExtents(t, CZemPoint3d(0, -1, 2), CZemPoint3d(4, 1, 2));
}

// Seen from the south, east stays right, up turns up and north runs away.
TEST(GdxView, ViewDirectionViewMatrixAndTargetPoints) {
    CZemGDX g = newList();
    addLine(g, path({1}), CZemPoint3d(0, 0, 0), CZemPoint3d(0, 10, 0));
    addPoint(g, path({2}), CZemPoint3d(3, 0, 5));
    EXPECT_TRUE(!g.viewDirectionSet(L"p") && g.viewDirectionMtxGet() == CZemMatrix3d());
    ASSERT_TRUE(g.viewDirectionSet(L"S"));
    expectExtents(g, CZemPoint3d(0, 0, -10), CZemPoint3d(3, 5, 0));
    ASSERT_TRUE(g.viewDirectionSet(L"NO"));
    expectPoint(CZemPoint3d(1, 1, 1) * g.viewDirectionMtxGet(), 0, 0, std::sqrt(3.0));
    const CZemMatrix3d back = ZEM::g_mtx_view(CZemVector3d(1, 1, 1), CZemPoint3d(), false);
    expectPoint(CZemPoint3d(0, 0, 1) * g.viewDirectionMtxGet() * back, 0, 0, 1);
    ASSERT_TRUE(g.viewDirectionSet(L"P"));
    expectExtents(g, CZemPoint3d(0, 0, 0), CZemPoint3d(3, 10, 5));

    // Target points go back to list space through every matrix.
    CZemGDX t = newList(CZemMatrix3d().setToRotation(0.4, CZemVector3d(1, 1, 1), CZemPoint3d(3, 0, 0)));
    t.viewDirectionSet(L"SO");
    t.viewMtxSet(getViewMtx(CZemPoint3d(-10, -10, 0), CZemPoint3d(10, 10, 0), 300, 400, 0.05));
    t.zoomMtxSet(CZemMatrix3d().setToScaling(1.7, CZemPoint3d(200, 150, 0)));
    const CZemMatrix3d all = t.zoomMtxGet() * t.projMtxGet() * t.viewMtxGet() * t.viewDirectionMtxGet();
    expectPoint(t.imagePtWc(CZemPoint3d(2, -3, 0.5) * all), 2, -3, 0.5);

    // Scale and centre computed apart: the box with its margin fills the tighter
    // direction of the target, its centre lands in the middle, y runs down.
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
    auto bulge = [&] { return random() % 3 == 0 ? angle(random) / 3 : 0.0; };
    auto polyline = [&] {
        const CZemPoint3d a = point(), b = point(), c = point();
        return CZemVertexArray(CZemVertex(a, b, bulge())).append(CZemVertex(b, c, bulge()));
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
