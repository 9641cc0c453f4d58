#include "RegionsTestSupport.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <vector>

namespace regtest {

CZemVertexArray rectangle(double x0, double y0, double x1, double y1) {
    return polygon({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

CZemVertexArray polygon(std::initializer_list<std::pair<double, double>> points) {
    const std::vector<std::pair<double, double>> p(points);
    CZemVertexArray out;
    for (size_t k = 0; k < p.size(); ++k) {
        const auto& a = p[k];
        const auto& b = p[(k + 1) % p.size()];
        out.append(CZemVertex(CZemPoint3d(a.first, a.second, 0.0), CZemPoint3d(b.first, b.second, 0.0), 0.0));
    }
    return out;
}

CZemArrayTempl<CZemVertexArray> regions(std::initializer_list<CZemVertexArray> elements) {
    CZemArrayTempl<CZemVertexArray> out;
    for (const CZemVertexArray& e : elements) out.append(e);
    return out;
}

CZemArrayTempl<double> values(std::initializer_list<double> entries) {
    CZemArrayTempl<double> out;
    for (double v : entries) out.append(v);
    return out;
}

double totalLength(const CZemArrayTempl<CZemVertexArray>& lines) {
    double sum = 0.0;
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) sum += lines[k][v].m_start.distanceTo(lines[k][v].m_end);
    }
    return sum;
}

int vertexCount(const CZemArrayTempl<CZemVertexArray>& lines) {
    int count = 0;
    for (int k = 0; k < lines.len(); ++k) count += lines[k].len();
    return count;
}

bool insidePolygon(const CZemVertexArray& contour, double x, double y) {
    bool inside = false;
    for (int k = 0; k < contour.len(); ++k) {
        const CZemPoint3d& a = contour[k].m_start;
        const CZemPoint3d& b = contour[k].m_end;
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

double distanceToBoundary(const CZemVertexArray& contour, double x, double y) {
    double best = HUGE_VAL;
    for (int k = 0; k < contour.len(); ++k) {
        const CZemPoint3d& a = contour[k].m_start;
        const CZemPoint3d& b = contour[k].m_end;
        const double dx = b.x - a.x, dy = b.y - a.y, len2 = dx * dx + dy * dy;
        double t = len2 > 0.0 ? ((x - a.x) * dx + (y - a.y) * dy) / len2 : 0.0;
        t = std::clamp(t, 0.0, 1.0);
        best = std::min(best, std::hypot(x - a.x - t * dx, y - a.y - t * dy));
    }
    return best;
}

namespace {

bool inRegion(const CZemArrayTempl<CZemVertexArray>& regs, double x, double y, double tol) {
    const bool onContour = distanceToBoundary(regs[0], x, y) <= tol;
    if (!onContour && !insidePolygon(regs[0], x, y)) return false;
    for (int h = 1; h < regs.len(); ++h) {
        if (distanceToBoundary(regs[h], x, y) > tol && insidePolygon(regs[h], x, y)) return false;
    }
    return true;
}

}  // namespace

std::string outsidePieces(const CZemArrayTempl<CZemVertexArray>& lines, const CZemArrayTempl<CZemVertexArray>& regs,
                          double tol) {
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) {
            const CZemVertex& piece = lines[k][v];
            const double mx = (piece.m_start.x + piece.m_end.x) / 2.0, my = (piece.m_start.y + piece.m_end.y) / 2.0;
            const bool midIn = inRegion(regs, mx, my, tol) || piece.m_start.distanceTo(piece.m_end) <= 2.0 * tol;
            if (!midIn || !inRegion(regs, piece.m_start.x, piece.m_start.y, tol) ||
                !inRegion(regs, piece.m_end.x, piece.m_end.y, tol)) {
                std::ostringstream text;
                text << "line " << k << " piece " << v << " (" << piece.m_start.x << ", " << piece.m_start.y << ") to ("
                     << piece.m_end.x << ", " << piece.m_end.y << ") leaves the region";
                return text.str();
            }
        }
    }
    return std::string();
}

namespace {

std::uint32_t crc32(const unsigned char* data, size_t size, std::uint32_t crc = 0) {
    crc = ~crc;
    for (size_t k = 0; k < size; ++k) {
        crc ^= data[k];
        for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

void putBig32(std::vector<unsigned char>& out, std::uint32_t v) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<unsigned char>(v >> shift));
}

void putChunk(std::vector<unsigned char>& out, const char* type, const std::vector<unsigned char>& data) {
    putBig32(out, static_cast<std::uint32_t>(data.size()));
    std::vector<unsigned char> body(type, type + 4);
    body.insert(body.end(), data.begin(), data.end());
    out.insert(out.end(), body.begin(), body.end());
    putBig32(out, crc32(body.data(), body.size()));
}

// A zlib stream of stored (uncompressed) blocks.
std::vector<unsigned char> zlibStored(const std::vector<unsigned char>& raw) {
    std::vector<unsigned char> out{0x78, 0x01};
    std::uint32_t a = 1, b = 0;
    for (unsigned char c : raw) a = (a + c) % 65521, b = (b + a) % 65521;
    size_t pos = 0;
    do {
        const size_t n = std::min<size_t>(65535, raw.size() - pos);
        out.push_back(pos + n == raw.size() ? 1 : 0);
        out.push_back(static_cast<unsigned char>(n & 0xFF));
        out.push_back(static_cast<unsigned char>(n >> 8));
        out.push_back(static_cast<unsigned char>(~n & 0xFF));
        out.push_back(static_cast<unsigned char>((~n >> 8) & 0xFF));
        out.insert(out.end(), raw.begin() + static_cast<long>(pos), raw.begin() + static_cast<long>(pos + n));
        pos += n;
    } while (pos < raw.size());
    putBig32(out, (b << 16) | a);
    return out;
}

class Canvas {
public:
    Canvas(const CZemArrayTempl<CZemVertexArray>& regs, int width) : m_width(width) {
        CZemPoint3d lo(HUGE_VAL, HUGE_VAL, 0.0), hi(-HUGE_VAL, -HUGE_VAL, 0.0);
        for (int v = 0; v < regs[0].len(); ++v) {
            for (const CZemPoint3d& p : {regs[0][v].m_start, regs[0][v].m_end}) {
                lo.set(std::min(lo.x, p.x), std::min(lo.y, p.y), 0.0);
                hi.set(std::max(hi.x, p.x), std::max(hi.y, p.y), 0.0);
            }
        }
        m_scale = (width - 20) / std::max(hi.x - lo.x, 1e-9);
        m_height = static_cast<int>((hi.y - lo.y) * m_scale) + 20;
        m_lo = lo;
        m_pixels.assign(static_cast<size_t>(m_width) * m_height, 255);
    }
    void draw(const CZemVertex& v, unsigned char shade) {
        const double x0 = px(v.m_start.x), y0 = py(v.m_start.y), x1 = px(v.m_end.x), y1 = py(v.m_end.y);
        const int steps = static_cast<int>(std::max(std::fabs(x1 - x0), std::fabs(y1 - y0))) + 1;
        for (int s = 0; s <= steps; ++s) {
            const int x = static_cast<int>(std::lround(x0 + (x1 - x0) * s / steps));
            const int y = static_cast<int>(std::lround(y0 + (y1 - y0) * s / steps));
            if (x >= 0 && y >= 0 && x < m_width && y < m_height) {
                unsigned char& p = m_pixels[static_cast<size_t>(y) * m_width + x];
                p = std::min(p, shade);
            }
        }
    }
    std::vector<unsigned char> png() const {
        std::vector<unsigned char> raw;
        for (int y = 0; y < m_height; ++y) {
            raw.push_back(0);
            raw.insert(raw.end(), m_pixels.begin() + static_cast<long>(y) * m_width,
                       m_pixels.begin() + static_cast<long>(y + 1) * m_width);
        }
        std::vector<unsigned char> out{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
        std::vector<unsigned char> header;
        putBig32(header, static_cast<std::uint32_t>(m_width));
        putBig32(header, static_cast<std::uint32_t>(m_height));
        header.insert(header.end(), {8, 0, 0, 0, 0});
        putChunk(out, "IHDR", header);
        putChunk(out, "IDAT", zlibStored(raw));
        putChunk(out, "IEND", {});
        return out;
    }

private:
    double px(double x) const { return 10.0 + (x - m_lo.x) * m_scale; }
    double py(double y) const { return m_height - 10.0 - (y - m_lo.y) * m_scale; }

    int m_width;
    int m_height = 0;
    double m_scale = 1.0;
    CZemPoint3d m_lo;
    std::vector<unsigned char> m_pixels;
};

}  // namespace

bool writePicture(const std::string& path, const CZemArrayTempl<CZemVertexArray>& lines,
                  const CZemArrayTempl<CZemVertexArray>& regs, int width) {
    Canvas canvas(regs, width);
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) canvas.draw(lines[k][v], 0);
    }
    for (int k = 0; k < regs.len(); ++k) {
        for (int v = 0; v < regs[k].len(); ++v) canvas.draw(regs[k][v], 140);
    }
    const std::vector<unsigned char> bytes = canvas.png();
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(file);
}

}  // namespace regtest
