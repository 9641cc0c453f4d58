#include "ZemGdxPainter.h"

#include "CBrush.h"
#include "CPen.h"
#include "ZemDeviceLines.h"
#include "ZemHatch.h"
#include "ZemPatternTest.h"
#include "ZemRegFill.h"
#include "ZemSplit.h"

#include <vector>

namespace {

std::vector<POINT> devicePoints(const CZemPoint3dArray& points)
{
    std::vector<POINT> out;
    out.reserve(static_cast<size_t>(points.len()));
    POINT p;
    for (int k = 0; k < points.len(); ++k) {
        if (zem_device_point(points[k], p)) out.push_back(p);
    }
    return out;
}

void transformRings(CZemArrayTempl<CZemVertexArray>& rings, const CZemMatrix3d& m)
{
    for (int k = 0; k < rings.len(); ++k) rings[k].transformBy(m);
}

}  // namespace

void CZemGdxPainter::drawRegion(int i, unsigned long flags)
{
    if (flags & (GDX_FILL | GDX_HATCH)) fillRegion(i, flags);
    if (flags & GDX_EDGE) outlineRegion(i);
}

// An illegible hatch is given up for this drawing only: the region is filled
// solid instead, and the item keeps its flags.
void CZemGdxPainter::fillRegion(int i, unsigned long flags)
{
    CZemArrayTempl<CZemVertexArray> rings;
    m_gdx.geomGet(rings, i);
    const CZemMatrix3d& item = m_gdx.mtxGet(i);
    CZemHatchProp hatch;
    if (flags & GDX_HATCH) {
        m_gdx.hatchGet(i, hatch);
        if (!hatchLegible(rings, hatch, item)) flags = (flags & ~static_cast<unsigned long>(GDX_HATCH)) | GDX_FILL;
    }
    const COLORREF color = penColor(fillColor(i));
    const CPen pen(PS_SOLID, 1, color);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    const CZemMatrix3d w = (m_device * m_direction) * item;
    const CZemArrayTempl<CZemVertexArray> split = zem_gdx_image_reg_split(rings);
    if (flags & GDX_FILL) fillRings(i, split, w, color);
    if (flags & GDX_HATCH) hatchRegion(split, hatch, w);
}

// The matrix is I * M: M first, then the item matrix.
bool CZemGdxPainter::hatchLegible(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                                  const CZemMatrix3d& item) const
{
    return zem_gdx_pattern_test(rings, hatch, item * m_device);
}

// By scan lines, so the output holds only line records for a filled region.
void CZemGdxPainter::fillRings(int, const CZemArrayTempl<CZemVertexArray>& rings, const CZemMatrix3d& w, COLORREF)
{
    CZemArrayTempl<CZemVertexArray> device = rings;
    transformRings(device, w);
    regFillLines(m_dc, device);
}

// Hatch lines are computed in item coordinates on every drawing. The pieces
// of the "DOTS" pattern are dots even where they form one run.
void CZemGdxPainter::hatchRegion(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                                 const CZemMatrix3d& w)
{
    const CZemArrayTempl<CZemVertexArray> lines = zem_gdx_image_reg_hatch2(rings, CZemMatrix3d::kIdentity, hatch);
    const bool dots = hatch.name == L"DOTS";
    for (int k = 0; k < lines.len(); ++k) strokeVertices(lines[k], w, !dots && isJoined(lines[k]));
}

// The outline starts again from the stored rings and carries the item's
// line type; D goes onto the rings first, as for a polyline.
void CZemGdxPainter::outlineRegion(int i)
{
    const CPen pen(PS_SOLID, outlineWidth(i), m_lineColor);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    CZemArrayTempl<CZemVertexArray> rings;
    m_gdx.geomGet(rings, i);
    const CZemMatrix3d t = m_device * m_gdx.mtxGet(i);
    for (int k = 0; k < rings.len(); ++k) {
        CZemVertexArray ring = rings[k];
        ring.transformBy(m_direction);
        stroke(ring, t);
    }
}

int CZemGdxPainter::outlineWidth(int i) const { return m_gdx.thicknGet(i); }

// Holes are cut out of the clip rather than drawn, so that the polygon of
// ring 0 leaves them open; the polygon is bordered by the pen in place.
void CZemGdxPainter::fillWithHoles(const CZemArrayTempl<CZemVertexArray>& rings, COLORREF color)
{
    for (int k = 1; k < rings.len(); ++k) {
        const std::vector<POINT> hole = devicePoints(rings[k].pts(true, 0.5));
        CRgn region;
        if (region.CreatePolygonRgn(hole.data(), static_cast<int>(hole.size()), ALTERNATE))
            m_dc.SelectClipRgn(&region, RGN_DIFF);
    }
    CZemPoint3dArray outer;
    const CZemVertexArray& ring = rings[0];
    for (int v = 0; v < ring.len(); ++v) outer += CZemVertexArray(ring[v]).pts(true, 0.5);
    const std::vector<POINT> points = devicePoints(outer);
    m_dc.SetBkColor(backgroundColor());
    const CBrush brush(color);
    const CZemDCSelect brushSelected = m_dc.SelectObject(brush);
    m_dc.SetPolyFillMode(ALTERNATE);
    m_dc.Polygon(points.data(), static_cast<int>(points.size()));
    m_dc.SelectClipRgn(&m_clip);
}

CZemArrayTempl<CZemVertexArray> CZemGdxPainter::glyphRings(const CZemArrayTempl<CZemVertexArray>& glyph) const
{
    return glyph;
}

// The fill colour of a text is its own: white stays white here.
void CZemGdxPainter::drawText(int i, unsigned long flags)
{
    CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> glyphs;
    m_gdx.geomGet(glyphs, i);
    const CZemMatrix3d w = (m_device * m_direction) * m_gdx.mtxGet(i);
    for (int g = 0; g < glyphs.len(); ++g) {
        CZemArrayTempl<CZemVertexArray> rings = glyphRings(glyphs[g]);
        transformRings(rings, w);
        if (flags & GDX_FILL) fillWithHoles(rings, fillColor(i));
        if (flags & GDX_EDGE) outlineGlyph(rings);
    }
}

// Text outlines are one pixel wide and never dashed.
void CZemGdxPainter::outlineGlyph(const CZemArrayTempl<CZemVertexArray>& rings)
{
    const CPen pen(PS_SOLID, 1, m_lineColor);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    for (int k = 0; k < rings.len(); ++k) {
        for (int v = 0; v < rings[k].len(); ++v) zem_dc_vertex_lines(m_dc, rings[k][v]);
    }
}
