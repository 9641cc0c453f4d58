#include "RegionsTestSupport.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
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

namespace {

void put32(std::vector<unsigned char>& out, std::uint32_t v) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<unsigned char>(v >> shift));
}

// A PNG chunk: length, type, data and the CRC-32 of type and data.
void chunk(std::vector<unsigned char>& out, const char* type, const std::vector<unsigned char>& data) {
    std::vector<unsigned char> body(type, type + 4);
    body.insert(body.end(), data.begin(), data.end());
    std::uint32_t crc = ~0u;
    for (unsigned char c : body) {
        crc ^= c;
        for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    put32(out, static_cast<std::uint32_t>(data.size()));
    out.insert(out.end(), body.begin(), body.end());
    put32(out, ~crc);
}

// Grey pixels, one filter byte a row, in a zlib stream of stored blocks.
std::vector<unsigned char> imageData(const std::vector<unsigned char>& rows) {
    std::vector<unsigned char> out{0x78, 0x01};
    std::uint32_t a = 1, b = 0;
    for (unsigned char c : rows) a = (a + c) % 65521, b = (b + a) % 65521;
    for (size_t pos = 0; pos < rows.size();) {
        const size_t n = std::min<size_t>(65535, rows.size() - pos);
        out.insert(out.end(), {static_cast<unsigned char>(pos + n == rows.size()), static_cast<unsigned char>(n),
                               static_cast<unsigned char>(n >> 8), static_cast<unsigned char>(~n),
                               static_cast<unsigned char>(~n >> 8)});
        out.insert(out.end(), rows.begin() + static_cast<long>(pos), rows.begin() + static_cast<long>(pos + n));
        pos += n;
    }
    put32(out, (b << 16) | a);
    return out;
}

}  // namespace

bool writePicture(const std::string& path, const CZemArrayTempl<CZemVertexArray>& lines,
                  const CZemArrayTempl<CZemVertexArray>& regs, int width) {
    double x0 = HUGE_VAL, y0 = HUGE_VAL, x1 = -HUGE_VAL, y1 = -HUGE_VAL;
    for (int v = 0; v < regs[0].len(); ++v) {
        x0 = std::min(x0, regs[0][v].m_start.x), x1 = std::max(x1, regs[0][v].m_start.x);
        y0 = std::min(y0, regs[0][v].m_start.y), y1 = std::max(y1, regs[0][v].m_start.y);
    }
    const double scale = (width - 20) / std::max(x1 - x0, 1e-9);
    const int height = static_cast<int>((y1 - y0) * scale) + 20;
    std::vector<unsigned char> rows(static_cast<size_t>(width + 1) * height, 255);
    const auto draw = [&](const CZemVertex& v, unsigned char shade) {
        const double ax = 10 + (v.m_start.x - x0) * scale, ay = height - 10 - (v.m_start.y - y0) * scale;
        const double bx = 10 + (v.m_end.x - x0) * scale, by = height - 10 - (v.m_end.y - y0) * scale;
        const int steps = static_cast<int>(std::max(std::fabs(bx - ax), std::fabs(by - ay))) + 1;
        for (int s = 0; s <= steps; ++s) {
            const long x = std::lround(ax + (bx - ax) * s / steps), y = std::lround(ay + (by - ay) * s / steps);
            if (x >= 0 && y >= 0 && x < width && y < height) rows[static_cast<size_t>(y * (width + 1) + x + 1)] = shade;
        }
    };
    for (int k = 0; k < regs.len(); ++k) {
        for (int v = 0; v < regs[k].len(); ++v) draw(regs[k][v], 140);
    }
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) draw(lines[k][v], 0);
    }
    for (int y = 0; y < height; ++y) rows[static_cast<size_t>(y) * (width + 1)] = 0;
    std::vector<unsigned char> png{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}, header;
    put32(header, static_cast<std::uint32_t>(width));
    put32(header, static_cast<std::uint32_t>(height));
    header.insert(header.end(), {8, 0, 0, 0, 0});
    chunk(png, "IHDR", header);
    chunk(png, "IDAT", imageData(rows));
    chunk(png, "IEND", {});
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
    return static_cast<bool>(file);
}

}  // namespace regtest
