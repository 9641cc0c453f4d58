#include "ZemGdxObjectImage.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataIterator.h"
#include "ZemDefaultHost.h"
#include "ZemGDX.h"
#include "ZemObjOutline.h"
#include "ZemUnits.h"

namespace {

// Hooks the drawing into the default host when the library is loaded; the
// host lives in the foundation library, which cannot call into this one.
struct Hook {
    Hook() { CZemDefaultHost::instance().objectImageSet(&zem_gdx_image_object); }
} const hook;

struct Style {
    CZemArrayTempl<int> stack;
    unsigned long flags = 0;
    CZemMatrix3d mtx;
    CZemColor color;
};

Style readStyle(CZemDataItem* parameters) {
    Style style;
    style.color.setColorIndex(7);
    int single = 0;
    if (!ZEM::itemGet(parameters, L"STACK", style.stack) && ZEM::itemGet(parameters, L"STACK", single))
        style.stack.append(single);
    ZEM::itemGet(parameters, L"CMODE", style.flags);
    ZEM::itemGet(parameters, L"MTX", static_cast<CZemMatrix3d::Cells&>(style.mtx));
    ZEM::color_from_cfg(style.color, parameters ? parameters->get(&CZemDataKey().set(L"COLOR")) : nullptr);
    return style;
}

// The side of a body seen along -X: its plan's Y extent by its height.
bool sideView(const CZemDataItem* source, const CZemVertexArray& plan, CZemVertexArray& out) {
    int view = 0;
    double height = 0.0, elevation = 0.0, factor = 1.0;
    Zem::lUnit unit = Zem::unitCurrent;
    ZEM::itemGet(source, L"INSUNIT", unit);
    CZemPoint3d low, high;
    if (!ZEM::itemGet(source, L"VIEW", view) || view != 1 || !ZEM::itemGet(source, L"HEIGHT", height) ||
        height == 0.0 || !ZEM::acadUnitCv(1.0, unit, Zem::unitCurrent, factor) || !plan.extents(low, high))
        return false;
    ZEM::itemGet(source, L"ELEV", elevation);
    CZemPoint3dArray corners;
    corners.append(CZemPoint3d(low.y, elevation * factor, 0)).append(CZemPoint3d(high.y, elevation * factor, 0));
    corners.append(CZemPoint3d(high.y, (elevation + height) * factor, 0));
    corners.append(CZemPoint3d(low.y, (elevation + height) * factor, 0));
    out.fromPoints(corners, true);
    return true;
}

bool ownGeometry(CZemDataItem* source, CZemVertexArray& out) {
    CZemVertexArray plan;
    if (!(ZEM::itemGet(source, L"VL", plan) && !plan.isEmpty()) &&
        !zem_g_machining(plan, source, Zem::unitCurrent) && !zem_g_outline(plan, source, Zem::unitCurrent))
        return false;
    if (!sideView(source, plan, out)) out = plan;
    return true;
}

}  // namespace

bool zem_gdx_image_object(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters) {
    if (!gdx || !source || !source->isDir()) return false;
    CZemArrayTempl<CZemVertexArray> polylines;
    CZemVertexArray vl;
    if (ownGeometry(source, vl)) polylines.append(vl);
    CZemDataIterator it(source->get(&CZemDataKey().set(L"HOLE")));
    for (it.start(); !it.done(); it.next())
        if (zem_g_machining(vl, it.item(), Zem::unitCurrent)) polylines.append(vl);
    if (polylines.isEmpty()) return false;
    const Style style = readStyle(parameters);
    CZemArrayTempl<double> solid;
    solid.append(1.0);
    for (int i = 0; i < polylines.len(); ++i)
        gdx->imageVl(style.stack, style.flags, polylines[i], style.color, style.mtx, solid, 1.0, 0);
    return true;
}
