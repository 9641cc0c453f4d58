#pragma once

// The colours of a slide over its background: the background's AutoCAD colour
// index and the Windows colour value (R + 256 G + 65536 B) a colour record draws in.
class CZemSlidePalette {
public:
    int BackColor() const { return m_bkColor; }
    void SetBkColor(int color) { m_bkColor = color; }

    // The index a colour record draws with: 7 (white) on a background of 7 draws in 0.
    int drawIndex(int color) const;
    // The colour value of a colour record of color over the background.
    unsigned long drawRGB(int color) const;
    // An AutoCAD colour index as a Windows colour value; black outside 0 to 255.
    static unsigned long acadRGB(int color);

private:
    int m_bkColor = 0;
};
