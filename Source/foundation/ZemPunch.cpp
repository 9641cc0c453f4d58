#include "ZemPunch.h"

#include "ZemGeomTolerance.h"
#include "ZemPlaneView.h"
#include "ZemSegmentMeet.h"

#include <algorithm>

namespace {

bool meets(const CZemPoint3d& a, const CZemPoint3d& b) { return a.distanceTo(b) <= ZEM::kDistTol; }

}  // namespace

CZemPunch::CZemPunch(const CZemArrayTempl<CZemVertexArray>& region) {
    if (region.len() == 0) return;
    m_normal = region[0].normal();
    for (int k = 0; k < region.len(); ++k) {
        const CZemPlaneView view(region[k], m_normal);
        m_rings.emplace_back(view.planar());
    }
}

bool CZemPunch::isInside(const CZemPoint3d& planarPoint) const {
    if (m_rings.empty() || !m_rings[0].contains(planarPoint, true)) return false;
    for (size_t k = 1; k < m_rings.size(); ++k) {
        if (m_rings[k].contains(planarPoint, true)) return false;
    }
    return true;
}

// The parameters where the vertex meets any ring, from 0 to 1, with places
// closer than ZEM::kDistTol along the vertex taken as one.
std::vector<double> CZemPunch::cuts(const CZemArc& flat) const {
    std::vector<double> found;
    for (const CZemContour& ring : m_rings) ring.cutParams(flat, found);
    std::sort(found.begin(), found.end());
    const double eps = ZEM::kDistTol / flat.length();
    std::vector<double> params{0.0};
    for (const double t : found) {
        if (t - params.back() > eps && 1.0 - t > eps) params.push_back(t);
    }
    params.push_back(1.0);
    return params;
}

// Each vertex is cut where it meets a ring; every stretch between two cuts
// lies wholly inside or outside, which its middle point tells.
CZemArrayTempl<CZemVertexArray> CZemPunch::run(const CZemVertexArray& vl, bool inside) const {
    const CZemPlaneView view(vl, m_normal);
    const CZemVertexArray& planar = view.planar();
    std::vector<CZemVertexArray> pieces;
    bool open = false;
    for (int i = 0; i < planar.len(); ++i) {
        const CZemArc flat = CZemSegmentMeet::flatArc(planar[i]);
        if (!flat.isFinite()) open = false;
        if (!flat.isFinite() || flat.isPoint()) continue;
        if (open && !meets(pieces.back()[-1].m_end, planar[i].m_start)) open = false;
        const CZemArc full(planar[i]);
        const std::vector<double> params = cuts(flat);
        for (size_t k = 0; k + 1 < params.size(); ++k) {
            if (isInside(flat.pointAt(0.5 * (params[k] + params[k + 1]))) != inside) {
                open = false;
                continue;
            }
            if (!open) pieces.emplace_back();
            pieces.back().append(full.piece(params[k], params[k + 1]));
            open = true;
        }
    }
    if (vl.isClosed()) joinOverStart(planar, pieces);
    CZemArrayTempl<CZemVertexArray> out;
    for (CZemVertexArray& piece : pieces) {
        view.toWorld(piece);
        if (view.isWorld()) piece.setNormal(vl.normal());
        out.append(piece);
    }
    return out;
}

void CZemPunch::joinOverStart(const CZemVertexArray& planar, std::vector<CZemVertexArray>& pieces) {
    if (pieces.size() < 2) return;
    const CZemVertexArray& first = pieces.front();
    const CZemVertexArray& last = pieces.back();
    if (!meets(first[0].m_start, planar[0].m_start) || !meets(last[-1].m_end, first[0].m_start)) return;
    pieces.back() += first;
    pieces.erase(pieces.begin());
}
