#include "ZemDrillImage.h"

#include "ZemApp.h"
#include "ZemDataAccess.h"
#include "ZemGDX.h"
#include "ZemLayerMgr.h"
#include "ZemObjGen.h"
#include "ZemSolidMap.h"
#include "Zem_Solid.h"

namespace {

const int kProjectionView = 3;

CZemDataItem* rootOf(CZemDtaFilePointer* data) { return data ? data->get(nullptr) : nullptr; }

CZemColor layerColor(const CZemDataItem* object)
{
    CZemString layer(L"0");
    ZEM::itemGet(object, L"PART_SOLID", layer);
    CZemLayerProp prop;
    CZemLayerMgr().physLayerPropGet(layer, prop);
    return prop.m_color;
}

}  // namespace

CZemDrillImage::CZemDrillImage(CZemDtaFilePointer* object, CZemDtaFilePointer* parameters)
    : m_object(rootOf(object)), m_parameters(rootOf(parameters))
{
    int coord = 0;
    ZEM::itemGet(m_parameters, L"CMODE", m_cmode);
    ZEM::itemGet(m_parameters, L"MTX", static_cast<CZemMatrix3d::Cells&>(m_mtx));
    m_marker = ZEM::itemGet(m_parameters, L"COORD", coord) && coord == 1;
    ZEM::itemGet(m_object, L"VIEW", m_view);
}

CZemMatrix3d CZemDrillImage::isometricView()
{
    CZemVector3d x(1, 1, 0), z(1, -1, 1);
    x.normalize();
    z.normalize();
    return CZemMatrix3d().setCoordSystem(CZemPoint3d::kOrigin, x, z * x, z);
}

bool CZemDrillImage::image(CZemGDX& gdx) const
{
    if (m_view == kProjectionView)
        return imageProjection(gdx);
    imageStored(gdx);
    return true;
}

// Only the visible edges are drawn, each a solid line on the part's layer
// colour. An object that models no body leaves its empty solid in the map.
bool CZemDrillImage::imageProjection(CZemGDX& gdx) const
{
    int key = 0;
    CZem_Solid* solid = nullptr;
    if (!ZEM::newSolidFromMap(key) || !ZEM::getSolidFromMap(solid, key) || !zemObjModel(*solid, m_object))
        return false;
    CZemArrayTempl<CZemVertexArrayEx> visible, hidden;
    solid->prepare();
    solid->hiddenLineSet(1);
    solid->project(isometricView(), 0, visible, hidden, 1);
    const CZemColor color = layerColor(m_object);
    CZemArrayTempl<int> stack;
    stack.append(0);
    CZemArrayTempl<double> pattern;
    pattern.append(1.0);
    for (int i = 0; i < visible.len(); ++i)
        gdx.imageVl(stack, 0, visible[i], color, CZemMatrix3d::kIdentity, pattern, 1.0, 0);
    ZEM::removeSolidFromMap(key);
    return true;
}

// The application draws the object without a group path; the marker goes
// into the group behind the one the caller names, in the base colour.
void CZemDrillImage::imageStored(CZemGDX& gdx) const
{
    CZemArrayTempl<int> stack;
    ZEM::itemGet(m_parameters, L"STACK", stack);
    stack.append(1);
    CZemColor color;
    color.setColorIndex(7);
    CZemDataItem parameters = applicationParameters();
    zemAppPtr()->imageObject(&gdx, m_object, &parameters);
    if (!m_marker)
        return;
    stack[-1] += 1;
    const unsigned long flags = (static_cast<unsigned long>(m_cmode) & 0xFF) | (GDX_CM_BASE << 8);
    gdx.imagePt(stack, flags, CZemPoint3d::kOrigin, color, CZemMatrix3d::kIdentity, 0.0, 0xFFFFFFFFUL);
}

CZemDataItem CZemDrillImage::applicationParameters() const
{
    CZemDataItem item(CZemDataItem::typeDir);
    ZEM::dataItemSet(&item, &CZemDataKey().set(L"CMODE"), m_cmode);
    ZEM::dataItemSet(&item, &CZemDataKey().set(L"MTX"), static_cast<const CZemMatrix3d::Cells&>(m_mtx));
    return item;
}
