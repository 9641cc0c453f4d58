#include "ZemViewMatrix.h"

#include <algorithm>
#include <cmath>

namespace {

bool finitePoint(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace

CZemMatrix3d getViewMtx(CZemPoint3d min, CZemPoint3d max, int height, int width, double margin) {
    if (!finitePoint(min) || !finitePoint(max)) {
        min.set(0.0, 0.0, 0.0);
        max.set(1.0, 1.0, 0.0);
    }
    double dx = max.x - min.x, dy = max.y - min.y;
    if (dx == 0.0 && dy == 0.0) {
        min -= CZemVector3d(0.5, 0.5, 0.0);
        max += CZemVector3d(0.5, 0.5, 0.0);
        dx = dy = 1.0;
    }
    const double m = std::max(dx, dy) * margin;
    min -= CZemVector3d(m, m, 0.0);
    max += CZemVector3d(m, m, 0.0);
    dx = max.x - min.x;
    dy = max.y - min.y;

    const double w = width == 0 ? 320.0 : width;
    const double h = height == 0 ? 240.0 : height;
    // The box fills the target in the direction in which it is tighter.
    const double s = w / h > dx / dy ? h / dy : w / dx;
    min -= CZemVector3d((w / s - dx) / 2.0, (h / s - dy) / 2.0, 0.0);

    CZemMatrix3d scale, flip;
    scale.setCoordSystem(CZemPoint3d(-s * min.x, -s * min.y, 0.0), CZemVector3d(s, 0.0, 0.0),
                         CZemVector3d(0.0, s, 0.0), CZemVector3d(0.0, 0.0, s));
    flip.setCoordSystem(CZemPoint3d(0.0, h, 0.0), CZemVector3d::kXAxis, -CZemVector3d::kYAxis,
                        CZemVector3d::kZAxis);
    return flip * scale;
}

// In the single words O is west of the drawing, minus X; in the diagonals
// the O side is plus X.
CZemVector3d zem_gdx_view_vdir_get(const CZemString& word) {
    static const struct {
        const wchar_t* word;
        double x, y, z;
    } table[] = {{L"P", 0, 0, 1},  {L"N", 0, 1, 0},  {L"S", 0, -1, 0}, {L"O", -1, 0, 0},  {L"W", 1, 0, 0},
                 {L"NO", 1, 1, 1}, {L"NW", -1, 1, 1}, {L"SO", 1, -1, 1}, {L"SW", -1, -1, 1}};
    for (const auto& entry : table) {
        if (word == entry.word) return CZemVector3d(entry.x, entry.y, entry.z);
    }
    return CZemVector3d();
}

namespace ZEM {

CZemMatrix3d g_mtx_view(CZemVector3d direction, CZemPoint3d target, bool worldToView) {
    if (direction.normalize().abs() == 0.0) return CZemMatrix3d();
    CZemVector3d x = CZemVector3d::kZAxis * direction;
    if (x.abs() < 1e-12) x = CZemVector3d::kXAxis;
    x.normalize();
    const CZemVector3d y = direction * x;
    // The rows of the rotation are the view axes; the target moves to the
    // origin first.
    CZemMatrix3d toView;
    double (&c)[4][4] = toView;
    const CZemVector3d* axes[3] = {&x, &y, &direction};
    for (int r = 0; r < 3; ++r) {
        c[r][0] = axes[r]->x;
        c[r][1] = axes[r]->y;
        c[r][2] = axes[r]->z;
        c[r][3] = -axes[r]->dotProduct(target.asVector());
    }
    return worldToView ? toView : toView.inverse();
}

}  // namespace ZEM
