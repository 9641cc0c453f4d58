#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDtaFilePointer.h"
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

class Object : public ::testing::Test {
protected:
    void SetUp() override {
        datatest::resetConfiguration();
        const std::wstring resources = datatest::widen(std::string(ZEM_SOURCE_DIR) + "/Source/resources");
        set(ZEM::cfg_dir_make(L""), L"SUPPORT", resources.c_str());
    }
    void TearDown() override { datatest::resetConfiguration(); }

    template <class T>
    static void set(CZemDataItem* item, const wchar_t* key, const T& value) {
        ZEM::dataItemSet(item, &CZemDataKey().set(key), value);
    }

    // An outline item as the sheet dialog writes it: a rectangle.
    static void rectangleItem(CZemDataItem& item, double width, double height, int unit) {
        set(&item, L"TYPE", L"OUTLINE");
        set(&item, L"ID", 1);
        set(&item, L"BASE", CZemPoint3d(5, 5, 0));
        set(&item, L"PARM1", width);
        set(&item, L"PARM2", height);
        if (unit) set(&item, L"INSUNIT", unit);
    }
};

void expectBox(const CZemVertexArray& vl, double x0, double y0, double x1, double y1) {
    CZemPoint3d low, high;
    ASSERT_TRUE(vl.extents(low, high));
    EXPECT_NEAR(x0, low.x, 1e-9);
    EXPECT_NEAR(y0, low.y, 1e-9);
    EXPECT_NEAR(x1, high.x, 1e-9);
    EXPECT_NEAR(y1, high.y, 1e-9);
}

}  // namespace

TEST_F(Object, StoredOutlinesComeInTheUnitAskedFor) {
    CZemDataItem item(CZemDataItem::typeDir);
    rectangleItem(item, 10, 20, 5);
    CZemVertexArray vl;
    ASSERT_TRUE(zem_g_outline(vl, &item, Zem::unitMillimeters));
    expectBox(vl, 50, 50, 150, 250);
    ZEM::acad_unit_set(Zem::unitMeters);
    ASSERT_TRUE(zem_g_outline(vl, &item, Zem::unitCurrent));
    expectBox(vl, 0.05, 0.05, 0.15, 0.25);
    CZemDataItem plain(CZemDataItem::typeDir);
    rectangleItem(plain, 10, 20, 0);
    ASSERT_TRUE(zem_g_outline(vl, &plain, Zem::unitCurrent));
    expectBox(vl, 5, 5, 15, 25);

    CZemDataItem other(item);
    set(&other, L"TYPE", L"DWG");
    CZemDataItem noId(item);
    noId.getDir()->remove(&CZemDataKey().set(L"ID"));
    CZemDataItem unknown(item);
    set(&unknown, L"ID", 99);
    const CZemVertexArray before = vl;
    for (CZemDataItem* bad : {&other, &noId, &unknown, static_cast<CZemDataItem*>(nullptr)})
        EXPECT_FALSE(zem_g_outline(vl, bad, Zem::unitCurrent));
    CZemDataItem value;
    EXPECT_FALSE(zem_g_outline(vl, &value, Zem::unitCurrent));
    EXPECT_EQ(before.len(), vl.len()) << "a failure leaves the polyline alone";
    expectBox(vl, 5, 5, 15, 25);
}

TEST_F(Object, MachiningsArePlacedByMirrorTurnAndMove) {
    CZemDataItem machining(CZemDataItem::typeDir);
    CZemDataItem gen(CZemDataItem::typeDir);
    rectangleItem(gen, 10, 20, 4);
    set(&gen, L"BASE", CZemPoint3d(0, 0, 0));
    machining.mkDir()->insert(&CZemDataKey().set(L"GEN"), new CZemDataItem(gen), 0);
    set(&machining, L"MOV", CZemVector3d(100, 0, 0));
    set(&machining, L"ROT", M_PI / 2);
    set(&machining, L"SCAL", CZemPoint3d(-1, 1, 7));
    set(&machining, L"INSUNIT", 4);
    CZemVertexArray vl;
    ASSERT_TRUE(zem_g_machining(vl, &machining, Zem::unitMillimeters));
    // [0,10] x [0,20] mirrored to [-10,0] x [0,20], turned a quarter to [-20,0] x [-10,0], moved by 100.
    expectBox(vl, 80, -10, 100, 0);
    EXPECT_TRUE(vl.isClosed());

    CZemDataItem drawn(CZemDataItem::typeDir);
    CZemVertexArray triangle;
    triangle.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(2, 0, 0), 0))
        .append(CZemVertex(CZemPoint3d(2, 0, 0), CZemPoint3d(0, 1, 0), 0))
        .append(CZemVertex(CZemPoint3d(0, 1, 0), CZemPoint3d(0, 0, 0), 0));
    set(&drawn, L"GEN", triangle);
    set(&drawn, L"MOV", CZemVector3d(1, 0, 0));
    set(&drawn, L"INSUNIT", 5);
    ASSERT_TRUE(zem_g_machining(vl, &drawn, Zem::unitMillimeters));
    expectBox(vl, 10, 0, 30, 10);

    CZemDataItem empty(CZemDataItem::typeDir);
    EXPECT_FALSE(zem_g_machining(vl, &empty, Zem::unitMillimeters));
    EXPECT_FALSE(zem_g_machining(vl, nullptr, Zem::unitMillimeters));
    expectBox(vl, 10, 0, 30, 10);
}

