#include "ZemEdgeTable.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>

CZemEdgeTable::CZemEdgeTable(const CZemArrayTempl<CZemVertexArray>& regions) {
    size_t corners = 0;
    for (int k = 0; k < regions.len(); ++k) corners += 2 * static_cast<size_t>(regions[k].len());
    m_x.reserve(corners);
    m_y.reserve(corners);
    for (int k = 0; k < regions.len() && m_usable; ++k) addElement(regions[k], k);
    for (size_t k = 0; k < m_x.size(); ++k) m_size = std::max({m_size, std::fabs(m_x[k]), std::fabs(m_y[k])});
    // Ten times the geometry's own tolerance, and room for rounding at large
    // coordinates, where the exact rules and these sums may differ slightly.
    m_guard = 10.0 * ZEM::kDistTol + 1e-12 * m_size;
    m_across.resize(m_x.size());
    m_along.resize(m_x.size());
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
    // A closed element ends on its first corner, which the ring joins anyway.
    if (m_x.size() > first + 1 && m_x.back() == m_x[first] && m_y.back() == m_y[first]) {
        m_x.pop_back();
        m_y.pop_back();
    }
    if (m_x.size() > first) m_rings.push_back(Ring{first, m_x.size() - first, index, 0.0, 0.0});
}

// Lines of one direction see each corner at a fixed place: its side of the
// line differs from line to line only by the line's own offset, and so does
// its reach along the line. Both are worked out once per direction, with the
// range of sides of each ring, so that a ring whose range stays clear of a
// line is passed over. They are kept for the direction last crossed, which
// the lines of a sweep share up to rounding; what a direction that close
// moves a place by stays far inside the guard distance.
void CZemEdgeTable::projectFor(double ux, double uy) const {
    if (std::fabs(ux - m_projectedUx) + std::fabs(uy - m_projectedUy) <= 1e-15) return;
    m_projectedUx = ux;
    m_projectedUy = uy;
    for (Ring& ring : m_rings) {
        ring.lo = HUGE_VAL;
        ring.hi = -HUGE_VAL;
        for (size_t k = ring.first; k < ring.first + ring.count; ++k) {
            m_across[k] = ux * m_y[k] - uy * m_x[k];
            m_along[k] = ux * m_x[k] + uy * m_y[k];
            ring.lo = std::min(ring.lo, m_across[k]);
            ring.hi = std::max(ring.hi, m_across[k]);
        }
    }
}

bool CZemEdgeTable::crossLine(const CZemPoint3d& origin, double ux, double uy, std::vector<Crossing>& out) const {
    out.clear();
    projectFor(ux, uy);
    const double offset = ux * origin.y - uy * origin.x, reach = ux * origin.x + uy * origin.y;
    const double slack = 2.0 * m_guard + 1e-14 * m_size;
    for (const Ring& ring : m_rings) {
        if (offset < ring.lo - slack || offset > ring.hi + slack) continue;
        const size_t last = ring.first + ring.count - 1;
        double d0 = m_across[last] - offset;
        for (size_t a = last, b = ring.first; b <= last; a = b++) {
            const double d1 = m_across[b] - offset;
            if (std::fabs(d1) <= m_guard) return false;
            if ((d0 < 0.0) != (d1 < 0.0)) {
                const double t = d0 / (d0 - d1);
                out.push_back(Crossing{m_along[a] + t * (m_along[b] - m_along[a]) - reach, ring.element,
                                       d0 < 0.0 ? 1 : -1});
            }
            d0 = d1;
        }
    }
    sortByPlace(out);
    for (size_t k = 1; k < out.size(); ++k) {
        if (out[k].at - out[k - 1].at <= m_guard) return false;
    }
    return true;
}

// A line meets a handful of edges, for which insertion is the quickest sort.
void CZemEdgeTable::sortByPlace(std::vector<Crossing>& crossings) {
    for (size_t k = 1; k < crossings.size(); ++k) {
        const Crossing c = crossings[k];
        size_t j = k;
        for (; j > 0 && crossings[j - 1].at > c.at; --j) crossings[j] = crossings[j - 1];
        crossings[j] = c;
    }
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
