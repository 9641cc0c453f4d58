#pragma once

#include "ZemGlyphSketch.h"

#include <clipper.hpp>

#include <string>
#include <vector>

// Outline coordinates are integers in units of 1e-7 of the cell height.
constexpr double kZemOutlineScale = 1e7;

// Contours of one region: the outer contour first, then its holes.
using ZemRegion = std::vector<ClipperLib::Path>;

struct ZemGlyphOutline {
    int code = 0;
    std::vector<ZemRegion> regions;
};

// Turns a sketch into outlines: every centre line becomes a band of the
// stroke width with butt ends and mitred joins, the bands of a part are
// united, and the crossings of the strokes leave the holes.
class CZemGlyphStroker {
public:
    // One region per part of the sketch; false, with the reason in error,
    // when a part does not unite into exactly one region (out then holds
    // whatever the parts gave, for a look at the fault).
    bool outline(const CZemGlyphSketch& sketch, ZemGlyphOutline& out, std::string& error) const;

private:
    static ClipperLib::Path offsetSide(const std::vector<ZemSkPoint>& p, bool closed, double side);
    static void addPathPieces(const ZemSkPath& path, ClipperLib::Paths& pieces);
    static bool strokePart(const ZemSkPart& part, std::vector<ZemRegion>& regions, std::string& error);
    static ZemRegion fixedRegion(const ZemSkPart& part);
};
