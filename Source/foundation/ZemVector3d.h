#pragma once

#include "ZemObj.h"

class CZemPoint3d;

// A direction in 3D space. Transformed by a matrix as a direction: the
// translation does not apply. `a * b` is the cross product a x b.
class CZemVector3d : public CZemObj {
public:
    CZemVector3d() = default;
    CZemVector3d(double vx, double vy, double vz) : x(vx), y(vy), z(vz) {}

    static const CZemVector3d kXAxis;
    static const CZemVector3d kYAxis;
    static const CZemVector3d kZAxis;

    CZemVector3d& set(double vx, double vy, double vz);

    operator double*() { return &x; }
    operator const double*() const { return &x; }

    CZemVector3d operator-() const { return CZemVector3d(-x, -y, -z); }
    CZemVector3d operator+(const CZemVector3d& v) const { return CZemVector3d(x + v.x, y + v.y, z + v.z); }
    CZemVector3d operator-(const CZemVector3d& v) const { return CZemVector3d(x - v.x, y - v.y, z - v.z); }
    CZemVector3d operator*(double f) const { return CZemVector3d(x * f, y * f, z * f); }
    CZemVector3d operator*(const CZemVector3d& v) const;
    CZemVector3d operator*(const double (*m)[4]) const;
    CZemVector3d& operator*=(const double (*m)[4]);

    bool operator==(const CZemVector3d& v) const { return x == v.x && y == v.y && z == v.z; }
    bool operator!=(const CZemVector3d& v) const { return !(*this == v); }

    double dotProduct(const CZemVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    double abs() const;
    // To length 1, in place; a zero vector stays zero.
    CZemVector3d& normalize();

    // The same coordinates as a point (a copy).
    CZemPoint3d asPoint() const;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
