#include "ZemFont.h"

#include "ZemFontData.h"
#include "ZemFontMap.h"

#include <cstdint>

namespace {

typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> Glyph;

// The font map of the process: made empty at load, filled on first lookup,
// destroyed with its nodes at unload.
CZemFontMap g_fontMap;

CZemPoint3d tablePoint(int index) {
    return CZemPoint3d(g_zemFontPoints[2 * index], g_zemFontPoints[2 * index + 1], 0.0);
}

// The table lists a contour's points once; its vertices run from each point
// to the next and from the last back to the first.
void appendContour(const ZemFontContourEntry& entry, CZemVertexArray& contour) {
    for (int k = 0; k < entry.pointCount; ++k) {
        const int next = (k + 1) % entry.pointCount;
        contour.append(CZemVertex(tablePoint(entry.firstPoint + k), tablePoint(entry.firstPoint + next), 0.0));
    }
}

// One fill step: each glyph of the step is built in a working glyph, contour
// by contour, and entered under its code; the map keeps a copy.
void fillStep(int step) {
    const int first = step == 0 ? 0 : g_zemFontFillStepEnd[step - 1];
    Glyph work;
    CZemVertexArray contour;
    for (int g = first; g < g_zemFontFillStepEnd[step]; ++g) {
        const ZemFontGlyphEntry& glyph = g_zemFontGlyphs[g];
        work.setLogicalLength(0);
        for (int r = 0; r < glyph.regionCount; ++r) {
            const ZemFontRegionEntry& region = g_zemFontRegions[glyph.firstRegion + r];
            CZemArrayTempl<CZemVertexArray>& slots = work[r];
            slots.setLogicalLength(0);
            for (int c = 0; c < region.contourCount; ++c) {
                contour.setLogicalLength(0);
                appendContour(g_zemFontContours[region.firstContour + c], contour);
                slots[c] = contour;
            }
        }
        g_fontMap.setAt(glyph.code, work);
    }
}

}  // namespace

CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> get_ascii_from_map(wchar_t c) {
    if (g_fontMap.isEmpty()) {
        for (int step = 0; step < kZemFontFillStepCount; ++step) fillStep(step);
    }
    Glyph glyph;
    g_fontMap.lookup(static_cast<std::uint16_t>(c), glyph);
    return glyph;
}

CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> get_ascii_from_map(int c) {
    return get_ascii_from_map(static_cast<wchar_t>(c & 0xFFFF));
}
