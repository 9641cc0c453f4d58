#pragma once

#include "ZemVector3d.h"
#include "ZemVertexArray.h"

// A polyline that a solid hands out as one piece of a projected edge, with
// the direction of that edge in the solid's own coordinates (unit length).
class CZemVertexArrayEx : public CZemVertexArray {
public:
    CZemVertexArrayEx() = default;
    explicit CZemVertexArrayEx(const CZemVertexArray& polyline) : CZemVertexArray(polyline) {}

    CZemVector3d m_direction;
};
