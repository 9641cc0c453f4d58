#include "ZemLayerMgr.h"

#include "ZemCfgDataSet.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"

#include <cwchar>

CZemLayerMgr::~CZemLayerMgr() = default;

bool CZemLayerMgr::physLayerPropGet(const wchar_t* name, CZemLayerProp& out) const {
    if (!name || !*name) return false;
    if (!m_read) {
        m_table = ZEM::cfgDataSet(L"LAYERS", L"zem_layer.dta");
        m_read = true;
    }
    CZemDataItem* node = m_table ? m_table->get(&CZemDataKey().appendString(name)) : nullptr;
    if (node && !node->isDir()) node = nullptr;
    if (!node && std::wcscmp(name, L"0") != 0) return false;
    CZemLayerProp prop;
    prop.m_name = node ? static_cast<const wchar_t*>(node->key().text()) : name;
    prop.m_linetype = L"CONTINUOUS";
    prop.m_color.setColorIndex(7);
    if (node) {
        ZEM::itemGet(node, L"LTYPE", prop.m_linetype);
        ZEM::color_from_cfg(prop.m_color, node->get(&CZemDataKey().set(L"COLOR")));
    }
    out = prop;
    return true;
}
