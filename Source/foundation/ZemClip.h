#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// Clipping of polylines by contours and regions, cutting out a stretch, and
// the point-in-contour test. Arcs are handled as arcs throughout; contours
// are read closed, bridged straight over any gap, by the nonzero winding rule.
namespace ZEM {

// The pieces of vl inside the contour (inside set; the contour itself counts
// as inside) or outside it, in order along vl. Inside and outside pieces
// together cover vl.
CZemArrayTempl<CZemVertexArray> g_vl_punch(CZemVertexArray vl, const CZemVertexArray& contour, bool inside);

// The same against a region: regl[0] the outer contour, the others holes. A
// piece is inside if it lies inside or on the contour and neither inside nor
// on a hole. An empty region has no inside.
CZemArrayTempl<CZemVertexArray> g_vl_punch_reg(CZemVertexArray vl, const CZemArrayTempl<CZemVertexArray>& regl,
                                               bool inside);

// The stretch of vl between the points nearest to a and to b, in the
// direction of vl whatever the order of a and b; empty if they coincide.
CZemVertexArray g_vl_cut(CZemVertexArray vl, const CZemPoint3d& a, const CZemPoint3d& b);

// True if p lies inside the list, read closed, in the list's plane; a point
// on the list (within ZEM::kDistTol) counts as inside when boundaryIn is set.
bool g_vl_pt_inside(const CZemVertexArray& vl, CZemPoint3d p, bool boundaryIn);

}  // namespace ZEM
