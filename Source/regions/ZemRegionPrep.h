#pragma once

#include "ZemArrayTempl.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// Steps that every hatching operation takes on its region set.

// Reverses each closed element that does not run positively about Z.
void zem_reg_orient(CZemArrayTempl<CZemVertexArray>& regs);
// Transforms every element in place.
void zem_reg_transform(CZemArrayTempl<CZemVertexArray>& regs, const CZemMatrix3d& mtx);
// Gives an empty set one empty element, so that element 0 always exists.
void zem_reg_ensure_contour(CZemArrayTempl<CZemVertexArray>& regs);
// The length of a dot: 0.2 millimetres in the drawing's current unit.
double zem_reg_dot_length();
