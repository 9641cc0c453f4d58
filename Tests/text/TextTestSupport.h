#pragma once

#include "ZemFont.h"
#include "ZemGDX.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <vector>

// Measures of laid-out text taken straight from the vertices, so that they do
// not lean on the geometry the layout itself uses.
typedef CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> Regions;

struct Box {
    double x0 = 1e300, y0 = 1e300, x1 = -1e300, y1 = -1e300;
};

// The box of the outer contours of all regions (straight closed contours:
// their starts are all their points).
inline Box outerBox(const Regions& regions) {
    Box b;
    for (int r = 0; r < regions.len(); ++r) {
        const CZemVertexArray& outer = regions[r][0];
        for (int v = 0; v < outer.len(); ++v) {
            b.x0 = std::min(b.x0, outer[v].m_start.x);
            b.y0 = std::min(b.y0, outer[v].m_start.y);
            b.x1 = std::max(b.x1, outer[v].m_start.x);
            b.y1 = std::max(b.y1, outer[v].m_start.y);
        }
    }
    return b;
}

// The codes the font has a glyph for.
inline std::vector<int> fontCodes() {
    std::vector<int> codes;
    for (int c = 33; c <= 126; ++c) codes.push_back(c);
    for (int c : {177, 178, 179, 186, 188, 189, 190, 196, 214, 220, 223, 228, 246, 252}) codes.push_back(c);
    return codes;
}

inline Box glyphBox(wchar_t c) { return outerBox(get_ascii_from_map(c)); }

// Twice the area by the shoelace rule: positive when counter-clockwise.
inline double signedArea2(const CZemVertexArray& contour) {
    double a = 0.0;
    for (int v = 0; v < contour.len(); ++v)
        a += contour[v].m_start.x * contour[v].m_end.y - contour[v].m_end.x * contour[v].m_start.y;
    return a;
}

// Every vertex of b is the one of a moved by (dx, dy).
inline void expectMoved(const Regions& a, const Regions& b, double dx, double dy, double tol = 1e-12) {
    ASSERT_EQ(a.len(), b.len());
    for (int r = 0; r < a.len(); ++r) {
        ASSERT_EQ(a[r].len(), b[r].len()) << "region " << r;
        for (int c = 0; c < a[r].len(); ++c) {
            ASSERT_EQ(a[r][c].len(), b[r][c].len()) << "region " << r << " contour " << c;
            for (int v = 0; v < a[r][c].len(); ++v) {
                EXPECT_NEAR(b[r][c][v].m_start.x, a[r][c][v].m_start.x + dx, tol) << r << "/" << c << "/" << v;
                EXPECT_NEAR(b[r][c][v].m_start.y, a[r][c][v].m_start.y + dy, tol) << r << "/" << c << "/" << v;
            }
        }
    }
}

inline CZemArrayTempl<int> path(std::initializer_list<int> elements) {
    CZemArrayTempl<int> stack;
    for (int e : elements) stack.append(e);
    return stack;
}

inline CZemGDX newList() {
    return CZemGDX(CZemColor().setColorIndex(7), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d());
}

// The regions of a one-item list holding text at point, aligned by word.
inline Regions layout(const wchar_t* text, const wchar_t* word, const CZemPoint3d& point = CZemPoint3d()) {
    CZemGDX g = newList();
    g.imageTxt(path({1}), 0, text, CZemColor().setColorIndex(1), CZemMatrix3d(), word, point);
    Regions out;
    g.geomGet(out, 0);
    return out;
}
