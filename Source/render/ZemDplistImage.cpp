#include "ZemDplistImage.h"

#include "CBitmap.h"
#include "CPaintDC.h"
#include "CRgn.h"
#include "ZemModuleState.h"
#include "ZemPoint3d.h"
#include "ZemScreenPainter.h"
#include "ZemViewMatrix.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CZemDplistImage, CWnd)

BEGIN_MESSAGE_MAP(CZemDplistImage, CWnd)
ON_WM_PAINT()
ON_WM_MOUSEWHEEL()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {

// The margin around the list's extents, as a share of their larger side;
// the same as a metafile's.
constexpr double kViewMargin = 0.05;
constexpr int kPanCursor = 2006;
// One notch of the wheel and the scale it stands for.
constexpr double kNotch = 120.0;
constexpr double kNotchScale = 1.2;

// The library's pan cursor; the platform's four-way arrow where the
// resource can't be found, so that a pan never hides the cursor.
HCURSOR loadPanCursor()
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(kPanCursor), RT_GROUP_CURSOR);
    HCURSOR cursor = module != nullptr ? ::LoadCursorW(module, MAKEINTRESOURCEW(kPanCursor)) : nullptr;
    return cursor != nullptr ? cursor : ::LoadCursorW(nullptr, IDC_SIZEALL);
}

}  // namespace

CZemDplistImage::CZemDplistImage()
    : m_cursorPan(loadPanCursor()), m_cursorNormal(::LoadCursorW(nullptr, IDC_CROSS))
{
}

CZemDplistImage::~CZemDplistImage() = default;

bool CZemDplistImage::set_dpList(CZemGDX* list)
{
    m_dpList = list;
    invalidate();
    return list != nullptr;
}

void CZemDplistImage::invalidate()
{
    if (::IsWindow(m_hWnd)) InvalidateRect(nullptr, TRUE);
}

bool CZemDplistImage::hasFocus() const { return m_hWnd != nullptr && ::GetFocus() == m_hWnd; }

void CZemDplistImage::pushZoom()
{
    if (m_dpList != nullptr) m_dpList->zoomMtxSet(m_zoomMtx);
}

bool CZemDplistImage::zoomExtents()
{
    if (m_dpList == nullptr) return true;
    CRect client;
    if (::IsWindow(m_hWnd)) GetClientRect(&client);
    CZemPoint3d min, max;
    m_dpList->extMaxViewGet(min, max);
    m_dpList->viewMtxSet(getViewMtx(min, max, client.Height(), client.Width(), kViewMargin));
    m_zoomMtx.setToIdentity();
    pushZoom();
    return true;
}

// The list's own view, projection and zoom, without any fitting: the size
// of the window plays no part. An empty list leaves the window as erasing
// left it. The memory image is copied in one blit, so the window doesn't
// flicker while it is panned.
void CZemDplistImage::OnPaint()
{
    CPaintDC paint(this);
    if (m_dpList == nullptr) return;
    CRect client;
    GetClientRect(&client);
    const int width = client.Width();
    const int height = client.Height();
    CDC memory;
    memory.CreateCompatibleDC(&paint);
    CBitmap image;
    image.CreateCompatibleBitmap(&paint, width, height);
    const CZemDCSelect imageSelected = memory.SelectObject(image);
    CRgn clip;
    clip.CreateRectRgn(0, 0, width, height);
    memory.SelectClipRgn(&clip);
    const CZemDCSelect penSelected = memory.SelectStockObject(NULL_PEN);
    const COLORREF background = m_dpList->backColorGet().oleColor();
    memory.FillSolidRect(&client, background);
    if (m_dpList->lenGet() == 0) return;
    const COLORREF before = memory.GetBkColor();
    const CZemMatrix3d device = m_dpList->zoomMtxGet() * (m_dpList->projMtxGet() * m_dpList->viewMtxGet());
    m_dpList->displListSort();
    memory.SetBkColor(background);
    CZemScreenPainter(memory, *m_dpList, device, m_dpList->viewDirectionMtxGet(), clip, width, height).drawItems();
    memory.SetBkColor(before);
    paint.BitBlt(0, 0, width, height, &memory, 0, 0, SRCCOPY);
}

// The scale follows the wheel's amount linearly: one notch scales by 1.2,
// half a notch by 0.6, which shrinks. The new scaling applies after the
// present zoom, about the point under the cursor, which stays put.
BOOL CZemDplistImage::OnMouseWheel(UINT flags, short delta, CPoint screenPoint)
{
    if ((flags & MK_MBUTTON) != 0 || delta == 0 || m_dpList == nullptr) return FALSE;
    ScreenToClient(&screenPoint);
    const double factor = std::abs(delta) * kNotchScale / kNotch;
    CZemMatrix3d scaling;
    scaling.setToScaling(delta > 0 ? factor : 1.0 / factor, CZemPoint3d(screenPoint.x, screenPoint.y, 0.0));
    m_zoomMtx = scaling * m_zoomMtx;
    const CZemMatrix3d::Cells& cells = m_zoomMtx;
    m_panBaseX = cells[0][3];
    m_panBaseY = cells[1][3];
    pushZoom();
    invalidate();
    return TRUE;
}

void CZemDplistImage::OnMButtonDown(UINT, CPoint point)
{
    if (!hasFocus()) SetFocus();
    const CZemMatrix3d::Cells& cells = m_zoomMtx;
    m_panBaseX = cells[0][3];
    m_panBaseY = cells[1][3];
    SetCapture();
    m_panStart = point;
    Default();
    ::SetCursor(m_cursorPan);
}

// The translation is set from the start of the pan, not added up move by
// move, so no error builds up; the scale stays. Without the focus the
// control neither pans nor changes the cursor.
void CZemDplistImage::OnMouseMove(UINT flags, CPoint point)
{
    if (hasFocus()) {
        if ((flags & MK_MBUTTON) != 0) {
            CZemMatrix3d::Cells& cells = m_zoomMtx;
            cells[0][3] = point.x + m_panBaseX - m_panStart.x;
            cells[1][3] = point.y + m_panBaseY - m_panStart.y;
            pushZoom();
            invalidate();
            ::SetCursor(m_cursorPan);
        } else {
            ::SetCursor(m_cursorNormal);
        }
    }
    Default();
}

void CZemDplistImage::OnMButtonUp(UINT, CPoint)
{
    ::ReleaseCapture();
    Default();
    ::SetCursor(m_cursorNormal);
}

void CZemDplistImage::OnMButtonDblClk(UINT, CPoint)
{
    zoomExtents();
    invalidate();
    Default();
}

// The parent hears a pick as the message numbered by this control's id,
// with the item's first stack element as LPARAM; a miss posts nothing.
void CZemDplistImage::OnLButtonDown(UINT, CPoint point)
{
    SetFocus();
    const int hit = m_dpList != nullptr ? m_dpList->imageItemGet(CZemPoint3d(point.x, point.y, 0.0)) : -1;
    const HWND parent = ::GetParent(m_hWnd);
    if (hit > -1 && parent != nullptr)
        ::PostMessageW(parent, static_cast<UINT>(GetDlgCtrlID()), 0, static_cast<LPARAM>(hit));
    Default();
    if (hasFocus()) ::SetCursor(m_cursorNormal);
}

void CZemDplistImage::OnLButtonUp(UINT, CPoint)
{
    Default();
    if (hasFocus()) ::SetCursor(m_cursorNormal);
}
