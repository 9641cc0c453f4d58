#include "ZemDeviceLines.h"

#include "ZemVertexArray.h"

#include <cmath>

namespace {

// Coordinates of the platform's drawing calls keep to 27 bits; beyond that a
// line is drawn to the edge of that range instead of wrapping around.
constexpr double kDeviceLimit = 134217727.0;

}  // namespace

int zem_device_int(double value) {
    if (std::isnan(value)) return 0;
    if (value > kDeviceLimit) return static_cast<int>(kDeviceLimit);
    if (value < -kDeviceLimit) return static_cast<int>(-kDeviceLimit);
    return static_cast<int>(value);
}

bool zem_device_point(const CZemPoint3d& p, POINT& out) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return false;
    out.x = zem_device_int(p.x);
    out.y = zem_device_int(p.y);
    return true;
}

void zem_dc_point_pairs(CDC& dc, const CZemPoint3dArray& points) {
    POINT from, to;
    for (int k = 1; k < points.len(); ++k) {
        if (!zem_device_point(points[k - 1], from) || !zem_device_point(points[k], to)) continue;
        dc.MoveTo(from);
        dc.LineTo(to);
    }
}

void zem_dc_vertex_lines(CDC& dc, const CZemVertex& vertex) {
    zem_dc_point_pairs(dc, CZemVertexArray(vertex).pts(true, 0.5));
}

void zem_dc_dot_line(CDC& dc, const CZemPoint3d& p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
    dc.MoveTo(zem_device_int(p.x), zem_device_int(p.y));
    dc.LineTo(zem_device_int(p.x + 1.0), zem_device_int(p.y));
}
