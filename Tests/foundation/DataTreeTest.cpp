#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDataItem.h"
#include "ZemDataIterator.h"
#include "ZemDataKey.h"
#include "ZemResbuf.h"
#include "ZemSmartResbuf.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace ZEM;

// A directory with a value of each simple kind.
CZemDataItem sampleTree() {
    CZemDataItem root(CZemDataItem::typeDir);
    CZemDataKey key;
    auto put = [&](const wchar_t* path, resbuf* chain) {
        CZemDataItem* value = new CZemDataItem();
        value->setData(chain, false);
        root.getDir()->insert(&key.set(path), value, 0);
    };
    put(L"GEN\\TYPE", mkResbuf(L"OUTLINE"));
    put(L"GEN\\ID", mkResbuf(7, RTSHORT));
    put(L"ROT", mkResbuf(1.5, RTREAL));
    put(L"BIG", mkResbuf(5000000000.0, RTREAL));
    put(L"FLAG", mkResbuf(0.0, RTT));
    put(L"MOV", mkResbuf(CZemVector3d(1, 2, 3)));
    return root;
}

}  // namespace

TEST(DataKey, TextPathsAndCodedLevels) {
    CZemDataKey key(L"\\PARM3\\\\LABEL\\");
    ASSERT_EQ(key.levels(), 2) << "empty levels are dropped";
    EXPECT_STREQ(static_cast<const wchar_t*>(key), L"LABEL");
    EXPECT_TRUE(key.text() == L"PARM3\\LABEL");
    key.set(RTSTR, L"HOLE", RTSTR, L"12", RTSHORT, 5, RTLONG, 100000L, 0);
    ASSERT_EQ(key.levels(), 4);
    EXPECT_EQ(static_cast<long>(key), 100000L);
    EXPECT_STREQ(key.levelText(2), L"5");
    EXPECT_EQ(key.levelNumber(1), 12) << "a string level reads as its number";

    EXPECT_TRUE(CZemDataKey(L"gen\\Type") == CZemDataKey(L"GEN\\TYPE")) << "ASCII case is ignored";
    CZemDataKey name, number, broken;
    EXPECT_TRUE(name.set(RTDXF0, L"GEN", 0) == CZemDataKey(L"GEN")) << "name and string levels match";
    EXPECT_FALSE(number.set(RTSHORT, 12, 0) == CZemDataKey(L"12")) << "numbers never match strings";
    datatest::DumpCapture dump;
    broken.set(RTSTR, L"A", 1234, 0);
    EXPECT_TRUE(!broken.isValid() && broken.isEmpty());
}

TEST(DataItem, ReadsFollowKeysAndLeaveOutputsAloneOnFailure) {
    const CZemDataItem root = sampleTree();
    CZemString type;
    const CZemDataKey typeKey(L"GEN\\TYPE"), below(L"GEN\\TYPE\\X");
    EXPECT_TRUE(root.get(type, &typeKey) && type == L"OUTLINE");
    int id = -1;
    EXPECT_FALSE(root.get(type, &below)) << "nothing lies below a value node";
    EXPECT_FALSE(root.get(id, &typeKey)) << "a string is no integer";
    EXPECT_EQ(id, -1) << "a failed read leaves the output";
    EXPECT_FALSE(root.get(id, &CZemDataKey().set(L"ROT")) || root.get(id, &CZemDataKey().set(L"BIG"))) << "1.5, 5e9";
    bool flag = false;
    CZemPoint3d asPoint;
    EXPECT_TRUE(root.get(flag, &CZemDataKey().set(L"FLAG")) && flag);
    EXPECT_TRUE(root.get(asPoint, &CZemDataKey().set(L"MOV")) && asPoint == CZemPoint3d(1, 2, 3)) << "a vector reads as a point";
}

