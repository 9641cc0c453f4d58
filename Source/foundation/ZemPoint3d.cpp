#include "ZemPoint3d.h"

#include "ZemVector3d.h"

const CZemPoint3d CZemPoint3d::kOrigin;

CZemPoint3d& CZemPoint3d::set(double px, double py, double pz) {
    x = px;
    y = py;
    z = pz;
    return *this;
}

CZemPoint3d& CZemPoint3d::operator*=(const double (*m)[4]) { return *this = *this * m; }

CZemPoint3d& CZemPoint3d::operator+=(const CZemVector3d& v) { return set(x + v.x, y + v.y, z + v.z); }

CZemPoint3d& CZemPoint3d::operator-=(const CZemVector3d& v) { return set(x - v.x, y - v.y, z - v.z); }

CZemPoint3d CZemPoint3d::operator+(const CZemVector3d& v) const { return CZemPoint3d(x + v.x, y + v.y, z + v.z); }

CZemVector3d CZemPoint3d::operator-(const CZemPoint3d& other) const {
    return CZemVector3d(x - other.x, y - other.y, z - other.z);
}

bool CZemPoint3d::operator==(const CZemPoint3d& other) const {
    return x == other.x && y == other.y && z == other.z;
}

double CZemPoint3d::distanceTo(const CZemPoint3d& other) const { return (*this - other).abs(); }

CZemVector3d CZemPoint3d::asVector() const { return CZemVector3d(x, y, z); }
