#pragma once

#include "ZemArray.h"
#include "ZemPoint3d.h"

// A list of points with the array rules of the system.
class CZemPoint3dArray : public CZemArrayOf<CZemPoint3d> {
public:
    CZemPoint3dArray& append(const CZemPoint3d& p);
    CZemPoint3dArray& operator+=(const CZemPoint3dArray& other);
};
