#include "ZemMatMgr.h"

#include "ZemCfgDataSet.h"
#include "ZemDataAccess.h"
#include "ZemDataIterator.h"
#include "ZemLabel.h"

CZemMatMgr::~CZemMatMgr() = default;

const CZemDataItem* CZemMatMgr::material(const wchar_t* name) const {
    if (!m_read) {
        m_library = ZEM::cfgDataSet(L"MATERIALS", L"zem_mat.dta");
        m_read = true;
    }
    if (!m_library || !name || !*name) return nullptr;
    const CZemDataItem* node = m_library->get(&CZemDataKey().appendString(name));
    return node && node->isDir() ? node : nullptr;
}

bool CZemMatMgr::propGet(const wchar_t* name, CZemMatProp& out) const {
    const CZemDataItem* node = material(name);
    if (!node) return false;
    CZemMatProp prop;
    prop.m_drawMode = 1;
    ZEM::itemGet(node, L"MODE", prop.m_drawMode);
    ZEM::itemGet(node, L"PROPS", prop.m_properties);
    ZEM::itemGet(node, L"SUB", prop.m_subMaterials);
    out = prop;
    return true;
}

CZemString CZemMatMgr::matLabel(const wchar_t* name, const wchar_t* language) const {
    CZemString label;
    CZemString text;
    if (ZEM::itemGet(material(name), L"LABEL", text)) ZEM::label_get(label, text, language, true);
    return label;
}

bool CZemMatMgr::isShadowMat(const wchar_t* name) const {
    int shadow = 0;
    return ZEM::itemGet(material(name), L"SHADOW", shadow) && shadow != 0;
}

bool CZemMatMgr::matDrawAll(CZemArrayTempl<CZemString>& out, bool all) const {
    out.setLogicalLength(0);
    material(nullptr);
    CZemDataIterator it(m_library ? m_library->get(nullptr) : nullptr);
    for (it.start(); !it.done(); it.next()) {
        int drawable = 1;
        if (!it->isDir() || (!all && ZEM::itemGet(it.item(), L"DRAW", drawable) && drawable == 0)) continue;
        out.append(CZemString(it->key().text()));
    }
    return !out.isEmpty();
}
