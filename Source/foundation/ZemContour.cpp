#include "ZemContour.h"

#include "ZemGeomTolerance.h"
#include "ZemSegmentMeet.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

bool meets(const CZemPoint3d& a, const CZemPoint3d& b) { return std::hypot(a.x - b.x, a.y - b.y) <= ZEM::kDistTol; }

// Above zero when p lies left of the line from a to b.
double isLeft(const CZemPoint3d& a, const CZemPoint3d& b, const CZemPoint3d& p) {
    return (b.x - a.x) * (p.y - a.y) - (p.x - a.x) * (b.y - a.y);
}

// The winding share of a straight edge about p, counted where the edge
// passes the horizontal ray from p to +x; an end at the ray's height counts
// as above it, so an edge that only touches the ray counts nothing.
int lineWinding(const CZemPoint3d& a, const CZemPoint3d& b, const CZemPoint3d& p) {
    if (a.y <= p.y) return (b.y > p.y && isLeft(a, b, p) > 0.0) ? 1 : 0;
    return (b.y <= p.y && isLeft(a, b, p) < 0.0) ? -1 : 0;
}

}  // namespace

bool CZemContour::Box::overlaps(const Box& other) const {
    return x0 <= other.x1 && other.x0 <= x1 && y0 <= other.y1 && other.y0 <= y1;
}

CZemContour::Box CZemContour::boxOf(const CZemArc& arc) {
    CZemPoint3d lo, hi;
    arc.bounds(lo, hi);
    return Box{lo.x - ZEM::kDistTol, lo.y - ZEM::kDistTol, hi.x + ZEM::kDistTol, hi.y + ZEM::kDistTol};
}

CZemContour::CZemContour(const CZemVertexArray& planar) {
    std::vector<CZemArc> arcs;
    arcs.reserve(static_cast<size_t>(planar.len()));
    m_segments.reserve(2 * arcs.capacity());
    m_boxes.reserve(2 * arcs.capacity());
    for (int i = 0; i < planar.len(); ++i) {
        const CZemArc arc = CZemSegmentMeet::flatArc(planar[i]);
        if (arc.isFinite() && !arc.isPoint()) arcs.push_back(arc);
    }
    for (size_t i = 0; i < arcs.size(); ++i) {
        add(arcs[i]);
        const CZemArc& next = arcs[(i + 1) % arcs.size()];
        if (!meets(arcs[i].end(), next.start())) add(CZemArc(CZemVertex(arcs[i].end(), next.start(), 0.0)));
    }
}

void CZemContour::add(const CZemArc& arc) {
    const Box b = boxOf(arc);
    if (m_segments.empty()) m_bounds = b;
    m_bounds = Box{std::min(m_bounds.x0, b.x0), std::min(m_bounds.y0, b.y0), std::max(m_bounds.x1, b.x1),
                   std::max(m_bounds.y1, b.y1)};
    m_segments.push_back(arc);
    m_boxes.push_back(b);
}

bool CZemContour::onBoundary(const CZemPoint3d& p) const {
    const CZemPoint3d flat(p.x, p.y, 0.0);
    const Box at{p.x, p.y, p.x, p.y};
    if (!m_bounds.overlaps(at)) return false;
    for (size_t i = 0; i < m_segments.size(); ++i) {
        if (!m_boxes[i].overlaps(at)) continue;
        const CZemArc& s = m_segments[i];
        if (s.pointAt(s.nearestParam(flat)).distanceTo(flat) <= ZEM::kDistTol) return true;
    }
    return false;
}

int CZemContour::winding(const CZemPoint3d& p) const {
    int w = 0;
    for (size_t i = 0; i < m_segments.size(); ++i) {
        const Box& b = m_boxes[i];
        if (p.y < b.y0 || p.y > b.y1 || p.x > b.x1) continue;
        const CZemArc& s = m_segments[i];
        w += s.isArc() ? arcWinding(s, p) : lineWinding(s.start(), s.end(), p);
    }
    return w;
}

// An arc is cut where it turns in height (at the top and the bottom of its
// circle) into pieces that rise or fall throughout; each piece is counted
// like a straight edge, with its crossing of the ray's height on the circle.
int CZemContour::arcWinding(const CZemArc& arc, const CZemPoint3d& p) const {
    double cuts[4] = {0.0, 0.0, 0.0, 1.0};
    int n = 1;
    for (const double angle : {1.5707963267948966, 4.71238898038469}) {
        const double t = arc.paramOfAngle(angle, 0.0);
        if (t > 0.0 && t < 1.0) cuts[n++] = t;
    }
    if (n == 3 && cuts[2] < cuts[1]) std::swap(cuts[1], cuts[2]);
    cuts[n] = 1.0;
    int w = 0;
    CZemPoint3d a = arc.start();
    for (int k = 0; k < n; ++k) {
        const CZemPoint3d b = arc.pointAt(cuts[k + 1]);
        const bool up = a.y <= p.y && b.y > p.y;
        const bool down = b.y <= p.y && a.y > p.y;
        if (up || down) {
            const double dy = p.y - arc.center().y;
            const double half = std::sqrt(std::max(0.0, arc.radius() * arc.radius() - dy * dy));
            const double midAngle = arc.startAngle() + 0.5 * (cuts[k] + cuts[k + 1]) * arc.sweep();
            const double x = arc.center().x + (std::cos(midAngle) > 0.0 ? half : -half);
            if (x > p.x) w += up ? 1 : -1;
        }
        a = b;
    }
    return w;
}

bool CZemContour::contains(const CZemPoint3d& p, bool boundaryIn) const {
    if (m_segments.empty()) return false;
    if (onBoundary(p)) return boundaryIn;
    return winding(p) != 0;
}

void CZemContour::cutParams(const CZemArc& seg, std::vector<double>& params) const {
    const Box b = boxOf(seg);
    if (!m_bounds.overlaps(b)) return;
    for (size_t i = 0; i < m_segments.size(); ++i) {
        if (!m_boxes[i].overlaps(b)) continue;
        const CZemSegmentMeet meet(seg, m_segments[i]);
        for (int k = 0; k < meet.count(); ++k) params.push_back(meet[k].ta);
    }
}
