#pragma once

#include "ZemArrayTempl.h"

// The dash pattern an item is drawn with, from its stored line type: the
// stored short forms of continuous, dashed, dash-dot and dotted lines become
// full patterns (positive a dash, negative a gap), then every entry is scaled
// by ltscale except dots (0.0), which become dotLength. Empty: continuous.
CZemArrayTempl<double> zem_gdx_linetype_draw(const CZemArrayTempl<double>& stored, double ltscale,
                                             double dotLength);
