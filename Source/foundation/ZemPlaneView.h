#pragma once

#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// A vertex list seen in a plane: its vertices in coordinates where the plane
// is XY and arcs turn about +Z, and the way back to the world. A list whose
// normal is +Z, seen in the world XY plane, is used as it stands.
class CZemPlaneView {
public:
    // The list in its own plane.
    explicit CZemPlaneView(const CZemVertexArray& list);
    // The list in the plane with the given normal.
    CZemPlaneView(const CZemVertexArray& list, const CZemVector3d& planeNormal);
    CZemPlaneView(const CZemPlaneView&) = delete;
    CZemPlaneView& operator=(const CZemPlaneView&) = delete;

    const CZemVertexArray& planar() const { return *m_list; }
    bool isWorld() const { return m_world; }
    CZemPoint3d toPlane(const CZemPoint3d& p) const { return m_world ? p : p * m_toPlane; }
    CZemPoint3d toWorld(const CZemPoint3d& p) const { return m_world ? p : p * m_toWorld; }
    const CZemMatrix3d& toWorldMatrix() const { return m_toWorld; }
    const CZemMatrix3d& toPlaneMatrix() const { return m_toPlane; }
    // A list made in the plane, brought back to the world in place.
    CZemVertexArray& toWorld(CZemVertexArray& planarList) const;

    // True for a normal along +Z; a zero normal counts as +Z.
    static bool isZAxis(const CZemVector3d& normal);

private:
    bool m_world = true;
    CZemMatrix3d m_toWorld;
    CZemMatrix3d m_toPlane;
    CZemVertexArray m_copy;
    const CZemVertexArray* m_list = nullptr;
};
