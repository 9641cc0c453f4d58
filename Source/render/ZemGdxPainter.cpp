#include "ZemGdxPainter.h"

#include "CBrush.h"
#include "CPen.h"
#include "ZemDeviceLines.h"
#include "ZemLineMeasure.h"
#include "ZemLineTypeTable.h"
#include "ZemSplit.h"
#include "ZemUnits.h"
#include "ZemVector3d.h"

namespace {

constexpr COLORREF kWhite = 0xFFFFFF;

}  // namespace

CZemGdxPainter::CZemGdxPainter(CDC& dc, const CZemGDX& gdx, const CZemMatrix3d& device,
                               const CZemMatrix3d& direction, const CRgn& clip, int width, int height)
    : m_dc(dc), m_gdx(gdx), m_device(device), m_direction(direction), m_clip(clip), m_width(width), m_height(height)
{
    // A dot is 0.21 mm long and anything shorter than 0.22 mm counts as one,
    // in whatever unit the drawing uses.
    ZEM::acadUnitCv(m_dotLength, Zem::unitMillimeters, Zem::unitCurrent);
    ZEM::acadUnitCv(m_dotThreshold, Zem::unitMillimeters, Zem::unitCurrent);
}

void CZemGdxPainter::drawItems()
{
    for (int i = 0; i < m_gdx.lenGet(); ++i) drawItem(i);
}

void CZemGdxPainter::drawItem(int i)
{
    const unsigned long flags = m_gdx.flagGet(i);
    if (flags & GDX_HIDE) return;
    m_cmode = zem_gdx_cmode(flags);
    m_lineColor = lineColor(i);
    m_lineType = zem_gdx_linetype_draw(m_gdx.linetypeGet(i), m_gdx.ltscaleGet(i), m_dotLength);
    const CPen pen(PS_SOLID, m_gdx.thicknGet(i), m_lineColor);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    switch (m_gdx.typeGet(i)) {
    case GDX_VL: drawPolyline(i); break;
    case GDX_PT: drawPoint(i); break;
    case GDX_REG: drawRegion(i, flags); break;
    case GDX_TXT: drawText(i, flags); break;
    case GDX_PICTURE: drawPicture(i, flags); break;
    default: break;
    }
}

COLORREF CZemGdxPainter::backgroundColor() const { return m_gdx.backColorGet().oleColor(); }

COLORREF CZemGdxPainter::lineColor(int i)
{
    const COLORREF inverse = ~backgroundColor() & kWhite;
    COLORREF color = inverse;
    if (m_cmode == GDX_CM_ITEM) {
        const CZemColor& own = m_gdx.colorGet(i);
        if (own.colorIndex() != -1) color = own.oleColor();
    } else if (m_cmode < GDX_CM_CONTRAST) {
        color = m_gdx.colorTabGet(static_cast<GDX_CMODE>(m_cmode)).oleColor();
    }
    return penColor(color);
}

COLORREF CZemGdxPainter::penColor(COLORREF color) const { return color == kWhite ? 0 : color; }

COLORREF CZemGdxPainter::fillColor(int i) const
{
    const CZemColor& fill = m_gdx.fcolorGet(i);
    if (m_cmode == GDX_CM_ITEM && fill.colorIndex() != 0) return fill.oleColor();
    return m_lineColor;
}

bool CZemGdxPainter::isJoined(const CZemVertexArray& vl) const { return vl.isContinuous() || vl.isClosed(); }

void CZemGdxPainter::dot(const CZemPoint3d& p) { zem_dc_dot_line(m_dc, p); }

void CZemGdxPainter::stroke(CZemVertexArray vl, const CZemMatrix3d& t)
{
    if (!m_lineType.isEmpty()) zem_gdx_image_vl_measure(vl, m_lineType, 1);
    const bool joined = isJoined(vl);
    strokeVertices(zem_gdx_image_vl_split(vl), t, joined);
}

