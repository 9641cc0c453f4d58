#include "ZemVector3d.h"

#include "ZemPoint3d.h"

#include <cmath>

const CZemVector3d CZemVector3d::kXAxis(1.0, 0.0, 0.0);
const CZemVector3d CZemVector3d::kYAxis(0.0, 1.0, 0.0);
const CZemVector3d CZemVector3d::kZAxis(0.0, 0.0, 1.0);

CZemVector3d& CZemVector3d::set(double vx, double vy, double vz) {
    x = vx;
    y = vy;
    z = vz;
    return *this;
}

CZemVector3d CZemVector3d::operator*(const CZemVector3d& v) const {
    return CZemVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
}

CZemVector3d CZemVector3d::operator*(const double (*m)[4]) const {
    return CZemVector3d(m[0][0] * x + m[0][1] * y + m[0][2] * z,
                        m[1][0] * x + m[1][1] * y + m[1][2] * z,
                        m[2][0] * x + m[2][1] * y + m[2][2] * z);
}

CZemVector3d& CZemVector3d::operator*=(const double (*m)[4]) { return *this = *this * m; }

double CZemVector3d::abs() const { return std::sqrt(x * x + y * y + z * z); }

CZemVector3d& CZemVector3d::normalize() {
    const double length = abs();
    if (length > 0.0) set(x / length, y / length, z / length);
    return *this;
}

CZemPoint3d CZemVector3d::asPoint() const { return CZemPoint3d(x, y, z); }
