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

    // Inline: the display list transforms every vertex of every item.
    CZemPoint3d operator*(const double (*m)[4]) const {
        return CZemPoint3d(m[0][0] * x + m[0][1] * y + m[0][2] * z + m[0][3],
                           m[1][0] * x + m[1][1] * y + m[1][2] * z + m[1][3],
                           m[2][0] * x + m[2][1] * y + m[2][2] * z + m[2][3]);
    }
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
