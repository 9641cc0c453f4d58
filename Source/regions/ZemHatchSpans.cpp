#include "ZemHatchSpans.h"

#include "ZemClip.h"
#include "ZemPlaneView.h"
#include "ZemPoint3dArray.h"

#include <algorithm>
#include <cmath>

namespace {

// Offsets along a straight line, to find the dashes near a span quickly.
class CLineAxis {
public:
    explicit CLineAxis(const CZemVertex& line) : m_origin(line.m_start), m_dir(line.m_end - line.m_start) {
        m_dir.normalize();
        const double size = std::max({std::fabs(line.m_start.x), std::fabs(line.m_start.y), std::fabs(line.m_end.x),
                                      std::fabs(line.m_end.y)});
        m_margin = 1e-6 * (1.0 + size);
    }
    double at(const CZemPoint3d& p) const { return (p - m_origin).dotProduct(m_dir); }
    // Widening that surely covers what the vertices count as on them.
    double margin() const { return m_margin; }

private:
    CZemPoint3d m_origin;
    CZemVector3d m_dir;
    double m_margin = 0.0;
};

}  // namespace

CZemVertexArray CZemHatchSpans::spansOf(const CZemVertexArray& q) const {
    CZemPoint3dArray crossings;
    for (int k = 0; k < m_regions.len(); ++k) {
        const CZemPoint3dArray hits = q.intersectWith(m_regions[k], 3);
        for (int h = 0; h < hits.len(); ++h) {
            if (crossings.indexOf(hits[h]) < 0) crossings.append(hits[h]);
        }
    }
    CZemVertexArray spans;
    // An odd count (a tangent point, or a vertex met once) loses the whole
    // line: the pairing below would be out of step everywhere on it.
    if (crossings.len() % 2 != 0) return spans;
    crossings.sort(q[0].m_start - q[0].m_end);
    for (int k = 0; k + 1 < crossings.len(); k += 2) spans.append(CZemVertex(crossings[k], crossings[k + 1], 0.0));
    return spans;
}

CZemVertexArray CZemHatchSpans::clip(const CZemVertexArray& dashes, const CZemVertexArray& spans,
                                     const CZemVertexArray& q) const {
    CZemVertexArray pieces;
    if (dashes.isEmpty()) return pieces;
    const CLineAxis axis(q[0]);
    for (int s = 0; s < spans.len(); ++s) {
        const CZemVertex& span = spans[s];
        const double lo = std::min(axis.at(span.m_start), axis.at(span.m_end)) - axis.margin();
        const double hi = std::max(axis.at(span.m_start), axis.at(span.m_end)) + axis.margin();
        // Dashes run in order along q; only those that reach the span can
        // touch it, the others meet none of the cases below.
        int first = 0, count = dashes.len();
        while (count > 0) {
            const int half = count / 2;
            if (axis.at(dashes[first + half].m_end) < lo) {
                first += half + 1;
                count -= half + 1;
            } else {
                count = half;
            }
        }
        for (int d = first; d < dashes.len() && axis.at(dashes[d].m_start) <= hi; ++d) {
            clipToSpan(dashes[d], span, pieces);
        }
    }
    return pieces;
}

void CZemHatchSpans::clipToSpan(const CZemVertex& dash, const CZemVertex& span, CZemVertexArray& out) const {
    if (dash.isPoint(span.m_start) && dash.isPoint(span.m_end)) {
        out += ZEM::g_vl_cut(CZemVertexArray(dash), span.m_start, span.m_end);
    } else if (span.isPoint(dash.m_start) && span.isPoint(dash.m_end)) {
        out.append(dash);
    } else if (dash.isPoint(span.m_start)) {
        keepInsidePart(dash, span.m_start, out);
    } else if (dash.isPoint(span.m_end)) {
        keepInsidePart(dash, span.m_end, out);
    }
}

// A dash across one end of the span: of its two parts the first whose
// middle is inside is kept; a dash that only touches the end adds nothing.
void CZemHatchSpans::keepInsidePart(const CZemVertex& dash, const CZemPoint3d& at, CZemVertexArray& out) const {
    CZemVertexArray parts(dash);
    parts.breakVertex(0, at);
    if (parts.len() != 2) return;
    if (isInside(parts[0].mid())) {
        out.append(parts[0]);
    } else if (isInside(parts[1].mid())) {
        out.append(parts[1]);
    }
}

bool CZemHatchSpans::isInside(const CZemPoint3d& p) const {
    if (!insideElement(0, p)) return false;
    for (int k = 1; k < m_regions.len(); ++k) {
        if (insideElement(k, p)) return false;
    }
    return true;
}

// ZEM::g_vl_pt_inside with the boundary counting as inside; an element in
// the world XY plane keeps its prepared contour for the next test.
bool CZemHatchSpans::insideElement(int k, const CZemPoint3d& p) const {
    if (m_contours.empty()) {
        for (int e = 0; e < m_regions.len(); ++e) {
            const bool flat = CZemPlaneView::isZAxis(m_regions[e].normal());
            m_contours.push_back(flat ? std::make_unique<CZemContour>(m_regions[e]) : nullptr);
        }
    }
    const CZemContour* contour = m_contours[static_cast<size_t>(k)].get();
    return contour ? contour->contains(p, true) : ZEM::g_vl_pt_inside(m_regions[k], p, true);
}
