#include "ZemPicture.h"

#include "CBitmap.h"
#include "CMetaFileDC.h"
#include "CPaintDC.h"
#include "CRgn.h"

#include <algorithm>
#include <climits>
#include <cmath>

IMPLEMENT_DYNAMIC(CZemPicture, CWnd)

BEGIN_MESSAGE_MAP(CZemPicture, CWnd)
ON_WM_PAINT()
ON_WM_MOUSEWHEEL()
ON_WM_MBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_MBUTTONUP()
END_MESSAGE_MAP()

namespace {

constexpr double kZoomStep = 1.5;
constexpr double kZoomInLimit = 20.0;
constexpr double kZoomOutLimit = 0.5;
constexpr int kHimetricPerInch = 2540;
constexpr int kMessageChars = 260;
constexpr wchar_t kLoadCaption[] = L"CZemPicture::LoadImage";

// Truncates towards zero like a cast, but saturates where a cast would
// overflow: sizes and positions come from outside images and user input.
int toInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(INT_MAX))
        return INT_MAX;
    if (value <= static_cast<double>(INT_MIN))
        return INT_MIN;
    return static_cast<int>(value);
}

int toInt(long long value)
{
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

// HIMETRIC (0.01 mm) to device pixels at dpi, rounded to the nearest pixel.
int himetricToPixels(int himetric, int dpi)
{
    return toInt((static_cast<long long>(himetric) * dpi + kHimetricPerInch / 2) / kHimetricPerInch);
}

}  // namespace

CZemPicture::CZemPicture() : m_backColor(::GetSysColor(COLOR_BTNFACE)) {}

CZemPicture::~CZemPicture() { release(); }

void CZemPicture::release()
{
    if (m_picture)
        m_picture->Release();
    m_picture = nullptr;
}

// A static control placed in a dialog template passes mouse input on to its
// parent unless it notifies.
void CZemPicture::PreSubclassWindow()
{
    ModifyStyle(0, SS_NOTIFY);
    CWnd::PreSubclassWindow();
}

bool CZemPicture::LoadImageW(const wchar_t* path)
{
    if (!path)
        return false;
    release();
    IPicture* loaded = nullptr;
    // The error code is read right after the call, so it must not be left
    // over from earlier work of the thread.
    ::SetLastError(0);
    const HRESULT result = ::OleLoadPicturePath(const_cast<LPOLESTR>(path), nullptr, 0, 0, IID_IPicture,
                                                reinterpret_cast<void**>(&loaded));
    const DWORD error = ::GetLastError();
    if (SUCCEEDED(result) && loaded) {
        m_picture = loaded;
        measure();
        centre();
    } else if (error != 0) {
        showLoadFailure(error);
    }
    invalidate();
    return true;
}

// The picture object gives its size in HIMETRIC; the screen's resolution
// turns it into pixels.
void CZemPicture::measure()
{
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    m_picture->get_Width(&width);
    m_picture->get_Height(&height);
    m_hmWidth = std::max<int>(0, width);
    m_hmHeight = std::max<int>(0, height);
    const HDC screen = ::GetDC(nullptr);
    const int dpiX = ::GetDeviceCaps(screen, LOGPIXELSX);
    const int dpiY = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    m_pixelWidth = himetricToPixels(m_hmWidth, dpiX);
    m_pixelHeight = himetricToPixels(m_hmHeight, dpiY);
}

void CZemPicture::showLoadFailure(DWORD error)
{
    wchar_t text[kMessageChars] = {};
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                                          MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), text, kMessageChars, nullptr);
    if (length > 0)
        MessageBoxW(text, kLoadCaption);
}

// An image larger than the client area is shrunk to fit it, a smaller one
// is never blown up. Without a client area there is nothing to fit into.
double CZemPicture::fitFactor() const
{
    CRect client;
    if (::IsWindow(m_hWnd))
        GetClientRect(&client);
    if (client.Width() <= 0 || client.Height() <= 0)
        return 1.0;
    const double factor = std::max(static_cast<double>(m_pixelHeight) / client.Height(),
                                   static_cast<double>(m_pixelWidth) / client.Width());
    return std::max(factor, 1.0);
}

void CZemPicture::centre()
{
    CRect client;
    if (::IsWindow(m_hWnd))
        GetClientRect(&client);
    const double fit = fitFactor();
    m_x = toInt((client.Width() - m_pixelWidth / fit) * 0.5);
    m_y = toInt((client.Height() - m_pixelHeight / fit) * 0.5);
    m_zoom = 1.0;
}

// Without a window there is nothing to repaint; a null handle would repaint every window.
void CZemPicture::invalidate()
{
    if (::IsWindow(m_hWnd))
        InvalidateRect(nullptr, TRUE);
}

void CZemPicture::Reset()
{
    if (!m_picture)
        return;
    centre();
    invalidate();
}

