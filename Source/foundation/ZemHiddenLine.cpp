#include "ZemHiddenLine.h"

#include <algorithm>
#include <cmath>

namespace {

// A face whose unit normal has less Z than this is seen edge-on.
constexpr double kEdgeOn = 1e-9;
// Parameter steps shorter than this are no interval.
constexpr double kParamTol = 1e-12;

double cross(double ax, double ay, double bx, double by) { return ax * by - ay * bx; }

double segmentDistance(double x, double y, const CZemHiddenLine::Point& p, const CZemHiddenLine::Point& q) {
    const double sx = q.x - p.x, sy = q.y - p.y;
    const double length2 = sx * sx + sy * sy;
    double t = length2 > 0.0 ? ((x - p.x) * sx + (y - p.y) * sy) / length2 : 0.0;
    t = std::min(1.0, std::max(0.0, t));
    return std::hypot(x - (p.x + t * sx), y - (p.y + t * sy));
}

CZemHiddenLine::Point at(const CZemHiddenLine::Point& a, const CZemHiddenLine::Point& b, double t) {
    return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y), a.z + t * (b.z - a.z)};
}

}  // namespace

CZemHiddenLine::CZemHiddenLine(double scale) {
    const double size = std::isfinite(scale) && scale > 0.0 ? scale : 1.0;
    m_tol = 1e-9 * size;
    m_depthTol = 1e-7 * size;
}

int CZemHiddenLine::addFace(const std::vector<Loop>& loops) {
    Face face{loops, 0.0, 0.0, 0.0, 0.0, HUGE_VAL, -HUGE_VAL, HUGE_VAL, -HUGE_VAL};
    // The plane by Newell's sums over the outer loop: exact for a planar
    // loop, and sound for any number of collinear points.
    double cx = 0.0, cy = 0.0, cz = 0.0;
    const Loop& outer = loops.empty() ? Loop() : loops[0];
    for (std::size_t i = 0; i < outer.size(); ++i) {
        const Point& p = outer[i];
        const Point& q = outer[(i + 1) % outer.size()];
        face.nx += (p.y - q.y) * (p.z + q.z);
        face.ny += (p.z - q.z) * (p.x + q.x);
        face.nz += (p.x - q.x) * (p.y + q.y);
        cx += p.x;
        cy += p.y;
        cz += p.z;
    }
    const double length = std::sqrt(face.nx * face.nx + face.ny * face.ny + face.nz * face.nz);
    if (length > 0.0 && !outer.empty()) {
        face.nx /= length;
        face.ny /= length;
        face.nz /= length;
        const double n = static_cast<double>(outer.size());
        face.d = face.nx * cx / n + face.ny * cy / n + face.nz * cz / n;
    } else {
        face.nz = 0.0;
    }
    for (const Point& p : outer) {
        face.minX = std::min(face.minX, p.x);
        face.maxX = std::max(face.maxX, p.x);
        face.minY = std::min(face.minY, p.y);
        face.maxY = std::max(face.maxY, p.y);
    }
    m_faces.push_back(face);
    return static_cast<int>(m_faces.size()) - 1;
}

double CZemHiddenLine::faceZ(const Face& face, double x, double y) const {
    return (face.d - face.nx * x - face.ny * y) / face.nz;
}

bool CZemHiddenLine::inside(const Face& face, double x, double y) const {
    bool in = false;
    for (const Loop& loop : face.loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const Point& p = loop[i];
            const Point& q = loop[(i + 1) % loop.size()];
            if (segmentDistance(x, y, p, q) <= m_tol) return false;
            if ((p.y > y) != (q.y > y) && x < p.x + (y - p.y) * (q.x - p.x) / (q.y - p.y)) in = !in;
        }
    }
    return in;
}

// Parameters along a-b where its projection meets the boundary of the face,
// and the ends of boundary stretches that it runs along.
void CZemHiddenLine::crossings(const Face& face, const Point& a, const Point& b, std::vector<double>& out) const {
    const double rx = b.x - a.x, ry = b.y - a.y;
    const double r2 = rx * rx + ry * ry;
    for (const Loop& loop : face.loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const Point& p = loop[i];
            const Point& q = loop[(i + 1) % loop.size()];
            const double sx = q.x - p.x, sy = q.y - p.y;
            const double denom = cross(rx, ry, sx, sy);
            if (std::fabs(denom) > 1e-12 * std::sqrt(r2 * (sx * sx + sy * sy))) {
                const double t = cross(p.x - a.x, p.y - a.y, sx, sy) / denom;
                const double u = cross(p.x - a.x, p.y - a.y, rx, ry) / denom;
                if (t > 0.0 && t < 1.0 && u >= -1e-12 && u <= 1.0 + 1e-12) out.push_back(t);
                continue;
            }
            for (const Point* end : {&p, &q}) {
                const double t = ((end->x - a.x) * rx + (end->y - a.y) * ry) / r2;
                if (t > 0.0 && t < 1.0 && std::fabs(cross(end->x - a.x, end->y - a.y, rx, ry)) / std::sqrt(r2) <= m_tol)
                    out.push_back(t);
            }
        }
    }
}

void CZemHiddenLine::hiddenBy(const Face& face, const Point& a, const Point& b, Intervals& out) const {
    if (std::fabs(face.nz) < kEdgeOn) return;
    if (std::max(a.x, b.x) < face.minX - m_tol || std::min(a.x, b.x) > face.maxX + m_tol ||
        std::max(a.y, b.y) < face.minY - m_tol || std::min(a.y, b.y) > face.maxY + m_tol)
        return;
    // How far the face lies in front of the segment: linear along it.
    const double f0 = faceZ(face, a.x, a.y) - a.z;
    const double f1 = faceZ(face, b.x, b.y) - b.z;
    if (f0 <= m_depthTol && f1 <= m_depthTol) return;
    std::vector<double> cuts{0.0, 1.0};
    crossings(face, a, b, cuts);
    if (f0 * f1 < 0.0) cuts.push_back(f0 / (f0 - f1));
    std::sort(cuts.begin(), cuts.end());
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
        if (cuts[i + 1] - cuts[i] <= kParamTol) continue;
        const double mid = (cuts[i] + cuts[i + 1]) / 2;
        const Point m = at(a, b, mid);
        if (f0 + mid * (f1 - f0) > m_depthTol && inside(face, m.x, m.y)) out.emplace_back(cuts[i], cuts[i + 1]);
    }
}

CZemHiddenLine::Intervals CZemHiddenLine::hiddenParts(const Point& a, const Point& b, int skip0, int skip1) const {
    Intervals parts;
    const bool point = std::hypot(b.x - a.x, b.y - a.y) <= m_tol;
    for (std::size_t i = 0; i < m_faces.size(); ++i) {
        if (static_cast<int>(i) == skip0 || static_cast<int>(i) == skip1) continue;
        const Face& face = m_faces[i];
        if (!point) {
            hiddenBy(face, a, b, parts);
        } else if (std::fabs(face.nz) >= kEdgeOn && inside(face, a.x, a.y) &&
                   faceZ(face, a.x, a.y) - std::max(a.z, b.z) > m_depthTol) {
            return Intervals{{0.0, 1.0}};
        }
    }
    std::sort(parts.begin(), parts.end());
    Intervals merged;
    for (const auto& part : parts) {
        if (!merged.empty() && part.first <= merged.back().second + kParamTol) {
            merged.back().second = std::max(merged.back().second, part.second);
        } else {
            merged.push_back(part);
        }
    }
    return merged;
}
