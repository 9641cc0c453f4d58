#pragma once

#include "ZemPoint3d.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

// The polyline as seen from direction about point (ZEM::g_mtx_view with
// flag), flattened into the XY plane: a copy of vl, every vertex at z = 0.
CZemVertexArray zem_g_vl_mtx_view(const CZemVertexArray& vl, CZemVector3d direction, CZemPoint3d point, bool flag);
