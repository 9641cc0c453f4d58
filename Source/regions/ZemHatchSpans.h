#pragma once

#include "ZemArrayTempl.h"
#include "ZemContour.h"
#include "ZemVertexArray.h"

#include <memory>
#include <vector>

// The stretches of a hatch line that lie within a region set, and the dashes
// of the line cut to them. The regions are held by reference: element 0 is
// the contour, every further element a hole.
class CZemHatchSpans {
public:
    explicit CZemHatchSpans(const CZemArrayTempl<CZemVertexArray>& regions) : m_regions(regions) {}

    // The spans of the straight line q: its distinct crossings with every
    // element, holes included, sorted from q's end towards its start and
    // paired by even-odd counting. None at all if the count is odd.
    CZemVertexArray spansOf(const CZemVertexArray& q) const;
    // The dashes (separate vertices in order along q) cut to the spans.
    CZemVertexArray clip(const CZemVertexArray& dashes, const CZemVertexArray& spans, const CZemVertexArray& q) const;
    // The part of one dash within one span, appended to out.
    void clipToSpan(const CZemVertex& dash, const CZemVertex& span, CZemVertexArray& out) const;
    // Inside the contour (its boundary included) and in no hole (a hole's
    // boundary counting as in the hole).
    bool isInside(const CZemPoint3d& p) const;

private:
    void keepInsidePart(const CZemVertex& dash, const CZemPoint3d& at, CZemVertexArray& out) const;
    bool insideElement(int k, const CZemPoint3d& p) const;

    const CZemArrayTempl<CZemVertexArray>& m_regions;
    // The elements lying in the world XY plane, made ready for point tests
    // on first use; null for the others.
    mutable std::vector<std::unique_ptr<CZemContour>> m_contours;
};
