#pragma once

#include "ZemArc.h"
#include "ZemPlaneView.h"
#include "ZemVertexArray.h"

#include <vector>

// A polyline measured along its length, in its own plane. A place on it is a
// position: the vertex index plus the parameter on that vertex. Vertices with
// coordinates that are not finite have no length and give no stretch.
class CZemPolylinePath {
public:
    explicit CZemPolylinePath(const CZemVertexArray& vl);

    double length() const { return m_lengths.empty() ? 0.0 : m_lengths.back(); }
    int count() const { return static_cast<int>(m_arcs.size()); }
    // The position at the length s from the start, s clamped to the path.
    double positionAt(double s) const;
    // The position of the point of the path nearest to p (world).
    double nearestPosition(const CZemPoint3d& p) const;
    // The point at a position, in the world.
    CZemPoint3d pointAt(double position) const;
    // The stretch from position g0 to g1 (g0 <= g1) as a list in the world
    // with the polyline's normal; stretches of vertices no longer than
    // ZEM::kDistTol are left out.
    CZemVertexArray stretch(double g0, double g1) const;

private:
    void split(double position, int& index, double& t) const;

    const CZemPlaneView m_view;
    std::vector<CZemArc> m_arcs;
    std::vector<double> m_lengths;  // length up to the start of each vertex, and the total
};
