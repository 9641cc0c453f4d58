#include "ZemLineCrossing.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>

CZemLineCrossing::CZemLineCrossing(const CZemArc& line) : m_origin(line.start()) {
    const double dx = line.end().x - line.start().x, dy = line.end().y - line.start().y;
    m_length = std::hypot(dx, dy);
    if (m_length > 0.0) {
        m_ux = dx / m_length;
        m_uy = dy / m_length;
    }
}

double CZemLineCrossing::side(const CZemPoint3d& p) const {
    return m_ux * (p.y - m_origin.y) - m_uy * (p.x - m_origin.x);
}

double CZemLineCrossing::along(const CZemPoint3d& p) const {
    return m_ux * (p.x - m_origin.x) + m_uy * (p.y - m_origin.y);
}

bool CZemLineCrossing::leftOrOn(double d) const { return d >= -ZEM::kDistTol; }

// Passes of the whole contour are gathered as places along the line; passes
// that fall on one place (a vertex touching the line, a tangent arc) come in
// pairs there and cancel, so what is left alternates between outside and
// inside along the line.
std::vector<double> CZemLineCrossing::crossings(const CZemContour& contour) const {
    std::vector<double> result;
    if (!(m_length > ZEM::kDistTol)) return result;
    std::vector<double> passes;
    const CZemContour::Box reach{std::min(m_origin.x, m_origin.x + m_ux * m_length) - ZEM::kDistTol,
                                 std::min(m_origin.y, m_origin.y + m_uy * m_length) - ZEM::kDistTol,
                                 std::max(m_origin.x, m_origin.x + m_ux * m_length) + ZEM::kDistTol,
                                 std::max(m_origin.y, m_origin.y + m_uy * m_length) + ZEM::kDistTol};
    for (int i = 0; i < contour.count(); ++i) {
        if (contour.box(i).overlaps(reach)) addSegment(contour.segment(i), passes);
    }
    std::sort(passes.begin(), passes.end());
    size_t k = 0;
    while (k < passes.size()) {
        size_t end = k + 1;
        while (end < passes.size() && passes[end] - passes[end - 1] <= ZEM::kDistTol) ++end;
        const double s = passes[k];
        if ((end - k) % 2 == 1 && s >= -ZEM::kDistTol && s <= m_length + ZEM::kDistTol) {
            result.push_back(std::min(1.0, std::max(0.0, s / m_length)));
        }
        k = end;
    }
    return result;
}

// The segment is cut at its points on the line (roots) into stretches that
// keep to one side; a pass is recorded at every key point (an end or a root)
// where the side changes between the key and the stretch beside it.
void CZemLineCrossing::addSegment(const CZemArc& seg, std::vector<double>& passes) const {
    std::vector<Key> keys{{0.0, false}};
    if (seg.isArc()) {
        addArcRoots(seg, keys);
    } else {
        const double d0 = side(seg.start()), d1 = side(seg.end());
        if ((d0 < -ZEM::kDistTol && d1 > ZEM::kDistTol) || (d0 > ZEM::kDistTol && d1 < -ZEM::kDistTol)) {
            keys.push_back(Key{d0 / (d0 - d1), true});
        }
    }
    keys.push_back(Key{1.0, false});
    std::sort(keys.begin(), keys.end(), [](const Key& a, const Key& b) { return a.t < b.t; });
    auto keySide = [&](const Key& key) { return key.root || leftOrOn(side(seg.pointAt(key.t))); };
    for (size_t k = 0; k + 1 < keys.size(); ++k) {
        const bool stretch = leftOrOn(side(seg.pointAt(0.5 * (keys[k].t + keys[k + 1].t))));
        if (keySide(keys[k]) != stretch) passes.push_back(along(seg.pointAt(keys[k].t)));
        if (keySide(keys[k + 1]) != stretch) passes.push_back(along(seg.pointAt(keys[k + 1].t)));
    }
}

void CZemLineCrossing::addArcRoots(const CZemArc& arc, std::vector<Key>& keys) const {
    const double h = side(arc.center());
    const double r = arc.radius();
    if (std::fabs(h) > r + ZEM::kDistTol) return;
    const double foot = along(arc.center());
    const double w = std::fabs(h) >= r - ZEM::kDistTol ? 0.0 : std::sqrt((r - h) * (r + h));
    const double tEnd = ZEM::kDistTol / arc.length();
    for (const double s : {foot - w, foot + w}) {
        const double x = m_origin.x + s * m_ux, y = m_origin.y + s * m_uy;
        const double t = arc.paramOfAngle(std::atan2(y - arc.center().y, x - arc.center().x), 0.0);
        if (t > tEnd && t < 1.0 - tEnd) keys.push_back(Key{t, true});
        if (w == 0.0) break;
    }
}
