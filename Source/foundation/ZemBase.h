#pragma once

#include "ZemPoint3d.h"
#include "ZemVector3d.h"

// Small free functions of the base library.
namespace ZEM {

// Coordinate-wise minimum and maximum.
CZemPoint3d p_min(const CZemPoint3d& a, const CZemPoint3d& b);
CZemPoint3d p_max(const CZemPoint3d& a, const CZemPoint3d& b);

// The vector of that length at that angle (radians) in the XY plane, and the
// point so far from `from`.
CZemVector3d polar(double angle, double length);
CZemPoint3d polar(const CZemPoint3d& from, double angle, double length);

// A quiet NaN: a missing value in edit controls and hatch records.
double nan();

}  // namespace ZEM
