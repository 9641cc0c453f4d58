#include "ZemFontCheck.h"

#include <cmath>
#include <cstring>

using ClipperLib::Path;
using ClipperLib::Paths;

namespace {

// Smallest area, in square cell units, of any contour: anything less is a
// sliver left where strokes almost meet.
constexpr double kMinArea = 2e-4;

double areaOf(const Path& p) { return std::fabs(ClipperLib::Area(p)) / (kZemOutlineScale * kZemOutlineScale); }

bool contourOk(const Path& c, std::string& error) {
    if (c.size() < 3) {
        error = "a contour has " + std::to_string(c.size()) + " points";
        return false;
    }
    for (size_t k = 0; k < c.size(); ++k) {
        if (c[k] == c[(k + 1) % c.size()]) {
            error = "a contour repeats a point";
            return false;
        }
    }
    if (areaOf(c) < kMinArea) {
        error = "a contour of area " + std::to_string(areaOf(c)) + " is a sliver";
        return false;
    }
    return true;
}

bool holesInside(const ZemRegion& r, std::string& error) {
    for (size_t h = 1; h < r.size(); ++h) {
        for (const ClipperLib::IntPoint& p : r[h]) {
            if (ClipperLib::PointInPolygon(p, r[0]) != 1) {
                error = "a hole reaches out of its region";
                return false;
            }
        }
    }
    return true;
}

// United, the outer contours stay as many separate regions only if no two
// of them overlap or touch.
bool regionsApart(const ZemGlyphOutline& g, std::string& error) {
    Paths outers;
    for (const ZemRegion& r : g.regions) outers.push_back(r[0]);
    ClipperLib::Clipper clipper;
    clipper.AddPaths(outers, ClipperLib::ptSubject, true);
    ClipperLib::PolyTree tree;
    clipper.Execute(ClipperLib::ctUnion, tree, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    if (static_cast<size_t>(tree.ChildCount()) != g.regions.size()) {
        error = "regions overlap or touch";
        return false;
    }
    return true;
}

}  // namespace

const std::vector<std::vector<int>>& zem_font_fill_steps() {
    static const std::vector<std::vector<int>> steps = [] {
        std::vector<std::vector<int>> s(8);
        const int ranges[6][2] = {{33, 46}, {47, 57}, {58, 64}, {65, 90}, {91, 96}, {97, 122}};
        for (int k = 0; k < 6; ++k) {
            for (int c = ranges[k][0]; c <= ranges[k][1]; ++c) s[k].push_back(c);
        }
        s[6] = {123, 124, 125, 126, 177, 178, 179, 186, 188, 189, 190};
        s[7] = {196, 228, 214, 246, 220, 252, 223};
        return s;
    }();
    return steps;
}

std::vector<int> zem_font_expected_holes(int code) {
    struct Shape {
        const char* codes;
        std::vector<int> holes;
    };
    static const Shape shapes[] = {
        {"#0469@ADOPQRabdegopq\xBA", {1}},
        {"$&8B", {2}},
        {"!\":;=?ij\xB1", {0, 0}},
        {"%", {1, 1, 0}},
        {"\xC4\xD6\xE4\xF6", {1, 0, 0}},
        {"\xDC\xFC\xBD", {0, 0, 0}},
        {"\xBC\xBE", {0, 0, 1}},
    };
    bool inFont = false;
    for (const std::vector<int>& step : zem_font_fill_steps()) {
        for (int c : step) inFont = inFont || c == code;
    }
    if (!inFont) return {};
    for (const Shape& shape : shapes) {
        for (const char* p = shape.codes; *p; ++p) {
            if (static_cast<unsigned char>(*p) == code) return shape.holes;
        }
    }
    return {0};
}

bool zem_font_check_glyph(const ZemGlyphOutline& g, std::string& error) {
    const std::vector<int> expected = zem_font_expected_holes(g.code);
    std::vector<int> actual;
    for (const ZemRegion& r : g.regions) actual.push_back(static_cast<int>(r.size()) - 1);
    if (actual != expected) {
        error = "regions and holes are";
        for (int h : actual) error += " " + std::to_string(h);
        error += ", expected";
        for (int h : expected) error += " " + std::to_string(h);
        return false;
    }
    for (const ZemRegion& r : g.regions) {
        for (const Path& c : r) {
            if (!contourOk(c, error)) return false;
        }
        if (!holesInside(r, error)) return false;
    }
    return regionsApart(g, error);
}
