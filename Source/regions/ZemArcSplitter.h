#pragma once

#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// Replaces the arcs of one polyline by chords, each arc flattened in the
// polyline's own plane with a tolerance that depends on its length.
class CZemArcSplitter {
public:
    explicit CZemArcSplitter(const CZemVertexArray& vl);

    CZemVertexArray split() const;

private:
    CZemVertexArray chordsOf(CZemVertex arc) const;

    const CZemVertexArray& m_vl;
    CZemMatrix3d m_toWorld;
    CZemMatrix3d m_toPlane;
};
