#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDataFile.h"
#include "ZemDataFileReader.h"
#include "ZemDataFileWriter.h"
#include "ZemResbuf.h"
#include "ZemSmartResbuf.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <memory>

using namespace ZEM;

namespace {

template <class T>
void put(CZemDataItem& root, const wchar_t* path, const T& value) { dataItemSet(&root, &CZemDataKey().set(path), value); }

// A tree with every kind of value and key the format knows.
CZemDataItem everyKind() {
    CZemDataItem root(CZemDataItem::typeDir);
    put(root, L"REAL\\TENTH", 0.1);
    put(root, L"REAL\\TINY", 4.9406564584124654e-324);
    put(root, L"REAL\\NEGZERO", -0.0);
    put(root, L"REAL\\HUGE", DBL_MAX);
    put(root, L"REAL\\INF", -std::numeric_limits<double>::infinity());
    put(root, L"INT", 2147483647);
    put(root, L"TEXT", L"Stra\u00DFe \u20AC \"q\" \\ \n\t\r \u0001 \u007F \u00A0 # ; { } = ( )");
    put(root, L"EMPTY", L"");
    put(root, L"POINT", CZemPoint3d(1e-7, -2.5, 1e22));
    CZemVertexArray vl(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(1, 0, 0), 0.41421356237309503));
    put(root, L"VL", vl.append(CZemVertex(CZemPoint3d(5, 5, 0), CZemPoint3d(6, 5, 0), -1.0)).setNormal(CZemVector3d(0, 1, 0)));
    put(root, L"INTS", CZemArrayTempl<int>().append(0).append(-70000));
    put(root, L"TEXTS", CZemArrayTempl<CZemString>().append(L"a").append(L"\u00E4\\"));
    put(root, L"EXTVIEW", CZemPoint3dArray().append(CZemPoint3d(0, 0, 0)).append(CZemPoint3d(1, 2, 3)));
    const double m[4][4] = {{1, 0, 0, 5}, {0, 1, 0, 6}, {0, 0, 1, 7}, {0, 0, 0, 1}};
    put(root, L"MTX", m);
    root.getDir()->insert(&CZemDataKey().set(L"EMPTYDIR"), new CZemDataItem(CZemDataItem::typeDir), 0);
    CZemDataKey odd;
    dataItemSet(&root, &odd.set(RTSHORT, -5, RTDXF0, L"name key", RTSTR, L"with space", RTSTR, L"12abc", 0), L"deep");
    // A chain of the rarer codes, as applications may store it.
    resbuf* point = rbNew(RTPOINT);
    point->resval.rpoint[0] = 2.0;
    CSmartResbuf chain(mkResbuf(1.25, RTANG));
    chain.append(mkResbuf(L"sym", RTDXF0)).append(point).append(mkResbuf(0.0, RTDOTE)).append(mkResbuf(0.0, RTT));
    CZemDataItem* rare = new CZemDataItem();
    rare->setData(chain.release(), false);
    root.getDir()->insert(&CZemDataKey().set(L"RARE"), rare, 0);
    return root;
}

bool parseText(const std::string& text, std::unique_ptr<CZemDataItem>& root) {
    CZemDataFileReader reader(L"test.dta");
    return reader.parse(text, root);
}

}  // namespace

TEST(DataFile, EveryKindOfValueRoundTripsThroughAFile) {
    const std::string folder = datatest::freshFolder("DataFileRoundTrip");
    const std::wstring path = datatest::widen(folder + "/every.dta");
    const CZemDataItem tree = everyKind();
    ASSERT_TRUE(CZemDataFile(path.c_str()).save(&tree));
    std::unique_ptr<CZemDataItem> back;
    ASSERT_TRUE(CZemDataFile(path.c_str()).load(back) && back);
    EXPECT_TRUE(*back == tree) << datatest::readBytes(folder + "/every.dta");
    double negZero = 1;
    EXPECT_TRUE(itemGet(back.get(), L"REAL\\NEGZERO", negZero) && std::signbit(negZero));

    std::string again;
    ASSERT_TRUE(CZemDataFileWriter().format(back.get(), again));
    EXPECT_EQ(again, datatest::readBytes(folder + "/every.dta")) << "writing is deterministic";

    const CZemDataItem value = *tree.get(&CZemDataKey().set(L"VL"));
    ASSERT_TRUE(CZemDataFile(path.c_str()).save(&value) && CZemDataFile(path.c_str()).load(back));
    EXPECT_TRUE(back && !back->isDir() && *back == value) << "a value as root";
    ASSERT_TRUE(CZemDataFile(path.c_str()).save(nullptr) && CZemDataFile(path.c_str()).load(back));
    EXPECT_EQ(back, nullptr) << "a data set without a root";
}

