#pragma once

#include "ZemArrayTempl.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

namespace ZEM {

// The outline of a numbered parametric form as a closed counter-clockwise
// polyline in the XY plane (normal +Z, arcs where the form is round), its
// reference point moved to base. Parameters come in the order of the table;
// a missing one reads 0.0. An unknown form, a parameter that is not finite,
// or sizes that make no shape give an empty list.
//
// Signs: where the table names a mirror, a negative value of that parameter
// builds the form with its magnitude and mirrors it across the reference
// point (x: to the left, y: downwards); the result still runs
// counter-clockwise. Every other size counts with its magnitude where the
// table says so and must be positive otherwise. Angles are radians, except
// the one of form 21, which is held in degrees.
//
// | No | Form                 | Parameters in order                                   | Reference point        | Mirror |
// |----|----------------------|-------------------------------------------------------|------------------------|--------|
// |  1 | rectangle            | width, height                                         | lower left corner      | 1 x, 2 y |
// |  2 | circle               | diameter (magnitude)                                  | centre                 | - |
// |  3 | oblong (slot)        | length, width; round ends of diameter width <= length | lower left of its box  | 1 x, 2 y |
// |  4 | rounded rectangle    | width, height, corner radius (0 to half the smaller side) | lower left of its box | 1 x, 2 y |
// |  5 | chamfered rectangle  | width, height, chamfer (0 to half the smaller side)   | lower left of its box  | 1 x, 2 y |
// |  6 | triangle             | base, height, apex offset along the base from its left end (any sign) | left end of the base | 1 x, 2 y |
// |  7 | regular polygon      | corners (3 to 1000, rounded), diameter of the circumscribed circle, rotation of the first corner from +X | centre | - |
// |  8 | arc slot             | radius of the centre line, width (below twice the radius), sweep (0 to 2 pi), from +X counter-clockwise; round ends | centre of the arc | 3 y |
// |  9 | L shape              | width, height, thickness of the upright leg, thickness of the lying leg | outer corner (lower left) | 1 x, 2 y |
// | 10 | T shape              | width, height, flange thickness, web thickness; flange on top, web centred | lower left of its box | 1 x, 2 y |
// | 11 | U shape              | width, height, side wall thickness (below half the width), base thickness; open at the top | lower left of its box | 1 x, 2 y |
// | 12 | cross                | width, height, thickness of the lying bar, thickness of the upright bar; bars centred | lower left of its box | 1 x, 2 y |
// | 13 | trapezoid            | bottom width, top width (0 or more), height, offset of the top's left end from the bottom's (any sign) | left end of the bottom | 1 x, 3 y |
// | 14 | parallelogram        | width, height, shift of the top edge to the right (any sign) | lower left corner | 1 x, 2 y |
// | 15 | half circle          | diameter (magnitude); round side up                   | middle of the straight side | - |
// | 16 | circle sector        | radius, sweep (0 to 2 pi) from +X counter-clockwise   | centre                 | 2 y |
// | 17 | I shape (double T)   | width, height, flange thickness (below half the height), web thickness; web centred | lower left of its box | 1 x, 2 y |
// | 18 | Z shape              | width, height, flange thickness (below half the height), web thickness; web centred, lower flange to the right, upper flange to the left | lower left of its box | 1 x, 2 y |
// | 19 | arch                 | width, height of the straight sides (0 or more); a half circle of diameter width on top | lower left corner | 1 x, 2 y |
// | 20 | rhombus              | width, height (the diagonals, magnitudes)              | centre                 | - |
// | 21 | ring segment         | outer radius, ring width (up to the radius: a sector), sweep in degrees (0 to 360) from +X counter-clockwise | centre | 3 y |
CZemVertexArray g_outline(int form, const CZemVector3d& base, const CZemArrayTempl<double>& parameters);

}  // namespace ZEM
