#pragma once

#include "ZemArrayTempl.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// Plain hatching of a region set at an explicit spacing: parallel lines at an
// angle, or rows of dots. One result element per clipped piece or dot.
class CZemPlainHatcher {
public:
    // regs in world coordinates, element 0 the contour and the others holes;
    // mtx maps the hatch plane to the world.
    CZemPlainHatcher(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx, double spacing);

    // Lines turned clockwise by angle (radians), swept across the contour.
    CZemArrayTempl<CZemVertexArray> lines(double angle) const;
    // Rows of dots along the plane's X axis, each row starting a fresh dot
    // sequence at each of its pieces.
    CZemArrayTempl<CZemVertexArray> dots() const;

private:
    void appendCarried(const CZemArrayTempl<CZemVertexArray>& pieces, CZemArrayTempl<CZemVertexArray>& out) const;
    bool lineCount(const CZemPoint3dArray& box, long long& count) const;
    double reachAcross(const CZemVector3d& across) const;

    CZemArrayTempl<CZemVertexArray> m_regs;
    CZemMatrix3d m_mtx;
    double m_spacing;
    bool m_usable = false;
};
