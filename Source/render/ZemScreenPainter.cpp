#include "ZemScreenPainter.h"

#include "CBitmap.h"
#include "CPen.h"
#include "ZemDeviceLines.h"
#include "ZemPatternTest.h"
#include "ZemPolyline.h"
#include "ZemSplit.h"
#include "ZemString.h"

namespace {

constexpr COLORREF kWhite = 0xFFFFFF;
// Arcs of glyphs become chords that stray at most this far, in glyph units.
constexpr double kGlyphArcTolerance = 0.1;

}  // namespace

CZemScreenPainter::CZemScreenPainter(CDC& dc, const CZemGDX& gdx, const CZemMatrix3d& device,
                                     const CZemMatrix3d& direction, const CRgn& clip, int width, int height)
    : CZemGdxPainter(dc, gdx, device, direction, clip, width, height)
{
}

// An item of colour index -1 is drawn in the contrast colour as a whole,
// so its regions take that colour for their fill too.
COLORREF CZemScreenPainter::lineColor(int i)
{
    const CZemColor& own = m_gdx.colorGet(i);
    if (m_cmode == GDX_CM_ITEM && own.colorIndex() == -1) m_cmode = GDX_CM_CONTRAST;
    COLORREF color = backgroundColor() ^ kWhite;
    if (m_cmode == GDX_CM_ITEM)
        color = own.oleColor();
    else if (m_cmode < GDX_CM_CONTRAST)
        color = m_gdx.colorTabGet(static_cast<GDX_CMODE>(m_cmode)).oleColor();
    return penColor(color);
}

// The comparison is with the device's background colour as it stands; a
// filled point square leaves its own colour there.
COLORREF CZemScreenPainter::penColor(COLORREF color) const
{
    return color == m_dc.GetBkColor() ? color ^ kWhite : color;
}

// Only a continuous list is one run: a closed list of separate pieces has dots.
bool CZemScreenPainter::isJoined(const CZemVertexArray& vl) const { return vl.isContinuous(); }

// One pixel whatever the pen's width, in the colour lines are drawn with at
// the moment: the line colour, or the hatch colour inside a hatch.
void CZemScreenPainter::dot(const CZemPoint3d& p)
{
    POINT at;
    if (zem_device_point(p, at)) m_dc.SetPixel(at.x, at.y, penInPlaceColor());
}

COLORREF CZemScreenPainter::penInPlaceColor() const
{
    LOGPEN pen = {};
    if (::GetObjectW(::GetCurrentObject(m_dc, OBJ_PEN), sizeof pen, &pen) != sizeof pen) return m_lineColor;
    return pen.lopnColor;
}

void CZemScreenPainter::pointSquare(double x, double y, int r, int size)
{
    m_dc.FillSolidRect(zem_device_int(x - r), zem_device_int(y - r), size, size, m_lineColor);
}

// The low side lies one pixel nearer for an odd size, so a frame of size 5
// is narrower than one of size 6 instead of the same.
int CZemScreenPainter::pointFrameLow(int size, int) const
{
    const int low = size / 2;
    return size % 2 != 0 ? low - 1 : low;
}

// The test sees the rings with their arcs split, through the item matrix,
// the view direction and then M.
bool CZemScreenPainter::hatchLegible(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                                     const CZemMatrix3d& item) const
{
    return zem_gdx_pattern_test(zem_gdx_image_reg_split(rings), hatch, (item * m_direction) * m_device);
}

// A polygon with the holes cut from the clip; its border is drawn with the
// item's own pen, not with the fill pen.
void CZemScreenPainter::fillRings(int i, const CZemArrayTempl<CZemVertexArray>& rings, const CZemMatrix3d& w,
                                  COLORREF color)
{
    CZemArrayTempl<CZemVertexArray> device = rings;
    for (int k = 0; k < device.len(); ++k) device[k].transformBy(w);
    const CPen pen(PS_SOLID, m_gdx.thicknGet(i), m_lineColor);
    const CZemDCSelect penSelected = m_dc.SelectObject(pen);
    fillWithHoles(device, color);
}

int CZemScreenPainter::outlineWidth(int) const { return 1; }

// Glyph arcs are cut into chords in glyph units, before the glyph is placed.
CZemArrayTempl<CZemVertexArray> CZemScreenPainter::glyphRings(const CZemArrayTempl<CZemVertexArray>& glyph) const
{
    CZemArrayTempl<CZemVertexArray> out = glyph;
    for (int k = 0; k < out.len(); ++k) {
        const CZemVertexArray& ring = glyph[k];
        CZemVertexArray& chords = out[k];
        chords.setLogicalLength(0);
        for (int v = 0; v < ring.len(); ++v) {
            if (ring[v].m_bulge == 0.0)
                chords.append(ring[v]);
            else
                chords += ZEM::g_vl_expl(CZemVertexArray(ring[v]), ZEM::g_vx_split_dif(ring[v], kGlyphArcTolerance));
        }
    }
    return out;
}

// The second point of the box is the size of the picture, not its corner.
// Only bitmap files are shown, loaded at that size; a box of negative size
// shows nothing.
void CZemScreenPainter::drawPicture(int i, unsigned long flags)
{
    CZemString name;
    int number = 0;
    m_gdx.pictureGet(i, name, number);
    CZemPoint3d p0, p1;
    pictureBox(i, flags, p0, p1);
    const int cx = zem_device_int(p1.x);
    const int cy = zem_device_int(p1.y);
    if (cx < 0 || cy < 0) return;
    const UINT load = LR_LOADFROMFILE | ((flags & GDX_PIC_TRANSPARENT) ? LR_LOADTRANSPARENT : 0);
    CBitmap bitmap;
    bitmap.Attach(::LoadImageW(nullptr, name, IMAGE_BITMAP, cx, cy, load));
    if (bitmap.GetSafeHandle() == nullptr) return;
    CDC memory;
    if (!memory.CreateCompatibleDC(&m_dc)) return;
    const CZemDCSelect selected = memory.SelectObject(bitmap);
    m_dc.BitBlt(zem_device_int(p0.x), zem_device_int(p0.y), cx, cy, &memory, 0, 0, SRCCOPY);
}
