#include "ZemMeasure.h"

#include "ZemGeomTolerance.h"
#include "ZemPolylinePath.h"

#include <cmath>
#include <vector>

namespace {

// The scaled entries, and the length one repetition lays; 0 for a pattern
// that lays none or holds an entry that is not finite.
double scaledPattern(const CZemLineParm& parm, double factor, std::vector<double>& entries) {
    double period = 0.0;
    for (int k = 0; k < parm.entries().len(); ++k) {
        const double e = parm.entries()[k] * std::fabs(factor);
        if (!std::isfinite(e)) return 0.0;
        entries.push_back(e);
        period += std::fabs(e);
    }
    return std::isfinite(period) ? period : 0.0;
}

int piecesPerPeriod(const std::vector<double>& entries) {
    int count = 0;
    for (const double e : entries) count += e >= 0.0;
    return count;
}

CZemVertexArray dotAt(const CZemPoint3d& p, const CZemVector3d& normal) {
    CZemVertexArray dot(CZemVertex(p, p, 0.0));
    dot.setNormal(normal);
    return dot;
}

}  // namespace

namespace ZEM {

CZemArrayTempl<CZemVertexArray> g_vl_measure(CZemVertexArray vl, double factor, CZemLineParm parm) {
    CZemArrayTempl<CZemVertexArray> pieces;
    if (vl.len() == 0) return pieces;
    std::vector<double> entries;
    const double period = scaledPattern(parm, factor, entries);
    const CZemPolylinePath path(vl);
    const double total = path.length();
    const double estimate = std::ceil(total / period) * piecesPerPeriod(entries);
    if (!(period > kDistTol) || !(total > 0.0) || !(estimate <= kMaxMeasurePieces)) {
        pieces.append(vl);
        return pieces;
    }
    // Every repetition advances by the period, so the walk ends; a place
    // within ZEM::kDistTol of the end counts as the end.
    double at = 0.0;
    for (size_t k = 0; at <= total + kDistTol; k = (k + 1) % entries.size()) {
        const double e = entries[k];
        if (e > 0.0 && at < total - kDistTol) {
            const double to = at + e < total ? at + e : total;
            const CZemVertexArray dash = path.stretch(path.positionAt(at), path.positionAt(to));
            if (dash.len() > 0) pieces.append(dash);
        } else if (e == 0.0) {
            pieces.append(dotAt(path.pointAt(path.positionAt(at)), vl.normal()));
        }
        at += std::fabs(e);
    }
    return pieces;
}

}  // namespace ZEM
