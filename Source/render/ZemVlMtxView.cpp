#include "ZemVlMtxView.h"

#include "ZemPolyline.h"
#include "ZemViewMatrix.h"

CZemVertexArray zem_g_vl_mtx_view(const CZemVertexArray& vl, CZemVector3d direction, CZemPoint3d point, bool flag)
{
    CZemVertexArray out = vl.getTransformedCopy(ZEM::g_mtx_view(direction, point, flag));
    for (int k = 0; k < out.len(); ++k) zem_g_vx_xy(out[k]);
    return out;
}
