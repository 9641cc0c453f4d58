#pragma once

#include "ZemArray.h"
#include "ZemPoint3dArray.h"
#include "ZemVector3d.h"
#include "ZemVertex.h"

// A polyline or contour: vertices that normally join end to start, though a
// list may also hold separate segments, with the normal of its plane. Arcs
// lie in that plane and turn counter-clockwise about the normal for a
// positive bulge. Points meet when they are within ZEM::kDistTol.
class CZemVertexArray : public CZemArrayOf<CZemVertex> {
public:
    CZemVertexArray() = default;
    explicit CZemVertexArray(const CZemVertex& vertex);

    CZemVertexArray& append(const CZemVertex& vertex);
    CZemVertexArray& operator+=(const CZemVertexArray& other);

    const CZemVector3d& normal() const { return m_normal; }
    CZemVertexArray& setNormal(const CZemVector3d& normal);

    // The end of the last vertex meets the start of the first.
    bool isClosed() const;
    // Every vertex starts where the one before ends (true for 0 or 1 vertex).
    bool isContinuous() const;
    // Runs the other way, in place; arcs keep their shape.
    CZemVertexArray& revert();

    // Points transformed, in place. The normal follows the plane, so arcs
    // keep their shape under moves, turns, uniform scalings and mirrors (a
    // normal that ends up along -Z is turned to +Z with the bulges negated).
    // A transform that squashes the plane to a line keeps the normal.
    CZemVertexArray& transformBy(const double (*m)[4]);
    CZemVertexArray getTransformedCopy(const double (*m)[4]) const;
    CZemVertexArray& move(const CZemVector3d& offset);

    // Smallest and largest coordinates, arcs by their true extents. False,
    // with min and max untouched, if no vertex has finite coordinates.
    bool extents(CZemPoint3d& min, CZemPoint3d& max) const;

    // The list as points: each vertex's start where it does not meet the
    // point before, then its end. With flatten set, arcs add points so that
    // no chord leaves the arc by more than tolerance; without, only the ends.
    // Vertices with coordinates that are not finite are left out.
    CZemPoint3dArray pts(bool flatten, double tolerance) const;
    // Replaced by straight segments through the points in order, points that
    // repeat the one before skipped, closed back to the first if closed is set.
    CZemVertexArray& fromPoints(const CZemPoint3dArray& points, bool closed);
    // Vertex i split in two at p when p lies on it more than ZEM::kDistTol
    // from both ends (arcs give two arcs); otherwise the list stays as it is.
    CZemVertexArray& breakVertex(int i, const CZemPoint3d& p);

    // The points where this list meets other, each place once, in the plane
    // of this list; out is replaced. True if there is any.
    //
    // Mode 3 (a straight test line against a contour): each straight vertex
    // of this list is a test line and other a contour, closed by a straight
    // bridge over any gap. A point is given where the contour passes from one
    // side of the line to the other, in order along the test line. A point of
    // the contour on the line counts as lying on its left side, so:
    // - a vertex where the contour crosses the line gives one point;
    // - a vertex or a tangent arc that touches the line and stays on one side
    //   gives no point;
    // - a stretch of the contour lying along the line gives one point when
    //   the contour crosses over it, at the end where it comes from the right
    //   side or goes back to it, and none or both ends when it comes back.
    // A closed contour thus gives an even number of points on a line whose
    // ends lie outside it. Arc vertices of this list are tested as in mode 0.
    //
    // Mode 0, and every other mode: every point where a vertex of this list
    // meets a vertex of other, touching points, tangent points and shared
    // vertices included, and both ends of every stretch that the two lists
    // have in common; in order along this list.
    bool intersectWith(CZemPoint3dArray& out, const CZemVertexArray& other, unsigned int mode) const;
    CZemPoint3dArray intersectWith(const CZemVertexArray& other, unsigned int mode) const;

private:
    CZemVector3d m_normal = CZemVector3d::kZAxis;
};
