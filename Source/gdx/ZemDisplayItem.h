#pragma once

#include "ZemArrayTempl.h"
#include "ZemColor.h"
#include "ZemGdxTypes.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemString.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

// One record of a display list, copied deep. A default item has kind 0,
// flags 0, line type scale 1.0, thickness 0, point style 0xFFFFFFFF and
// point size 0.0 (both: the list's defaults apply); the entry operations of
// CZemGDX set what each kind reads. Items are moved bitwise by their array.
class CZemDisplayItem {
public:
    CZemDisplayItem() = default;
    CZemDisplayItem(const CZemDisplayItem& other);
    CZemDisplayItem& operator=(const CZemDisplayItem& other);
    ~CZemDisplayItem() = default;

    ZemDisplayObj m_type = ZemDisplayObj{};
    unsigned long m_flags = 0;
    CZemArrayTempl<int> m_stack;
    CZemColor m_color;
    CZemArrayTempl<double> m_linetype;
    double m_ltscale = 1.0;
    CZemPoint3d m_pt;
    unsigned long m_pdMode = 0xFFFFFFFFUL;
    double m_pdSize = 0.0;
    CZemVertexArray m_vl;
    CZemArrayTempl<CZemVertexArray> m_regl;
    CZemMatrix3d m_mtx;
    CZemColor m_fcolor;
    int m_thickn = 0;
    CZemHatchProp m_hatch;
    CZemString m_auxName;
    CZemVector3d m_auxVector;
    CZemMatrix3d m_extMtx;
    CZemString m_txtAlign;
    CZemString m_txt;
    CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> m_txtRegl;
};
