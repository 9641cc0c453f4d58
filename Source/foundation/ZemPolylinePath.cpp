#include "ZemPolylinePath.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>

CZemPolylinePath::CZemPolylinePath(const CZemVertexArray& vl) : m_view(vl) {
    m_lengths.push_back(0.0);
    for (int i = 0; i < vl.len(); ++i) {
        m_arcs.emplace_back(m_view.planar()[i]);
        const double length = m_arcs.back().isFinite() ? m_arcs.back().length() : 0.0;
        m_lengths.push_back(m_lengths.back() + length);
    }
}

double CZemPolylinePath::positionAt(double s) const {
    if (m_arcs.empty()) return 0.0;
    const auto above = std::upper_bound(m_lengths.begin(), m_lengths.end() - 1, s);
    const int index = above == m_lengths.begin() ? 0 : static_cast<int>(above - m_lengths.begin()) - 1;
    const double length = m_lengths[static_cast<size_t>(index) + 1] - m_lengths[static_cast<size_t>(index)];
    const double t = length > 0.0 ? (s - m_lengths[static_cast<size_t>(index)]) / length : 0.0;
    return index + std::min(1.0, std::max(0.0, t));
}

double CZemPolylinePath::nearestPosition(const CZemPoint3d& p) const {
    const CZemPoint3d q = m_view.toPlane(p);
    double best = 0.0, bestDistance = INFINITY;
    for (size_t i = 0; i < m_arcs.size(); ++i) {
        if (!m_arcs[i].isFinite()) continue;
        const double t = m_arcs[i].nearestParam(q);
        const CZemPoint3d on = m_arcs[i].pointAt(t);
        const double d = std::hypot(on.x - q.x, on.y - q.y);
        if (d < bestDistance) {
            bestDistance = d;
            best = static_cast<double>(i) + t;
        }
    }
    return best;
}

void CZemPolylinePath::split(double position, int& index, double& t) const {
    const int last = count() - 1;
    const double whole = std::floor(position);
    index = !(whole > 0.0) ? 0 : (whole >= last ? last : static_cast<int>(whole));
    t = std::min(1.0, std::max(0.0, position - index));
    if (std::isnan(t)) t = 0.0;
}

CZemPoint3d CZemPolylinePath::pointAt(double position) const {
    if (m_arcs.empty()) return CZemPoint3d::kOrigin;
    int index;
    double t;
    split(position, index, t);
    return m_view.toWorld(m_arcs[static_cast<size_t>(index)].pointAt(t));
}

CZemVertexArray CZemPolylinePath::stretch(double g0, double g1) const {
    CZemVertexArray out;
    if (!m_arcs.empty()) {
        int i0, i1;
        double t0, t1;
        split(g0, i0, t0);
        split(g1, i1, t1);
        for (int i = i0; i <= i1; ++i) {
            const CZemArc& arc = m_arcs[static_cast<size_t>(i)];
            const double from = i == i0 ? t0 : 0.0, to = i == i1 ? t1 : 1.0;
            if (!arc.isFinite() || (to - from) * arc.length() <= ZEM::kDistTol) continue;
            out.append(arc.piece(from, to));
        }
    }
    m_view.toWorld(out);
    if (m_view.isWorld()) out.setNormal(m_view.planar().normal());
    return out;
}
