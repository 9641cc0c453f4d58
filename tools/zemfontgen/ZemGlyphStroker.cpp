#include "ZemGlyphStroker.h"

#include "ZemFontMetrics.h"

#include <cmath>

using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

namespace {

// Beyond this ratio of mitre length to half width a join is bevelled; sharp
// joins that stick out of the cell are cut by the part's clip box instead.
constexpr double kMitreLimit = 10.0;

IntPoint toInt(double x, double y) {
    return IntPoint(std::llround(x * kZemOutlineScale), std::llround(y * kZemOutlineScale));
}

ZemSkPoint unit(const ZemSkPoint& a, const ZemSkPoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double len = std::hypot(dx, dy);
    return {dx / len, dy / len};
}

}  // namespace

bool CZemGlyphStroker::outline(const CZemGlyphSketch& sketch, ZemGlyphOutline& out,
                               std::string& error) const {
    out.code = sketch.code();
    out.regions.clear();
    error.clear();
    for (const ZemSkPart& part : sketch.parts()) {
        if (!part.fixedContours.empty()) {
            out.regions.push_back(fixedRegion(part));
            continue;
        }
        std::string partError;
        const size_t number = out.regions.size() + 1;
        if (!strokePart(part, out.regions, partError) && error.empty()) {
            error = "part " + std::to_string(number) + ": " + partError;
        }
    }
    return error.empty();
}

// One side of a centre line: its offset by side * kHalf to the left, with
// the offset lines of neighbouring segments meeting at their intersection.
// An outer join sharper than the mitre limit is bevelled; an inner one that
// sharp passes through the centre point so that the side stays inside the band.
Path CZemGlyphStroker::offsetSide(const std::vector<ZemSkPoint>& p, bool closed, double side) {
    const size_t n = p.size();
    const size_t segments = closed ? n : n - 1;
    std::vector<ZemSkPoint> normal(segments);
    for (size_t k = 0; k < segments; ++k) {
        const ZemSkPoint d = unit(p[k], p[(k + 1) % n]);
        normal[k] = {-d.y * side * kHalf, d.x * side * kHalf};
    }
    Path out;
    if (!closed) out.push_back(toInt(p[0].x + normal[0].x, p[0].y + normal[0].y));
    for (size_t k = closed ? 0 : 1; k < (closed ? n : n - 1); ++k) {
        const ZemSkPoint& at = p[k];
        const ZemSkPoint& o1 = normal[(k + segments - 1) % segments];
        const ZemSkPoint& o2 = normal[k % segments];
        const double sx = o1.x + o2.x;
        const double sy = o1.y + o2.y;
        const double s2 = sx * sx + sy * sy;
        const double ratio = s2 > 1e-30 ? 2 * kHalf / std::sqrt(s2) : kMitreLimit * 2;
        if (ratio <= kMitreLimit) {
            const double f = 2 * kHalf * kHalf / s2;
            out.push_back(toInt(at.x + sx * f, at.y + sy * f));
            continue;
        }
        const double cross = o1.x * o2.y - o1.y * o2.x;
        const bool outer = (cross > 0) == (side > 0);
        out.push_back(toInt(at.x + o1.x, at.y + o1.y));
        if (!outer) out.push_back(toInt(at.x, at.y));
        out.push_back(toInt(at.x + o2.x, at.y + o2.y));
    }
    if (!closed) out.push_back(toInt(p[n - 1].x + normal[segments - 1].x, p[n - 1].y + normal[segments - 1].y));
    return out;
}

// An open line gives one polygon, its left side forward and its right side
// back; a closed line gives two rings. Either way the band is made to wind
// positively, so that united bands never cancel.
void CZemGlyphStroker::addPathPieces(const ZemSkPath& path, Paths& pieces) {
    Path left = offsetSide(path.points, path.closed, 1);
    Path right = offsetSide(path.points, path.closed, -1);
    ClipperLib::ReversePath(right);
    if (!path.closed) {
        left.insert(left.end(), right.begin(), right.end());
        if (ClipperLib::Area(left) < 0) ClipperLib::ReversePath(left);
        pieces.push_back(left);
        return;
    }
    if (ClipperLib::Area(left) + ClipperLib::Area(right) < 0) {
        ClipperLib::ReversePath(left);
        ClipperLib::ReversePath(right);
    }
    pieces.push_back(left);
    pieces.push_back(right);
}

bool CZemGlyphStroker::strokePart(const ZemSkPart& part, std::vector<ZemRegion>& regions,
                                  std::string& error) {
    Paths pieces;
    for (const ZemSkPath& path : part.paths) {
        if (path.points.size() < 2) continue;
        addPathPieces(path, pieces);
    }
    ClipperLib::Clipper clipper;
    clipper.StrictlySimple(true);
    clipper.AddPaths(pieces, ClipperLib::ptSubject, true);
    const bool clipped = !part.clipPolygon.empty();
    if (clipped) {
        Path window;
        for (const ZemSkPoint& p : part.clipPolygon) window.push_back(toInt(p.x, p.y));
        if (ClipperLib::Area(window) < 0) ClipperLib::ReversePath(window);
        clipper.AddPath(window, ClipperLib::ptClip, true);
    }
    ClipperLib::PolyTree tree;
    clipper.Execute(clipped ? ClipperLib::ctIntersection : ClipperLib::ctUnion, tree,
                    ClipperLib::pftPositive, ClipperLib::pftPositive);
    bool ok = true;
    for (const ClipperLib::PolyNode* outer : tree.Childs) {
        ZemRegion region{outer->Contour};
        for (const ClipperLib::PolyNode* hole : outer->Childs) {
            region.push_back(hole->Contour);
            if (hole->ChildCount() != 0) error = "an island lies inside a hole";
            ok = ok && hole->ChildCount() == 0;
        }
        regions.push_back(region);
    }
    if (tree.ChildCount() != 1) error = "strokes unite into " + std::to_string(tree.ChildCount()) + " regions";
    return ok && tree.ChildCount() == 1;
}

ZemRegion CZemGlyphStroker::fixedRegion(const ZemSkPart& part) {
    ZemRegion region;
    for (const std::vector<ZemSkPoint>& contour : part.fixedContours) {
        Path path;
        for (const ZemSkPoint& p : contour) path.push_back(toInt(p.x, p.y));
        region.push_back(path);
    }
    return region;
}
