#include "ZemPoint3dArray.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

CZemPoint3dArray& CZemPoint3dArray::append(const CZemPoint3d& p) {
    appendItem(p);
    return *this;
}

CZemPoint3dArray& CZemPoint3dArray::operator+=(const CZemPoint3dArray& other) {
    const CZemPoint3dArray copy(other);  // other may be this very list
    for (int k = 0; k < copy.len(); ++k) appendItem(copy[k]);
    return *this;
}

int CZemPoint3dArray::indexOf(const CZemPoint3d& p) const {
    for (int k = 0; k < len(); ++k) {
        if (m_items[k].distanceTo(p) <= ZEM::kDistTol) return k;
    }
    return -1;
}

CZemPoint3dArray& CZemPoint3dArray::sort(const CZemVector3d& direction) {
    if (len() < 2) return *this;
    std::vector<std::pair<double, CZemPoint3d>> keyed;
    keyed.reserve(static_cast<size_t>(len()));
    for (int k = 0; k < len(); ++k) keyed.emplace_back(m_items[k].asVector().dotProduct(direction), m_items[k]);
    // NaN keys compare as the largest, so the order stays a strict weak one.
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) {
        if (std::isnan(a.first)) return false;
        return std::isnan(b.first) || a.first < b.first;
    });
    for (int k = 0; k < len(); ++k) m_items[k] = keyed[static_cast<size_t>(k)].second;
    return *this;
}
