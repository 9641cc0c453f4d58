#include "ZemVertex.h"

#include "ZemArc.h"
#include "ZemGeomTolerance.h"

#include <cmath>

CZemVertex& CZemVertex::set(const CZemPoint3d& start, const CZemPoint3d& end, double bulge) {
    const CZemPoint3d newEnd = end;  // end may be this vertex's start
    m_start = start;
    m_end = newEnd;
    m_bulge = bulge;
    return *this;
}

CZemVertex& CZemVertex::transformBy(const double (*m)[4]) {
    m_start *= m;
    m_end *= m;
    return *this;
}

// With b = tan(sweep / 4) the arc over a chord c is c (1 + b^2) atan|b| / |b|
// long; the quotient tends to 1 for a vanishing bulge, a straight segment.
double CZemVertex::bulgLen() const {
    const double chord = m_start.distanceTo(m_end);
    if (!std::isfinite(chord) || !std::isfinite(m_bulge)) return 0.0;
    const double b = std::fabs(m_bulge);
    if (b < ZEM::kBulgeTol) return chord;
    return chord * (1.0 + b * b) * std::atan(b) / b;
}

CZemPoint3d CZemVertex::lotp(const CZemPoint3d& p) const {
    const CZemArc arc(*this);
    return arc.pointAt(arc.nearestParam(p));
}

CZemPoint3d CZemVertex::mid() const { return CZemArc(*this).pointAt(0.5); }

bool CZemVertex::isPoint(const CZemPoint3d& p) const {
    const double d = lotp(p).distanceTo(p);
    return d <= ZEM::kDistTol;
}
