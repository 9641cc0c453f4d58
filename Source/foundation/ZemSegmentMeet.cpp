#include "ZemSegmentMeet.h"

#include "ZemGeomTolerance.h"

#include <cmath>

CZemArc CZemSegmentMeet::flatArc(const CZemVertex& vertex) {
    CZemVertex flat(vertex);
    flat.m_start.z = 0.0;
    flat.m_end.z = 0.0;
    return CZemArc(flat);
}

// Every place where the two meet is an end of one of them (touching ends and
// the ends of shared stretches) or a crossing of their lines and circles;
// each candidate counts when it lies on both, so doubtful solutions of nearly
// parallel lines or nearly tangent circles fall away by themselves.
CZemSegmentMeet::CZemSegmentMeet(const CZemArc& a, const CZemArc& b) : m_a(a), m_b(b) {
    if (!a.isFinite() || !b.isFinite()) return;
    addCandidate(a.start().x, a.start().y);
    addCandidate(a.end().x, a.end().y);
    addCandidate(b.start().x, b.start().y);
    addCandidate(b.end().x, b.end().y);
    if (a.isPoint() || b.isPoint()) return;
    if (!a.isArc() && !b.isArc()) addLineLine();
    else if (!a.isArc()) addLineCircle(a, b);
    else if (!b.isArc()) addLineCircle(b, a);
    else addCircleCircle();
}

void CZemSegmentMeet::addLineLine() {
    const double rx = m_a.end().x - m_a.start().x, ry = m_a.end().y - m_a.start().y;
    const double sx = m_b.end().x - m_b.start().x, sy = m_b.end().y - m_b.start().y;
    const double den = rx * sy - ry * sx;
    if (std::fabs(den) <= ZEM::kParallelTol * std::hypot(rx, ry) * std::hypot(sx, sy)) return;
    const double qx = m_b.start().x - m_a.start().x, qy = m_b.start().y - m_a.start().y;
    const double t = (qx * sy - qy * sx) / den;
    addCandidate(m_a.start().x + t * rx, m_a.start().y + t * ry);
}

void CZemSegmentMeet::addLineCircle(const CZemArc& line, const CZemArc& circle) {
    const double rx = line.end().x - line.start().x, ry = line.end().y - line.start().y;
    const double length = std::hypot(rx, ry);
    const double ux = rx / length, uy = ry / length;
    const double cx = circle.center().x - line.start().x, cy = circle.center().y - line.start().y;
    const double foot = cx * ux + cy * uy;
    const double h = std::fabs(ux * cy - uy * cx);
    const double r = circle.radius();
    if (h > r + ZEM::kDistTol) return;
    const double px = line.start().x + foot * ux, py = line.start().y + foot * uy;
    if (h >= r - ZEM::kDistTol) {
        addCandidate(px, py);
        return;
    }
    const double w = std::sqrt((r - h) * (r + h));
    addCandidate(px - w * ux, py - w * uy);
    addCandidate(px + w * ux, py + w * uy);
}

void CZemSegmentMeet::addCircleCircle() {
    const double dx = m_b.center().x - m_a.center().x, dy = m_b.center().y - m_a.center().y;
    const double d = std::hypot(dx, dy);
    const double r1 = m_a.radius(), r2 = m_b.radius();
    if (d <= ZEM::kDistTol) return;
    if (d > r1 + r2 + ZEM::kDistTol || d < std::fabs(r1 - r2) - ZEM::kDistTol) return;
    const double ux = dx / d, uy = dy / d;
    double along = (d * d + r1 * r1 - r2 * r2) / (2.0 * d);
    along = along > r1 ? r1 : (along < -r1 ? -r1 : along);
    const double px = m_a.center().x + along * ux, py = m_a.center().y + along * uy;
    const double h = std::sqrt((r1 - along) * (r1 + along));
    if (d >= r1 + r2 - ZEM::kDistTol || d <= std::fabs(r1 - r2) + ZEM::kDistTol || h <= ZEM::kDistTol) {
        addCandidate(px, py);
        return;
    }
    addCandidate(px - h * uy, py + h * ux);
    addCandidate(px + h * uy, py - h * ux);
}

void CZemSegmentMeet::addCandidate(double x, double y) {
    const CZemPoint3d p(x, y, 0.0);
    const double ta = m_a.nearestParam(p);
    const CZemPoint3d onA = m_a.pointAt(ta);
    if (!(onA.distanceTo(p) <= ZEM::kDistTol)) return;
    const double tb = m_b.nearestParam(p);
    if (!(m_b.pointAt(tb).distanceTo(p) <= ZEM::kDistTol)) return;
    for (int k = 0; k < m_count; ++k) {
        if (m_a.pointAt(m_hits[k].ta).distanceTo(onA) <= ZEM::kDistTol) return;
    }
    m_hits[m_count++] = Hit{ta, tb};
}
