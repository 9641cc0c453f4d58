#pragma once

#include "ZemObj.h"
#include "ZemString.h"

// A colour, set by one of its sides: an index of the host's 256 colours, a
// true colour, or a pair of colour book names. It is always drawn with
// oleColor(). In a display list a line colour index of -1 means the inverse
// of the background, and a fill colour index of 0 or below means the line
// colour applies.
class CZemColor : public CZemObj {
public:
    // How the colour was last set.
    enum Kind { byIndex, byTrueColor, byNames };

    CZemColor() = default;

    CZemColor& setColorIndex(int index);
    // A packed true colour, red in the high byte: 0x00RRGGBB.
    CZemColor& setColor(unsigned long rgb);
    // A Windows colour value, red in the low byte: 0x00BBGGRR.
    CZemColor& setOleColor(unsigned long bgr);
    // Colour book and colour name; the colour keeps its present RGB, as no
    // book is at hand to look the name up.
    CZemColor& setNames(const wchar_t* book, const wchar_t* name);

    Kind kind() const { return m_kind; }
    // The index as set, or for a true colour the nearest of indices 1 to 255.
    int colorIndex() const { return m_index; }
    // The Windows colour value; an index colour maps through the index table.
    unsigned long oleColor() const;
    int red() const;
    int green() const;
    int blue() const;
    const CZemString& bookName() const { return m_book; }
    const CZemString& colorName() const { return m_name; }

    bool operator==(const CZemColor& other) const;
    bool operator!=(const CZemColor& other) const { return !(*this == other); }

private:
    static int nearestIndex(unsigned long bgr);

    Kind m_kind = byIndex;
    int m_index = 0;
    unsigned long m_bgr = 0;
    CZemString m_book;
    CZemString m_name;
};
