#include "ZemGDX.h"

#include "ZemDataItem.h"
#include "ZemTextLayout.h"
#include "ZemTextRegl.h"

// The text members of CZemGDX: they live in the text library, which holds
// the stroke font that their layout needs.

bool CZemGDX::imageTxt(const CZemArrayTempl<int>& stack, unsigned long flags, const wchar_t* text,
                       const CZemColor& color, const CZemMatrix3d& mtx, const wchar_t* align, CZemPoint3d point) {
    // The arguments are copied before the list grows: they may lie in its items.
    CZemDisplayItem item;
    item.m_type = GDX_TXT;
    item.m_color = color;
    item.m_stack = stack;
    item.m_flags = flags;
    item.m_pt = point;
    item.m_mtx = mtx;
    item.m_txt = text;
    item.m_txtAlign = align;
    item.m_linetype.append(1.0).append(0.0).append(0.0);
    item.m_thickn = 0;
    item.m_ltscale = 0.0;
    m_displayList.append(item);
    txtReglUpd(lenGet() - 1);
    if (!(flags & GDX_NOEXT)) projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::imageTxt(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemDataItem* text,
                       const CZemColor& color, const CZemMatrix3d& mtx, double scale) {
    if (!text || !text->isDir()) return false;
    CZemDisplayItem item;
    if (!zem_text_to_regl(text, item.m_txtRegl, scale)) return false;
    item.m_type = GDX_TXT;
    item.m_stack = stack;
    // Host regions are drawn filled, whatever the caller's flags say.
    item.m_flags = flags | GDX_FILL;
    item.m_mtx = mtx;
    item.m_thickn = 0;
    item.m_fcolor = color;
    item.m_color = color;
    m_displayList.append(item);
    if (!(flags & GDX_NOEXT)) projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::txtSet(const CZemArrayTempl<int>& q, const wchar_t* text) {
    if (!text) return false;
    const CZemString value(text);  // text may be an item's own, replaced below
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) {
        m_displayList[numbers[k]].m_txt = value;
        txtReglUpd(numbers[k]);
    }
    return true;
}

bool CZemGDX::txtAlignSet(const CZemArrayTempl<int>& q, const wchar_t* align) {
    if (!align) return false;
    const CZemString value(align);
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) {
        m_displayList[numbers[k]].m_txtAlign = value;
        txtReglUpd(numbers[k]);
    }
    return true;
}

bool CZemGDX::txtPointSet(const CZemArrayTempl<int>& q, CZemPoint3d point) {
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) {
        m_displayList[numbers[k]].m_pt = point;
        txtReglUpd(numbers[k]);
    }
    return true;
}

bool CZemGDX::txtReglUpd(int i) {
    CZemDisplayItem& item = m_displayList[i];
    CZemTextLayout(item.m_txtRegl).place(item.m_txt, item.m_pt).align(item.m_txtAlign);
    return projMtxSet(m_projMtx);
}
