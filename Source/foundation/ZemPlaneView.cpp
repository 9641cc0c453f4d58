#include "ZemPlaneView.h"

#include "ZemGeomTolerance.h"

#include <cmath>

CZemPlaneView::CZemPlaneView(const CZemVertexArray& list) : CZemPlaneView(list, list.normal()) {}

CZemPlaneView::CZemPlaneView(const CZemVertexArray& list, const CZemVector3d& planeNormal)
    : m_world(isZAxis(planeNormal)), m_list(&list) {
    if (m_world && isZAxis(list.normal())) return;
    if (!m_world) {
        m_toWorld.setToPlaneToWorld(planeNormal);
        m_toPlane = m_toWorld.inverse();
    }
    // A list whose normal is -Z comes out with +Z and its bulges turned.
    m_copy = list.getTransformedCopy(m_toPlane);
    m_list = &m_copy;
}

CZemVertexArray& CZemPlaneView::toWorld(CZemVertexArray& planarList) const {
    if (!m_world) planarList.transformBy(m_toWorld);
    return planarList;
}

bool CZemPlaneView::isZAxis(const CZemVector3d& normal) {
    const double length = normal.abs();
    if (!(length > 0.0)) return true;
    return std::fabs(normal.x) <= ZEM::kAxisTol * length && std::fabs(normal.y) <= ZEM::kAxisTol * length &&
           normal.z > 0.0;
}
