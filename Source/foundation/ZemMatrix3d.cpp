#include "ZemMatrix3d.h"

#include "ZemPoint3d.h"
#include "ZemVector3d.h"

#include <cmath>
#include <utility>

const CZemMatrix3d CZemMatrix3d::kIdentity;

CZemMatrix3d::CZemMatrix3d() { setToIdentity(); }

CZemMatrix3d CZemMatrix3d::operator*(const CZemMatrix3d& b) const {
    CZemMatrix3d product;
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k) sum += m_cells[r][k] * b.m_cells[k][c];
            product.m_cells[r][c] = sum;
        }
    }
    return product;
}

CZemMatrix3d& CZemMatrix3d::operator*=(const CZemMatrix3d& b) { return *this = b * *this; }

bool CZemMatrix3d::operator==(const CZemMatrix3d& b) const {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            if (m_cells[r][c] != b.m_cells[r][c]) return false;
        }
    }
    return true;
}

// Gauss-Jordan elimination with partial pivoting on [M | I].
CZemMatrix3d CZemMatrix3d::inverse() const {
    double a[4][4];
    CZemMatrix3d result;
    double (&inv)[4][4] = result.m_cells;
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) a[r][c] = m_cells[r][c];
    }
    for (int col = 0; col < 4; ++col) {
        int pivot = col;
        for (int r = col + 1; r < 4; ++r) {
            if (std::fabs(a[r][col]) > std::fabs(a[pivot][col])) pivot = r;
        }
        if (!(std::fabs(a[pivot][col]) > 1e-300)) return CZemMatrix3d();
        std::swap(a[pivot], a[col]);
        std::swap(inv[pivot], inv[col]);
        const double scale = 1.0 / a[col][col];
        for (int c = 0; c < 4; ++c) {
            a[col][c] *= scale;
            inv[col][c] *= scale;
        }
        for (int r = 0; r < 4; ++r) {
            if (r == col || a[r][col] == 0.0) continue;
            const double f = a[r][col];
            for (int c = 0; c < 4; ++c) {
                a[r][c] -= f * a[col][c];
                inv[r][c] -= f * inv[col][c];
            }
        }
    }
    return result;
}

CZemMatrix3d& CZemMatrix3d::setToIdentity() {
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) m_cells[r][c] = r == c ? 1.0 : 0.0;
    }
    return *this;
}

CZemMatrix3d& CZemMatrix3d::setCoordSystem(const CZemPoint3d& origin, const CZemVector3d& x,
                                           const CZemVector3d& y, const CZemVector3d& z) {
    setToIdentity();
    const double* columns[4] = {x, y, z, origin};
    for (int c = 0; c < 4; ++c) {
        for (int r = 0; r < 3; ++r) m_cells[r][c] = columns[c][r];
    }
    return *this;
}

CZemMatrix3d& CZemMatrix3d::setToSRM(const CZemPoint3d& scale, double angle, const CZemVector3d& move) {
    const double c = std::cos(angle), s = std::sin(angle);
    setToIdentity();
    m_cells[0][0] = c * scale.x;
    m_cells[0][1] = -s * scale.y;
    m_cells[1][0] = s * scale.x;
    m_cells[1][1] = c * scale.y;
    m_cells[2][2] = scale.z;
    m_cells[0][3] = move.x;
    m_cells[1][3] = move.y;
    m_cells[2][3] = move.z;
    return *this;
}

CZemMatrix3d& CZemMatrix3d::setToPlaneToWorld(const CZemVector3d& normal) {
    CZemVector3d n(normal);
    if (n.normalize().abs() == 0.0) return setToIdentity();
    const double nearZ = 1.0 / 64.0;
    CZemVector3d ax = (std::fabs(n.x) < nearZ && std::fabs(n.y) < nearZ) ? CZemVector3d::kYAxis * n
                                                                          : CZemVector3d::kZAxis * n;
    ax.normalize();
    CZemVector3d ay = n * ax;
    ay.normalize();
    return setCoordSystem(CZemPoint3d::kOrigin, ax, ay, n);
}

CZemMatrix3d& CZemMatrix3d::setToScaling(double factor, const CZemPoint3d& center) {
    setToIdentity();
    for (int k = 0; k < 3; ++k) m_cells[k][k] = factor;
    return aboutCenter(center);
}

// Rodrigues' rotation about the unit axis.
CZemMatrix3d& CZemMatrix3d::setToRotation(double angle, const CZemVector3d& axis, const CZemPoint3d& center) {
    CZemVector3d u(axis);
    if (u.normalize().abs() == 0.0) return setToIdentity();
    const double c = std::cos(angle), s = std::sin(angle), t = 1.0 - c;
    setToIdentity();
    m_cells[0][0] = t * u.x * u.x + c;
    m_cells[0][1] = t * u.x * u.y - s * u.z;
    m_cells[0][2] = t * u.x * u.z + s * u.y;
    m_cells[1][0] = t * u.x * u.y + s * u.z;
    m_cells[1][1] = t * u.y * u.y + c;
    m_cells[1][2] = t * u.y * u.z - s * u.x;
    m_cells[2][0] = t * u.x * u.z - s * u.y;
    m_cells[2][1] = t * u.y * u.z + s * u.x;
    m_cells[2][2] = t * u.z * u.z + c;
    return aboutCenter(center);
}

CZemMatrix3d& CZemMatrix3d::setToTranslation(const CZemVector3d& move) {
    setToIdentity();
    m_cells[0][3] = move.x;
    m_cells[1][3] = move.y;
    m_cells[2][3] = move.z;
    return *this;
}

CZemMatrix3d& CZemMatrix3d::aboutCenter(const CZemPoint3d& center) {
    // T(c) . L . T(-c) for a linear L: the translation becomes c - L.c.
    const CZemVector3d moved = CZemVector3d(center.x, center.y, center.z) * m_cells;
    m_cells[0][3] = center.x - moved.x;
    m_cells[1][3] = center.y - moved.y;
    m_cells[2][3] = center.z - moved.z;
    return *this;
}
