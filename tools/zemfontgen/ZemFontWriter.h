#pragma once

#include "ZemGlyphStroker.h"

#include <string>
#include <vector>

// Writes the font's outlines as the portable C++ table of the library:
// ZemFontData.h declares it, ZemFontData.cpp holds the numbers.
class CZemFontWriter {
public:
    // glyphs in the order of entry; stepEnds[k] is the index behind the last
    // glyph of fill step k.
    CZemFontWriter(const std::vector<ZemGlyphOutline>& glyphs, const std::vector<int>& stepEnds);

    std::string header() const;
    std::string source() const;

private:
    static std::string number(long long units);
    static std::string label(int code);
    std::string glyphTable() const;
    std::string regionAndContourTables() const;
    std::string pointTable() const;

    const std::vector<ZemGlyphOutline>& m_glyphs;
    std::vector<int> m_stepEnds;
    int m_regions = 0;
    int m_contours = 0;
    int m_points = 0;
};
