#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemLayerMgr.h"
#include "ZemMatMgr.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

template <class T>
void set(CZemDataItem* item, const wchar_t* key, const T& value) { ZEM::dataItemSet(item, &CZemDataKey().set(key), value); }

std::wstring joined(const CZemArrayTempl<CZemString>& list) {
    std::wstring out;
    for (int k = 0; k < list.len(); ++k) out += std::wstring(k ? L"," : L"") + static_cast<const wchar_t*>(list[k]);
    return out;
}

}  // namespace

TEST(MaterialLayer, MaterialsWithModesNestingLabelsAndShadows) {
    datatest::resetConfiguration();
    CZemDataItem* library = ZEM::cfg_dir_make(L"MATERIALS");
    set(library, L"STEEL\\MODE", 2);
    set(library, L"STEEL\\SUB", CZemArrayTempl<CZemString>().append(L"S235").append(L"S355"));
    set(library, L"STEEL\\LABEL", L"\\DEU=Stahl\\ENU=Steel");
    set(library, L"GLASS\\SHADOW", 1);
    set(library, L"GLASS\\DRAW", 0);
    const CZemMatMgr materials;
    CZemMatProp prop;
    EXPECT_TRUE(materials.propGet(L"steel", prop) && prop.m_drawMode == 2 && joined(prop.m_subMaterials) == L"S235,S355");
    EXPECT_TRUE(materials.propGet(L"GLASS", prop) && prop.m_drawMode == 1 && prop.m_subMaterials.isEmpty()) << "the default";
    prop.m_drawMode = 42;
    EXPECT_FALSE(materials.propGet(L"WOOD", prop) || materials.propGet(nullptr, prop));
    EXPECT_EQ(42, prop.m_drawMode) << "an unknown material leaves the record alone";
    EXPECT_EQ(L"Stahl", std::wstring(materials.matLabel(L"STEEL", L"FRA"))) << "else the first language";
    EXPECT_TRUE(materials.isShadowMat(L"GLASS") && !materials.isShadowMat(L"STEEL") && !materials.isShadowMat(L"WOOD"));
    CZemArrayTempl<CZemString> names;
    EXPECT_TRUE(materials.matDrawAll(names, false) && joined(names) == L"STEEL") << "library order, without what is not drawn";
    EXPECT_TRUE(materials.matDrawAll(names, true) && joined(names) == L"STEEL,GLASS");
    set(ZEM::cfg_dir_make(L""), L"MATERIALS", L"missing.dta");
    EXPECT_TRUE(materials.propGet(L"STEEL", prop)) << "a manager keeps the library it read";
    EXPECT_FALSE(CZemMatMgr().matDrawAll(names, true) || !names.isEmpty());
    datatest::resetConfiguration();
}

TEST(MaterialLayer, LayerColoursAndTheLayerThatAlwaysExists) {
    datatest::resetConfiguration();
    CZemDataItem* layers = ZEM::cfg_dir_make(L"LAYERS");
    set(layers, L"Wall\\LTYPE", L"DASHED");
    set(layers, L"GLASS\\COLOR", L"0,128,255");
    set(layers, L"NOTHING", 5);
    const CZemLayerMgr manager;
    CZemLayerProp prop;
    EXPECT_TRUE(manager.physLayerPropGet(L"WALL", prop) && prop.m_name == L"Wall" && prop.m_linetype == L"DASHED") << "as spelt";
    ASSERT_TRUE(manager.physLayerPropGet(L"glass", prop));
    EXPECT_TRUE(prop.m_color.oleColor() == 0xFF8000UL && prop.m_linetype == L"CONTINUOUS");
    EXPECT_TRUE(manager.physLayerPropGet(L"0", prop) && prop.m_color.colorIndex() == 7);
    EXPECT_FALSE(manager.physLayerPropGet(L"NOTHING", prop)) << "a value is no layer";
    EXPECT_FALSE(manager.physLayerPropGet(L"DOOR", prop) || manager.physLayerPropGet(nullptr, prop));
    EXPECT_EQ(L"0", std::wstring(prop.m_name)) << "an unknown layer leaves the record alone";
    datatest::resetConfiguration();
}
