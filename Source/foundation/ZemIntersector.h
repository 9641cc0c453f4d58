#pragma once

#include "ZemPlaneView.h"
#include "ZemPoint3dArray.h"
#include "ZemVertexArray.h"

#include <utility>
#include <vector>

// The points where two polylines meet, in the plane of the first, as
// CZemVertexArray::intersectWith gives them: allMeets for mode 0,
// lineCrossings for mode 3.
class CZemIntersector {
public:
    CZemIntersector(const CZemVertexArray& first, const CZemVertexArray& other);

    CZemPoint3dArray allMeets() const;
    CZemPoint3dArray lineCrossings() const;

private:
    using Found = std::vector<std::pair<double, CZemPoint3d>>;

    // Where vertex i of the first list meets the other list: positions
    // i + t along the first list, with points in plane coordinates.
    void vertexMeets(int i, Found& found) const;
    void appendDistinct(CZemPoint3dArray& out, const CZemPoint3d& planarPoint) const;

    CZemPlaneView m_first;
    CZemPlaneView m_other;
};
