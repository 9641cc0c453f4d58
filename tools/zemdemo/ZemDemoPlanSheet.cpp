#include "ZemDemoPlan.h"

#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemDemoPlanData.h"
#include "ZemGDX.h"
#include "ZemGdxImageSld.h"
#include "ZemViewMatrix.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <limits>

using namespace zemdemo;

namespace {

constexpr Box kSheet = {-3000, -3200, 19500, 12200};
constexpr Box kTitle = {13800, -2900, 19200, 1700};
constexpr Box kPictureCell = {13850, -2850, 15550, -1150};
constexpr Box kDetailFrame = {13800, 2200, 19200, 11900};
constexpr Box kDetailArea = {14100, 2800, 18900, 11000};

struct Axis {
    const wchar_t* name;
    double at;
};
constexpr Axis kAcross[] = {{L"1", kOuter / 2}, {L"2", 5120}, {L"3", kWidth - kOuter / 2}};
constexpr Axis kAlong[] = {{L"A", kOuter / 2}, {L"B", 4942.5}, {L"C", kDepth - kOuter / 2}};

// A length as the plan writes it: metres, millimetres shown only where a
// whole centimetre doesn't give it.
void metres(double millimetres, wchar_t* text, int size)
{
    const bool wholeCm = std::fabs(std::fmod(millimetres, 10.0)) < 1e-6;
    std::swprintf(text, static_cast<size_t>(size), wholeCm ? L"%.2f" : L"%.3f", millimetres / 1000.0);
}

}  // namespace

// Structural axes through the wall centres: dash-dot lines whose dashes are
// fitted to each line, a bubble with the axis name at one end, and a marker
// where two axes cross.
void CZemDemoPlan::axes()
{
    m_out.group(groupAxes);
    const Pen axis = CZemDrawingWriter::pen(kAxis, 1, {1.0, 1.0, 1.0}, 30.0);
    const Pen bubble = CZemDrawingWriter::pen(kAxis, 1);
    for (const Axis& a : kAcross) {
        m_out.line(axis, {{a.at, -1700, 0}, {a.at, kDepth + 1150, 0}});
        m_out.circle(bubble, CZemPoint3d(a.at, kDepth + 1500, 0), 350);
        m_out.text(a.name, CZemPoint3d(a.at, kDepth + 1500, 0), 350, 0.0, L"CC", kAxis);
    }
    for (const Axis& a : kAlong) {
        m_out.line(axis, {{-1550, a.at, 0}, {kWidth + 1100, a.at, 0}});
        m_out.circle(bubble, CZemPoint3d(-1900, a.at, 0), 350);
        m_out.text(a.name, CZemPoint3d(-1900, a.at, 0), 350, 0.0, L"CC", kAxis);
    }
    for (const Axis& x : kAcross) {
        for (const Axis& y : kAlong)
            m_out.marker(CZemPoint3d(x.at, y.at, 0), 64 | 2, 250.0, kAxis);
    }
}

// Chains of the openings close to the walls, the overall length further out.
void CZemDemoPlan::dimensions()
{
    m_out.group(groupDimensions);
    const double bottom[] = {0, 1500, 2510, 3300, 4285, 6500, 8510, kWidth};
    const double top[] = {0, 1200, 3460, 6500, 8010, 9500, 10760, kWidth};
    const double left[] = {0, 5200, 6460, kDepth};
    const double right[] = {0, 1500, 3010, 6300, 7560, kDepth};
    const double overallX[] = {0, kWidth};
    const double overallY[] = {0, kDepth};
    chain(bottom, 8, false, -700);
    chain(overallX, 2, false, -1200);
    chain(top, 8, false, kDepth + 700);
    chain(left, 4, true, -700);
    chain(overallY, 2, true, -1200);
    chain(right, 6, true, kWidth + 700);
}

// A dimension line through the stops, a tick marker and a short witness
// line at each stop, and each length written above its stretch; on a
// vertical chain the texts are turned to read from the right.
void CZemDemoPlan::chain(const double* stops, int count, bool vertical, double lineAt)
{
    const Pen pen = CZemDrawingWriter::pen(kDimension, 1);
    const auto at = [vertical, lineAt](double along, double across) {
        return vertical ? CZemPoint3d(lineAt + across, along, 0) : CZemPoint3d(along, lineAt + across, 0);
    };
    m_out.line(pen, {at(stops[0] - 150, 0), at(stops[count - 1] + 150, 0)});
    for (int k = 0; k < count; ++k) {
        m_out.line(pen, {at(stops[k], -150), at(stops[k], 150)});
        m_out.marker(at(stops[k], 0), 3, 150.0, kDimension);
    }
    for (int k = 0; k + 1 < count; ++k) {
        wchar_t text[32];
        metres(stops[k + 1] - stops[k], text, 32);
        const double mid = (stops[k] + stops[k + 1]) / 2.0;
        m_out.text(text, at(mid, vertical ? -60 : 60), 170, vertical ? kPi / 2.0 : 0.0, L"BC", kDimension);
    }
}