TEST(DataFile, HandWrittenTextReads) {
    std::unique_ptr<CZemDataItem> root;
    ASSERT_TRUE(parseText("\xEF\xBB\xBF# settings\r\nZEMDATA 1 {\r\n  KAL_MENU { COLOR { PDSIZE = 5; } }\n"
                          "  \"*WALL_EDIT*\" { BT = 2 ; MODE=\"SHELL\";}  # trailing comment\n"
                          "  -7 = L(-100000) A(.5) P2(1 2) nil T . ( ) 1.5e3 +4 inf;\n"
                          "  N\"sym\" = N\"x\";\n  latin = \"Gr\xF6\xDF" "e\";\n}\n",
                          root));
    int size = 0;
    EXPECT_TRUE(itemGet(root.get(), L"kal_menu\\color\\pdsize", size) && size == 5);
    CZemString mode, latin;
    EXPECT_TRUE(itemGet(root.get(), L"*WALL_EDIT*\\MODE", mode) && mode == L"SHELL");
    EXPECT_TRUE(itemGet(root.get(), L"latin", latin) && latin == L"Gr\u00F6\u00DFe") << "bytes that are no UTF-8 read as Latin-1";
    CZemDataKey number;
    const CZemDataItem* list = root->get(&number.set(RTSHORT, -7, 0));
    ASSERT_TRUE(list && list->getResbuf()->resval.rlong == -100000);
    std::vector<short> codes;
    for (const resbuf* p = list->getResbuf(); p; p = p->rbnext) codes.push_back(p->restype);
    EXPECT_EQ(codes, (std::vector<short>{RTLONG, RTANG, RTPOINT, RTNIL, RTT, RTDOTE, RTLB, RTLE, RTREAL, RTSHORT, RTREAL}));
    EXPECT_EQ(root->get(&CZemDataKey().set(L"sym"))->key().type(), RTDXF0);
}

TEST(DataFile, MalformedTextIsRefusedWithAMessage) {
    const char* bad[] = {"", "ZEMDATA 2 {}", "ZEMDATA 1 { A = 1 }", "ZEMDATA 1 { A = 1; a = 2; }",
                         "ZEMDATA 1 { A = 40000; }", "ZEMDATA 1 { A = \"x\\q\"; }", "ZEMDATA 1 { A = \"open; }",
                         "ZEMDATA 1 { A = P(1 2); }", "ZEMDATA 1 { A { }", "ZEMDATA 1 { } { }",
                         "ZEMDATA 1 { A = \"\\u0000\"; }", "ZEMDATA 1 { 99999999999 = 1; }"};
    for (const char* text : bad) {
        datatest::DumpCapture dump;
        std::unique_ptr<CZemDataItem> root(new CZemDataItem());
        CZemDataItem* before = root.get();
        EXPECT_FALSE(parseText(text, root)) << text;
        EXPECT_EQ(root.get(), before) << "nothing half-read is kept: " << text;
        EXPECT_NE(datatest::DumpCapture::text().find(L"test.dta:"), std::wstring::npos) << text;
    }
    std::string deep = "ZEMDATA 1 {";
    for (int k = 0; k < 300; ++k) deep += " A {";
    std::unique_ptr<CZemDataItem> root;
    datatest::DumpCapture dump;
    EXPECT_FALSE(parseText(deep + std::string(301, '}'), root));
}

TEST(DataFile, AnInterruptedOrFailedSaveKeepsThePreviousFile) {
    const std::string folder = datatest::freshFolder("DataFileSave");
    const CZemDataFile file(datatest::widen(folder + "/set.dta").c_str());
    CZemDataItem first(CZemDataItem::typeDir);
    dataItemSet(&first, &CZemDataKey().set(L"V"), 1);
    ASSERT_TRUE(file.save(&first));
    const std::string saved = datatest::readBytes(folder + "/set.dta");
    CZemDataItem second(first);
    dataItemSet(&second, &CZemDataKey().set(L"V"), 2);
    ASSERT_TRUE(file.writeTemporary(&second));  // the process dies here
    EXPECT_EQ(datatest::readBytes(folder + "/set.dta"), saved);
    std::unique_ptr<CZemDataItem> back;
    EXPECT_TRUE(file.load(back) && *back == first);
    ASSERT_TRUE(file.save(&second)) << "a temporary file left behind does not hurt";

    std::filesystem::remove(folder + "/set.dta.tmp");
    std::filesystem::create_directory(folder + "/set.dta.tmp");
    datatest::DumpCapture dump;
    EXPECT_FALSE(file.save(&first)) << "the temporary file cannot be written";
    CZemDataItem unknown;
    unknown.setData(rbNew(1234), false);
    EXPECT_FALSE(file.save(&unknown)) << "a code the format cannot hold";
    EXPECT_TRUE(file.load(back) && *back == second);
}

TEST(DataFile, FileBackedDataSetsOpenAndSave) {
    const std::string folder = datatest::freshFolder("DtaFile");
    const std::wstring path = datatest::widen(folder + "/walls.dta");
    datatest::DumpCapture dump;
    EXPECT_EQ(zemDtaOpenFile(path.c_str(), zemDtaRead), nullptr) << "missing, read only";
    std::unique_ptr<CZemDtaFilePointer> data(zemDtaOpenFile(path.c_str(), zemDtaRead | zemDtaWrite));
    ASSERT_TRUE(data && dtaWrite(data.get(), L"SN\\1\\LEN", 2.5) && data->save());
    {
        std::unique_ptr<CZemDtaFilePointer> again(zemDtaOpenFile(path.c_str(), zemDtaRead | zemDtaWrite | zemDtaSaveOnClose));
        double len = 0;
        ASSERT_TRUE(again && itemGet(again->get(nullptr), L"SN\\1\\LEN", len) && len == 2.5);
        dtaWrite(again.get(), L"SN\\2\\LEN", 4.0);
    }
    std::unique_ptr<CZemDtaFilePointer> closed(zemDtaOpenFile(path.c_str(), zemDtaRead));
    ASSERT_TRUE(closed && closed->get(&CZemDataKey().set(L"SN\\2\\LEN"))) << "saved on close";
    EXPECT_FALSE(closed->save()) << "opened without zemDtaWrite";
    datatest::writeBytes(folder + "/broken.dta", "ZEMDATA 1 { A = ; ");
    EXPECT_EQ(zemDtaOpenFile(datatest::widen(folder + "/broken.dta").c_str(), zemDtaWrite), nullptr);
}
