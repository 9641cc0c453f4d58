#include "ZemGDX.h"

#include "ZemBase.h"

#include <optional>

namespace {

// The pen of a line or region. One entered without a line type is drawn
// continuous.
void storePen(CZemDisplayItem& item, const CZemColor& color, const CZemMatrix3d& mtx,
              const CZemArrayTempl<double>& linetype, double ltscale, unsigned long thickn) {
    item.m_color = color;
    item.m_linetype = linetype;
    if (item.m_linetype.isEmpty()) item.m_linetype.append(1.0);
    item.m_ltscale = ltscale;
    item.m_thickn = static_cast<int>(thickn);
    item.m_mtx = mtx;
}

// The item an entry operation fills. With room in the list it is the slot
// behind the last item, reset to a default item; a slot that an earlier clear
// left behind keeps its storage, so refilling a list reuses it. A full list
// gets a scratch item that commit appends: growing first would move the
// items, and the caller's arguments may be parts of them.
class NewItem {
public:
    NewItem(CZemArrayTempl<CZemDisplayItem>& list, ZemDisplayObj type, const CZemArrayTempl<int>& stack,
            unsigned long flags)
        : m_list(list) {
        if (list.len() < list.physicalLength()) {
            m_item = &list[list.len()];
            *m_item = CZemArrayTempl<CZemDisplayItem>::defaultElement();
        } else {
            m_item = &m_scratch.emplace();
        }
        m_item->m_type = type;
        m_item->m_stack = stack;
        m_item->m_flags = flags;
    }

    CZemDisplayItem& operator*() { return *m_item; }
    CZemDisplayItem* operator->() { return m_item; }

    void commit() {
        if (m_scratch) m_list.append(*m_scratch);
    }

private:
    CZemArrayTempl<CZemDisplayItem>& m_list;
    std::optional<CZemDisplayItem> m_scratch;
    CZemDisplayItem* m_item = nullptr;
};

}  // namespace

bool CZemGDX::imageVl(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemVertexArray& vl,
                      const CZemColor& color, const CZemMatrix3d& mtx, const CZemArrayTempl<double>& linetype,
                      double ltscale, unsigned long thickn) {
    NewItem item(m_displayList, GDX_VL, stack, flags);
    item->m_vl = vl;
    storePen(*item, color, mtx, linetype, ltscale, thickn);
    if (!(flags & GDX_NOEXT)) foldVertexList(item->m_vl, item->m_mtx);
    item.commit();
    return true;
}

bool CZemGDX::imagePt(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemPoint3d& pt,
                      const CZemColor& color, const CZemMatrix3d& mtx, double pdSize, unsigned long pdMode) {
    NewItem item(m_displayList, GDX_PT, stack, flags);
    item->m_pt = pt;
    item->m_color = color;
    item->m_mtx = mtx;
    item->m_pdSize = pdSize;
    item->m_pdMode = pdMode;
    if (!(flags & GDX_NOEXT)) {
        const CZemPoint3d p = item->m_pt * (m_projMtx * item->m_mtx);
        foldExtents(p, p);
    }
    item.commit();
    return true;
}

bool CZemGDX::imageReg(const CZemArrayTempl<int>& stack, unsigned long flags,
                       const CZemArrayTempl<CZemVertexArray>& regl, const CZemColor& color, const CZemMatrix3d& mtx,
                       const CZemArrayTempl<double>& linetype, double ltscale, unsigned long thickn,
                       const CZemColor& fcolor, const CZemHatchProp& hatch) {
    NewItem item(m_displayList, GDX_REG, stack, flags);
    item->m_regl = regl;
    storePen(*item, color, mtx, linetype, ltscale, thickn);
    // A fill colour with a negative index stands for the line colour.
    if (flags & (GDX_FILL | GDX_HATCH)) item->m_fcolor = fcolor.colorIndex() >= 0 ? fcolor : color;
    item->m_hatch.name = hatch.name;
    item->m_hatch.angle = hatch.angle;
    item->m_hatch.scale = hatch.scale;
    item->m_hatch.flag = hatch.flag;
    const CZemArrayTempl<CZemVertexArray>& contours = item->m_regl;
    if (!(flags & GDX_NOEXT)) foldVertexList(contours[0], item->m_mtx);
    item.commit();
    return true;
}

bool CZemGDX::imageReg(const CZemArrayTempl<int>& stack, unsigned long flags,
                       const CZemArrayTempl<CZemVertexArray>& regl, const CZemColor& color, const CZemMatrix3d& mtx,
                       const CZemArrayTempl<double>& linetype, double ltscale, unsigned long thickn,
                       CZemColor fcolor) {
    const CZemHatchProp hatch(L"", 0.7853981633974483, 10.0, false);
    return imageReg(stack, flags, regl, color, mtx, linetype, ltscale, thickn, fcolor, hatch);
}

bool CZemGDX::imagePicture(const CZemArrayTempl<int>& stack, unsigned long flags, const wchar_t* file, int number,
                           const CZemPoint3d& p1, const CZemPoint3d& p2) {
    CZemDisplayItem item;
    item.m_type = GDX_PICTURE;
    if (p1 != p2) item.m_vl.append(CZemVertex(p1, p2, 0.0));
    item.m_stack = stack;
    item.m_flags = flags;
    item.m_txt = file;
    item.m_pdMode = static_cast<unsigned long>(number);
    m_displayList.insertAt(0, item);
    return true;
}

bool CZemGDX::addDisplayList(const CZemArrayTempl<CZemDisplayItem>& items) {
    // items may be this very list, which grows in the loop.
    const int count = items.len();
    if (count == 0) return false;
    m_displayList.reserve(lenGet() + count);
    for (int k = 0; k < count; ++k) m_displayList.append(items[k]);
    return true;
}

bool CZemGDX::clear() {
    m_displayList.setLogicalLength(0);
    m_extMin = m_extMax = m_extViewMin = m_extViewMax = CZemPoint3d();
    return true;
}

// Two equal corners count as no extents: the new bounds replace them.
void CZemGDX::foldExtents(const CZemPoint3d& lo, const CZemPoint3d& hi) {
    if (m_extMax == m_extMin) {
        m_extMin = lo;
        m_extMax = hi;
        return;
    }
    m_extMin = ZEM::p_min(m_extMin, lo);
    m_extMax = ZEM::p_max(m_extMax, hi);
}

void CZemGDX::foldVertexList(const CZemVertexArray& vl, const CZemMatrix3d& mtx) {
    CZemPoint3d lo, hi;
    vertexListBounds(vl, m_projMtx * mtx, lo, hi);
    foldExtents(lo, hi);
}
