#pragma once

#include "ZemArrayTempl.h"
#include "ZemPoint3d.h"
#include "ZemVertexArray.h"

#include <vector>

// The straight edges of a region set, each element read closed and bridged
// over gaps, for crossing many parallel lines quickly. A line that passes
// near a corner, or whose crossings come near each other, is refused: there
// the exact rules of the polyline geometry decide.
class CZemEdgeTable {
public:
    // A place where the line crosses an element: its offset along the line,
    // the element, and +1 where the edge passes from the line's right to its
    // left, -1 the other way.
    struct Crossing {
        double at;
        int element;
        int turn;
    };

    explicit CZemEdgeTable(const CZemArrayTempl<CZemVertexArray>& regions);

    // False if an element has an arc or a coordinate that is not finite.
    bool isUsable() const { return m_usable; }

    // The crossings of the infinite line through origin along the unit
    // direction (ux, uy), by offset; false, out then meaningless, when a
    // corner lies within the guard distance of the line or two crossings lie
    // within it of each other.
    bool crossLine(const CZemPoint3d& origin, double ux, double uy, std::vector<Crossing>& out) const;
    // Nonzero winding of element 0 about the place at offset `at` on the line
    // whose crossings are given: inside the contour.
    static bool insideContour(const std::vector<Crossing>& crossings, double at);
    // Inside the contour and in no hole, each by nonzero winding, at offset
    // `at`; sure is false when a crossing lies within the guard distance.
    bool insideRegion(const std::vector<Crossing>& crossings, double at, bool& sure) const;
    // The distance within which the exact rules decide.
    double guard() const { return m_guard; }

private:
    // One element as a closed ring of corners: each vertex's ends, a corner
    // shared where a vertex starts exactly where the one before ends; every
    // corner is joined to the next, the last to the first.
    struct Ring {
        size_t first;
        size_t count;
        int element;
        double lo;  // the least and greatest side of its corners for the
        double hi;  // direction last crossed
    };

    void projectFor(double ux, double uy) const;
    static void sortByPlace(std::vector<Crossing>& crossings);

    void addElement(const CZemVertexArray& element, int index);

    std::vector<double> m_x;
    std::vector<double> m_y;
    mutable std::vector<Ring> m_rings;
    double m_size = 0.0;
    // Each corner's side of, and reach along, the lines of the direction
    // last crossed, taken from the origin.
    mutable std::vector<double> m_across;
    mutable std::vector<double> m_along;
    mutable double m_projectedUx = 0.0;
    mutable double m_projectedUy = 0.0;
    mutable std::vector<int> m_winding;
    bool m_usable = true;
    double m_guard = 0.0;
};
