#include "ZemDisplayItem.h"

CZemDisplayItem::CZemDisplayItem(const CZemDisplayItem& other) { *this = other; }

// Every field in declaration order; the arrays test for self-assignment
// themselves, and the hatch goes member by member.
CZemDisplayItem& CZemDisplayItem::operator=(const CZemDisplayItem& other) {
    if (this == &other) return *this;
    m_type = other.m_type;
    m_flags = other.m_flags;
    m_stack = other.m_stack;
    m_color = other.m_color;
    m_linetype = other.m_linetype;
    m_ltscale = other.m_ltscale;
    m_pt = other.m_pt;
    m_pdMode = other.m_pdMode;
    m_pdSize = other.m_pdSize;
    m_vl = other.m_vl;
    m_regl = other.m_regl;
    m_mtx = other.m_mtx;
    m_fcolor = other.m_fcolor;
    m_thickn = other.m_thickn;
    m_hatch.name = other.m_hatch.name;
    m_hatch.angle = other.m_hatch.angle;
    m_hatch.scale = other.m_hatch.scale;
    m_hatch.flag = other.m_hatch.flag;
    m_auxName = other.m_auxName;
    m_auxVector = other.m_auxVector;
    m_extMtx = other.m_extMtx;
    m_txtAlign = other.m_txtAlign;
    m_txt = other.m_txt;
    m_txtRegl = other.m_txtRegl;
    return *this;
}
