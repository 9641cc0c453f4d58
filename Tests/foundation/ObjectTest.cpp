#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemMessages.h"
#include "ZemObjGen.h"
#include "ZemObjOutline.h"
#include "ZemUnits.h"
#include "Zem_Solid.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

namespace {

const double kPi = std::acos(-1.0);

class Object : public ::testing::Test {
protected:
    void SetUp() override {
        datatest::resetConfiguration();
        set(ZEM::cfg_dir_make(L""), L"SUPPORT", datatest::widen(std::string(ZEM_SOURCE_DIR) + "/Source/resources").c_str());
    }
    void TearDown() override { datatest::resetConfiguration(); }

    template <class T>
    static CZemDataItem* set(CZemDataItem* item, const wchar_t* key, const T& value) {
        ZEM::dataItemSet(item, &CZemDataKey().set(key), value);
        return item;
    }

    // An outline item as the sheet dialog writes it, for a rectangle or a circle.
    static CZemDataItem* outline(int id, double a, double b, int unit) {
        CZemDataItem* item = set(set(new CZemDataItem(CZemDataItem::typeDir), L"TYPE", L"OUTLINE"), L"ID", id);
        set(item, L"PARM1", a);
        if (b) set(item, L"PARM2", b);
        if (unit) set(item, L"INSUNIT", unit);
        return item;
    }
};

::testing::AssertionResult box(const CZemVertexArray& vl, double x0, double y0, double x1, double y1) {
    CZemPoint3d low, high;
    if (!vl.extents(low, high)) return ::testing::AssertionFailure() << "no extents";
    if (std::hypot(low.x - x0, low.y - y0) + std::hypot(high.x - x1, high.y - y1) < 1e-9) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << low.x << ", " << low.y << " to " << high.x << ", " << high.y;
}

}  // namespace

TEST_F(Object, StoredOutlinesAndMachiningsInTheUnitAskedFor) {
    std::unique_ptr<CZemDataItem> item(set(outline(1, 10, 20, 5), L"BASE", CZemPoint3d(5, 5, 0)));
    CZemVertexArray vl;
    ASSERT_TRUE(zem_g_outline(vl, item.get(), Zem::unitMillimeters));
    EXPECT_TRUE(box(vl, 50, 50, 150, 250)) << "centimetres to millimetres";
    ZEM::acad_unit_set(Zem::unitMeters);
    ASSERT_TRUE(zem_g_outline(vl, item.get(), Zem::unitCurrent));
    EXPECT_TRUE(box(vl, 0.05, 0.05, 0.15, 0.25)) << "to the drawing unit";
    std::unique_ptr<CZemDataItem> other(set(new CZemDataItem(*item), L"TYPE", L"DWG"));
    std::unique_ptr<CZemDataItem> unknown(set(new CZemDataItem(*item), L"ID", 99));
    CZemDataItem value;
    for (CZemDataItem* bad : {other.get(), unknown.get(), &value, static_cast<CZemDataItem*>(nullptr)})
        EXPECT_FALSE(zem_g_outline(vl, bad, Zem::unitCurrent) || zem_g_machining(vl, bad, Zem::unitMillimeters));
    EXPECT_TRUE(box(vl, 0.05, 0.05, 0.15, 0.25)) << "a failure leaves the polyline alone";

    CZemDataItem machining(CZemDataItem::typeDir);
    machining.mkDir()->insert(&CZemDataKey().set(L"GEN"), outline(1, 10, 20, 4), 0);
    set(set(set(&machining, L"MOV", CZemVector3d(100, 0, 0)), L"ROT", kPi / 2), L"SCAL", CZemPoint3d(-1, 1, 7));
    ASSERT_TRUE(zem_g_machining(vl, &machining, Zem::unitMillimeters));
    // [0,10] x [0,20] mirrored to [-10,0] x [0,20], turned a quarter to [-20,0] x [-10,0], moved by 100.
    EXPECT_TRUE(box(vl, 80, -10, 100, 0));
    CZemDataItem drawn(CZemDataItem::typeDir);
    set(&drawn, L"GEN", CZemVertexArray(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(2, 1, 0), 0)));
    set(set(&drawn, L"MOV", CZemVector3d(1, 0, 0)), L"INSUNIT", 5);
    ASSERT_TRUE(zem_g_machining(vl, &drawn, Zem::unitMillimeters));
    EXPECT_TRUE(box(vl, 10, 0, 30, 10)) << "a drawn polyline and its move count in centimetres";
}

