#include "ZemEdgeTable.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>

CZemEdgeTable::CZemEdgeTable(const CZemArrayTempl<CZemVertexArray>& regions) {
    for (int k = 0; k < regions.len() && m_usable; ++k) addElement(regions[k], k);
    for (size_t k = 0; k < m_x.size(); ++k) m_size = std::max({m_size, std::fabs(m_x[k]), std::fabs(m_y[k])});
    // Ten times the geometry's own tolerance, and room for rounding at large
    // coordinates, where the exact rules and these sums may differ slightly.
    m_guard = 10.0 * ZEM::kDistTol + 1e-12 * m_size;
    m_side.resize(m_x.size());
    m_winding.resize(static_cast<size_t>(regions.len()));
}

void CZemEdgeTable::addElement(const CZemVertexArray& element, int index) {
    const size_t first = m_x.size();
    for (int i = 0; i < element.len(); ++i) {
        const CZemVertex& v = element[i];
        if (v.m_bulge != 0.0 || !std::isfinite(v.m_start.x + v.m_start.y + v.m_end.x + v.m_end.y)) {
            m_usable = false;
            return;
        }
        if (i == 0 || m_x.back() != v.m_start.x || m_y.back() != v.m_start.y) {
            m_x.push_back(v.m_start.x);
            m_y.push_back(v.m_start.y);
        }
        m_x.push_back(v.m_end.x);
        m_y.push_back(v.m_end.y);
    }
    if (m_x.size() > first) m_rings.push_back(Ring{first, m_x.size() - first, index, 0.0, 0.0});
}

// The sides of a ring's corners relative to lines of one direction differ
// only by the line's own offset, so a ring whose range of sides stays clear
// of the line cannot meet it. The ranges are kept for the direction last
// crossed, which the lines of a sweep share.
void CZemEdgeTable::reachFor(double ux, double uy) const {
    if (std::fabs(ux - m_reachUx) + std::fabs(uy - m_reachUy) <= 1e-15) return;
    m_reachUx = ux;
    m_reachUy = uy;
    for (Ring& ring : m_rings) {
        ring.lo = HUGE_VAL;
        ring.hi = -HUGE_VAL;
        for (size_t k = ring.first; k < ring.first + ring.count; ++k) {
            const double side = ux * m_y[k] - uy * m_x[k];
            ring.lo = std::min(ring.lo, side);
            ring.hi = std::max(ring.hi, side);
        }
    }
}

bool CZemEdgeTable::crossLine(const CZemPoint3d& origin, double ux, double uy, std::vector<Crossing>& out) const {
    out.clear();
    reachFor(ux, uy);
    const double offset = ux * origin.y - uy * origin.x;
    const double slack = 2.0 * m_guard + 1e-14 * m_size;
    for (const Ring& ring : m_rings) {
        if (offset < ring.lo - slack || offset > ring.hi + slack) continue;
        for (size_t k = ring.first; k < ring.first + ring.count; ++k) {
            m_side[k] = ux * (m_y[k] - origin.y) - uy * (m_x[k] - origin.x);
            if (std::fabs(m_side[k]) <= m_guard) return false;
        }
        for (size_t i = 0; i < ring.count; ++i) {
            const size_t a = ring.first + i, b = ring.first + (i + 1) % ring.count;
            const double d0 = m_side[a], d1 = m_side[b];
            if ((d0 < 0.0) == (d1 < 0.0)) continue;
            const double t = d0 / (d0 - d1);
            const double px = m_x[a] + t * (m_x[b] - m_x[a]), py = m_y[a] + t * (m_y[b] - m_y[a]);
            out.push_back(Crossing{ux * (px - origin.x) + uy * (py - origin.y), ring.element, d0 < 0.0 ? 1 : -1});
        }
    }
    std::sort(out.begin(), out.end(), [](const Crossing& a, const Crossing& b) { return a.at < b.at; });
    for (size_t k = 1; k < out.size(); ++k) {
        if (out[k].at - out[k - 1].at <= m_guard) return false;
    }
    return true;
}

bool CZemEdgeTable::insideContour(const std::vector<Crossing>& crossings, double at) {
    int winding = 0;
    for (const Crossing& c : crossings) {
        if (c.element == 0 && c.at > at) winding += c.turn;
    }
    return winding != 0;
}

bool CZemEdgeTable::insideRegion(const std::vector<Crossing>& crossings, double at, bool& sure) const {
    std::fill(m_winding.begin(), m_winding.end(), 0);
    sure = true;
    for (const Crossing& c : crossings) {
        if (std::fabs(c.at - at) <= m_guard) sure = false;
        if (c.at > at) m_winding[static_cast<size_t>(c.element)] += c.turn;
    }
    if (m_winding.empty() || m_winding[0] == 0) return false;
    for (size_t k = 1; k < m_winding.size(); ++k) {
        if (m_winding[k] != 0) return false;
    }
    return true;
}
