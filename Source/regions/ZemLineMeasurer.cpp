#include "ZemLineMeasurer.h"

#include "ZemMeasure.h"
#include "ZemPolyline.h"

namespace {

const double kArcTolerance = 0.1;

}  // namespace

CZemVertexArray CZemLineMeasurer::measure(const CZemVertexArray& vl) const {
    CZemVertexArray out;
    out.setNormal(vl.normal());
    const CZemArrayTempl<CZemVertexArray> runs = zem_g_vl_to_vll(vl);
    for (int r = 0; r < runs.len(); ++r) {
        if (m_mode == 0) {
            out += alongRun(runs[r]);
            continue;
        }
        for (int k = 0; k < runs[r].len(); ++k) out += onVertex(runs[r][k]);
    }
    return out;
}

CZemVertexArray CZemLineMeasurer::alongRun(CZemVertexArray run) const {
    for (int k = 0; k < run.len(); ++k) zem_g_vx_xy(run[k]);
    return dashesOf(run, m_pattern.entries());
}

// The pattern restarts at every vertex and is fitted to it; a vertex not
// longer than one repetition stays solid, its heights kept.
CZemVertexArray CZemLineMeasurer::onVertex(CZemVertex vertex) const {
    CZemArrayTempl<double> fitted;
    if (!m_pattern.fitTo(vertex.bulgLen(), fitted)) return CZemVertexArray(vertex);
    zem_g_vx_xy(vertex);
    const CZemVertexArray one(vertex);
    if (vertex.m_bulge == 0.0) return dashesOf(one, fitted);
    return dashesOf(ZEM::g_vl_expl(one, ZEM::g_vx_split_dif(vertex, kArcTolerance)), fitted);
}

CZemVertexArray CZemLineMeasurer::dashesOf(const CZemVertexArray& line, const CZemArrayTempl<double>& pattern) {
    CZemVertexArray out;
    const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_measure(line, 1.0, CZemLineParm(pattern));
    for (int k = 0; k < pieces.len(); ++k) out += pieces[k];
    return out;
}
