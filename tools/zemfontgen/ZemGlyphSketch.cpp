#include "ZemGlyphSketch.h"

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;

// Segments of a full turn of a curve; a multiple of 4, so that the polygon
// has flat sides across the axes.
constexpr int kSteps = 12;

// Snaps a sampling parameter that lies on a polygon vertex within rounding.
double snapped(double t) {
    const double r = std::round(t);
    return std::fabs(t - r) < 1e-9 ? r : t;
}

}  // namespace

CZemGlyphSketch& CZemGlyphSketch::part() {
    m_parts.emplace_back();
    return *this;
}

ZemSkPart& CZemGlyphSketch::current() {
    if (m_parts.empty()) m_parts.emplace_back();
    return m_parts.back();
}

ZemSkPath& CZemGlyphSketch::openPath() {
    ZemSkPart& p = current();
    if (p.paths.empty() || p.paths.back().closed) p.paths.emplace_back();
    return p.paths.back();
}

ZemSkPoint CZemGlyphSketch::map(double x, double y) const {
    const Frame& f = m_frames.back();
    return {x * f.sx + f.dx, y * f.sy + f.dy};
}

void CZemGlyphSketch::add(const ZemSkPoint& p) {
    ZemSkPath& path = openPath();
    if (!path.points.empty()) {
        const ZemSkPoint& last = path.points.back();
        if (std::fabs(last.x - p.x) < 1e-12 && std::fabs(last.y - p.y) < 1e-12) return;
    }
    path.points.push_back(p);
}

CZemGlyphSketch& CZemGlyphSketch::clip(double x0, double y0, double x1, double y1) {
    return clip({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

CZemGlyphSketch& CZemGlyphSketch::clip(const std::vector<ZemSkPoint>& polygon) {
    std::vector<ZemSkPoint>& mapped = current().clipPolygon;
    mapped.clear();
    for (const ZemSkPoint& p : polygon) mapped.push_back(map(p.x, p.y));
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::start() {
    current().paths.emplace_back();
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::move(double x, double y) {
    start();
    add(map(x, y));
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::line(double x, double y) {
    add(map(x, y));
    return *this;
}

// The ellipse is sampled as a polygon with vertices half a step off the axes
// and radii widened so that its flat sides touch the nominal ellipse where the
// axes cross it: the outline of a round letter then ends exactly on its
// overshoot lines, and a stem meets a bowl along a flat side. An arc that
// ends on an axis ends in the middle of a flat side; any other end lies on
// the widened ellipse, like the vertices.
CZemGlyphSketch& CZemGlyphSketch::arc(double cx, double cy, double rx, double ry, double a0,
                                      double a1) {
    const double step = 360.0 / kSteps;
    const double widen = 1.0 / std::cos(kPi / kSteps);
    auto onEllipse = [&](double degrees, double scale) {
        const double g = degrees * kPi / 180.0;
        return ZemSkPoint{cx + rx * scale * std::cos(g), cy + ry * scale * std::sin(g)};
    };
    auto end = [&](double degrees) {
        const double quarter = degrees / 90.0;
        const bool onAxis = std::fabs(quarter - std::round(quarter)) < 1e-9;
        const ZemSkPoint p = onEllipse(onAxis ? 90.0 * std::round(quarter) : degrees, onAxis ? 1.0 : widen);
        add(map(p.x, p.y));
    };
    const double t0 = snapped(a0 / step - 0.5);
    const double t1 = snapped(a1 / step - 0.5);
    end(a0);
    if (t1 > t0) {
        for (long long k = static_cast<long long>(std::floor(t0)) + 1; k < t1; ++k) {
            const ZemSkPoint p = onEllipse((static_cast<double>(k) + 0.5) * step, widen);
            add(map(p.x, p.y));
        }
    } else {
        for (long long k = static_cast<long long>(std::ceil(t0)) - 1; k > t1; --k) {
            const ZemSkPoint p = onEllipse((static_cast<double>(k) + 0.5) * step, widen);
            add(map(p.x, p.y));
        }
    }
    end(a1);
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::close() {
    ZemSkPath& path = openPath();
    path.closed = true;
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::seg(double x0, double y0, double x1, double y1) {
    return move(x0, y0).line(x1, y1);
}

CZemGlyphSketch& CZemGlyphSketch::ellipse(double x0, double y0, double x1, double y1) {
    start();
    const double step = 360.0 / kSteps;
    arc((x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2, (y1 - y0) / 2, step / 2,
        360.0 - step / 2);
    return close();
}

CZemGlyphSketch& CZemGlyphSketch::contour(const std::vector<ZemSkPoint>& points) {
    std::vector<ZemSkPoint> mapped;
    for (const ZemSkPoint& p : points) mapped.push_back(map(p.x, p.y));
    current().fixedContours.push_back(mapped);
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::pushFrame(double sx, double sy, double dx, double dy) {
    const Frame& f = m_frames.back();
    m_frames.push_back({f.sx * sx, f.sy * sy, f.sx * dx + f.dx, f.sy * dy + f.dy});
    return *this;
}

CZemGlyphSketch& CZemGlyphSketch::popFrame() {
    if (m_frames.size() > 1) m_frames.pop_back();
    return *this;
}
