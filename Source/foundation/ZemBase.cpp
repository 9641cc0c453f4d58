#include "ZemBase.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZEM {

CZemPoint3d p_min(const CZemPoint3d& a, const CZemPoint3d& b) {
    return CZemPoint3d(std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z));
}

CZemPoint3d p_max(const CZemPoint3d& a, const CZemPoint3d& b) {
    return CZemPoint3d(std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z));
}

CZemVector3d polar(double angle, double length) {
    return CZemVector3d(length * std::cos(angle), length * std::sin(angle), 0.0);
}

CZemPoint3d polar(const CZemPoint3d& from, double angle, double length) { return from + polar(angle, length); }

double nan() { return std::numeric_limits<double>::quiet_NaN(); }

}  // namespace ZEM
