#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"
#include "ZemString.h"

// The description of one material, as CZemMatMgr::propGet fills it.
class CZemMatProp : public CZemObj {
public:
    CZemMatProp() = default;

    // How the material is drawn: 0 not at all; other values are the
    // application's drawing modes (2: by the entries of m_properties).
    int m_drawMode = 0;
    // The material's properties, as the library lists them.
    CZemArrayTempl<CZemString> m_properties;
    // The names of the materials nested in this one.
    CZemArrayTempl<CZemString> m_subMaterials;
};
