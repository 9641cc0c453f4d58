#pragma once

#include "ZemArc.h"
#include "ZemVertexArray.h"

#include <vector>

// A contour in its own plane, ready for point tests and cuts: its vertices
// laid flat at z = 0, closed by straight bridges over every gap between one
// vertex's end and the next one's start, the last to the first included.
// Vertices without extent or with coordinates that are not finite drop out.
class CZemContour {
public:
    struct Box {
        double x0, y0, x1, y1;
        bool overlaps(const Box& other) const;
    };

    // planar: a list in plane coordinates, arcs about +Z.
    explicit CZemContour(const CZemVertexArray& planar);

    bool isEmpty() const { return m_segments.empty(); }
    int count() const { return static_cast<int>(m_segments.size()); }
    const CZemArc& segment(int i) const { return m_segments[static_cast<size_t>(i)]; }
    const Box& box(int i) const { return m_boxes[static_cast<size_t>(i)]; }
    const Box& bounds() const { return m_bounds; }

    // p lies on the contour, within ZEM::kDistTol in the plane.
    bool onBoundary(const CZemPoint3d& p) const;
    // The winding number of the contour about p, for p off the contour.
    int winding(const CZemPoint3d& p) const;
    // p inside by the nonzero winding rule, or on the contour if boundaryIn.
    bool contains(const CZemPoint3d& p, bool boundaryIn) const;
    // Appends the parameters on seg (a flat arc) where it meets the contour.
    void cutParams(const CZemArc& seg, std::vector<double>& params) const;

    // The box of a flat arc, grown by ZEM::kDistTol.
    static Box boxOf(const CZemArc& arc);

private:
    void add(const CZemArc& arc);
    int arcWinding(const CZemArc& arc, const CZemPoint3d& p) const;

    std::vector<CZemArc> m_segments;
    std::vector<Box> m_boxes;
    Box m_bounds{0.0, 0.0, -1.0, -1.0};
};
