#include "ZemObjOutline.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataKey.h"
#include "ZemLabel.h"
#include "ZemMatrix3d.h"
#include "ZemMessages.h"
#include "ZemOutline.h"
#include "ZemOutlineCatalogue.h"
#include "ZemUnits.h"

namespace {

bool isOutlineItem(const CZemDataItem* item) {
    if (!item || !item->isDir()) return false;
    CZemString type;
    int id = 0;
    return ZEM::itemGet(item, L"ID", id) && (!ZEM::itemGet(item, L"TYPE", type) || type == L"OUTLINE");
}

CZemArrayTempl<double> outlineParameters(const CZemDataItem* item) {
    CZemArrayTempl<double> parameters;
    for (int k = 1;; ++k) {
        double value = 0.0;
        if (!ZEM::itemGet(item, CZemString().format(L"PARM%d", k), value)) break;
        parameters.append(value);
    }
    return parameters;
}

// The factor from the item's INSUNIT to unit; 1 without INSUNIT.
bool unitFactor(const CZemDataItem* item, Zem::lUnit unit, double& factor) {
    Zem::lUnit from = unit;
    if (!ZEM::itemGet(item, L"INSUNIT", from)) from = unit;
    factor = 1.0;
    return ZEM::acadUnitCv(1.0, from, unit, factor);
}

// The name of a form from the catalogue, as a message key.
CZemString formLabelKey(int id) {
    const CZemDataKey key = CZemDataKey().appendNumber(id).appendString(L"LABEL");
    CZemString label;
    const CZemDataItem* shared = ZEM::cfg_get(L"*ZEM_OUTLINE*");
    if (shared && shared->get(label, &key)) return label;
    CZemDataItem defaults(CZemDataItem::typeDir);
    zemOutlineInit(&defaults);
    defaults.get(label, &key);
    return label;
}

}  // namespace

bool zem_g_outline(CZemVertexArray& out, CZemDataItem* item, Zem::lUnit unit) {
    if (!isOutlineItem(item)) return false;
    int id = 0;
    CZemPoint3d base;
    double factor = 1.0;
    ZEM::itemGet(item, L"ID", id);
    ZEM::itemGet(item, L"BASE", base);
    if (!unitFactor(item, unit, factor)) return false;
    CZemVertexArray outline = ZEM::g_outline(id, base.asVector(), outlineParameters(item));
    if (outline.isEmpty()) return false;
    if (factor != 1.0) outline.transformBy(CZemMatrix3d().setToScaling(factor, CZemPoint3d::kOrigin));
    out = outline;
    return true;
}

bool zem_g_machining(CZemVertexArray& out, CZemDataItem* machining, Zem::lUnit unit) {
    if (!machining || !machining->isDir()) return false;
    CZemDataItem* gen = machining->get(&CZemDataKey().set(L"GEN"));
    double factor = 1.0;
    if (!gen || !unitFactor(machining, unit, factor)) return false;
    CZemVertexArray vl;
    // GEN's plain polyline, and an outline without a unit of its own, are
    // in the machining's unit.
    Zem::lUnit own = unit;
    const bool ownUnit = gen->isDir() && ZEM::itemGet(gen, L"INSUNIT", own);
    if (gen->isDir() ? !zem_g_outline(vl, gen, unit) : !gen->get(vl, nullptr) || vl.isEmpty()) return false;
    if (!ownUnit) vl.transformBy(CZemMatrix3d().setToScaling(factor, CZemPoint3d::kOrigin));
    CZemVector3d move;
    double rotation = 0.0;
    CZemPoint3d scale(1.0, 1.0, 1.0);
    ZEM::itemGet(machining, L"MOV", move);
    ZEM::itemGet(machining, L"ROT", rotation);
    ZEM::itemGet(machining, L"SCAL", scale);
    scale.z = 1.0;
    vl.transformBy(CZemMatrix3d().setToSRM(scale, rotation, move * factor));
    out = vl;
    return true;
}

namespace ZEM {

CZemString obj_label(CZemDataItem* item, const wchar_t* language) {
    CZemString label;
    if (!item || !item->isDir()) return label;
    if (isOutlineItem(item)) {
        int id = 0;
        itemGet(item, L"ID", id);
        const CZemString key = formLabelKey(id);
        label = zem_msg_get(L"ZEM_", key, key, language);
        const CZemArrayTempl<double> parameters = outlineParameters(item);
        for (int k = 0; k < parameters.len(); ++k)
            label += CZemString().format(k == 0 ? L" %g" : L" x %g", parameters[k]);
        return label;
    }
    CZemString text;
    if (itemGet(item, L"LABEL", text) && label_get(label, text, language, true)) return label;
    CZemDataItem* gen = item->get(&CZemDataKey().set(L"GEN"));
    return gen ? obj_label(gen, language) : CZemString();
}

}  // namespace ZEM
