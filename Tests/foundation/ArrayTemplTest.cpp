#include "ZemArrayTempl.h"
#include "ZemString.h"
#include "ZemVertexArray.h"

#include <gtest/gtest.h>

namespace {

typedef CZemArrayTempl<CZemString> Strings;

}  // namespace

TEST(ArrayTempl, GrowsByDoublingFromEightNeverShrinksAndSorts) {
    CZemArrayTempl<int> a;
    a[5] = 1;
    EXPECT_EQ(a.physicalLength(), 8);
    a[40] = 3;
    EXPECT_EQ(a.len(), 41);
    EXPECT_EQ(a.physicalLength(), 64);
    a.setLogicalLength(0);
    EXPECT_EQ(a.physicalLength(), 64);
    for (int v : {5, -3, 9, 0, 5, 2}) a.append(v);
    a.sort();
    const int sorted[] = {-3, 0, 2, 5, 5, 9};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(a[k], sorted[k]);
    a.revert();
    for (int k = 0; k < 6; ++k) EXPECT_EQ(a[k], sorted[5 - k]);
}

// Vertex lists keep their storage within twice what they hold, from one
// vertex up, and a reservation is kept through emptying.
TEST(ArrayTempl, VertexListsGrowFromOneVertex) {
    const CZemVertex segment(CZemPoint3d(0, 0, 0), CZemPoint3d(1, 0, 0), 0.0);
    CZemVertexArray list(segment);
    EXPECT_EQ(list.items().physicalLength(), 1);
    for (int k = 0; k < 4; ++k) list.append(list[0]);
    EXPECT_EQ(list.len(), 5);
    EXPECT_EQ(list.items().physicalLength(), 8);
    list.setLogicalLength(0);
    list.reserve(3);
    EXPECT_EQ(list.items().physicalLength(), 8);
    CZemVertexArray copy;
    copy = CZemVertexArray(segment);
    EXPECT_EQ(copy.items().physicalLength(), 1);
}

TEST(ArrayTempl, NegativeIndicesWrapAndEmptyArraysHandOutSharedElements) {
    CZemArrayTempl<int> a;
    for (int k = 0; k < 5; ++k) a.append(k * 10);
    const CZemArrayTempl<int>& r = a;
    EXPECT_TRUE(r[-1] == 40 && r[-6] == 40) << "wraps around";
    a[-2] = 99;
    EXPECT_EQ(r[3], 99);
    Strings empty, three;
    EXPECT_EQ(&empty[-1], &Strings::scratchElement());
    EXPECT_EQ(empty.len(), 0) << "writing index -1 of an empty array leaves it empty";
    for (int k = 0; k < 3; ++k) three.append(L"x");
    EXPECT_EQ(&static_cast<const Strings&>(three)[5], &static_cast<const Strings&>(empty)[-1]) << "one shared default";
    EXPECT_EQ(three.len(), 3) << "reading behind the end changes nothing";
}

TEST(ArrayTempl, InsertAndRemoveKeepOrderAndOwnElementsSurviveGrowth) {
    CZemArrayTempl<int> a;
    for (int k = 0; k < 3; ++k) a.append(k);
    a.insertAt(7, 70);
    EXPECT_TRUE(a.len() == 8 && a[7] == 70 && a[2] == 2);
    a.insertAt(1, 10);
    a.removeAt(8);
    a.removeAt(8);
    a.removeAt(-1);
    EXPECT_EQ(a.len(), 8) << "indices outside are ignored";
    a.removeAt(0);
    EXPECT_TRUE(a[0] == 10 && a[1] == 1 && a[2] == 2);

    Strings s;
    for (int k = 0; k < 8; ++k) s.append(CZemString().format(L"s%d", k));
    ASSERT_EQ(s.physicalLength(), 8);
    s.append(s[0]);
    s.insertAt(0, s[8]);
    EXPECT_TRUE(s.len() == 10 && s[0] == L"s0" && s[1] == L"s0" && s[8] == L"s7" && s[9] == L"s0");
    CZemVertexArray list(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(0, 5, 0), 0.5));
    list += list;
    EXPECT_TRUE(list.len() == 2 && list[1].m_end.y == 5.0);
}

TEST(ArrayTempl, ElementsSurviveReallocationAndRemovalAndCopiesAreDeep) {
    CZemArrayTempl<Strings> nested;
    for (int k = 0; k < 100; ++k) nested.append(Strings().append(CZemString().format(L"item %d", k)));
    nested.removeAt(10);
    EXPECT_TRUE(nested.len() == 99 && nested[10][0] == L"item 11" && nested[98][0] == L"item 99");
    CZemArrayTempl<Strings> copy(nested);
    copy[0][0] = L"changed";
    EXPECT_TRUE(nested[0][0] == L"item 0");
}

// Growth moves every slot, so elements behind the logical length keep their
// content too; a block large enough to be remapped keeps every element.
TEST(ArrayTempl, GrowthKeepsSlotsBehindTheLengthAndLargeBlocks) {
    Strings s;
    for (int k = 0; k < 8; ++k) s.append(CZemString().format(L"s%d", k));
    s.setLogicalLength(2);
    s.reserve(100);
    s.setLogicalLength(8);
    EXPECT_TRUE(s.physicalLength() == 128 && s[7] == L"s7" && s[20].len() == 0);

    CZemArrayTempl<double> big;
    const int count = 6'000'000;  // 48 MB
    for (int k = 0; k < count; ++k) big.append(k);
    bool kept = true;
    for (int k = 0; k < count; k += 997) kept = kept && big[k] == k;
    EXPECT_TRUE(kept && big[-1] == count - 1);
}
