#pragma once

#include "ZemColor.h"
#include "ZemObj.h"
#include "ZemString.h"

// The description of a layer, as CZemLayerMgr::physLayerPropGet fills it.
class CZemLayerProp : public CZemObj {
public:
    CZemLayerProp() = default;

    CZemString m_name;
    CZemString m_linetype;
    CZemColor m_color;
};
