#include "RegionsTestSupport.h"

#include "ZemPngWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <sstream>

namespace regtest {

CZemVertexArray polygon(std::initializer_list<std::pair<double, double>> points) {
    const std::vector<std::pair<double, double>> p(points);
    CZemVertexArray out;
    for (size_t k = 0; k < p.size(); ++k) {
        const auto &a = p[k], &b = p[(k + 1) % p.size()];
        out.append(CZemVertex(CZemPoint3d(a.first, a.second, 0.0), CZemPoint3d(b.first, b.second, 0.0), 0.0));
    }
    return out;
}

CZemVertexArray rectangle(double x0, double y0, double x1, double y1) {
    return polygon({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

template <class T>
static CZemArrayTempl<T> arrayOf(std::initializer_list<T> items) {
    CZemArrayTempl<T> out;
    for (const T& item : items) out.append(item);
    return out;
}

CZemArrayTempl<CZemVertexArray> regions(std::initializer_list<CZemVertexArray> e) { return arrayOf(e); }
CZemArrayTempl<double> values(std::initializer_list<double> e) { return arrayOf(e); }
CZemArrayTempl<CZemArrayTempl<double>> pattern(std::initializer_list<CZemArrayTempl<double>> e) { return arrayOf(e); }

double totalLength(const CZemArrayTempl<CZemVertexArray>& lines) {
    double sum = 0.0;
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) sum += lines[k][v].m_start.distanceTo(lines[k][v].m_end);
    }
    return sum;
}

namespace {

// Inside the polygon by the even-odd rule, or within tol of its boundary.
bool inOrOn(const CZemVertexArray& ring, double x, double y, double tol) {
    bool inside = false;
    for (int k = 0; k < ring.len(); ++k) {
        const CZemPoint3d &a = ring[k].m_start, &b = ring[k].m_end;
        const double dx = b.x - a.x, dy = b.y - a.y, len2 = dx * dx + dy * dy;
        const double t = len2 > 0.0 ? std::clamp(((x - a.x) * dx + (y - a.y) * dy) / len2, 0.0, 1.0) : 0.0;
        if (std::hypot(x - a.x - t * dx, y - a.y - t * dy) <= tol) return true;
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) * dx / dy) inside = !inside;
    }
    return inside;
}

bool inRegion(const CZemArrayTempl<CZemVertexArray>& regs, const CZemPoint3d& p, double tol) {
    if (!inOrOn(regs[0], p.x, p.y, tol)) return false;
    for (int h = 1; h < regs.len(); ++h) {
        if (inOrOn(regs[h], p.x, p.y, -1.0) && !inOrOn(regs[h], p.x, p.y, tol)) return false;
    }
    return true;
}

}  // namespace

std::string outsidePieces(const CZemArrayTempl<CZemVertexArray>& lines, const CZemArrayTempl<CZemVertexArray>& regs,
                          double tol) {
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) {
            const CZemVertex& piece = lines[k][v];
            const CZemPoint3d mid((piece.m_start.x + piece.m_end.x) / 2, (piece.m_start.y + piece.m_end.y) / 2, 0.0);
            if (inRegion(regs, mid, tol) && inRegion(regs, piece.m_start, tol) && inRegion(regs, piece.m_end, tol)) continue;
            std::ostringstream text;
            text << "line " << k << " piece " << v << " (" << piece.m_start.x << ", " << piece.m_start.y << ") to ("
                 << piece.m_end.x << ", " << piece.m_end.y << ") leaves the region";
            return text.str();
        }
    }
    return std::string();
}

bool TestApp::hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) {
    const auto found = m_patterns.find(name);
    if (found == m_patterns.end()) return false;
    lines = found->second;
    return true;
}

bool writePicture(const std::string& path, const CZemArrayTempl<CZemVertexArray>& lines,
                  const CZemArrayTempl<CZemVertexArray>& regs, int width) {
    CZemPoint3d lo, hi;
    if (!regs[0].extents(lo, hi)) return false;
    const double scale = (width - 20) / std::max(hi.x - lo.x, 1e-9);
    const int height = static_cast<int>((hi.y - lo.y) * scale) + 20;
    std::vector<std::uint8_t> rgb(static_cast<size_t>(width) * height * 3, 255);
    const auto draw = [&](const CZemVertex& v, std::uint8_t shade) {
        const double ax = 10 + (v.m_start.x - lo.x) * scale, ay = height - 10 - (v.m_start.y - lo.y) * scale;
        const double bx = 10 + (v.m_end.x - lo.x) * scale, by = height - 10 - (v.m_end.y - lo.y) * scale;
        const int steps = static_cast<int>(std::max(std::fabs(bx - ax), std::fabs(by - ay))) + 1;
        for (int s = 0; s <= steps; ++s) {
            const long x = std::lround(ax + (bx - ax) * s / steps), y = std::lround(ay + (by - ay) * s / steps);
            if (x < 0 || y < 0 || x >= width || y >= height) continue;
            std::uint8_t* pixel = &rgb[(static_cast<size_t>(y) * width + x) * 3];
            pixel[0] = pixel[1] = pixel[2] = std::min(pixel[0], shade);
        }
    };
    for (int k = 0; k < regs.len(); ++k) {
        for (int v = 0; v < regs[k].len(); ++v) draw(regs[k][v], 140);
    }
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) draw(lines[k][v], 0);
    }
    return CZemPngWriter::write(path, width, height, rgb);
}

}  // namespace regtest
