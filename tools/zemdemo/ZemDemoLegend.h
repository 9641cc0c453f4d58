#pragma once

#include "ZemDrawingWriter.h"

#include <string>

class CZemGDX;

// A legend sheet: every hatch pattern of the library's pattern file as a
// swatch with a round hole, the point styles, line types with fitted
// dashes, the text alignment words, turned texts and the font's accented
// characters.
class CZemDemoLegend {
public:
    explicit CZemDemoLegend(CZemGDX& gdx) : m_out(gdx) {}

    // False, with the reason, if the pattern file isn't found or holds no pattern.
    bool build(std::wstring& error);

private:
    bool patterns(std::wstring& error);
    void points();
    void lineTypes();
    void alignments();
    void turnedTexts();

    CZemDrawingWriter m_out;
};
