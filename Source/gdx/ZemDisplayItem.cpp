#include "ZemDisplayItem.h"

CZemDisplayItem::CZemDisplayItem(const CZemDisplayItem& other) { *this = other; }

namespace {

// Strings and colours are only assigned when they differ: assigning an empty
// string allocates a buffer for its ending 0, which items that never carry
// text or names would otherwise pay for.
void copyString(CZemString& to, const CZemString& from) {
    if (!(to.isEmpty() && from.isEmpty())) to = from;
}

// An index colour without names is set by its index, which leaves the names
// alone; anything else, or a result that still differs, is assigned whole.
void copyColor(CZemColor& to, const CZemColor& from) {
    if (to == from) return;
    const bool noNames = from.bookName().isEmpty() && from.colorName().isEmpty() && to.bookName().isEmpty() &&
                         to.colorName().isEmpty();
    if (from.kind() == CZemColor::byIndex && noNames) to.setColorIndex(from.colorIndex());
    if (!(to == from)) to = from;
}

}  // namespace

// Every field in declaration order; the arrays test for self-assignment
// themselves, and the hatch goes member by member.
CZemDisplayItem& CZemDisplayItem::operator=(const CZemDisplayItem& other) {
    if (this == &other) return *this;
    m_type = other.m_type;
    m_flags = other.m_flags;
    m_stack = other.m_stack;
    copyColor(m_color, other.m_color);
    m_linetype = other.m_linetype;
    m_ltscale = other.m_ltscale;
    m_pt = other.m_pt;
    m_pdMode = other.m_pdMode;
    m_pdSize = other.m_pdSize;
    m_vl = other.m_vl;
    m_regl = other.m_regl;
    m_mtx = other.m_mtx;
    copyColor(m_fcolor, other.m_fcolor);
    m_thickn = other.m_thickn;
    copyString(m_hatch.name, other.m_hatch.name);
    m_hatch.angle = other.m_hatch.angle;
    m_hatch.scale = other.m_hatch.scale;
    m_hatch.flag = other.m_hatch.flag;
    copyString(m_auxName, other.m_auxName);
    m_auxVector = other.m_auxVector;
    m_extMtx = other.m_extMtx;
    copyString(m_txtAlign, other.m_txtAlign);
    copyString(m_txt, other.m_txt);
    m_txtRegl = other.m_txtRegl;
    return *this;
}
