#pragma once

#include "ZemArrayTempl.h"
#include "ZemContour.h"
#include "ZemVertexArray.h"

#include <vector>

// Cuts polylines by a region in the plane of its first element: element 0
// the outer contour, every further element a hole. Inside means inside or on
// the contour and neither inside nor on any hole. Pieces come in order along
// the polyline; in a closed polyline the piece over its start and end joins.
class CZemPunch {
public:
    explicit CZemPunch(const CZemArrayTempl<CZemVertexArray>& region);

    // The pieces of vl inside the region (inside set) or outside it.
    CZemArrayTempl<CZemVertexArray> run(const CZemVertexArray& vl, bool inside) const;

private:
    bool isInside(const CZemPoint3d& planarPoint) const;
    std::vector<double> cuts(const CZemArc& flat) const;
    static void joinOverStart(const CZemVertexArray& planar, std::vector<CZemVertexArray>& pieces);

    CZemVector3d m_normal = CZemVector3d::kZAxis;
    std::vector<CZemContour> m_rings;
};
