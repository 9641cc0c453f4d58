#pragma once

// Shapes and measures shared by the geometry tests.
#include "ZemVertexArray.h"

#include <initializer_list>

namespace shapes {

const double kPi = 3.141592653589793;

inline CZemVertexArray line(double x0, double y0, double x1, double y1) {
    return CZemVertexArray(CZemVertex(CZemPoint3d(x0, y0, 0), CZemPoint3d(x1, y1, 0), 0.0));
}

// Two half circles, counter-clockwise from (cx + r, cy).
inline CZemVertexArray circle(double cx, double cy, double r) {
    CZemVertexArray vl(CZemVertex(CZemPoint3d(cx + r, cy, 0), CZemPoint3d(cx - r, cy, 0), 1.0));
    return vl.append(CZemVertex(CZemPoint3d(cx - r, cy, 0), CZemPoint3d(cx + r, cy, 0), 1.0));
}

inline CZemVertexArray polygon(std::initializer_list<CZemPoint3d> corners) {
    CZemPoint3dArray p;
    for (const CZemPoint3d& c : corners) p.append(c);
    return CZemVertexArray().fromPoints(p, true);
}

inline CZemVertexArray square(double x0, double y0, double side) {
    return polygon({{x0, y0, 0}, {x0 + side, y0, 0}, {x0 + side, y0 + side, 0}, {x0, y0 + side, 0}});
}

inline double lengthOf(const CZemVertexArray& vl) {
    double sum = 0.0;
    for (int k = 0; k < vl.len(); ++k) sum += vl[k].bulgLen();
    return sum;
}

inline double lengthOf(const CZemArrayTempl<CZemVertexArray>& pieces) {
    double sum = 0.0;
    for (int k = 0; k < pieces.len(); ++k) sum += lengthOf(pieces[k]);
    return sum;
}

}  // namespace shapes
