#include "ZemPoint3dArray.h"

CZemPoint3dArray& CZemPoint3dArray::append(const CZemPoint3d& p) {
    appendItem(p);
    return *this;
}

CZemPoint3dArray& CZemPoint3dArray::operator+=(const CZemPoint3dArray& other) {
    const CZemPoint3dArray copy(other);  // other may be this very list
    for (int k = 0; k < copy.len(); ++k) appendItem(copy[k]);
    return *this;
}
