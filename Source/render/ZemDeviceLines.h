#pragma once

#include "CDC.h"
#include "ZemPoint3d.h"
#include "ZemPoint3dArray.h"
#include "ZemVertex.h"

#include <windows.h>

// The drawing primitives of the display list painters: device coordinates
// are doubles cut toward zero at the moment of drawing, and lines go out as
// one MoveTo and one LineTo per pair of points, never as a polyline call.

// A device coordinate cut toward zero, held within the range the platform's
// coordinates can carry; 0 for a value that is not a number.
int zem_device_int(double value);
// The point cut to device integers; false, with out untouched, if x or y is
// not finite.
bool zem_device_point(const CZemPoint3d& p, POINT& out);
// Each consecutive pair of points as its own MoveTo and LineTo.
void zem_dc_point_pairs(CDC& dc, const CZemPoint3dArray& points);
// The vertex alone as points (arcs flattened within 0.5), drawn in pairs.
void zem_dc_vertex_lines(CDC& dc, const CZemVertex& vertex);
// A dot as a line one unit long to the right of p.
void zem_dc_dot_line(CDC& dc, const CZemPoint3d& p);
