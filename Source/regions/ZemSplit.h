#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// The polyline with every arc replaced by straight chords (within 0.01 for
// arcs shorter than 4.0, else 0.05), straight vertices passing unchanged.
CZemVertexArray zem_gdx_image_vl_split(CZemVertexArray vl);

// zem_gdx_image_vl_split of every element, at the same index.
CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_split(CZemArrayTempl<CZemVertexArray> regs);