TEST(DataDir, InsertReplacesInPlaceKeepsOrderAndIteratesInIt) {
    CZemDataItem root = sampleTree();
    CZemDataDir* dir = root.getDir();
    CZemDataItem* replacement = new CZemDataItem();
    replacement->setData(mkResbuf(2.0, RTREAL), false);
    EXPECT_EQ(dir->insert(&CZemDataKey().set(L"rot"), replacement, 0), 1);
    CZemArrayTempl<CZemDataKey> keys;
    ASSERT_TRUE(dir->getKeyList(keys) && keys.len() == 5);
    EXPECT_STREQ(static_cast<const wchar_t*>(keys[1]), L"rot") << "replaced where it stood";
    EXPECT_EQ(dir->insert(&CZemDataKey().set(L"ROT"), new CZemDataItem(), 1), 0) << "keepExisting refuses";
    double rot = 0;
    EXPECT_TRUE(root.get(rot, &CZemDataKey().set(L"ROT")) && rot == 2.0);

    dir->remove(&CZemDataKey().set(L"GEN\\ID"));
    EXPECT_TRUE(root.get(&CZemDataKey().set(L"GEN\\ID")) == nullptr && root.get(&CZemDataKey().set(L"GEN\\TYPE")));
    std::wstring seen;
    CZemDataIterator it(&root);
    for (it.start(); !it.done(); it.next()) seen += static_cast<const wchar_t*>(*it->getKey()) + std::wstring(L",");
    EXPECT_EQ(seen, L"GEN,rot,BIG,FLAG,MOV,");
    CZemDataIterator none(root.get(&CZemDataKey().set(L"ROT")));
    none.start();
    EXPECT_TRUE(none.done()) << "a value node has no children";
    dir->insert(&CZemDataKey().set(L"ROT\\SUB"), new CZemDataItem(), 0);
    EXPECT_TRUE(root.get(&CZemDataKey().set(L"ROT"))->isDir()) << "a path turns a value into a directory";
}

TEST(DataItem, LispFormRoundTripsDirectories) {
    CZemDataItem root = sampleTree();
    root.getDir()->insert(&CZemDataKey().set(RTSHORT, 4, RTDXF0, L"VL", 0), new CZemDataItem(), 0);
    root.get(&CZemDataKey().set(RTSHORT, 4, RTDXF0, L"VL", 0))
        ->setData(mkResbuf(CZemVertexArray(CZemVertex(CZemPoint3d(), CZemPoint3d(1, 0, 0), 0.5))), false);
    root.getDir()->insert(&CZemDataKey().set(L"EMPTY"), new CZemDataItem(CZemDataItem::typeDir), 0);
    CSmartResbuf lisp(root.mkLisp());
    ASSERT_EQ(static_cast<resbuf*>(lisp)->restype, RTLB);
    CZemDataItem back;
    back.setLisp(lisp);
    EXPECT_TRUE(back == root);

    CSmartResbuf plain(mkResbuf(CZemArrayTempl<int>().append(1).append(2)));
    back.setLisp(plain);
    EXPECT_FALSE(back.isDir()) << "a list that is no entry list stays a value";
    EXPECT_TRUE(rbEqual(back.getResbuf(), plain));
}

TEST(DataAccess, SetWritesBelowOrIntoTheNodeAndReadsCheckTheKind) {
    CZemDataItem item;
    int value = 0;
    EXPECT_TRUE(dataItemSet(&item, nullptr, 12) && item.get(value, nullptr) && value == 12) << "a null key writes the node";
    const CZemDataKey path(L"SHEET\\HOLE\\1\\ROT");
    double rot = 0;
    EXPECT_TRUE(dataItemSet(&item, &path, 0.75) && itemGet(&item, L"SHEET\\HOLE\\1\\ROT", rot) && rot == 0.75);
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
    ASSERT_TRUE(data && data->get(nullptr) == nullptr) << "a fresh data set has no root";
    EXPECT_TRUE(dtaWrite(data.get(), L"COORD", 1) && dtaWrite(data.get(), L"SN\\3\\X", 2.0));
    EXPECT_TRUE(dtaWrite(data.get(), L"SN\\5", CZemPoint3d(1, 1, 1)));
    CZemArrayTempl<CZemDataKey> keys;
    ASSERT_TRUE(data->dir(keys, &CZemDataKey().set(L"SN")) && keys.len() == 2);
    EXPECT_STREQ(static_cast<const wchar_t*>(keys[1]), L"5");
    EXPECT_FALSE(data->dir(keys, &CZemDataKey().set(L"COORD")) || keys.len() != 0);

    CZemDataItem copy(*data->get(nullptr));
    std::unique_ptr<CZemDtaFilePointer> second(zemDtaOpen(zemDtaMemory, 3, &CZemDataKey().set(L"WALL"), &copy));
    int coord = 0;
    EXPECT_TRUE(itemGet(second->get(nullptr), L"WALL\\COORD", coord) && coord == 1);
    second->set(nullptr, &CZemDataKey().set(L"WALL\\COORD"));
    EXPECT_EQ(second->get(&CZemDataKey().set(L"WALL\\COORD")), nullptr);
    EXPECT_NE(data->get(&CZemDataKey().set(L"COORD")), nullptr) << "the data sets hold copies";
    EXPECT_EQ(zemDtaOpen(zemDtaNone, 0, nullptr, nullptr), nullptr);
}
