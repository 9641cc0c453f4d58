#include "ZemObjGen.h"

#include "ZemCfgDataSet.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDataIterator.h"
#include "ZemMatrix3d.h"
#include "ZemObjOutline.h"
#include "ZemUnits.h"
#include "Zem_Solid.h"

namespace {

// The closed outlines of a body's machinings in the drawing unit.
CZemArrayTempl<CZemVertexArray> bodyHoles(CZemDataItem* body) {
    CZemArrayTempl<CZemVertexArray> holes;
    CZemDataIterator it(body->get(&CZemDataKey().set(L"HOLE")));
    for (it.start(); !it.done(); it.next()) {
        CZemVertexArray vl;
        if (zem_g_machining(vl, it.item(), Zem::unitCurrent) && vl.isClosed()) holes.append(vl);
    }
    return holes;
}

bool addBody(CZem_Solid& solid, CZemDataItem* body) {
    if (!body || !body->isDir()) return false;
    Zem::lUnit unit = Zem::unitCurrent;
    double factor = 1.0, height = 0.0, elevation = 0.0;
    ZEM::itemGet(body, L"INSUNIT", unit);
    if (!ZEM::acadUnitCv(1.0, unit, Zem::unitCurrent, factor) || !ZEM::itemGet(body, L"HEIGHT", height)) return false;
    ZEM::itemGet(body, L"ELEV", elevation);
    CZemVertexArray outline;
    if (ZEM::itemGet(body, L"VL", outline) && !outline.isEmpty()) {
        outline.transformBy(CZemMatrix3d().setToScaling(factor, CZemPoint3d::kOrigin));
    } else if (!zem_g_machining(outline, body, Zem::unitCurrent)) {
        return false;
    }
    return solid.addPrism(outline, bodyHoles(body), elevation * factor, (elevation + height) * factor);
}

}  // namespace

namespace ZEM {

bool objGen(CZemDataItem* item, int) {
    CZemVertexArray vl;
    if (!item || !item->isDir() || !zem_g_machining(vl, item, Zem::unitCurrent)) return false;
    return dataItemSet(item, &CZemDataKey().set(L"VL"), vl);
}

}  // namespace ZEM

CZemDataItem* zem_obj_key_to_gen(const wchar_t* key) {
    const CZemDataKey path(key);
    if (!key || path.isEmpty()) return nullptr;
    std::unique_ptr<CZemDtaFilePointer> library = ZEM::cfgDataSet(L"OBJECTS", L"zem_obj.dta");
    const CZemDataItem* node = library ? library->get(&path) : nullptr;
    return node && node->isDir() ? new CZemDataItem(*node) : nullptr;
}

CZemArrayTempl<CZemString> zem_norm_scordp(CZemDataItem* item) {
    CZemArrayTempl<CZemString> names;
    CZemDataIterator it(item ? item->get(&CZemDataKey().set(L"SCORDP")) : nullptr);
    for (it.start(); !it.done(); it.next()) names.append(CZemString(it->key().text()));
    return names;
}

bool zemObjModel(CZem_Solid& solid, CZemDataItem* item) {
    solid.clear();
    if (!item || !item->isDir()) return false;
    CZemDataItem* bodies = item->get(&CZemDataKey().set(L"SOLID"));
    if (!bodies || !bodies->isDir()) return addBody(solid, item);
    CZemDataIterator it(bodies);
    for (it.start(); !it.done(); it.next()) addBody(solid, it.item());
    return solid.prismCount() > 0;
}