void CZemPicture::SetBackColor(COLORREF color) { m_backColor = color; }

// The destination stays at the zoomed pixel size while the source is
// stretched by the fit factor beyond the image: at zoom 1.0 the image fills
// 1 / fit of it. The negative source height turns the upward HIMETRIC y axis
// downward. Some picture objects (Wine's) draw metafiles and icons into the
// whole destination whatever the source; for those the destination is
// shrunk by the fit factor instead and the source is the image, which shows
// the same.
void CZemPicture::render(CDC& dc, const CRect& client)
{
    const double fit = fitFactor();
    short type = PICTYPE_UNINITIALIZED;
    m_picture->get_Type(&type);
    if (type == PICTYPE_BITMAP) {
        m_picture->Render(dc, m_x, m_y, toInt(m_zoom * m_pixelWidth), toInt(m_zoom * m_pixelHeight), 0, m_hmHeight,
                          toInt(m_hmWidth * fit), toInt(-m_hmHeight * fit), &client);
        return;
    }
    m_picture->Render(dc, m_x, m_y, toInt(m_zoom * m_pixelWidth / fit), toInt(m_zoom * m_pixelHeight / fit), 0,
                      m_hmHeight, m_hmWidth, -m_hmHeight, &client);
}

// Drawn into a memory image first and copied in one blit, so the control
// doesn't flicker.
void CZemPicture::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CDC memory;
    memory.CreateCompatibleDC(&paint);
    CBitmap image;
    image.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
    const CZemDCSelect imageSelected = memory.SelectObject(image);
    CRgn clip;
    clip.CreateRectRgn(0, 0, client.Width(), client.Height());
    memory.SelectClipRgn(&clip);
    paint.SelectClipRgn(&clip);
    const bool transparent = (GetExStyle() & WS_EX_TRANSPARENT) != 0;
    memory.FillSolidRect(&client, transparent ? ::GetSysColor(COLOR_BTNFACE) : m_backColor);
    if (m_picture)
        render(memory, client);
    paint.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
}

// One step of 1.5 per message, whatever the size of delta, about the point
// under the cursor, which stays put.
BOOL CZemPicture::OnMouseWheel(UINT, short delta, CPoint point)
{
    ScreenToClient(&point);
    if (delta > 0) {
        if (m_zoom > kZoomInLimit)
            return FALSE;
        m_zoom *= kZoomStep;
        m_x = toInt((m_x - point.x) * kZoomStep + point.x);
        m_y = toInt((m_y - point.y) * kZoomStep + point.y);
    } else {
        if (m_zoom < kZoomOutLimit)
            return FALSE;
        m_zoom /= kZoomStep;
        m_x = toInt((m_x - point.x) / kZoomStep + point.x);
        m_y = toInt((m_y - point.y) / kZoomStep + point.y);
    }
    invalidate();
    return static_cast<BOOL>(Default());
}

void CZemPicture::OnMButtonDown(UINT, CPoint point)
{
    SetFocus();
    SetCapture();
    m_panBaseX = m_x;
    m_panBaseY = m_y;
    m_panStart = point;
    Default();
}

// A paint still pending takes the new position with it; invalidating again
// would only queue up repaints while the mouse moves.
void CZemPicture::OnMouseMove(UINT flags, CPoint point)
{
    if ((flags & MK_MBUTTON) == 0) {
        Default();
        return;
    }
    m_x = toInt(static_cast<long long>(m_panBaseX) - m_panStart.x + point.x);
    m_y = toInt(static_cast<long long>(m_panBaseY) - m_panStart.y + point.y);
    MSG pending;
    if (::PeekMessageW(&pending, m_hWnd, WM_PAINT, WM_PAINT, PM_REMOVE))
        return;
    invalidate();
    Default();
}

void CZemPicture::OnMButtonUp(UINT, CPoint)
{
    ::ReleaseCapture();
    Default();
}

// The metafile holds the whole image at its pixel size; zoom and pan play
// no part. A control without a window has no clipboard owner to open with.
bool CZemPicture::Copy()
{
    if (!m_picture || !::IsWindow(m_hWnd) || !::OpenClipboard(m_hWnd))
        return false;
    CMetaFileDC recorder;
    recorder.CreateEnhanced(nullptr, nullptr, nullptr, nullptr);
    const RECT bounds = {0, 0, m_pixelWidth, m_pixelHeight};
    m_picture->Render(recorder, 0, 0, m_pixelWidth, m_pixelHeight, 0, m_hmHeight, m_hmWidth, -m_hmHeight, &bounds);
    ::EmptyClipboard();
    const HENHMETAFILE metafile = recorder.CloseEnhanced();
    // Once set, the clipboard owns the metafile.
    if (metafile && !::SetClipboardData(CF_ENHMETAFILE, metafile))
        ::DeleteEnhMetaFile(metafile);
    ::CloseClipboard();
    return true;
}
