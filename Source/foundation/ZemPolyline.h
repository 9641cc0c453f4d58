#pragma once

#include "ZemArrayTempl.h"
#include "ZemPoint3dArray.h"
#include "ZemVertexArray.h"

// Free functions over whole polylines: orientation, boxes, explosion of arcs
// into chords, and cutting a list into its continuous runs.
namespace ZEM {

// True if the list, closed by straight bridges over its gaps and from its
// last end to its first start, encloses a positive area about normal (runs
// counter-clockwise seen from the normal's tip). No area gives false.
bool g_vl_orient(const CZemVertexArray& vl, const CZemVector3d& normal);

// The box of the list in the frame turned by angle about Z, arcs by their
// true extents: element 0 its lower corner, element 1 its upper corner, both
// given as points of the XY plane. Two origins for a list with no finite
// vertex.
CZemPoint3dArray g_vl_extmax(CZemVertexArray vl, double angle);

// Every arc of the list exploded into count equal chords (at least 1, at
// most ZEM::kMaxChords), in the list's plane; straight vertices stay.
CZemVertexArray g_vl_expl(const CZemVertexArray& vl, int count);

// How many equal chords keep the arc within tolerance of them; 1 for a
// straight vertex. A tolerance that is not positive stands for
// ZEM::kRelFlattenTol times the radius; at most ZEM::kMaxChords.
int g_vx_split_dif(const CZemVertex& vertex, double tolerance);

}  // namespace ZEM

// The enclosing rectangle of the list in the frame turned by angle about Z,
// as a closed counter-clockwise list of four straight vertices at the lowest
// z of the list; empty for a list with no finite vertex.
CZemVertexArray g_vl_extrect(const CZemVertexArray& vl, double angle);

// Both ends of the vertex put at z = 0, in place.
CZemVertex& zem_g_vx_xy(CZemVertex& vertex);

// The list cut at every joint where a vertex does not start at the end of
// the one before: its continuous runs in order, each with the list's normal.
CZemArrayTempl<CZemVertexArray> zem_g_vl_to_vll(CZemVertexArray vl);
