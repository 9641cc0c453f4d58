#include "ZemTextLayout.h"

#include "ZemBase.h"
#include "ZemFont.h"
#include "ZemPolyline.h"

#include <cmath>
#include <cwchar>

namespace {

// Room between two glyphs, and what the width leaves of it behind the last.
constexpr double kGap = 0.5;
constexpr double kTrailing = 0.2;

// Where wchar_t is 32 bits wide, a character beyond 16 bits stands for two
// surrogates, neither of which the font holds.
bool beyondSixteenBits(unsigned long c) { return c > 0xFFFFUL; }

}  // namespace

CZemTextLayout& CZemTextLayout::place(const wchar_t* text, const CZemPoint3d& point) {
    m_count = 0;
    m_advance = 0.0;
    m_height = 0.0;
    for (const wchar_t* c = text; c && *c; ++c) {
        if (beyondSixteenBits(static_cast<unsigned long>(*c))) continue;
        const RegionLists glyph = get_ascii_from_map(*c);
        if (!glyph.isEmpty()) placeGlyph(glyph, CZemVector3d(point.x + m_advance, point.y, point.z));
    }
    m_out.setLogicalLength(m_count);
    return *this;
}

// Each region is copied into the next slot of the output, whose storage a
// layout before may have left, and turned and moved there. The glyph's bounds
// are those of its outer contours.
void CZemTextLayout::placeGlyph(const RegionLists& glyph, const CZemVector3d& offset) {
    CZemPoint3d glyphLow, glyphHigh;
    bool bounded = false;
    for (int r = 0; r < glyph.len(); ++r) {
        CZemArrayTempl<CZemVertexArray>& region = m_out[m_count++];
        region = glyph[r];
        orient(region);
        for (int c = 0; c < region.len(); ++c) region[c].move(offset);
        CZemPoint3d low, high;
        if (!region[0].extents(low, high)) continue;
        glyphLow = bounded ? ZEM::p_min(glyphLow, low) : low;
        glyphHigh = bounded ? ZEM::p_max(glyphHigh, high) : high;
        bounded = true;
    }
    m_advance += std::fabs(glyphHigh.x - glyphLow.x) + kGap;
    if (glyphHigh.y >= m_height) m_height = glyphHigh.y;
}

// Outer contours and holes alike run counter-clockwise about +Z afterwards.
void CZemTextLayout::orient(CZemArrayTempl<CZemVertexArray>& region) {
    for (int c = 0; c < region.len(); ++c) {
        CZemVertexArray& contour = region[c];
        if (contour.isClosed() && !ZEM::g_vl_orient(contour, CZemVector3d::kZAxis)) contour.revert();
    }
}

double CZemTextLayout::width() const { return m_advance - (kGap - kTrailing); }

CZemTextLayout& CZemTextLayout::align(const wchar_t* word) {
    const CZemVector3d move = alignment(word, width(), height());
    if (move == CZemVector3d()) return *this;
    for (int r = 0; r < m_out.len(); ++r) {
        CZemArrayTempl<CZemVertexArray>& region = m_out[r];
        for (int c = 0; c < region.len(); ++c) region[c].move(move);
    }
    return *this;
}

CZemVector3d CZemTextLayout::alignment(const wchar_t* word, double width, double height) {
    // The move in widths and heights: the B row stands on the baseline.
    struct Word {
        const wchar_t* text;
        double widths, heights;
    };
    static const Word kWords[] = {{L"TL", 0.0, -1.0},  {L"TC", -0.5, -1.0}, {L"TR", -1.0, -1.0},
                                  {L"CL", 0.0, -0.5},  {L"CC", -0.5, -0.5}, {L"CR", -1.0, -0.5},
                                  {L"BC", -0.5, 0.0},  {L"BR", -1.0, 0.0}};
    if (!word) return CZemVector3d();
    for (const Word& w : kWords) {
        if (std::wcscmp(word, w.text) == 0) return CZemVector3d(w.widths * width, w.heights * height, 0.0);
    }
    return CZemVector3d();
}
