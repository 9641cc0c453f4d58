#pragma once

#include "ZemObj.h"
#include "ZemPoint3d.h"

// One segment of a polyline: from start to end, straight for a bulge of 0.0,
// otherwise an arc whose bulge is the tangent of a quarter of its included
// angle, positive counter-clockwise about the list's normal. The point
// operations below read arcs in the XY plane, about +Z.
class CZemVertex : public CZemObj {
public:
    CZemVertex() = default;
    CZemVertex(const CZemPoint3d& start, const CZemPoint3d& end, double bulge)
        : m_start(start), m_end(end), m_bulge(bulge) {}

    CZemVertex& set(const CZemPoint3d& start, const CZemPoint3d& end, double bulge);

    // Both points transformed, in place. The bulge stays: it is read about
    // the normal that the caller carries along with the vertex.
    CZemVertex& transformBy(const double (*m)[4]);

    // The length along the vertex, arc included, in any plane; 0.0 when a
    // coordinate or the bulge is not a finite number.
    double bulgLen() const;
    // The point of the vertex nearest to p: the foot of the perpendicular,
    // or the nearer end when the foot would fall outside the vertex.
    CZemPoint3d lotp(const CZemPoint3d& p) const;
    // The point half way along the vertex, on the arc if it has a bulge.
    CZemPoint3d mid() const;
    // True if p lies on the vertex, within ZEM::kDistTol.
    bool isPoint(const CZemPoint3d& p) const;

    CZemPoint3d m_start;
    CZemPoint3d m_end;
    double m_bulge = 0.0;
};
