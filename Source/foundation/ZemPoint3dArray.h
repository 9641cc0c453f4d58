#pragma once

#include "ZemArray.h"
#include "ZemPoint3d.h"
#include "ZemVector3d.h"

// A list of points with the array rules of the system.
class CZemPoint3dArray : public CZemArrayOf<CZemPoint3d> {
public:
    CZemPoint3dArray& append(const CZemPoint3d& p);
    CZemPoint3dArray& operator+=(const CZemPoint3dArray& other);

    // Index of the first point within ZEM::kDistTol of p; below 0 if none.
    int indexOf(const CZemPoint3d& p) const;
    // Ordered along the direction, in place; points at the same place along
    // it keep their order, and points with coordinates that are not finite
    // go to the end.
    CZemPoint3dArray& sort(const CZemVector3d& direction);
};
