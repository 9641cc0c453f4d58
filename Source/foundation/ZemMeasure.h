#pragma once

#include "ZemArrayTempl.h"
#include "ZemLineParm.h"
#include "ZemVertexArray.h"

namespace ZEM {

// The dashes of a polyline under a pattern whose lengths are multiplied by
// |factor|: from the start of vl the entries are laid one after the other,
// repeated until the line ends. A dash gives the stretch of that length (cut
// short at the end, arcs as arcs, corners included), a gap skips its length,
// a dot gives a one-vertex list of zero length at the place reached, up to
// and including the end. One vertex list per dash or dot, in order, each with
// the normal of vl. A pattern that lays no length (empty, all dots, a factor
// of 0, entries that are not finite) or more than ZEM::kMaxMeasurePieces
// pieces gives vl whole as the one piece; an empty vl gives no piece.
CZemArrayTempl<CZemVertexArray> g_vl_measure(CZemVertexArray vl, double factor, CZemLineParm parm);

}  // namespace ZEM
