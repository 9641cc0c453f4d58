#pragma once

#include "ZemArray.h"
#include "ZemVector3d.h"
#include "ZemVertex.h"

// A polyline or contour: vertices that normally join end to start, though a
// list may also hold separate segments, with the normal of its plane.
class CZemVertexArray : public CZemArrayOf<CZemVertex> {
public:
    CZemVertexArray() = default;
    explicit CZemVertexArray(const CZemVertex& vertex);

    CZemVertexArray& append(const CZemVertex& vertex);
    CZemVertexArray& operator+=(const CZemVertexArray& other);

    const CZemVector3d& normal() const { return m_normal; }
    CZemVertexArray& setNormal(const CZemVector3d& normal);

private:
    CZemVector3d m_normal = CZemVector3d::kZAxis;
};
