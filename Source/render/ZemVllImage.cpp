#include "ZemVllImage.h"

#include "ZemApp.h"
#include "ZemColor.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"

IMPLEMENT_DYNAMIC(CZemVllImage, CZemDplistImage)

BEGIN_MESSAGE_MAP(CZemVllImage, CZemDplistImage)
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {

// The colour table entry the polylines take their colour from.
constexpr GDX_CMODE kLineMode = static_cast<GDX_CMODE>(6);
constexpr COLORREF kWhite = 0xFFFFFF;
constexpr COLORREF kBlack = 0;
// A mean of the three components below this is a dark background.
constexpr int kDarkBelow = 128;

CZemArrayTempl<int> stackOf(int element) { return CZemArrayTempl<int>().append(element); }

CZemColor oleColor(COLORREF color) { return CZemColor().setOleColor(color); }

unsigned long modeFlags(int mode) { return static_cast<unsigned long>(mode) << 8; }

}  // namespace

CZemVllImage::CZemVllImage()
{
    set_dpList(&m_gdx);
    SetBkColor(zemAppPtr()->backgroundColor());
    m_gdx.ColorTabSet(kLineMode, oleColor(m_lineColor));
}

CZemVllImage::~CZemVllImage() = default;

// Items already in the list follow at the next paint: they take their
// colour from the table.
void CZemVllImage::SetBkColor(COLORREF color)
{
    m_backColor = color;
    const CZemColor back = oleColor(color);
    const int mean = (back.red() + back.green() + back.blue()) / 3;
    m_lineColor = mean < kDarkBelow ? kWhite : kBlack;
    m_gdx.backColorSet(back);
    m_gdx.ColorTabSet(kLineMode, oleColor(m_lineColor));
}

// The mark is not carried over: the new list has none until SetCurVl.
bool CZemVllImage::setVll(const CZemArrayTempl<CZemVertexArray>& vll)
{
    const CZemArrayTempl<double> continuous = CZemArrayTempl<double>().append(1.0);
    const CZemColor color = oleColor(m_lineColor);
    m_gdx.clear();
    unsigned long baseFlags = modeFlags(GDX_CM_BASE);
    if (!m_drawBase) baseFlags |= GDX_HIDE | GDX_NOEXT;
    m_gdx.imagePt(stackOf(0), baseFlags, CZemPoint3d::kOrigin, color, CZemMatrix3d::kIdentity,
                  static_cast<double>(m_pdSize), m_pdMode);
    for (int k = 0; k < vll.len(); ++k)
        m_gdx.imageVl(stackOf(k + 1), modeFlags(kLineMode), vll[k], color, CZemMatrix3d::kIdentity, continuous, 1.0,
                      0);
    zoomExtents();
    invalidate();
    return true;
}

// Marking the same index again leaves it marked: it is set back first.
int CZemVllImage::SetCurVl(int index)
{
    const int old = m_curVl;
    m_curVl = index;
    if (old >= 0) m_gdx.cModeSet(stackOf(old + 1), kLineMode);
    if (index >= 0) m_gdx.cModeSet(stackOf(index + 1), GDX_CM_HIGHLIGHT);
    invalidate();
    return old;
}

bool CZemVllImage::setDrawBase(bool draw)
{
    const bool old = m_drawBase;
    m_drawBase = draw;
    m_gdx.propSet(stackOf(0), draw ? GDX_PROP_SHOW : GDX_PROP_HIDE);
    m_gdx.propSet(stackOf(0), draw ? GDX_PROP_EXT_ON : GDX_PROP_EXT_OFF);
    zoomExtents();
    invalidate();
    return old;
}

void CZemVllImage::OnLButtonDblClk(UINT, CPoint)
{
    Default();
    zoomExtents();
    invalidate();
}