TEST_F(Object, LabelsNameTheFormAndItsSizesOrTheObjectsOwnText) {
    CZemDataItem outline(CZemDataItem::typeDir);
    rectangleItem(outline, 100, 50, 4);
    EXPECT_EQ(L"Rechteck 100 x 50", std::wstring(ZEM::obj_label(&outline, L"DEU")));
    EXPECT_EQ(L"Rectangle 100 x 50", std::wstring(ZEM::obj_label(&outline, L"ENU")));
    CZemDataItem* shared = ZEM::cfg_dir_make(L"*ZEM_OUTLINE*");
    ZEM::dataItemSet(shared, &CZemDataKey().appendNumber(1).appendString(L"LABEL"), L"MY_FORM");
    ZEM::msgSet(L"ZEM_", L"MY_FORM", L"DEU", L"Platte");
    EXPECT_EQ(L"Platte 100 x 50", std::wstring(ZEM::obj_label(&outline, L"DEU"))) << "the shared catalogue first";

    CZemDataItem sheet(CZemDataItem::typeDir);
    set(&sheet, L"LABEL", L"\\DEU=Blech\\ENU=Sheet");
    EXPECT_EQ(L"Sheet", std::wstring(ZEM::obj_label(&sheet, L"ENU")));
    EXPECT_EQ(L"Blech", std::wstring(ZEM::obj_label(&sheet, L"FRA"))) << "another language: the first text";
    CZemDataItem machining(CZemDataItem::typeDir);
    machining.mkDir()->insert(&CZemDataKey().set(L"GEN"), new CZemDataItem(outline), 0);
    EXPECT_EQ(L"Platte 100 x 50", std::wstring(ZEM::obj_label(&machining, L"DEU")));
    CZemDataItem nothing(CZemDataItem::typeDir);
    EXPECT_TRUE(ZEM::obj_label(&nothing, L"DEU").isEmpty());
    EXPECT_TRUE(ZEM::obj_label(nullptr, L"DEU").isEmpty());
}

TEST_F(Object, GenerationWritesThePolylineOfGen) {
    CZemDataItem part(CZemDataItem::typeDir);
    CZemDataItem gen(CZemDataItem::typeDir);
    rectangleItem(gen, 1, 2, 5);
    part.mkDir()->insert(&CZemDataKey().set(L"GEN"), new CZemDataItem(gen), 0);
    ASSERT_TRUE(ZEM::objGen(&part, 0));
    CZemVertexArray vl;
    ASSERT_TRUE(ZEM::itemGet(&part, L"VL", vl));
    expectBox(vl, 50, 50, 60, 70);
    CZemDataItem empty(CZemDataItem::typeDir);
    EXPECT_FALSE(ZEM::objGen(&empty, 0));
    EXPECT_EQ(0, empty.getDir()->len()) << "nothing written";
    EXPECT_FALSE(ZEM::objGen(nullptr, 0));
}

