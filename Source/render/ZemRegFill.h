#pragma once

#include "CDC.h"
#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// Fills a region list in device coordinates (outer contour first, then
// holes) with one horizontal line per pixel row, drawn with the pen and onto
// the target the caller has set up.
void regFillLines(CDC& dc, const CZemArrayTempl<CZemVertexArray>& regl);
