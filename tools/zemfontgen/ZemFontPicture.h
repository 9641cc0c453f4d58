#pragma once

#include "ZemGlyphStroker.h"

#include <string>
#include <vector>

// Draws glyph outlines filled (holes cut out), in rows of cells with the
// baseline, x-height and cap line marked; regions take turns in black, blue
// and red so their order shows.
class CZemFontPicture {
public:
    CZemFontPicture(const std::vector<ZemGlyphOutline>& glyphs, int pixelsPerUnit, int columns);

    bool writePng(const std::string& path) const;

private:
    void drawGuides(std::vector<unsigned char>& rgb, int cellX, int cellY) const;
    void fillRegion(std::vector<unsigned char>& rgb, const ZemRegion& region, int cellX, int cellY,
                    const unsigned char color[3]) const;

    const std::vector<ZemGlyphOutline>& m_glyphs;
    int m_scale;
    int m_columns;
    int m_cellW;
    int m_cellH;
    int m_width;
    int m_height;
};