TEST_F(Object, ObjectLibraryFromTheConfigurationOrAFile) {
    CZemDataItem part(CZemDataItem::typeDir);
    set(&part, L"STACK", L"PIECE");
    set(&part, L"SCORDP\\P1", CZemPoint3d(0, 0, 0));
    set(&part, L"SCORDP\\A2", CZemPoint3d(1, 0, 0));
    const std::string folder = datatest::freshFolder("object-library");
    {
        CZemDtaFilePointer file;
        ASSERT_TRUE(file.open(datatest::widen(folder + "/zem_obj.dta").c_str(), zemDtaWrite));
        file.set(&part, &CZemDataKey().set(L"NORM\\DIN125\\M8"));
        ASSERT_TRUE(file.save());
    }
    CZemArrayTempl<CZemString> support;
    support.append(datatest::widen(folder).c_str());
    set(ZEM::cfg_dir_make(L""), L"SUPPORT", support);
    std::unique_ptr<CZemDataItem> gen(zem_obj_key_to_gen(L"norm\\din125\\m8"));
    ASSERT_NE(nullptr, gen);
    EXPECT_TRUE(*gen == part);
    const CZemArrayTempl<CZemString> names = zem_norm_scordp(gen.get());
    ASSERT_EQ(2, names.len());
    EXPECT_EQ(L"P1", std::wstring(names[0]));
    EXPECT_EQ(L"A2", std::wstring(names[1])) << "in stored order";
    EXPECT_EQ(0, zem_norm_scordp(nullptr).len());
    EXPECT_EQ(nullptr, zem_obj_key_to_gen(L"NORM\\DIN125\\M8\\STACK")) << "a value is no object";
    EXPECT_EQ(nullptr, zem_obj_key_to_gen(L"NORM\\NONE"));
    EXPECT_EQ(nullptr, zem_obj_key_to_gen(nullptr));

    CZemDataItem* inline_ = ZEM::cfg_dir_make(L"OBJECTS");
    set(inline_, L"MINE\\STACK", L"BAR");
    std::unique_ptr<CZemDataItem> mine(zem_obj_key_to_gen(L"MINE"));
    ASSERT_NE(nullptr, mine);
    set(mine.get(), L"STACK", L"changed");
    CZemString stack;
    EXPECT_TRUE(ZEM::itemGet(inline_, L"MINE\\STACK", stack) && stack == L"BAR") << "the caller gets a copy";
    EXPECT_EQ(nullptr, zem_obj_key_to_gen(L"NORM\\DIN125\\M8")) << "the configuration's library replaces the file";
}

TEST_F(Object, SolidsFromStoredBodiesWithHoles) {
    CZemDataItem plate(CZemDataItem::typeDir);
    CZemDataItem gen(CZemDataItem::typeDir);
    rectangleItem(gen, 10, 6, 0);
    set(&gen, L"BASE", CZemPoint3d(0, 0, 0));
    plate.mkDir()->insert(&CZemDataKey().set(L"GEN"), new CZemDataItem(gen), 0);
    set(&plate, L"INSUNIT", 5);
    set(&plate, L"HEIGHT", 1.0);
    CZemDataItem hole(CZemDataItem::typeDir);
    CZemDataItem circle(CZemDataItem::typeDir);
    set(&circle, L"TYPE", L"OUTLINE");
    set(&circle, L"ID", 2);
    set(&circle, L"PARM1", 20.0);
    set(&circle, L"INSUNIT", 4);
    hole.mkDir()->insert(&CZemDataKey().set(L"GEN"), new CZemDataItem(circle), 0);
    set(&hole, L"MOV", CZemVector3d(5, 3, 0));
    set(&hole, L"INSUNIT", 5);
    plate.getDir()->insert(&CZemDataKey().set(L"HOLE\\1"), new CZemDataItem(hole), 0);

    CZem_Solid solid;
    ASSERT_TRUE(zemObjModel(solid, &plate));
    EXPECT_EQ(1, solid.prismCount());
    CZemArrayTempl<CZemVertexArrayEx> visible, hidden;
    CZemMatrix3d side;
    side.setCoordSystem(CZemPoint3d::kOrigin, CZemVector3d::kXAxis, CZemVector3d::kZAxis, -CZemVector3d::kYAxis);
    ASSERT_TRUE(solid.project(side, 0, visible, hidden, 1));
    CZemVertexArray all;
    for (int i = 0; i < visible.len(); ++i) all += visible[i];
    expectBox(all, 0, 0, 100, 10);
    for (int i = 0; i < hidden.len(); ++i) all += hidden[i];
    expectBox(all, 0, 0, 100, 10);
    int boreLines = 0;
    for (int i = 0; i < hidden.len(); ++i) {
        const double x = hidden[i][0].m_start.x;
        if (std::fabs(hidden[i].m_direction.z) > 0.999 && (std::fabs(x - 40) < 1e-6 || std::fabs(x - 60) < 1e-6)) ++boreLines;
    }
    EXPECT_EQ(2, boreLines) << "the bore of 20 mm at 50 mm shows as two hidden lines";

    CZemDataItem two(CZemDataItem::typeDir);
    two.mkDir()->insert(&CZemDataKey().set(L"SOLID\\A"), new CZemDataItem(plate), 0);
    two.getDir()->insert(&CZemDataKey().set(L"SOLID\\B"), new CZemDataItem(plate), 0);
    set(&two, L"SOLID\\BROKEN\\HEIGHT", 0.0);
    ASSERT_TRUE(zemObjModel(solid, &two));
    EXPECT_EQ(2, solid.prismCount()) << "the broken body is passed over";
    CZemDataItem none(CZemDataItem::typeDir);
    EXPECT_FALSE(zemObjModel(solid, &none));
    EXPECT_EQ(0, solid.prismCount());
    EXPECT_FALSE(zemObjModel(solid, nullptr));
}