TEST_F(Object, LabelsGenerationAndCoordinatePoints) {
    std::unique_ptr<CZemDataItem> rectangle(outline(1, 100, 50, 4));
    EXPECT_EQ(L"Rectangle 100 x 50", std::wstring(ZEM::obj_label(rectangle.get(), L"ENU")));
    ZEM::dataItemSet(ZEM::cfg_dir_make(L"*ZEM_OUTLINE*"), &CZemDataKey().appendNumber(1).appendString(L"LABEL"), L"MY_FORM");
    ZEM::msgSet(L"ZEM_", L"MY_FORM", L"DEU", L"Platte");
    CZemDataItem part(CZemDataItem::typeDir);
    part.mkDir()->insert(&CZemDataKey().set(L"GEN"), outline(1, 100, 50, 5), 0);
    EXPECT_EQ(L"Platte 100 x 50", std::wstring(ZEM::obj_label(&part, L"DEU"))) << "the shared catalogue, through GEN";
    set(&part, L"LABEL", L"\\DEU=Blech\\ENU=Sheet");
    EXPECT_EQ(L"Sheet", std::wstring(ZEM::obj_label(&part, L"ENU"))) << "the object's own label first";
    EXPECT_TRUE(ZEM::obj_label(nullptr, L"DEU").isEmpty());

    ASSERT_TRUE(ZEM::objGen(&part, 0));
    CZemVertexArray vl;
    EXPECT_TRUE(ZEM::itemGet(&part, L"VL", vl) && box(vl, 0, 0, 1000, 500));
    CZemDataItem empty(CZemDataItem::typeDir);
    EXPECT_FALSE(ZEM::objGen(&empty, 0) || ZEM::objGen(nullptr, 0));
    EXPECT_EQ(0, empty.getDir()->len());
    set(set(&part, L"SCORDP\\P1", CZemPoint3d()), L"SCORDP\\A2", CZemPoint3d());
    const CZemArrayTempl<CZemString> names = zem_norm_scordp(&part);
    ASSERT_EQ(2, names.len());
    EXPECT_TRUE(names[0] == L"P1" && names[1] == L"A2") << "in stored order";
    EXPECT_EQ(0, zem_norm_scordp(&empty).len());

    const std::string folder = datatest::freshFolder("object-library");
    set(ZEM::cfg_dir_make(L""), L"SUPPORT", datatest::widen(folder).c_str());
    {
        CZemDtaFilePointer file;
        ASSERT_TRUE(file.open(datatest::widen(folder + "/zem_obj.dta").c_str(), zemDtaWrite));
        file.set(&part, &CZemDataKey().set(L"NORM\\DIN125\\M10"));
        ASSERT_TRUE(file.save());
    }
    std::unique_ptr<CZemDataItem> gen(zem_obj_key_to_gen(L"norm\\din125\\m10"));
    EXPECT_TRUE(gen && *gen == part) << "from the object library on the support path";
    EXPECT_EQ(nullptr, zem_obj_key_to_gen(L"NORM\\DIN125\\M10\\VL")) << "a value is no object";
    EXPECT_TRUE(zem_obj_key_to_gen(L"NORM\\NONE") == nullptr && zem_obj_key_to_gen(nullptr) == nullptr);
}

TEST_F(Object, SolidsFromStoredBodiesWithHoles) {
    CZemDataItem plate(CZemDataItem::typeDir);
    plate.mkDir()->insert(&CZemDataKey().set(L"GEN"), outline(1, 10, 6, 0), 0);
    set(set(&plate, L"INSUNIT", 5), L"HEIGHT", 1.0);
    CZemDataItem* hole = set(set(new CZemDataItem(CZemDataItem::typeDir), L"MOV", CZemVector3d(5, 3, 0)), L"INSUNIT", 5);
    hole->mkDir()->insert(&CZemDataKey().set(L"GEN"), outline(2, 20, 0, 4), 0);
    plate.getDir()->insert(&CZemDataKey().set(L"HOLE\\1"), hole, 0);
    CZem_Solid solid;
    ASSERT_TRUE(zemObjModel(solid, &plate));
    CZemArrayTempl<CZemVertexArrayEx> visible, hidden;
    CZemMatrix3d front;
    front.setCoordSystem(CZemPoint3d::kOrigin, CZemVector3d::kXAxis, CZemVector3d::kZAxis, -CZemVector3d::kYAxis);
    ASSERT_TRUE(solid.project(front, 0, visible, hidden, 1));
    CZemVertexArray all;
    for (int i = 0; i < visible.len(); ++i) all += visible[i];
    EXPECT_TRUE(box(all, 0, 0, 100, 10)) << "from the front: 100 mm wide, 10 mm high";
    int bore = 0;
    for (int i = 0; i < hidden.len(); ++i)
        bore += std::fabs(hidden[i].m_direction.z) > 0.999 && std::fabs(std::fabs(hidden[i][0].m_start.x - 50) - 10) < 1e-6;
    EXPECT_EQ(2, bore) << "the bore of 20 mm at 50 mm shows as two hidden lines";
    CZemDataItem two(CZemDataItem::typeDir);
    two.mkDir()->insert(&CZemDataKey().set(L"SOLID\\A"), new CZemDataItem(plate), 0);
    two.getDir()->insert(&CZemDataKey().set(L"SOLID\\B"), new CZemDataItem(plate), 0);
    set(&two, L"SOLID\\BROKEN\\HEIGHT", 0.0);
    EXPECT_TRUE(zemObjModel(solid, &two) && solid.prismCount() == 2) << "the broken body is passed over";
    EXPECT_FALSE(zemObjModel(solid, set(&two, L"SOLID", 0)));
    EXPECT_EQ(0, solid.prismCount());
}
