#pragma once

#include "ZemArc.h"

// Where two vertices meet in the plane: crossings, touching and tangent
// points, and the ends of a stretch they share, each place once. Both arcs
// are to lie flat at z = 0; a place is where a point lies on both within
// ZEM::kDistTol.
class CZemSegmentMeet {
public:
    struct Hit {
        double ta;  // parameter on the first vertex
        double tb;  // parameter on the second vertex
    };

    CZemSegmentMeet(const CZemArc& a, const CZemArc& b);

    int count() const { return m_count; }
    const Hit& operator[](int i) const { return m_hits[i]; }

    // The arc of a vertex with both ends put at z = 0.
    static CZemArc flatArc(const CZemVertex& vertex);

private:
    void addLineLine();
    void addLineCircle(const CZemArc& line, const CZemArc& circle);
    void addCircleCircle();
    void addCandidate(double x, double y);

    const CZemArc& m_a;
    const CZemArc& m_b;
    Hit m_hits[6];
    int m_count = 0;
};
