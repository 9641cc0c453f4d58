#include "ZemArrayTempl.h"
#include "ZemString.h"
#include "ZemVertexArray.h"

#include <gtest/gtest.h>

TEST(ArrayTempl, WritingBehindTheEndGrowsByDoublingFromEight) {
    CZemArrayTempl<int> a;
    a[5] = 1;
    EXPECT_EQ(a.len(), 6);
    EXPECT_EQ(a.physicalLength(), 8);
    a[8] = 2;
    EXPECT_EQ(a.len(), 9);
    EXPECT_EQ(a.physicalLength(), 16);
    a[40] = 3;
    EXPECT_EQ(a.physicalLength(), 64);
    a.setLogicalLength(0);
    EXPECT_EQ(a.physicalLength(), 64) << "storage is never shrunk";
}

TEST(ArrayTempl, NegativeIndicesCountFromTheEnd) {
    CZemArrayTempl<int> a;
    for (int k = 0; k < 5; ++k) a.append(k * 10);
    const CZemArrayTempl<int>& r = a;
    EXPECT_EQ(r[-1], 40);
    EXPECT_EQ(r[-5], 0);
    EXPECT_EQ(r[-6], 40) << "wraps around";
    a[-2] = 99;
    EXPECT_EQ(r[3], 99);

    CZemArrayTempl<int> one;
    one.append(7);
    EXPECT_EQ(static_cast<const CZemArrayTempl<int>&>(one)[-1], 7);
    EXPECT_EQ(static_cast<const CZemArrayTempl<int>&>(one)[-3], 7);
}

TEST(ArrayTempl, EmptyArraysHandOutSharedElements) {
    CZemArrayTempl<CZemString> empty;
    CZemString& scratch = empty[-1];
    EXPECT_EQ(empty.len(), 0) << "writing index -1 of an empty array leaves it empty";
    EXPECT_EQ(&scratch, &CZemArrayTempl<CZemString>::scratchElement());

    const CZemArrayTempl<CZemString>& r = empty;
    EXPECT_EQ(&r[-1], &CZemArrayTempl<CZemString>::defaultElement());
    CZemArrayTempl<CZemString> three;
    for (int k = 0; k < 3; ++k) three.append(L"x");
    const CZemArrayTempl<CZemString>& r3 = three;
    EXPECT_EQ(&r3[5], &r[0]) << "one shared default per instantiation";
    EXPECT_EQ(three.len(), 3) << "reading behind the end changes nothing";
    EXPECT_TRUE(r3[5].isEmpty());
}

TEST(ArrayTempl, AppendOfAnOwnElementWhenFull) {
    CZemArrayTempl<CZemString> a;
    for (int k = 0; k < 8; ++k) a.append(CZemString().format(L"s%d", k));
    ASSERT_EQ(a.physicalLength(), 8);
    a.append(a[0]);
    a.insertAt(0, a[8]);
    EXPECT_EQ(a.len(), 10);
    EXPECT_TRUE(a[9] == L"s0");
    EXPECT_TRUE(a[0] == L"s0");
    EXPECT_TRUE(a[1] == L"s0");
    EXPECT_TRUE(a[8] == L"s7");
}

TEST(ArrayTempl, InsertAndRemoveKeepOrder) {
    CZemArrayTempl<int> a;
    for (int k = 0; k < 3; ++k) a.append(k);
    a.insertAt(7, 70);
    EXPECT_EQ(a.len(), 8);
    EXPECT_EQ(a[7], 70);
    EXPECT_EQ(a[2], 2);
    a.insertAt(1, 10);
    const int expected[] = {0, 10, 1, 2};
    for (int k = 0; k < 4; ++k) EXPECT_EQ(a[k], expected[k]);
    EXPECT_EQ(a.len(), 9);

    a.removeAt(a.len() - 1);
    EXPECT_EQ(a.len(), 8);
    a.removeAt(8);
    a.removeAt(-1);
    EXPECT_EQ(a.len(), 8) << "indices outside are ignored";
    a.removeAt(0);
    EXPECT_EQ(a[0], 10);
    EXPECT_EQ(a[1], 1);
}

TEST(ArrayTempl, ElementsSurviveReallocationAndRemovalBitwise) {
    CZemArrayTempl<CZemArrayTempl<CZemString>> nested;
    for (int k = 0; k < 100; ++k) {
        CZemArrayTempl<CZemString> inner;
        inner.append(CZemString().format(L"item %d", k));
        nested.append(inner);
    }
    nested.removeAt(10);
    EXPECT_EQ(nested.len(), 99);
    EXPECT_TRUE(nested[10][0] == L"item 11");
    EXPECT_TRUE(nested[98][0] == L"item 99");

    CZemArrayTempl<CZemArrayTempl<CZemString>> copy(nested);
    copy[0][0] = L"changed";
    EXPECT_TRUE(nested[0][0] == L"item 0") << "copies are deep";
}

TEST(ArrayTempl, SortAndRevert) {
    CZemArrayTempl<int> a;
    const int values[] = {5, -3, 9, 0, 5, 2};
    for (int v : values) a.append(v);
    a.sort();
    const int sorted[] = {-3, 0, 2, 5, 5, 9};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(a[k], sorted[k]);
    a.revert();
    for (int k = 0; k < 6; ++k) EXPECT_EQ(a[k], sorted[5 - k]);
}

TEST(ArrayTempl, VertexListReusedAsOneSegment) {
    CZemVertexArray list;
    for (int k = 0; k < 4; ++k) list.append(CZemVertex(CZemPoint3d(k, 0, 0), CZemPoint3d(k + 1, 0, 0), 0.0));
    list.setLogicalLength(0);
    list[0] = CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(0, 5, 0), 0.5);
    EXPECT_EQ(list.len(), 1);
    EXPECT_EQ(list[-1].m_end.y, 5.0);
    list += list;
    EXPECT_EQ(list.len(), 2);
}
