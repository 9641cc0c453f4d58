#include "ZemRegionUtil.h"

#include <cmath>

bool zem_reg_trunc(double value, long long& out) {
    if (!std::isfinite(value)) return false;
    const double whole = std::trunc(value);
    if (whole < -2147483648.0 || whole > 2147483647.0) return false;
    out = static_cast<long long>(whole);
    return true;
}
