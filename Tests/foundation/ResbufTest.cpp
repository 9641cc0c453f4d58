#include "ZemResbuf.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

namespace {

using namespace ZEM;

std::vector<short> codesOf(const resbuf* rb) {
    std::vector<short> codes;
    for (; rb; rb = rb->rbnext) codes.push_back(rb->restype);
    return codes;
}

CZemVertexArray squareWithArc() {
    CZemVertexArray vl(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(10, 0, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(10, 0, 0), CZemPoint3d(10, 10, 0), std::tan(std::atan(1.0) / 2)));
    vl.append(CZemVertex(CZemPoint3d(10, 10, 0), CZemPoint3d(0, 0, 0), -0.25)).setNormal(CZemVector3d(0, 0, -1));
    return vl;
}

void expectSamePolyline(const CZemVertexArray& a, const CZemVertexArray& b) {
    ASSERT_EQ(a.len(), b.len());
    EXPECT_EQ(a.normal(), b.normal());
    for (int k = 0; k < a.len(); ++k)
        EXPECT_TRUE(a[k].m_start == b[k].m_start && a[k].m_end == b[k].m_end && a[k].m_bulge == b[k].m_bulge) << k;
}

}  // namespace

TEST(Resbuf, APolylineIsOneListOfNormalAndVertexTriplesAndOtherListsSurvive) {
    const CZemVertexArray vl = squareWithArc();
    CSmartResbuf chain(mkResbuf(vl));
    const std::vector<short> vertex = {RTLB, RT3DPOINT, RT3DPOINT, RTREAL, RTLE};
    std::vector<short> expected = {RTLB, RT3DPOINT};
    for (int k = 0; k < 3; ++k) expected.insert(expected.end(), vertex.begin(), vertex.end());
    expected.push_back(RTLE);
    EXPECT_EQ(codesOf(chain), expected);
    resbuf* at = chain;
    CZemVertexArray back;
    fromRb(back, at);
    expectSamePolyline(back, vl);
    EXPECT_EQ(at, nullptr) << "reading moves behind the list";

    const CZemArrayTempl<int> ints = CZemArrayTempl<int>().append(1).append(-32768).append(70000).append(INT_MIN);
    CSmartResbuf intChain(mkResbuf(ints));
    EXPECT_EQ(codesOf(intChain), (std::vector<short>{RTLB, RTSHORT, RTSHORT, RTLONG, RTLONG, RTLE}));
    CZemArrayTempl<int> intsBack;
    const resbuf* p = intChain;
    ASSERT_TRUE(rbRead(p, intsBack) && intsBack.len() == 4);
    for (int k = 0; k < 4; ++k) EXPECT_EQ(intsBack[k], ints[k]);

    CSmartResbuf noInts(mkResbuf(CZemArrayTempl<int>()));
    EXPECT_EQ(codesOf(noInts), std::vector<short>{RTNIL});
    EXPECT_TRUE(rbRead(p = noInts, intsBack) && intsBack.len() == 0) << "an empty list is nil and reads back empty";
}

TEST(Resbuf, MalformedInputIsSkippedAndReadsEmpty) {
    // A list of a string and a real is no polyline; the real behind it is.
    CSmartResbuf chain(rbToList(mkResbuf(L"x")));
    chain.append(mkResbuf(1.0, RTREAL)).append(mkResbuf(1.0, RTREAL));
    CZemVertexArray vl = squareWithArc();
    resbuf* at = chain;
    fromRb(vl, at);
    EXPECT_EQ(vl.len(), 0);
    ASSERT_NE(at, nullptr);
    EXPECT_EQ(at->restype, RTREAL) << "the whole list was skipped";
    fromRb(vl, at);
    EXPECT_EQ(at->restype, RTREAL) << "a single node is skipped alone";

    CSmartResbuf open(mkResbuf(0.0, RTLB));
    open.append(mkResbuf(CZemPoint3d()));
    RegionLists regions;
    regions.append(CZemArrayTempl<CZemVertexArray>());
    fromRb(regions, at = open, 0);
    EXPECT_EQ(regions.len(), 0);
    EXPECT_EQ(at, nullptr) << "a list that never ends runs to the end";
    // The vertex list needs exactly start, end and bulge.
    CSmartResbuf shortVertex(mkResbuf(0.0, RTLB));
    shortVertex.append(mkResbuf(CZemVector3d(0, 0, 1))).append(rbToList(mkResbuf(CZemPoint3d()))).append(mkResbuf(0.0, RTLE));
    fromRb(vl = squareWithArc(), at = shortVertex);
    EXPECT_EQ(vl.len(), 0);
}

TEST(Resbuf, NumbersTakeTheirCodeAndRangeAndChainsCopyDeep) {
    CSmartResbuf chain(mkResbuf(2.6, RTSHORT));
    chain.append(mkResbuf(1e9, RTSHORT)).append(mkResbuf(-2.5, RTLONG)).append(mkResbuf(7, RTREAL));
    const resbuf* p = chain;
    EXPECT_EQ(p->resval.rint, 3);
    EXPECT_EQ(p->rbnext->resval.rint, 32767) << "clamped to 16 bits";
    EXPECT_EQ(p->rbnext->rbnext->resval.rlong, -3) << "halves round away from zero";
    EXPECT_EQ(p->rbnext->rbnext->rbnext->resval.rreal, 7.0);
    EXPECT_TRUE(mkResbuf(1.0, RTSTR) == nullptr && mkResbuf(L"x", RTREAL) == nullptr);
    long long whole = 0;
    double real = 0;
    CSmartResbuf half(mkResbuf(0.5, RTREAL));
    EXPECT_FALSE(rbRead(p = half, whole)) << "0.5 is no whole number";
    EXPECT_TRUE(rbRead(p, real) && real == 0.5);
    CSmartResbuf list(rbToList(mkResbuf(L"TEXT"))), copy(list);
    copy.append(mkResbuf(1, RTSHORT));
    EXPECT_TRUE(codesOf(list) == (std::vector<short>{RTLB, RTSTR, RTLE}) && !rbEqual(copy, list)) << "copies are deep";
}
