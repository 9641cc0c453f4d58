#pragma once

#include "ZemArc.h"
#include "ZemContour.h"

#include <vector>

// Where a contour passes from one side of a straight test line to the other,
// the rule of CZemVertexArray::intersectWith mode 3: points of the contour
// on the line (within ZEM::kDistTol) count as lying on its left side, and
// passes at one place that cancel each other in pairs give nothing.
class CZemLineCrossing {
public:
    // line: a straight, flat arc with distinct ends.
    explicit CZemLineCrossing(const CZemArc& line);

    // Parameters on the test line of the crossings within it, ascending.
    std::vector<double> crossings(const CZemContour& contour) const;

private:
    struct Key {
        double t;
        bool root;
    };

    double side(const CZemPoint3d& p) const;
    double along(const CZemPoint3d& p) const;
    bool leftOrOn(double d) const;
    void addSegment(const CZemArc& seg, std::vector<double>& passes) const;
    void addArcRoots(const CZemArc& arc, std::vector<Key>& keys) const;

    CZemPoint3d m_origin;
    double m_ux = 1.0;
    double m_uy = 0.0;
    double m_length = 0.0;
};
