#include "ZemClip.h"
#include "ZemMatrix3d.h"
#include "ZemMeasure.h"
#include "ZemPolyline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

const double kInf = std::numeric_limits<double>::infinity();

bool isFinite(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

// A list with every kind of trouble between two good vertices.
CZemVertexArray troubled() {
    CZemVertexArray vl;
    vl.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(10, 0, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(10, 0, 0), CZemPoint3d(10, 0, 0), 1.0));        // zero length with a bulge
    vl.append(CZemVertex(CZemPoint3d(10, 0, 0), CZemPoint3d(std::nan(""), 5, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(kInf, 5, 0), CZemPoint3d(10, 5, 0), 0.5));
    vl.append(CZemVertex(CZemPoint3d(10, 5, 0), CZemPoint3d(10, 10, 0), 1e300));    // all but a full circle
    vl.append(CZemVertex(CZemPoint3d(10, 10, 0), CZemPoint3d(0, 10, 0), 1e-300));   // as good as straight
    vl.append(CZemVertex(CZemPoint3d(0, 10, 0), CZemPoint3d(0, 0, 0), std::nan("")));
    vl.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(1e300, 1e300, 0), 0.3));
    return vl;
}

}  // namespace

TEST(GeometryBadInput, EveryOperationGivesADefinedResult) {
    const CZemVertexArray vl = troubled();
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
    ZEM::g_vl_cut(vl, CZemPoint3d(5, 0, 0), CZemPoint3d(std::nan(""), 0, 0));
    const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_punch(vl, vl, true);
    for (int k = 0; k < pieces.len(); ++k) {
        for (int j = 0; j < pieces[k].len(); ++j) EXPECT_TRUE(isFinite(pieces[k][j].m_end));
    }
    EXPECT_EQ(ZEM::g_vl_measure(vl, 1.0, CZemLineParm(1.0, -1.0)).len(), 1) << "too long a line to lay stays solid";
    CZemVertexArray shorter = vl;
    shorter.removeAt(7);
    EXPECT_EQ(ZEM::g_vl_measure(shorter, 1.0, CZemLineParm(1.0, -1.0)).len(), 10) << "the 20 units of good vertices";
}
