#pragma once

#include "ZemObj.h"

class CZemVector3d;

// A position in 3D space. Transformed by a matrix as a position: the
// translation applies.
class CZemPoint3d : public CZemObj {
public:
    CZemPoint3d() = default;
    CZemPoint3d(double px, double py, double pz) : x(px), y(py), z(pz) {}

    static const CZemPoint3d kOrigin;

    CZemPoint3d& set(double px, double py, double pz);

    // The coordinates x, y, z in a row.
    operator double*() { return &x; }
    operator const double*() const { return &x; }

    CZemPoint3d operator*(const double (*m)[4]) const;
    CZemPoint3d& operator*=(const double (*m)[4]);

    CZemPoint3d& operator+=(const CZemVector3d& v);
    CZemPoint3d& operator-=(const CZemVector3d& v);
    CZemPoint3d operator+(const CZemVector3d& v) const;
    CZemVector3d operator-(const CZemPoint3d& other) const;

    bool operator==(const CZemPoint3d& other) const;
    bool operator!=(const CZemPoint3d& other) const { return !(*this == other); }

    double distanceTo(const CZemPoint3d& other) const;

    // The same coordinates as a vector (a copy: a point and a vector are
    // distinct objects).
    CZemVector3d asVector() const;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
