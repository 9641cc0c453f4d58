#include "ZemIntersector.h"

#include "ZemArc.h"
#include "ZemContour.h"
#include "ZemGeomTolerance.h"
#include "ZemLineCrossing.h"
#include "ZemSegmentMeet.h"

#include <algorithm>

CZemIntersector::CZemIntersector(const CZemVertexArray& first, const CZemVertexArray& other)
    : m_first(first), m_other(other, first.normal()) {}

CZemPoint3dArray CZemIntersector::allMeets() const {
    Found found;
    for (int i = 0; i < m_first.planar().len(); ++i) vertexMeets(i, found);
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    CZemPoint3dArray out;
    for (const auto& f : found) appendDistinct(out, f.second);
    return out;
}

CZemPoint3dArray CZemIntersector::lineCrossings() const {
    const CZemContour contour(m_other.planar());
    CZemPoint3dArray out;
    for (int i = 0; i < m_first.planar().len(); ++i) {
        const CZemVertex& v = m_first.planar()[i];
        const CZemArc flat = CZemSegmentMeet::flatArc(v);
        if (!flat.isFinite()) continue;
        if (flat.isArc() || flat.isPoint()) {
            Found found;
            vertexMeets(i, found);
            std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
            for (const auto& f : found) appendDistinct(out, f.second);
            continue;
        }
        const CZemArc line(v);
        for (const double t : CZemLineCrossing(flat).crossings(contour)) appendDistinct(out, line.pointAt(t));
    }
    return out;
}

void CZemIntersector::vertexMeets(int i, Found& found) const {
    const CZemVertex& v = m_first.planar()[i];
    const CZemArc flat = CZemSegmentMeet::flatArc(v);
    if (!flat.isFinite()) return;
    const CZemArc withHeight(v);
    const CZemContour::Box reach = CZemContour::boxOf(flat);
    const CZemVertexArray& other = m_other.planar();
    for (int j = 0; j < other.len(); ++j) {
        const CZemArc seg = CZemSegmentMeet::flatArc(other[j]);
        if (!seg.isFinite() || !CZemContour::boxOf(seg).overlaps(reach)) continue;
        const CZemSegmentMeet meet(flat, seg);
        for (int k = 0; k < meet.count(); ++k) found.emplace_back(i + meet[k].ta, withHeight.pointAt(meet[k].ta));
    }
}

void CZemIntersector::appendDistinct(CZemPoint3dArray& out, const CZemPoint3d& planarPoint) const {
    const CZemPoint3d p = m_first.toWorld(planarPoint);
    if (out.indexOf(p) < 0) out.append(p);
}
