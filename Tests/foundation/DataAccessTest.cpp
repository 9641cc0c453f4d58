#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemResbuf.h"

#include <gtest/gtest.h>

#include <memory>

using namespace ZEM;

TEST(DataAccess, SetWritesBelowOrIntoTheNodeAndReadsCheckTheKind) {
    CZemDataItem item;
    int value = 0;
    EXPECT_TRUE(dataItemSet(&item, nullptr, 12) && item.get(value, nullptr) && value == 12) << "a null key writes the node";
    const CZemDataKey path(L"SHEET\\HOLE\\1\\ROT");
    EXPECT_TRUE(dataItemSet(&item, &path, 0.75));
    EXPECT_TRUE(item.isDir()) << "the value node became a directory";
    double rot = 0;
    EXPECT_TRUE(itemGet(&item, L"SHEET\\HOLE\\1\\ROT", rot) && rot == 0.75);

    dataItemSet(&item, &CZemDataKey().set(L"INSUNIT"), Zem::unitInches);
    CZemString name;
    Zem::lUnit unit = Zem::unitNone;
    EXPECT_TRUE(itemGet(&item, L"INSUNIT", unit) && unit == Zem::unitInches);
    dataItemSet(&item, &CZemDataKey().set(L"INSUNIT"), 21);
    unit = Zem::unitFeet;
    EXPECT_FALSE(itemGet(&item, L"INSUNIT", unit)) << "21 is no unit";
    EXPECT_EQ(unit, Zem::unitFeet);

    CZemDataKey invalid;
    datatest::DumpCapture dump;
    EXPECT_FALSE(dataItemSet(&item, &invalid.set(1, 0), 1));
    EXPECT_FALSE(dataItemSet(nullptr, &path, 1));
    EXPECT_FALSE(itemGet(static_cast<CZemDataItem*>(nullptr), L"NAME", name)) << "a null item reads nothing";
}

TEST(DataAccess, AFailedMatrixReadWritesNothingAndEmptyListsDeleteTheEntry) {
    CZemDataItem item;
    const CZemDataKey key(L"MTX");
    dataItemSet(&item, &key, 5);
    double back[4][4] = {{42}};
    EXPECT_FALSE(dataItemGet(&item, &key, back));
    EXPECT_EQ(back[0][0], 42) << "nothing is written on a failed read";

    const CZemVertexArray vl(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(4, 0, 0), 0.0));
    ASSERT_TRUE(dataItemSet(&item, &key, vl));
    EXPECT_TRUE(dataItemSet(&item, &key, CZemVertexArray()));
    EXPECT_EQ(item.get(&key), nullptr);
    CZemDataItem node;
    EXPECT_TRUE(dataItemSet(&node, nullptr, CZemArrayTempl<int>()));
    EXPECT_TRUE(node.getResbuf() && node.getResbuf()->restype == RTNIL) << "without a key the node takes the empty list";
}

TEST(DtaFilePointer, AFreshMemorySetGetsItsRootOnFirstWrite) {
    std::unique_ptr<CZemDtaFilePointer> data(zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->get(nullptr), nullptr) << "a fresh data set has no root";
    EXPECT_TRUE(dtaWrite(data.get(), L"COORD", 1) && dtaWrite(data.get(), L"SN\\3\\X", 2.0));
    EXPECT_TRUE(dtaWrite(data.get(), L"SN\\5", CZemPoint3d(1, 1, 1)));
    CZemArrayTempl<CZemDataKey> keys;
    EXPECT_TRUE(data->dir(keys, &CZemDataKey().set(L"SN")));
    ASSERT_EQ(keys.len(), 2);
    EXPECT_STREQ(static_cast<const wchar_t*>(keys[1]), L"5");
    EXPECT_FALSE(data->dir(keys, &CZemDataKey().set(L"COORD")));
    EXPECT_EQ(keys.len(), 0);

    CZemDataItem copy(*data->get(nullptr));
    std::unique_ptr<CZemDtaFilePointer> second(zemDtaOpen(zemDtaMemory, 3, &CZemDataKey().set(L"WALL"), &copy));
    int coord = 0;
    EXPECT_TRUE(itemGet(second->get(nullptr), L"WALL\\COORD", coord) && coord == 1);
    second->set(nullptr, &CZemDataKey().set(L"WALL\\COORD"));
    EXPECT_EQ(second->get(&CZemDataKey().set(L"WALL\\COORD")), nullptr);
    EXPECT_NE(data->get(&CZemDataKey().set(L"COORD")), nullptr) << "the data sets hold copies";
    EXPECT_EQ(zemDtaOpen(zemDtaNone, 0, nullptr, nullptr), nullptr);
}
