#pragma once

#include "ZemArrayTempl.h"
#include "ZemPoint3d.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

// One line of text in the built-in stroke font, one unit high, written into a
// region list that the layout replaces: one entry for every part of every
// glyph, every closed contour counter-clockwise about +Z.
class CZemTextLayout {
public:
    typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> RegionLists;

    explicit CZemTextLayout(RegionLists& out) : m_out(out) {}

    // Replaces the regions by the glyphs of text, the first one at point, each
    // next one 0.5 behind the right edge of the one before. A character
    // outside the font (a space too) adds nothing and takes no room.
    CZemTextLayout& place(const wchar_t* text, const CZemPoint3d& point);
    // Moves every contour by the vector of the alignment word.
    CZemTextLayout& align(const wchar_t* word);

    // The glyph widths with 0.5 between glyphs and 0.2 behind the last;
    // -0.3 without any glyph.
    double width() const;
    // The highest glyph top above y = 0, never below 0.
    double height() const { return m_height; }
    // TL, TC, TR, CL, CC, CR, BC, BR (exact spelling) move by the width and
    // height so that the word's corner or middle comes to the point; any
    // other word, BL and null too, does not move.
    static CZemVector3d alignment(const wchar_t* word, double width, double height);

private:
    void placeGlyph(const RegionLists& glyph, const CZemVector3d& offset);
    static void orient(CZemArrayTempl<CZemVertexArray>& region);

    RegionLists& m_out;
    int m_count = 0;
    double m_advance = 0.0;
    double m_height = 0.0;
};
