#pragma once

#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemString.h"
#include "ZemVector3d.h"

// The matrix that fits the box min..max (x and y; z stays out) into a target
// of height by width pixels (0 gives 240 and 320), keeping proportions, with
// `margin` times the larger box side added on all sides, centred, and y
// running down from the top. A box of no width and no height is taken as the
// unit square about its centre, one of non-finite corners as the unit square
// at the origin.
CZemMatrix3d getViewMtx(CZemPoint3d min, CZemPoint3d max, int height, int width, double margin);

// The view vector of a direction word: P (0,0,1), N (0,1,0), S (0,-1,0),
// O (-1,0,0), W (1,0,0), NO (1,1,1), NW (-1,1,1), SO (1,-1,1), SW (-1,-1,1);
// case-sensitive; any other word gives the zero vector.
CZemVector3d zem_gdx_view_vdir_get(const CZemString& word);

namespace ZEM {

// The rotation about `target` that turns `direction` (any length) toward the
// viewer, onto +Z, with world Z up where the view is not along Z: the view's
// x axis is Z x direction, or world X when the direction runs along Z. True
// gives that world-to-view matrix, false its inverse. A zero direction gives
// the identity.
CZemMatrix3d g_mtx_view(CZemVector3d direction, CZemPoint3d target, bool worldToView);

}  // namespace ZEM