// The dot test measures before t, in the units the dot threshold is given in.
void CZemGdxPainter::strokeVertices(const CZemVertexArray& vl, const CZemMatrix3d& t, bool joined)
{
    for (int k = 0; k < vl.len(); ++k) {
        CZemVertex v = vl[k];
        if (!joined && v.m_start.distanceTo(v.m_end) < m_dotThreshold) {
            dot(v.m_start * t);
            continue;
        }
        zem_dc_vertex_lines(m_dc, v.transformBy(t));
    }
}

// The view direction goes onto the vertices first, so that dashes are
// measured in the plane of the view; the item matrix follows with M.
void CZemGdxPainter::drawPolyline(int i)
{
    CZemVertexArray vl;
    m_gdx.geomGet(vl, i);
    vl.transformBy(m_direction);
    stroke(vl, m_device * m_gdx.mtxGet(i));
}

// The symbol size follows the zoom when positive; zero or less is taken as
// pixels, and a negative size mirrors the symbol.
void CZemGdxPainter::drawPoint(int i)
{
    CZemPoint3d p;
    m_gdx.geomGet(p, i);
    p *= m_gdx.mtxGet(i);
    p *= m_direction;
    p *= m_device;
    const double stored = m_gdx.pdSizeGet(i);
    const unsigned long mode = m_gdx.pdModeGet(i);
    const int size = zem_device_int(stored > 0.0 ? stored * (CZemVector3d::kXAxis * m_device).abs() : stored);
    const int r = size >> 1;
    const CPen pen(PS_SOLID, 1, m_lineColor);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    LOGBRUSH hollow = {BS_NULL, 0, 0};
    CBrush brush;
    brush.CreateBrushIndirect(&hollow);
    const CZemDCSelect brushSelected = m_dc.SelectObject(brush);
    if (mode & 8) {
        pointSquare(p.x, p.y, r, size);
        return;
    }
    if (mode & 32)
        m_dc.Ellipse(zem_device_int(p.x - r), zem_device_int(p.y - r), zem_device_int(p.x + r),
                     zem_device_int(p.y + r));
    if (mode & 64) {
        const int low = pointFrameLow(size, r);
        m_dc.Rectangle(zem_device_int(p.x - low), zem_device_int(p.y - low), zem_device_int(p.x + r),
                       zem_device_int(p.y + r));
    }
    pointFigure(mode, p.x, p.y, r);
}

void CZemGdxPainter::pointFigure(unsigned long mode, double x, double y, int r)
{
    const auto spoke = [&](double toX, double toY) {
        m_dc.MoveTo(zem_device_int(x), zem_device_int(y));
        m_dc.LineTo(zem_device_int(toX), zem_device_int(toY));
    };
    switch (mode & 7) {
    case 3:
    case 7:
        spoke(x - r, y - r);
        spoke(x - r, y + r);
        spoke(x + r, y - r);
        spoke(x + r, y + r);
        break;
    case 2:
    case 6:
        spoke(x, y - r);
        spoke(x, y + r);
        spoke(x + r, y);
        spoke(x - r, y);
        break;
    case 4: spoke(x, y - r); break;
    case 0: {
        const CBrush solid(m_lineColor);
        const CZemDCSelect selected = m_dc.SelectObject(solid);
        m_dc.Ellipse(zem_device_int(x - 1), zem_device_int(y - 1), zem_device_int(x + 1), zem_device_int(y + 1));
        break;
    }
    default: break;
    }
}

void CZemGdxPainter::pointSquare(double x, double y, int r, int)
{
    const CBrush solid(m_lineColor);
    const CZemDCSelect selected = m_dc.SelectObject(solid);
    m_dc.Rectangle(zem_device_int(x - r), zem_device_int(y - r), zem_device_int(x + r), zem_device_int(y + r));
}

int CZemGdxPainter::pointFrameLow(int, int r) const { return r; }
