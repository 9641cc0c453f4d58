#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// Replaces vl by the dashes of a line pattern (positive a dash, negative a
// gap, 0.0 a dot, in drawing units). Mode 0 lays the pattern along the whole
// polyline; any other mode fits whole repetitions to each vertex and spreads
// the rest over the gaps, mode 1 starting and ending with half a long dash.
// False, with vl untouched, for a pattern of fewer than two entries.
bool zem_gdx_image_vl_measure(CZemVertexArray& vl, CZemArrayTempl<double> pattern, int mode);
