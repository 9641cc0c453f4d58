#pragma once

#include "CDC.h"
#include "CRgn.h"
#include "ZemArrayTempl.h"
#include "ZemGDX.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemVertexArray.h"

#include <windows.h>

// Draws the items of a display list onto a device context in the list's
// order, with the rules of metafile output. A painter for another surface
// derives from it and overrides the protected decisions where it differs.
class CZemGdxPainter {
public:
    // device: the matrix M from list space to device units (view, projection,
    // zoom); direction: the list's view direction D; clip: the region of the
    // whole output, which text filling returns to; width and height: the
    // output's size in device units.
    CZemGdxPainter(CDC& dc, const CZemGDX& gdx, const CZemMatrix3d& device, const CZemMatrix3d& direction,
                   const CRgn& clip, int width, int height);
    virtual ~CZemGdxPainter() = default;
    CZemGdxPainter(const CZemGdxPainter&) = delete;
    CZemGdxPainter& operator=(const CZemGdxPainter&) = delete;

    // Every item in list order; hidden items cost nothing.
    void drawItems();
    void drawItem(int i);

protected:
    // --- Decisions of the output ------------------------------------------
    // The item's line colour; may change m_cmode for the rest of the item.
    virtual COLORREF lineColor(int i);
    // A colour as it goes to a line pen: white becomes black on paper.
    virtual COLORREF penColor(COLORREF color) const;
    // Whether a vertex list is one run, whose short vertices stay lines.
    virtual bool isJoined(const CZemVertexArray& vl) const;
    // A dash shorter than the dot threshold, at device point p.
    virtual void dot(const CZemPoint3d& p);
    // The filled square of point style 8, centred on (x, y).
    virtual void pointSquare(double x, double y, int r, int size);
    // The distance from the centre to the low sides of the frame of style 64.
    virtual int pointFrameLow(int size, int r) const;
    // Whether the hatch of a region (stored rings, item matrix) is legible.
    virtual bool hatchLegible(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                              const CZemMatrix3d& item) const;
    // The solid fill of item i's split rings through w, with the fill pen
    // selected.
    virtual void fillRings(int i, const CZemArrayTempl<CZemVertexArray>& rings, const CZemMatrix3d& w,
                           COLORREF color);
    virtual int outlineWidth(int i) const;
    // The rings of one glyph as they are drawn, in item coordinates.
    virtual CZemArrayTempl<CZemVertexArray> glyphRings(const CZemArrayTempl<CZemVertexArray>& glyph) const;
    virtual void drawPicture(int i, unsigned long flags);

    // --- Shared steps -------------------------------------------------------
    // Dashes (by the item's line type), arcs to chords, then each vertex
    // through t as a line pair or, when short and not joined, as a dot.
    void stroke(CZemVertexArray vl, const CZemMatrix3d& t);
    void strokeVertices(const CZemVertexArray& vl, const CZemMatrix3d& t, bool joined);
    // Device rings: the holes cut from the clip, ring 0 filled as a polygon
    // with a brush of color and bordered by the selected pen; the clip of the
    // whole output is selected again afterwards.
    void fillWithHoles(const CZemArrayTempl<CZemVertexArray>& rings, COLORREF color);
    // The corners of a picture's box in device pixels: its stored points, or
    // the whole output for GDX_PIC_FULL or without points.
    void pictureBox(int i, unsigned long flags, CZemPoint3d& p0, CZemPoint3d& p1) const;
    // The fill colour where the item has one of its own, else the line colour.
    COLORREF fillColor(int i) const;
    COLORREF backgroundColor() const;

    CDC& m_dc;
    const CZemGDX& m_gdx;
    CZemMatrix3d m_device;
    CZemMatrix3d m_direction;
    const CRgn& m_clip;
    int m_width;
    int m_height;
    double m_dotLength = 0.21;
    double m_dotThreshold = 0.22;
    // Per item: the dash pattern, the colour mode and the line colour.
    CZemArrayTempl<double> m_lineType;
    int m_cmode = 0;
    COLORREF m_lineColor = 0;

private:
    void drawPolyline(int i);
    void drawPoint(int i);
    void pointFigure(unsigned long mode, double x, double y, int r);
    void drawRegion(int i, unsigned long flags);
    void fillRegion(int i, unsigned long flags);
    void hatchRegion(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                     const CZemMatrix3d& w);
    void outlineRegion(int i);
    void drawText(int i, unsigned long flags);
    void outlineGlyph(const CZemArrayTempl<CZemVertexArray>& rings);
};
