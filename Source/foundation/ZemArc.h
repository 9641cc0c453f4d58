#pragma once

#include "ZemPoint3d.h"
#include "ZemVertex.h"

// The plane geometry of one vertex in the XY plane: a straight segment, or
// an arc turning counter-clockwise about +Z for a positive bulge; z runs
// linearly from start to end. A position on it is a parameter t from 0 at
// the start to 1 at the end, proportional to the length.
class CZemArc {
public:
    explicit CZemArc(const CZemVertex& vertex);

    // All coordinates and the bulge are finite numbers.
    bool isFinite() const { return m_finite; }
    // A true arc: curved, finite, with distinct ends.
    bool isArc() const { return m_arc; }
    // Start and end coincide within ZEM::kDistTol.
    bool isPoint() const { return m_point; }

    const CZemPoint3d& start() const { return m_start; }
    const CZemPoint3d& end() const { return m_end; }
    double bulge() const { return m_arc ? m_bulge : 0.0; }
    double length() const { return m_length; }

    // Circle of a true arc: centre, radius, angle of the start and the
    // signed included angle (positive counter-clockwise).
    const CZemPoint3d& center() const { return m_center; }
    double radius() const { return m_radius; }
    double startAngle() const { return m_startAngle; }
    double sweep() const { return m_sweep; }

    CZemPoint3d pointAt(double t) const;
    // Parameter of the point of the vertex nearest to p (ends included).
    double nearestParam(const CZemPoint3d& p) const;
    // Parameter of the circle point at angle a if the arc passes it or
    // misses it by at most tolAngle (then the nearer end); below 0 if not.
    double paramOfAngle(double a, double tolAngle) const;
    // The stretch from t0 to t1 as a vertex running from t0 to t1.
    CZemVertex piece(double t0, double t1) const;
    // Smallest and largest x, y, z of the vertex, arcs by their true extents.
    void bounds(CZemPoint3d& lo, CZemPoint3d& hi) const;
    // How many equal chords keep the arc within tol of its chords (1 for a
    // straight vertex), at most ZEM::kMaxChords. A tolerance that is not
    // positive stands for ZEM::kRelFlattenTol times the radius.
    int chordCount(double tol) const;

private:
    void setUpArc(double chord);

    CZemPoint3d m_start;
    CZemPoint3d m_end;
    double m_bulge = 0.0;
    bool m_finite = false;
    bool m_arc = false;
    bool m_point = false;
    double m_length = 0.0;
    CZemPoint3d m_center;
    double m_radius = 0.0;
    double m_startAngle = 0.0;
    double m_sweep = 0.0;
};
