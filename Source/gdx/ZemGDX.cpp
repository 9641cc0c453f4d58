#include "ZemGDX.h"

#include "ZemApp.h"
#include "ZemConfig.h"

CZemGDX::CZemGDX() {
    m_backColor.setOleColor(zemAppPtr()->backgroundColor());
    if (const CZemDataItem* size = ZEM::cfg_get(L"KAL_MENU\\COLOR\\PDSIZE")) size->get(m_pdSize, nullptr);
    if (const CZemDataItem* style = ZEM::cfg_get(L"KAL_MENU\\COLOR\\PDMODE")) style->get(m_pdMode, nullptr);
    for (int mode = 1; mode <= 5; ++mode) {
        CZemColor color;
        ZEM::color_from_cfg(color, ZEM::cfg_get(kZemGdxColorKeys[mode - 1]));
        ColorTabSet(static_cast<GDX_CMODE>(mode), color);
    }
}

CZemGDX::CZemGDX(const CZemColor& back, const CZemMatrix3d& proj, double pdSize, unsigned long pdMode,
                 const CZemPoint3d& viewMin, const CZemPoint3d& viewMax)
    : m_backColor(back), m_pdSize(pdSize), m_pdMode(pdMode), m_projMtx(proj), m_extViewMin(viewMin),
      m_extViewMax(viewMax) {}

CZemGDX::CZemGDX(const CZemGDX& other) { *this = other; }

CZemGDX& CZemGDX::operator=(const CZemGDX& other) {
    if (this == &other) return *this;
    m_backColor = other.m_backColor;
    m_pdSize = other.m_pdSize;
    m_pdMode = other.m_pdMode;
    m_projMtx = other.m_projMtx;
    m_viewMtx = other.m_viewMtx;
    m_zoomMtx = other.m_zoomMtx;
    m_extMin = other.m_extMin;
    m_extMax = other.m_extMax;
    m_extViewMin = other.m_extViewMin;
    m_extViewMax = other.m_extViewMax;
    m_displayList = other.m_displayList;
    m_colorTab = other.m_colorTab;
    m_viewDirectionMtx = other.m_viewDirectionMtx;
    return *this;
}

bool CZemGDX::geomGet(CZemVertexArray& out, int i) const {
    out = itemAt(i).m_vl;
    return true;
}

bool CZemGDX::geomGet(CZemPoint3d& out, int i) const {
    out = itemAt(i).m_pt;
    return true;
}

bool CZemGDX::geomGet(CZemArrayTempl<CZemVertexArray>& out, int i) const {
    out = itemAt(i).m_regl;
    return true;
}

bool CZemGDX::geomGet(CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& out, int i) const {
    out = itemAt(i).m_txtRegl;
    return true;
}

unsigned long CZemGDX::pdModeGet(int i) const {
    const unsigned long mode = itemAt(i).m_pdMode;
    return mode == 0xFFFFFFFFUL ? m_pdMode : mode;
}

double CZemGDX::pdSizeGet(int i) const {
    const double size = itemAt(i).m_pdSize;
    return size == 0.0 ? m_pdSize : size;
}

bool CZemGDX::pictureGet(int i, CZemString& file, int& number) const {
    const CZemDisplayItem& item = itemAt(i);
    file = item.m_txt;
    number = static_cast<int>(item.m_pdMode);
    return number != 0x7FFFFFFF || !file.isEmpty();
}

bool CZemGDX::hatchGet(int i, CZemHatchProp& out) const {
    if (i >= lenGet()) return false;
    const CZemHatchProp& hatch = itemAt(i).m_hatch;
    out.name = hatch.name;
    out.angle = hatch.angle;
    out.scale = hatch.scale;
    out.flag = hatch.flag;
    return true;
}

bool CZemGDX::itemStackGet(CZemArrayTempl<int>& out, int i) const {
    out = itemAt(i).m_stack;
    return true;
}

bool CZemGDX::pdSizeSet(double size) {
    m_pdSize = size;
    return true;
}

bool CZemGDX::pdModeSet(unsigned long mode) {
    m_pdMode = mode;
    return true;
}

bool CZemGDX::backColorSet(const CZemColor& color) {
    m_backColor = color;
    return true;
}

const CZemColor& CZemGDX::colorTabGet(GDX_CMODE m) const {
    const CZemArrayTempl<CZemColor>& table = m_colorTab;
    return table[static_cast<int>(m) - 1];
}

bool CZemGDX::ColorTabSet(GDX_CMODE m, const CZemColor& c) {
    if (m < 1 || m > 14) return false;
    const CZemColor color(c);  // c may be an entry, which growing the table moves
    m_colorTab[static_cast<int>(m) - 1] = color;
    return true;
}

namespace {

// How far ahead a full pass asks for item heads and for geometry: the heads
// come first, so that the address of the geometry is at hand when it is
// asked for. A pass reads the first lines of an item (kind, flags, geometry,
// matrix), and a four-vertex line fills five lines.
constexpr int kHeadsAhead = 24;
constexpr int kHeadLines = 8;
constexpr int kGeometryAhead = 12;
constexpr int kGeometryLines = 5;

// The compiler's locality hints: the first asks for the nearest cache, the
// second for the second-level cache and the ones behind it.
constexpr int kToFirstLevel = 3;
constexpr int kToSecondLevel = 2;

template <int Locality>
void prefetchLines(const void* at, int lines) {
    const char* bytes = static_cast<const char*>(at);
    for (int line = 0; line < lines; ++line) __builtin_prefetch(bytes + 64 * line, 0, Locality);
}

}  // namespace

// The geometry of an item lives in its own heap block, which the processor
// cannot foresee from a walk along the items.
void CZemGDX::prefetchAhead(int i) const {
    if (i + kHeadsAhead < lenGet()) prefetchItem(i + kHeadsAhead, kHeadLines);
    if (i + kGeometryAhead >= lenGet()) return;
    const CZemDisplayItem& item = itemAt(i + kGeometryAhead);
    const CZemVertexArray& vl = item.m_type == GDX_REG ? item.m_regl[0] : item.m_vl;
    prefetchLines<kToFirstLevel>(vl.items().data(), kGeometryLines);
}

void CZemGDX::prefetchItem(int i, int lines) const { prefetchLines<kToFirstLevel>(&itemAt(i), lines); }

void CZemGDX::prefetchItemFar(int i, int lines) const { prefetchLines<kToSecondLevel>(&itemAt(i), lines); }
