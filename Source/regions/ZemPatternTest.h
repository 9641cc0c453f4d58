#pragma once

#include "ZemArrayTempl.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// True if prop's pattern over the regions (element 0 the contour) may be
// drawn at the scale of mtx (region to device): fewer than 95 steps of each
// pattern line across the region, and each step longer than 2.3 device units.
bool zem_gdx_pattern_test(CZemArrayTempl<CZemVertexArray> regs, const CZemHatchProp& prop, const CZemMatrix3d& mtx);
