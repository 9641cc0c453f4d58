#include "ZemClip.h"

#include "ZemContour.h"
#include "ZemPlaneView.h"
#include "ZemPolylinePath.h"
#include "ZemPunch.h"

#include <utility>

namespace ZEM {

CZemArrayTempl<CZemVertexArray> g_vl_punch(CZemVertexArray vl, const CZemVertexArray& contour, bool inside) {
    CZemArrayTempl<CZemVertexArray> region;
    region.append(contour);
    return CZemPunch(region).run(vl, inside);
}

CZemArrayTempl<CZemVertexArray> g_vl_punch_reg(CZemVertexArray vl, const CZemArrayTempl<CZemVertexArray>& regl,
                                               bool inside) {
    return CZemPunch(regl).run(vl, inside);
}

CZemVertexArray g_vl_cut(CZemVertexArray vl, const CZemPoint3d& a, const CZemPoint3d& b) {
    const CZemPolylinePath path(vl);
    double from = path.nearestPosition(a), to = path.nearestPosition(b);
    if (from > to) std::swap(from, to);
    return path.stretch(from, to);
}

bool g_vl_pt_inside(const CZemVertexArray& vl, CZemPoint3d p, bool boundaryIn) {
    const CZemPlaneView view(vl);
    return CZemContour(view.planar()).contains(view.toPlane(p), boundaryIn);
}

}  // namespace ZEM
