#pragma once

#include "ZemGDX.h"

#include <gtest/gtest.h>

#include <initializer_list>

// Small builders for display list tests.
inline CZemArrayTempl<int> path(std::initializer_list<int> elements) {
    CZemArrayTempl<int> stack;
    for (int e : elements) stack.append(e);
    return stack;
}

inline CZemVertexArray square(double x0, double y0, double x1, double y1) {
    const CZemPoint3d c[] = {{x0, y0, 0}, {x1, y0, 0}, {x1, y1, 0}, {x0, y1, 0}};
    CZemVertexArray vl;
    for (int k = 0; k < 4; ++k) vl.append(CZemVertex(c[k], c[(k + 1) % 4], 0.0));
    return vl;
}

inline CZemArrayTempl<CZemVertexArray> region(std::initializer_list<CZemVertexArray> contours) {
    CZemArrayTempl<CZemVertexArray> regl;
    for (const CZemVertexArray& c : contours) regl.append(c);
    return regl;
}

inline CZemColor indexColor(int index) { return CZemColor().setColorIndex(index); }

// A list that reads no configuration: point size 2, style 3.
inline CZemGDX newList(const CZemMatrix3d& proj = CZemMatrix3d()) {
    return CZemGDX(indexColor(7), proj, 2.0, 3, CZemPoint3d(), CZemPoint3d());
}

inline void addLine(CZemGDX& g, const CZemArrayTempl<int>& stack, const CZemPoint3d& a, const CZemPoint3d& b,
                    unsigned long flags = 0) {
    g.imageVl(stack, flags, CZemVertexArray(CZemVertex(a, b, 0.0)), indexColor(1), CZemMatrix3d(), CZemArrayTempl<double>(), 1.0, 1);
}

inline void addPoint(CZemGDX& g, const CZemArrayTempl<int>& stack, const CZemPoint3d& p, unsigned long flags = 0,
                     const CZemMatrix3d& mtx = CZemMatrix3d()) {
    g.imagePt(stack, flags, p, indexColor(2), mtx, 0.0, 0xFFFFFFFFUL);
}

inline void addRegion(CZemGDX& g, const CZemArrayTempl<int>& stack, const CZemArrayTempl<CZemVertexArray>& regl,
                      unsigned long flags = 0, const CZemMatrix3d& mtx = CZemMatrix3d()) {
    g.imageReg(stack, flags, regl, indexColor(3), mtx, CZemArrayTempl<double>(), 1.0, 1, indexColor(4));
}

inline void expectPoint(const CZemPoint3d& actual, double x, double y, double z) {
    EXPECT_LT(actual.distanceTo(CZemPoint3d(x, y, z)), 1e-9) << actual.x << ", " << actual.y << ", " << actual.z;
}

inline void expectExtents(const CZemGDX& g, const CZemPoint3d& lo, const CZemPoint3d& hi) {
    CZemPoint3d min, max;
    g.extmaxGet(min, max);
    expectPoint(min, lo.x, lo.y, lo.z);
    expectPoint(max, hi.x, hi.y, hi.z);
}
