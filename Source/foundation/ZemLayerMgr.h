#pragma once

#include "ZemDtaFilePointer.h"
#include "ZemLayerProp.h"
#include "ZemObj.h"

#include <memory>

// Access to the layer table: the data set of configuration key LAYERS (a
// directory there, or the name of a data set file on the support path;
// default zem_layer.dta), read at the first question and kept for the life
// of the manager. One directory a layer, under its name (ASCII case ignored):
//   COLOR    colour   as in the configuration (ZemConfig.h); default index 7
//   LTYPE    string   its line type (default "CONTINUOUS")
// The layer "0" exists without an entry, as in the host's drawings.
class CZemLayerMgr : public CZemObj {
public:
    CZemLayerMgr() = default;
    ~CZemLayerMgr() override;
    CZemLayerMgr(const CZemLayerMgr&) = delete;
    CZemLayerMgr& operator=(const CZemLayerMgr&) = delete;

    // Fills out (replaced), with the name as the table spells it; false, out
    // untouched, for an unknown layer.
    bool physLayerPropGet(const wchar_t* name, CZemLayerProp& out) const;

private:
    mutable std::unique_ptr<CZemDtaFilePointer> m_table;
    mutable bool m_read = false;
};
