#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// The horizontal scan lines, one per whole y from the region's lowest y (cut
// toward zero) while below its highest, clipped to the inside of the region
// list (outer contour first, then holes): the pieces that fill it in device
// coordinates. Rows beyond 2^20 pixels from the origin, which no target
// reaches, and regions with non-finite bounds give no lines.
CZemArrayTempl<CZemVertexArray> regScanLines(const CZemArrayTempl<CZemVertexArray>& regl);
