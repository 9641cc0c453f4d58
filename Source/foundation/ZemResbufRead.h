#pragma once

#include "ZemResbuf.h"

// Readers of the values that ZEM::mkResbuf writes. Each reads the element at
// rb (for the list kinds, the whole list) and moves rb behind it; on failure
// both rb and out stay as they were.
namespace ZEM {

// A number: RTREAL, RTANG, RTSHORT or RTLONG.
bool rbRead(const resbuf*& rb, double& out);
// A whole number: RTSHORT, RTLONG, or an RTREAL that is whole and finite.
bool rbRead(const resbuf*& rb, long long& out);
// A point: RT3DPOINT, or RTPOINT with z = 0.
bool rbRead(const resbuf*& rb, CZemPoint3d& out);
// A string: RTSTR or RTDXF0.
bool rbRead(const resbuf*& rb, CZemString& out);
// The list kinds; RTNIL reads as an empty list.
bool rbRead(const resbuf*& rb, CZemVertexArray& out);
bool rbRead(const resbuf*& rb, CZemArrayTempl<int>& out);
bool rbRead(const resbuf*& rb, CZemArrayTempl<CZemString>& out);
bool rbRead(const resbuf*& rb, CZemPoint3dArray& out);
bool rbRead(const resbuf*& rb, RegionLists& out);
bool rbReadMatrix(const resbuf*& rb, double (*out)[4]);

// A polyline at rb, moving rb on. Input that is no polyline gives an empty
// out, and rb moves behind that element.
CZemVertexArray& fromRb(CZemVertexArray& out, resbuf*& rb);
// Region lists at rb (a list, or RTNIL for none), moving rb on. append 0
// replaces out, otherwise the regions are added to it. Input that is no list
// of regions leaves out empty (or, appending, as it was), and rb moves behind
// that element.
RegionLists& fromRb(RegionLists& out, resbuf*& rb, int append);

}  // namespace ZEM
