#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

#include <vector>

// Axis-parallel rectangles joined into regions: what the added rectangles
// cover and no cut one does, as one region list per edge-connected part
// (outer contour counter-clockwise first, then its holes clockwise).
class CZemRectUnion {
public:
    // Corners in any order; a rectangle without area changes nothing.
    CZemRectUnion& add(double x0, double y0, double x1, double y1);
    CZemRectUnion& cut(double x0, double y0, double x1, double y1);

    CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> regions() const;

private:
    struct Rect {
        double x0, y0, x1, y1;
        bool holds(double x, double y) const { return x0 < x && x < x1 && y0 < y && y < y1; }
    };
    struct Grid;

    static Rect normalised(double x0, double y0, double x1, double y1);

    std::vector<Rect> m_added;
    std::vector<Rect> m_cut;
};
