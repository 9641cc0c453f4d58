#pragma once

#include "ZemDashPattern.h"
#include "ZemVertexArray.h"

// Lays a prepared line pattern on a polyline: along each continuous run
// (mode 0), or fitted to each vertex afresh (any other mode).
class CZemLineMeasurer {
public:
    CZemLineMeasurer(const CZemDashPattern& pattern, int mode) : m_pattern(pattern), m_mode(mode) {}

    // The dashes that stand for vl, as separate vertices.
    CZemVertexArray measure(const CZemVertexArray& vl) const;

private:
    CZemVertexArray alongRun(CZemVertexArray run) const;
    CZemVertexArray onVertex(CZemVertex vertex) const;
    static CZemVertexArray dashesOf(const CZemVertexArray& line, const CZemArrayTempl<double>& pattern);

    const CZemDashPattern& m_pattern;
    int m_mode;
};
