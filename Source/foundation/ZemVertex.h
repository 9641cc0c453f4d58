#pragma once

#include "ZemObj.h"
#include "ZemPoint3d.h"

// One segment of a polyline: from start to end, straight for a bulge of 0.0,
// otherwise an arc whose bulge is the tangent of a quarter of its included
// angle, positive counter-clockwise about the list's normal.
class CZemVertex : public CZemObj {
public:
    CZemVertex() = default;
    CZemVertex(const CZemPoint3d& start, const CZemPoint3d& end, double bulge)
        : m_start(start), m_end(end), m_bulge(bulge) {}

    CZemVertex& set(const CZemPoint3d& start, const CZemPoint3d& end, double bulge);

    CZemPoint3d m_start;
    CZemPoint3d m_end;
    double m_bulge = 0.0;
};
