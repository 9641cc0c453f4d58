#pragma once

#include "ZemObj.h"

class CZemPoint3d;
class CZemVector3d;

// An affine transform of 3D space as a 4 by 4 matrix on column vectors: the
// cells are row by row and the translation stands in the last column. A
// product a * b applies b first, then a; a point p goes to M.p as p * M.
class CZemMatrix3d : public CZemObj {
public:
    CZemMatrix3d();

    static const CZemMatrix3d kIdentity;

    using Cells = double[4][4];

    operator Cells&() { return m_cells; }
    operator const Cells&() const { return m_cells; }

    CZemMatrix3d operator*(const CZemMatrix3d& b) const;
    // a *= b makes a the transform b . a: b applies after a. A group moved
    // by delta = new * old.inverse() thus brings an item at old to new.
    CZemMatrix3d& operator*=(const CZemMatrix3d& b);
    bool operator==(const CZemMatrix3d& b) const;

    // The inverse; a singular matrix has none, and gives the identity.
    CZemMatrix3d inverse() const;

    CZemMatrix3d& setToIdentity();
    // From the given frame to the parent: (1,0,0) goes to origin + x, and so
    // on. The axes need not have unit length.
    CZemMatrix3d& setCoordSystem(const CZemPoint3d& origin, const CZemVector3d& x,
                                 const CZemVector3d& y, const CZemVector3d& z);
    // Scale by the three coordinates of scale, rotate by angle about Z, move.
    CZemMatrix3d& setToSRM(const CZemPoint3d& scale, double angle, const CZemVector3d& move);
    // From the plane with this normal into the world, by the arbitrary axis
    // rule of stored drawing entities: the plane's x axis is world Y x normal
    // when the normal is near the world Z axis, world Z x normal otherwise.
    CZemMatrix3d& setToPlaneToWorld(const CZemVector3d& normal);
    CZemMatrix3d& setToScaling(double factor, const CZemPoint3d& center);
    CZemMatrix3d& setToRotation(double angle, const CZemVector3d& axis, const CZemPoint3d& center);
    CZemMatrix3d& setToTranslation(const CZemVector3d& move);

private:
    // Conjugates the present transform by a move to center: T(c) . M . T(-c).
    CZemMatrix3d& aboutCenter(const CZemPoint3d& center);

    Cells m_cells;
};
