#include "ZemSlidePic.h"

#include "CMetaFileDC.h"
#include "CPaintDC.h"
#include "CRgn.h"
#include "ZemModuleState.h"
#include "ZemSlideDecoder.h"

#include <filesystem>

IMPLEMENT_DYNAMIC(CZemSlidePic, CWnd)

BEGIN_MESSAGE_MAP(CZemSlidePic, CWnd)
ON_WM_PAINT()
ON_MESSAGE(WM_PAINTCLIPBOARD, OnPaintClipboard)
END_MESSAGE_MAP()

namespace {

constexpr int kWhite = 7;
// A slide name fills fewer than the 32 bytes of a directory entry.
constexpr int kNameBytes = 32;

}  // namespace

CZemSlidePic::CZemSlidePic()
    : m_pen(PS_SOLID, 0, acadRGB(kWhite)),
      m_brush(acadRGB(kWhite)),
      m_bkBrush(acadRGB(m_palette.BackColor())),
      m_sysBrush(::GetSysColor(COLOR_BTNFACE))
{
}

CZemSlidePic::~CZemSlidePic() = default;

unsigned long CZemSlidePic::acadRGB(int color) { return CZemSlidePalette::acadRGB(color); }

// Without a window there is nothing to repaint; a null handle would repaint every window.
void CZemSlidePic::invalidate()
{
    if (::IsWindow(m_hWnd))
        InvalidateRect(nullptr, TRUE);
}

bool CZemSlidePic::show(const wchar_t* name, const wchar_t* lib)
{
    m_slide.clear();
    invalidate();
    if (!name)
        return false;
    if (!lib)
        return m_slide.loadFile(std::filesystem::path(name));
    char ansi[kNameBytes] = {};
    if (::WideCharToMultiByte(CP_ACP, 0, name, -1, ansi, kNameBytes, nullptr, nullptr) == 0)
        return false;
    return m_slide.loadFromLibrary(std::filesystem::path(lib), ansi);
}

void CZemSlidePic::show(void* data, int size)
{
    m_slide.assign(data, size);
    invalidate();
}

bool CZemSlidePic::LoadSlide(unsigned long id, const wchar_t* type)
{
    const LPCWSTR name = MAKEINTRESOURCEW(id);
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    const HRSRC resource = ::FindResourceW(module, name, type);
    if (!resource)
        return false;
    const HGLOBAL loaded = ::LoadResource(module, resource);
    if (!loaded)
        return false;
    show(::LockResource(loaded), static_cast<int>(::SizeofResource(module, resource)));
    return true;
}

bool CZemSlidePic::getSize(long& width, long& height)
{
    if (!m_slide.hasSlide())
        return false;
    width = m_slide.width();
    height = m_slide.height();
    return true;
}

int CZemSlidePic::BackColor() { return m_palette.BackColor(); }

int CZemSlidePic::SetBkColor(int color)
{
    m_palette.SetBkColor(color);
    m_bkBrush.DeleteObject();
    m_bkBrush.CreateSolidBrush(acadRGB(color));
    return 1;
}

void CZemSlidePic::OnPaint()
{
    m_dc = std::make_unique<CPaintDC>(this);
    CRect client;
    GetClientRect(&client);
    CRgn clip;
    clip.CreateRectRgn(0, 0, client.right, client.bottom);
    m_dc->SelectClipRgn(&clip);
    if ((GetExStyle() & WS_EX_TRANSPARENT) == 0) {
        const CZemDCSelect background = m_dc->SelectObject(m_slide.hasSlide() ? m_bkBrush : m_sysBrush);
        m_dc->Rectangle(&client);
    }
    draw(client);
    m_dc.reset();
}

LRESULT CZemSlidePic::OnPaintClipboard(WPARAM, LPARAM) { return Default(); }

// Colour records of 7 write black: a metafile goes on white paper. The
// background itself stays out of the metafile.
HENHMETAFILE CZemSlidePic::CreateEnhMetaFileW(CRect rect)
{
    auto recorder = std::make_unique<CMetaFileDC>();
    if (!recorder->CreateEnhanced(nullptr, nullptr, nullptr, nullptr))
        return nullptr;
    const int background = m_palette.BackColor();
    m_palette.SetBkColor(kWhite);
    CMetaFileDC* metafile = recorder.get();
    m_dc = std::move(recorder);
    draw(rect);
    const HENHMETAFILE result = metafile->CloseEnhanced();
    m_dc.reset();
    m_palette.SetBkColor(background);
    return result;
}

bool CZemSlidePic::Copy()
{
    if (!::OpenClipboard(m_hWnd))
        return false;
    ::EmptyClipboard();
    const HENHMETAFILE picture = CreateEnhMetaFileW(CRect(0, 0, m_slide.width(), m_slide.height()));
    // Once set, the clipboard owns the metafile.
    if (picture && !::SetClipboardData(CF_ENHMETAFILE, picture))
        ::DeleteEnhMetaFile(picture);
    ::CloseClipboard();
    return true;
}

bool CZemSlidePic::SetCoordSystem(CRect rect, int width, int height)
{
    if (!m_dc)
        return false;
    m_fit.SetCoordSystem(rect.Width(), rect.Height(), width, height);
    return true;
}

void CZemSlidePic::trans(POINT& point)
{
    int x = point.x;
    int y = point.y;
    trans(x, y);
    point.x = x;
    point.y = y;
}

void CZemSlidePic::trans(int& x, int& y) { m_fit.trans(x, y); }

void CZemSlidePic::MoveTo(int x, int y)
{
    trans(x, y);
    m_dc->MoveTo(x, y);
}

void CZemSlidePic::LineTo(int x, int y)
{
    trans(x, y);
    m_dc->LineTo(x, y);
}

void CZemSlidePic::Polygon(CZemArrayTempl<POINT>& points)
{
    for (int i = 0; i < points.len(); ++i)
        trans(points[i]);
    m_dc->Polygon(points.data(), points.len());
}

// Pen and brush stay the context's own until the first colour record; what
// the slide selected goes out again at the end.
bool CZemSlidePic::draw(CRect rect)
{
    if (!m_dc)
        return false;
    m_drawRect = rect;
    const bool drawn = CZemSlideDecoder(*this).draw(m_slide);
    m_penSelected.Restore();
    m_brushSelected.Restore();
    return drawn;
}

void CZemSlidePic::slideSize(int width, int height) { SetCoordSystem(m_drawRect, width, height); }

// The new pen and brush go into the context before the former ones are
// deleted, as an object can't be deleted while it is selected.
void CZemSlidePic::newColor(int color)
{
    const COLORREF rgb = m_palette.drawRGB(color);
    CPen pen(PS_SOLID, 1, rgb);
    CBrush brush(rgb);
    if (m_penSelected.selected())
        ::SelectObject(*m_dc, pen);
    else
        m_penSelected = m_dc->SelectObject(pen);
    if (m_brushSelected.selected())
        ::SelectObject(*m_dc, brush);
    else
        m_brushSelected = m_dc->SelectObject(brush);
    m_pen = std::move(pen);
    m_brush = std::move(brush);
}

void CZemSlidePic::line(int fromX, int fromY, int toX, int toY)
{
    MoveTo(fromX, fromY);
    LineTo(toX, toY);
}

void CZemSlidePic::polygon(std::vector<Point>& points)
{
    m_points.setLogicalLength(0);
    for (const Point& p : points)
        m_points.append(POINT{p.x, p.y});
    Polygon(m_points);
}
