#include "ZemRegScan.h"

#include "ZemClip.h"

#include <algorithm>
#include <cmath>

CZemArrayTempl<CZemVertexArray> regScanLines(const CZemArrayTempl<CZemVertexArray>& regl) {
    const double kRowLimit = 1048576.0;
    CZemArrayTempl<CZemVertexArray> lines;
    CZemPoint3d lo, hi;
    regl[0].extents(lo, hi);
    if (!std::isfinite(lo.x) || !std::isfinite(lo.y) || !std::isfinite(hi.x) || !std::isfinite(hi.y)) return lines;
    const double top = std::min(hi.y, kRowLimit);
    for (double y = std::max(std::trunc(lo.y), -kRowLimit); top > y; y += 1.0) {
        const CZemVertexArray row(CZemVertex(CZemPoint3d(lo.x, y, 0.0), CZemPoint3d(hi.x, y, 0.0), 0.0));
        const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_punch_reg(row, regl, true);
        for (int k = 0; k < pieces.len(); ++k) lines.append(pieces[k]);
    }
    return lines;
}
