#pragma once

#include "ZemArrayTempl.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemString.h"
#include "ZemVertexArray.h"

// Plain hatching of regions (element 0 the contour, the others holes) in the
// plane that mtx maps to the world: lines at spacing, turned clockwise by
// angle, one element per clipped piece; or, for the name "DOTS", rows of dots.
CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_hatch(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx,
                                                        const CZemString& name, double spacing, double angle);

// Hatching of regions with the application's pattern of prop's name, turned
// and scaled by prop: one element of separate straight pieces per hatch line.
CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_hatch2(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx,
                                                         const CZemHatchProp& prop);
