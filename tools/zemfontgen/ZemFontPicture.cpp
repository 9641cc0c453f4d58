#include "ZemFontPicture.h"

#include "ZemPngWriter.h"

#include <algorithm>
#include <cmath>

namespace {

// The cell shows x from -0.1 to 1.3 and y from -0.45 to 1.35 of the font.
constexpr double kViewLeft = -0.1;
constexpr double kViewTop = 1.35;
constexpr double kViewWidth = 1.4;
constexpr double kViewHeight = 1.8;
constexpr int kSub = 4;

}  // namespace

CZemFontPicture::CZemFontPicture(const std::vector<ZemGlyphOutline>& glyphs, int pixelsPerUnit, int columns)
    : m_glyphs(glyphs), m_scale(pixelsPerUnit), m_columns(columns) {
    m_cellW = static_cast<int>(kViewWidth * m_scale);
    m_cellH = static_cast<int>(kViewHeight * m_scale);
    const int rows = (static_cast<int>(glyphs.size()) + columns - 1) / columns;
    m_width = m_cellW * columns;
    m_height = m_cellH * std::max(rows, 1);
}

bool CZemFontPicture::writePng(const std::string& path) const {
    std::vector<unsigned char> rgb(static_cast<size_t>(m_width) * m_height * 3, 255);
    static const unsigned char colors[3][3] = {{0, 0, 0}, {0, 60, 200}, {200, 20, 20}};
    for (size_t g = 0; g < m_glyphs.size(); ++g) {
        const int cellX = static_cast<int>(g % m_columns) * m_cellW;
        const int cellY = static_cast<int>(g / m_columns) * m_cellH;
        drawGuides(rgb, cellX, cellY);
        const std::vector<ZemRegion>& regions = m_glyphs[g].regions;
        for (size_t r = 0; r < regions.size(); ++r) fillRegion(rgb, regions[r], cellX, cellY, colors[r % 3]);
    }
    return CZemPngWriter::write(path, m_width, m_height, rgb);
}

void CZemFontPicture::drawGuides(std::vector<unsigned char>& rgb, int cellX, int cellY) const {
    auto shade = [&](int x, int y, unsigned char v) {
        unsigned char* p = &rgb[(static_cast<size_t>(y) * m_width + x) * 3];
        p[0] = p[1] = p[2] = std::min(p[0], v);
    };
    for (double level : {0.0, 0.677966, 1.0}) {
        const int y = cellY + static_cast<int>((kViewTop - level) * m_scale);
        for (int x = 0; x < m_cellW; ++x) shade(cellX + x, y, 215);
    }
    for (double edge : {0.155932, 0.844746}) {
        const int x = cellX + static_cast<int>((edge - kViewLeft) * m_scale);
        for (int y = 0; y < m_cellH; ++y) shade(x, cellY + y, 235);
    }
    for (int x = 0; x < m_cellW; ++x) shade(cellX + x, cellY, 180);
    for (int y = 0; y < m_cellH; ++y) shade(cellX, cellY + y, 180);
}

// Even-odd scan conversion over all contours of the region, kSub by kSub
// samples per pixel, blended over what is there.
void CZemFontPicture::fillRegion(std::vector<unsigned char>& rgb, const ZemRegion& region, int cellX, int cellY,
                                 const unsigned char color[3]) const {
    std::vector<int> cover(static_cast<size_t>(m_cellW) * m_cellH, 0);
    const double units = 1.0 / kZemOutlineScale;
    std::vector<double> xs;
    for (int sy = 0; sy < m_cellH * kSub; ++sy) {
        const double y = kViewTop - (sy + 0.5) / (kSub * m_scale);
        xs.clear();
        for (const ClipperLib::Path& c : region) {
            for (size_t k = 0; k < c.size(); ++k) {
                const double y0 = c[k].Y * units, y1 = c[(k + 1) % c.size()].Y * units;
                if ((y0 <= y) == (y1 <= y)) continue;
                const double x0 = c[k].X * units, x1 = c[(k + 1) % c.size()].X * units;
                xs.push_back(x0 + (y - y0) / (y1 - y0) * (x1 - x0));
            }
        }
        std::sort(xs.begin(), xs.end());
        for (size_t k = 0; k + 1 < xs.size(); k += 2) {
            auto sample = [&](double x) {
                return static_cast<int>(std::ceil((x - kViewLeft) * m_scale * kSub - 0.5));
            };
            const int a = std::max(0, sample(xs[k]));
            const int b = std::min(m_cellW * kSub, sample(xs[k + 1]));
            for (int sx = a; sx < b; ++sx) ++cover[static_cast<size_t>(sy / kSub) * m_cellW + sx / kSub];
        }
    }
    for (int y = 0; y < m_cellH; ++y) {
        for (int x = 0; x < m_cellW; ++x) {
            const int c = cover[static_cast<size_t>(y) * m_cellW + x];
            if (c == 0) continue;
            unsigned char* p = &rgb[(static_cast<size_t>(cellY + y) * m_width + cellX + x) * 3];
            for (int ch = 0; ch < 3; ++ch) {
                p[ch] = static_cast<unsigned char>(p[ch] + (color[ch] - p[ch]) * c / (kSub * kSub));
            }
        }
    }
}
