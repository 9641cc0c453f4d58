#include "ZemClip.h"
#include "ZemMeasure.h"
#include "ZemPolyline.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

bool isFinite(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace

TEST(GeometryBadInput, EveryOperationGivesADefinedResult) {
    // Every kind of trouble between good vertices: zero length with a bulge, a NaN and an
    // infinite point, all but a full circle, as good as straight, a NaN bulge, a huge vertex.
    const double inf = HUGE_VAL, nan = std::nan("");
    const double corners[][5] = {{0, 0, 10, 0, 0},       {10, 0, 10, 0, 1},       {10, 0, nan, 5, 0},  {inf, 5, 10, 5, 0.5},
                                 {10, 5, 10, 10, 1e300}, {10, 10, 0, 10, 1e-300}, {0, 10, 0, 0, nan}, {0, 0, 1e300, 1e300, 0.3}};
    CZemVertexArray vl;
    for (const auto& c : corners) vl.append(CZemVertex(CZemPoint3d(c[0], c[1], 0), CZemPoint3d(c[2], c[3], 0), c[4]));
    const CZemPoint3dArray p = vl.pts(true, 0.0);
    for (int k = 0; k < p.len(); ++k) EXPECT_TRUE(isFinite(p[k])) << k;
    CZemPoint3d lo, hi;
    EXPECT_TRUE(vl.extents(lo, hi) && isFinite(lo));
    CZemVertexArray copy = vl;
    EXPECT_EQ(copy.revert().breakVertex(5, CZemPoint3d(10, 1, 0)).breakVertex(3, CZemPoint3d(10, 7, 0)).len(), vl.len());
    for (const unsigned mode : {0u, 3u}) {
        const CZemPoint3dArray hits = vl.intersectWith(vl, mode);
        for (int k = 0; k < hits.len(); ++k) EXPECT_TRUE(isFinite(hits[k]));
        vl.intersectWith(CZemVertexArray(CZemVertex(CZemPoint3d(-5, 5, 0), CZemPoint3d(20, 5, 0), 0.0)), mode);
    }
    EXPECT_TRUE(isFinite(ZEM::g_vl_extmax(vl, 0.5)[1]));
    EXPECT_GE(ZEM::g_vl_expl(vl, 1 << 30).len(), vl.len());
    EXPECT_GT(zem_g_vl_to_vll(vl).len(), 1);
    ZEM::g_vl_pt_inside(vl, CZemPoint3d(5, 5, 0), true);
    ZEM::g_vl_cut(vl, CZemPoint3d(5, 0, 0), CZemPoint3d(nan, 0, 0));
    const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_punch(vl, vl, true);
    for (int k = 0; k < pieces.len(); ++k)
        for (int j = 0; j < pieces[k].len(); ++j) EXPECT_TRUE(isFinite(pieces[k][j].m_end));
    EXPECT_EQ(ZEM::g_vl_measure(vl, 1.0, CZemLineParm(1.0, -1.0)).len(), 1) << "too long a line to lay stays solid";
    vl.removeAt(7);
    EXPECT_EQ(ZEM::g_vl_measure(vl, 1.0, CZemLineParm(1.0, -1.0)).len(), 10) << "the 20 units of good vertices";
}
