#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDtaFilePointer.h"
#include "ZemLayerMgr.h"
#include "ZemMatMgr.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class MaterialLayer : public ::testing::Test {
protected:
    void SetUp() override { datatest::resetConfiguration(); }
    void TearDown() override { datatest::resetConfiguration(); }

    template <class T>
    static void set(CZemDataItem* item, const wchar_t* key, const T& value) {
        ZEM::dataItemSet(item, &CZemDataKey().set(key), value);
    }

    static CZemArrayTempl<CZemString> words(const wchar_t* a, const wchar_t* b = nullptr) {
        CZemArrayTempl<CZemString> out;
        out.append(a);
        if (b) out.append(b);
        return out;
    }

    static void fillLibrary(CZemDataItem* library) {
        set(library, L"STEEL\\MODE", 2);
        set(library, L"STEEL\\PROPS", words(L"ANSI31"));
        set(library, L"STEEL\\SUB", words(L"S235", L"S355"));
        set(library, L"STEEL\\LABEL", L"\\DEU=Stahl\\ENU=Steel");
        set(library, L"S235\\MODE", 0);
        set(library, L"GLASS\\SHADOW", 1);
        set(library, L"GLASS\\DRAW", 0);
        set(library, L"SPACE\\LABEL", L"Raum");
    }
};

std::wstring joined(const CZemArrayTempl<CZemString>& list) {
    std::wstring out;
    for (int k = 0; k < list.len(); ++k) out += std::wstring(k ? L"," : L"") + static_cast<const wchar_t*>(list[k]);
    return out;
}

}  // namespace

TEST_F(MaterialLayer, MaterialsWithModesNestingLabelsAndShadows) {
    fillLibrary(ZEM::cfg_dir_make(L"MATERIALS"));
    const CZemMatMgr materials;
    CZemMatProp prop;
    ASSERT_TRUE(materials.propGet(L"steel", prop)) << "names ignore case";
    EXPECT_EQ(2, prop.m_drawMode);
    EXPECT_EQ(L"ANSI31", joined(prop.m_properties));
    EXPECT_EQ(L"S235,S355", joined(prop.m_subMaterials));
    ASSERT_TRUE(materials.propGet(L"GLASS", prop));
    EXPECT_EQ(1, prop.m_drawMode) << "the default mode";
    EXPECT_TRUE(prop.m_subMaterials.isEmpty());
    prop.m_drawMode = 42;
    EXPECT_FALSE(materials.propGet(L"WOOD", prop));
    EXPECT_FALSE(materials.propGet(nullptr, prop));
    EXPECT_EQ(42, prop.m_drawMode) << "an unknown material leaves the record alone";

    EXPECT_EQ(L"Steel", std::wstring(materials.matLabel(L"STEEL", L"ENU")));
    EXPECT_EQ(L"Stahl", std::wstring(materials.matLabel(L"STEEL", L"FRA"))) << "else the first language";
    EXPECT_EQ(L"Raum", std::wstring(materials.matLabel(L"SPACE", L"ENU"))) << "a plain text in every language";
    EXPECT_TRUE(materials.matLabel(L"S235", L"DEU").isEmpty());
    EXPECT_TRUE(materials.isShadowMat(L"GLASS"));
    EXPECT_FALSE(materials.isShadowMat(L"STEEL"));
    EXPECT_FALSE(materials.isShadowMat(L"WOOD"));

    CZemArrayTempl<CZemString> names;
    ASSERT_TRUE(materials.matDrawAll(names, false));
    EXPECT_EQ(L"STEEL,S235,SPACE", joined(names)) << "library order, without what is not drawn";
    ASSERT_TRUE(materials.matDrawAll(names, true));
    EXPECT_EQ(L"STEEL,S235,GLASS,SPACE", joined(names));

    ZEM::cfg_dir_make(L"")->getDir()->remove(&CZemDataKey().set(L"MATERIALS"));
    EXPECT_TRUE(materials.propGet(L"STEEL", prop)) << "a manager keeps the library it read";
    const CZemMatMgr none;
    EXPECT_FALSE(none.matDrawAll(names, true));
    EXPECT_TRUE(names.isEmpty());
    EXPECT_FALSE(none.propGet(L"STEEL", prop));
}

TEST_F(MaterialLayer, LibrariesAsDataSetFilesOnTheSupportPath) {
    const std::string folder = datatest::freshFolder("material-library");
    for (const char* file : {"/zem_mat.dta", "/other.dta"}) {
        CZemDtaFilePointer data;
        ASSERT_TRUE(data.open(datatest::widen(folder + file).c_str(), zemDtaWrite));
        CZemDataItem root(CZemDataItem::typeDir);
        fillLibrary(&root);
        if (std::string(file) == "/other.dta") set(&root, L"WOOD\\MODE", 3);
        data.set(&root, nullptr);
        ASSERT_TRUE(data.save());
    }
    set(ZEM::cfg_dir_make(L""), L"SUPPORT", datatest::widen(folder).c_str());
    CZemMatProp prop;
    EXPECT_TRUE(CZemMatMgr().propGet(L"STEEL", prop)) << "the default file";
    EXPECT_FALSE(CZemMatMgr().propGet(L"WOOD", prop));
    set(ZEM::cfg_dir_make(L""), L"MATERIALS", L"other.dta");
    ASSERT_TRUE(CZemMatMgr().propGet(L"WOOD", prop)) << "the file the configuration names";
    EXPECT_EQ(3, prop.m_drawMode);
    set(ZEM::cfg_dir_make(L""), L"MATERIALS", L"missing.dta");
    EXPECT_FALSE(CZemMatMgr().propGet(L"STEEL", prop));
}

TEST_F(MaterialLayer, LayerColoursAndTheLayerThatAlwaysExists) {
    CZemDataItem* layers = ZEM::cfg_dir_make(L"LAYERS");
    set(layers, L"Wall\\COLOR", 1);
    set(layers, L"Wall\\LTYPE", L"DASHED");
    set(layers, L"GLASS\\COLOR", L"0,128,255");
    set(layers, L"NOTHING", 5);
    const CZemLayerMgr manager;
    CZemLayerProp prop;
    ASSERT_TRUE(manager.physLayerPropGet(L"WALL", prop));
    EXPECT_EQ(L"Wall", std::wstring(prop.m_name));
    EXPECT_EQ(L"DASHED", std::wstring(prop.m_linetype));
    EXPECT_EQ(1, prop.m_color.colorIndex());
    ASSERT_TRUE(manager.physLayerPropGet(L"glass", prop));
    EXPECT_EQ(CZemColor::byTrueColor, prop.m_color.kind());
    EXPECT_EQ(0xFF8000UL, prop.m_color.oleColor()) << "blue 255 in the high byte of a Windows colour";
    EXPECT_EQ(L"CONTINUOUS", std::wstring(prop.m_linetype));
    ASSERT_TRUE(manager.physLayerPropGet(L"0", prop));
    EXPECT_EQ(7, prop.m_color.colorIndex());
    EXPECT_FALSE(manager.physLayerPropGet(L"NOTHING", prop)) << "a value is no layer";
    EXPECT_FALSE(manager.physLayerPropGet(L"DOOR", prop));
    EXPECT_FALSE(manager.physLayerPropGet(nullptr, prop));
    EXPECT_EQ(L"0", std::wstring(prop.m_name)) << "an unknown layer leaves the record alone";
}
