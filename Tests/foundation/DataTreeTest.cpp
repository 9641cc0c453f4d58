#include "DataTestSupport.h"
#include "ZemDataDir.h"
#include "ZemDataItem.h"
#include "ZemDataIterator.h"
#include "ZemDataKey.h"
#include "ZemResbuf.h"
#include "ZemSmartResbuf.h"

#include <gtest/gtest.h>

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
    const CZemDataItem* gen = root.get(&CZemDataKey(L"GEN").appendString(L"ID"));
    EXPECT_TRUE(gen && gen->get(id, nullptr) && id == 7) << "a null key reads the node itself";

    EXPECT_FALSE(root.get(id, &CZemDataKey().set(L"ROT")) || root.get(id, &CZemDataKey().set(L"BIG"))) << "1.5, 5e9";
    bool flag = false;
    EXPECT_TRUE(root.get(flag, &CZemDataKey().set(L"FLAG")) && flag);
    CZemPoint3d asPoint;
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
    EXPECT_EQ(root.get(&CZemDataKey().set(L"GEN\\ID")), nullptr);
    EXPECT_NE(root.get(&CZemDataKey().set(L"GEN\\TYPE")), nullptr);
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
