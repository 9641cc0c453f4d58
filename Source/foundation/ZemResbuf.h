#pragma once

#include "ZemArrayTempl.h"
#include "ZemPoint3d.h"
#include "ZemPoint3dArray.h"
#include "ZemString.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

// The value of one node of a result chain; restype says which member holds.
union zem_rb_value {
    double rreal;       // RTREAL, RTANG
    double rpoint[3];   // RTPOINT (x, y), RT3DPOINT
    short rint;         // RTSHORT
    int rlong;          // RTLONG
    wchar_t* rstring;   // RTSTR, RTDXF0: owned by the node, may be null for ""
};

// The host drawing system's result buffer: a singly linked chain of typed
// values. Chains are made by ZEM::mkResbuf and freed by zemRelRb.
struct resbuf {
    resbuf* rbnext;
    short restype;
    zem_rb_value resval;
};

// Frees a whole chain (null is allowed) and returns RTNORM.
int zemRelRb(resbuf* rb);

namespace ZEM {

// The host codes of chain nodes, and the call status of success.
constexpr short RTREAL = 5001;
constexpr short RTPOINT = 5002;
constexpr short RTSHORT = 5003;
constexpr short RTANG = 5004;
constexpr short RTSTR = 5005;
constexpr short RT3DPOINT = 5009;
constexpr short RTLONG = 5010;
constexpr short RTLB = 5016;   // list begin
constexpr short RTLE = 5017;   // list end
constexpr short RTDOTE = 5018; // the dot of a dotted pair
constexpr short RTNIL = 5019;  // nil, also the empty list
constexpr short RTDXF0 = 5020; // a name: string-like
constexpr short RTT = 5021;    // true
constexpr short RTNORM = 5100;
constexpr short RTERROR = -5001;

typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> RegionLists;

// Chains of composite values, one list each (an empty list is one RTNIL node):
//   polyline      (normal (start end bulge) ...)   normal, start, end: RT3DPOINT
//   integer list  (i ...)                          RTSHORT, RTLONG beyond 16 bits
//   string list   (s ...)                          RTSTR
//   point list    (p ...)                          RT3DPOINT
//   matrix        ((m00 m01 m02 m03) ... (m30 ...)) four rows of four RTREAL
//   region lists  (((polyline ...) ...) ...)       regions of contours, outer first
// The lists nest by RTLB ... RTLE; readers take RTSHORT, RTLONG and RTREAL as
// numbers and RTPOINT as a point with z = 0.

// A one-node chain: RTREAL and RTANG hold value, RTSHORT and RTLONG hold it
// rounded and clamped to their range, RTNIL, RTT, RTLB, RTLE and RTDOTE no
// value. Null for any other code.
resbuf* mkResbuf(double value, short code);
resbuf* mkResbuf(int value, short code);
// A string node of code RTSTR or RTDXF0 (null text: ""); null for other codes.
resbuf* mkResbuf(const wchar_t* text, short code = RTSTR);
resbuf* mkResbuf(const CZemPoint3d& point);
resbuf* mkResbuf(const CZemVector3d& vector);
resbuf* mkResbuf(const CZemVertexArray& polyline);
resbuf* mkResbuf(const CZemArrayTempl<int>& values);
resbuf* mkResbuf(const CZemArrayTempl<CZemString>& texts);
resbuf* mkResbuf(const CZemPoint3dArray& points);
// Null for a null matrix.
resbuf* mkResbuf(const double (*matrix)[4]);
resbuf* mkResbuf(const RegionLists& regions);

// Wraps a chain, taken over, into one list value: RTLB, the chain, RTLE.
resbuf* rbToList(resbuf* chain);

// A deep copy of a chain, or of its nodes up to, not including, end; null
// for null.
resbuf* rbCopy(const resbuf* chain, const resbuf* end = nullptr);
// True if both chains have the same codes and values, node by node (reals
// compare bitwise, any NaN equals any NaN; a null string equals ""; an
// RTPOINT has two coordinates).
bool rbEqual(const resbuf* a, const resbuf* b);
// The node behind the element at rb: behind the matching RTLE for an RTLB
// (null if the list never ends), else the next node.
const resbuf* rbSkip(const resbuf* rb);

// A new node of the code with a zero value.
resbuf* rbNew(short code);
// True for the codes whose value is a string.
bool rbIsString(short code);

}  // namespace ZEM
