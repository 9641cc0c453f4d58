#include "GdxTestSupport.h"
#include "ZemViewMatrix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace gdxtest;

TEST(ViewMatrix, FitsTheBoxCentredWithYDown) {
    const CZemMatrix3d m = getViewMtx(CZemPoint3d(0, 0, 0), CZemPoint3d(100, 100, 0), 100, 200, 0.0);
    expectPoint(CZemPoint3d(0, 0, 0) * m, 50, 100, 0);
    expectPoint(CZemPoint3d(100, 100, 0) * m, 150, 0, 0);

    const CZemMatrix3d d = getViewMtx(CZemPoint3d(0, 0, 0), CZemPoint3d(320, 240, 0), 0, 0, 0.0);
    expectPoint(CZemPoint3d(0, 0, 0) * d, 0, 240, 0);
    expectPoint(CZemPoint3d(320, 240, 0) * d, 320, 0, 0);
}

// Scale and centre computed apart: the box with its margin fits the tighter
// direction of the target exactly, and its centre lands in the middle.
TEST(ViewMatrix, KeepsProportionsAndMargin) {
    const struct {
        double x0, y0, x1, y1;
        int height, width;
    } cases[] = {{-10, 5, 90, 55, 100, 200}, {0, 0, 10, 80, 300, 200}, {3, 3, 4, 4, 50, 50}, {0, 0, 50, 0, 100, 100}};
    for (const auto& c : cases) {
        const double dx = c.x1 - c.x0, dy = c.y1 - c.y0, margin = 0.05 * std::max(dx, dy);
        const double s = std::min(c.width / (dx + 2 * margin), c.height / (dy + 2 * margin));
        const CZemMatrix3d m = getViewMtx(CZemPoint3d(c.x0, c.y0, 7), CZemPoint3d(c.x1, c.y1, -7), c.height,
                                          c.width, 0.05);
        const CZemPoint3d lo = CZemPoint3d(c.x0, c.y0, 0) * m, hi = CZemPoint3d(c.x1, c.y1, 0) * m;
        EXPECT_NEAR(hi.x - lo.x, s * dx, 1e-9) << c.width;
        EXPECT_NEAR(lo.y - hi.y, s * dy, 1e-9) << c.width;
        expectPoint(CZemPoint3d((c.x0 + c.x1) / 2, (c.y0 + c.y1) / 2, 0) * m, c.width / 2.0, c.height / 2.0, 0);
    }
}

TEST(ViewMatrix, ABoxWithoutSizeShowsAtTheCentre) {
    const CZemPoint3d p(12, -4, 0);
    const CZemMatrix3d m = getViewMtx(p, p, 100, 200, 0.05);
    const CZemPoint3d at = p * m;
    expectPoint(at, 100, 50, 0);
    const double inf = std::numeric_limits<double>::infinity();
    const CZemMatrix3d bad = getViewMtx(CZemPoint3d(-inf, 0, 0), CZemPoint3d(inf, 1, 0), 100, 100, 0.05);
    const CZemPoint3d q = CZemPoint3d(0.5, 0.5, 0) * bad;
    EXPECT_TRUE(std::isfinite(q.x) && std::isfinite(q.y));
}

TEST(ViewMatrix, DirectionWords) {
    const struct {
        const wchar_t* word;
        double x, y, z;
    } words[] = {{L"P", 0, 0, 1},  {L"N", 0, 1, 0},   {L"S", 0, -1, 0},  {L"O", -1, 0, 0},   {L"W", 1, 0, 0},
                 {L"NO", 1, 1, 1}, {L"NW", -1, 1, 1}, {L"SO", 1, -1, 1}, {L"SW", -1, -1, 1}, {L"X", 0, 0, 0},
                 {L"p", 0, 0, 0},  {L"", 0, 0, 0},    {L"NOW", 0, 0, 0}};
    for (const auto& w : words) {
        const CZemVector3d v = zem_gdx_view_vdir_get(w.word);
        EXPECT_TRUE(v == CZemVector3d(w.x, w.y, w.z)) << static_cast<const wchar_t*>(w.word);
    }
}

// The view matrix is a rotation that brings the direction onto +Z, keeps
// world Z up where it can, and inverts with false.
TEST(ViewMatrix, ViewTurnsTheDirectionTowardTheViewer) {
    for (const CZemVector3d& d : {CZemVector3d(0, 0, 1), CZemVector3d(0, 1, 0), CZemVector3d(1, -1, 1),
                                  CZemVector3d(0, 0, -3), CZemVector3d(-2, 5, 0.5)}) {
        const CZemMatrix3d m = ZEM::g_mtx_view(d, CZemPoint3d::kOrigin, true);
        CZemVector3d unit(d);
        unit.normalize();
        const CZemVector3d toViewer = unit * static_cast<const CZemMatrix3d::Cells&>(m);
        EXPECT_NEAR(toViewer.z, 1.0, 1e-12);
        const CZemVector3d up = CZemVector3d::kZAxis * static_cast<const CZemMatrix3d::Cells&>(m);
        if (std::fabs(unit.z) < 0.99) {
            EXPECT_NEAR(up.x, 0.0, 1e-12) << "world Z stays vertical";
        }
        const CZemMatrix3d back = ZEM::g_mtx_view(d, CZemPoint3d::kOrigin, false);
        expectPoint(CZemPoint3d(3, -2, 5) * m * back, 3, -2, 5, 1e-12);
    }
    const CZemMatrix3d top = ZEM::g_mtx_view(CZemVector3d(0, 0, 2), CZemPoint3d::kOrigin, true);
    expectPoint(CZemPoint3d(1, 2, 3) * top, 1, 2, 3);
    const CZemMatrix3d about = ZEM::g_mtx_view(CZemVector3d(1, 0, 0), CZemPoint3d(5, 5, 5), true);
    expectPoint(CZemPoint3d(5, 5, 5) * about, 0, 0, 0);
    EXPECT_TRUE(ZEM::g_mtx_view(CZemVector3d(), CZemPoint3d(1, 1, 1), true) == CZemMatrix3d());
}