// The sheet's border, the title block and the north arrow.
void CZemDemoPlan::sheet()
{
    m_out.group(groupSheet);
    const Pen frame = CZemDrawingWriter::pen(kInk, 2);
    const Pen rule = CZemDrawingWriter::pen(kInk, 1);
    m_out.rect(frame, kSheet.x0, kSheet.y0, kSheet.x1, kSheet.y1);
    m_out.rect(frame, kTitle.x0, kTitle.y0, kTitle.x1, kTitle.y1);
    for (double y : {800.0, 0.0, -1100.0})
        m_out.line(rule, {{kTitle.x0, y, 0}, {kTitle.x1, y, 0}});
    m_out.line(rule, {{15700, kTitle.y0, 0}, {15700, -1100, 0}});
    m_out.text(L"GROUND FLOOR PLAN", CZemPoint3d(kTitle.x0 + 150, kTitle.y1 - 250, 0), 250, 0.0, L"TL", kInk);
    m_out.text(L"House Zem, 12.00 x 9.00 m", CZemPoint3d(kTitle.x0 + 150, 400, 0), 185, 0.0, L"CL", kInk);
    m_out.text(L"Scale 1:100", CZemPoint3d(kTitle.x0 + 150, -550, 0), 220, 0.0, L"CL", kInk);
    m_out.text(L"A-101", CZemPoint3d(kTitle.x1 - 150, -550, 0), 300, 0.0, L"CR", kInk);
    m_out.text(L"Zem_Mfc", CZemPoint3d(15900, -1600, 0), 300, 0.0, L"CL", kInk);
    m_out.text(L"drawn by zemdemo", CZemPoint3d(15900, -2350, 0), 165, 0.0, L"CL", kInk);
    northArrow(-1800, 11000);
}

void CZemDemoPlan::northArrow(double x, double y)
{
    const Pen pen = CZemDrawingWriter::pen(kInk, 1);
    m_out.circle(pen, CZemPoint3d(x, y, 0), 500);
    CZemArrayTempl<CZemVertexArray> arrow;
    CZemPoint3dArray tip;
    tip.append(CZemPoint3d(x, y + 450, 0)).append(CZemPoint3d(x - 220, y - 380, 0)).append(CZemPoint3d(x, y - 220, 0));
    tip.append(CZemPoint3d(x + 220, y - 380, 0));
    arrow.append(CZemVertexArray().fromPoints(tip, true));
    m_out.region(GDX_FILL | GDX_EDGE, arrow, pen, kInk, CZemHatchProp());
    m_out.text(L"N", CZemPoint3d(x, y + 600, 0), 300, 0.0, L"BC", kInk);
}

// The slide comes in at its raster size; its group is then scaled into the
// detail's frame as a whole and drawn in one colour of the list's table.
bool CZemDemoPlan::detail(const std::wstring& library, const std::wstring& name, std::wstring& error)
{
    m_out.group(groupDetail);
    const Pen pen = CZemDrawingWriter::pen(kDetail, 1);
    m_out.rect(pen, kDetailFrame.x0, kDetailFrame.y0, kDetailFrame.x1, kDetailFrame.y1);
    m_out.text(L"STAIR, SECTION", CZemPoint3d(kDetailFrame.x0 + 150, kDetailFrame.y1 - 150, 0), 300, 0.0, L"TL",
               kDetail);
    m_out.text(L"from the slide library", CZemPoint3d(kDetailFrame.x1 - 150, kDetailFrame.y0 + 120, 0), 180, 0.0,
               L"BR", kDetail);
    CZemArrayTempl<int> path;
    path.append(groupDetail).append(0);
    CZemDataItem parameters(CZemDataItem::typeDir);
    const CZemDataKey stackKey(L"STACK");
    ZEM::dataItemSet(&parameters, &stackKey, path);
    if (!zem_gdx_image_sld(&m_gdx, name.c_str(), library.c_str(), 0, &parameters)) {
        error = L"slide " + name + L" of " + library + L" can't be read";
        return false;
    }
    const double big = std::numeric_limits<double>::max();
    CZemPoint3d lo(big, big, big), hi(-big, -big, -big);
    if (!m_gdx.extmaxGet(path, lo, hi) || !(hi.x > lo.x) || !(hi.y > lo.y)) {
        error = L"slide " + name + L" draws nothing";
        return false;
    }
    const double scale = std::min((kDetailArea.x1 - kDetailArea.x0) / (hi.x - lo.x),
                                  (kDetailArea.y1 - kDetailArea.y0) / (hi.y - lo.y));
    const CZemVector3d move((kDetailArea.x0 + kDetailArea.x1) / 2.0 - scale * (lo.x + hi.x) / 2.0,
                            (kDetailArea.y0 + kDetailArea.y1) / 2.0 - scale * (lo.y + hi.y) / 2.0, 0.0);
    CZemMatrix3d place;
    place.setToSRM(CZemPoint3d(scale, scale, 1.0), 0.0, move);
    m_gdx.mtxSet(path, place);
    m_gdx.ColorTabSet(GDX_CM_AUX, CZemDrawingWriter::color(kDetail));
    m_gdx.cModeSet(path, GDX_CM_AUX);
    return true;
}

// A picture keeps its device pixels, so its box is found through the view
// that the metafile output fits to this list at the sheet's size.
bool CZemDemoPlan::picture(const std::wstring& file, std::wstring& error)
{
    CZemPoint3d lo, hi;
    m_gdx.extMaxViewGet(lo, hi);
    const CZemMatrix3d device = m_gdx.zoomMtxGet() * (m_gdx.projMtxGet() * getViewMtx(lo, hi, m_height, m_width, 0.05));
    const CZemPoint3d p0 = CZemPoint3d(kPictureCell.x0, kPictureCell.y1, 0) * device;
    const CZemPoint3d p1 = CZemPoint3d(kPictureCell.x1, kPictureCell.y0, 0) * device;
    if (!(p1.x - p0.x >= 1.0) || !(p1.y - p0.y >= 1.0)) {
        error = L"the title block's picture has no room at this size";
        return false;
    }
    CZemArrayTempl<int> stack;
    stack.append(groupPicture);
    return m_gdx.imagePicture(stack, 0, file.c_str(), 0, p0, p1);
}
