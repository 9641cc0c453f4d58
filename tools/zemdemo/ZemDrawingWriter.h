#pragma once

#include "ZemArrayTempl.h"
#include "ZemGDX.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemVertexArray.h"

#include <initializer_list>
#include <string>

// Enters the items of a drawing into a display list in drawing terms: pens,
// lines, arcs, circles, regions, markers and texts. Every item goes under the
// stack (group, running number), so a group can be changed as a whole.
class CZemDrawingWriter {
public:
    // A line style: Windows colour, width in pixels, line type as the list
    // stores it (positive a dash, negative a gap, 0 a dot) and its scale.
    struct Pen {
        unsigned long color = 0;
        unsigned long thickness = 1;
        CZemArrayTempl<double> linetype;
        double ltscale = 1.0;
    };

    explicit CZemDrawingWriter(CZemGDX& gdx) : m_gdx(gdx) {}

    static Pen pen(unsigned long color, unsigned long thickness = 1, std::initializer_list<double> linetype = {1.0},
                   double ltscale = 1.0);
    static CZemColor color(unsigned long bgr);
    // Closed rectangle and circle contours, counter-clockwise.
    static CZemVertexArray rectangle(double x0, double y0, double x1, double y1);
    static CZemVertexArray circle(const CZemPoint3d& center, double radius);

    // Items that follow go under this group.
    void group(int group) { m_group = group; }
    CZemArrayTempl<int> groupStack() const;
    CZemGDX& gdx() { return m_gdx; }

    void line(const Pen& pen, std::initializer_list<CZemPoint3d> points, bool closed = false);
    void vertices(const Pen& pen, const CZemVertexArray& vl);
    void rect(const Pen& pen, double x0, double y0, double x1, double y1);
    void circle(const Pen& pen, const CZemPoint3d& center, double radius);
    // An arc from a to b bending left by the bulge (tan of a quarter of its angle).
    void arc(const Pen& pen, const CZemPoint3d& a, const CZemPoint3d& b, double bulge);
    // A region item with flags GDX_FILL, GDX_HATCH and GDX_EDGE as given.
    void region(unsigned long flags, const CZemArrayTempl<CZemVertexArray>& rings, const Pen& edge,
                unsigned long fill, const CZemHatchProp& hatch);
    void marker(const CZemPoint3d& at, unsigned long mode, double size, unsigned long color);
    // A filled and outlined text of cell height, turned by angle (radians)
    // about its insertion point, aligned by one of the list's alignment
    // words. The list's layout gives a space no room, so a text of several
    // words becomes one item a word, placed and aligned as one line.
    void text(const wchar_t* text, const CZemPoint3d& at, double height, double angle, const wchar_t* align,
              unsigned long color);

private:
    CZemArrayTempl<int> next();
    void word(const std::wstring& word, const CZemMatrix3d& place, const wchar_t* align, const CZemPoint3d& point,
              unsigned long color);

    CZemGDX& m_gdx;
    int m_group = 0;
    int m_count = 0;
};
