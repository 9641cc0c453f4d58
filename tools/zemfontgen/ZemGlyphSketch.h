#pragma once

#include <vector>

struct ZemSkPoint {
    double x;
    double y;
};

// A centre line: its points in order, open (butt ends) or closed.
struct ZemSkPath {
    std::vector<ZemSkPoint> points;
    bool closed = false;
};

// The strokes of one region of a glyph, or its outline given point by point;
// the region's outline may be cut to a polygon.
struct ZemSkPart {
    std::vector<ZemSkPath> paths;
    std::vector<std::vector<ZemSkPoint>> fixedContours;
    std::vector<ZemSkPoint> clipPolygon;
};

// The stroke skeleton of one character, built by a chain of drawing calls:
// each part becomes one region of the glyph, in the order of the parts.
// Curves are sampled as polygons; a frame maps all following coordinates.
class CZemGlyphSketch {
public:
    explicit CZemGlyphSketch(int code) : m_code(code) {}

    int code() const { return m_code; }
    const std::vector<ZemSkPart>& parts() const { return m_parts; }

    // Begins the next region.
    CZemGlyphSketch& part();
    // Cuts the current region's outline to the box, or to a polygon.
    CZemGlyphSketch& clip(double x0, double y0, double x1, double y1);
    CZemGlyphSketch& clip(const std::vector<ZemSkPoint>& polygon);

    // Begins an open centre line, empty or at (x, y).
    CZemGlyphSketch& start();
    CZemGlyphSketch& move(double x, double y);
    CZemGlyphSketch& line(double x, double y);
    // Continues the current line (or begins one) along an ellipse about
    // (cx, cy) from angle a0 to a1 in degrees, counter-clockwise when a1 > a0.
    CZemGlyphSketch& arc(double cx, double cy, double rx, double ry, double a0, double a1);
    CZemGlyphSketch& close();
    // One open segment.
    CZemGlyphSketch& seg(double x0, double y0, double x1, double y1);
    // A closed ellipse whose flat sides lie on the edges of the box.
    CZemGlyphSketch& ellipse(double x0, double y0, double x1, double y1);
    // A region outline given point by point; first the outer contour, then holes.
    CZemGlyphSketch& contour(const std::vector<ZemSkPoint>& points);

    // Points and boxes that follow are scaled by (sx, sy), then moved by
    // (dx, dy), and then mapped by the frames pushed before; pop restores.
    CZemGlyphSketch& pushFrame(double sx, double sy, double dx, double dy);
    CZemGlyphSketch& popFrame();

private:
    ZemSkPart& current();
    ZemSkPath& openPath();
    ZemSkPoint map(double x, double y) const;
    void add(const ZemSkPoint& p);

    int m_code;
    std::vector<ZemSkPart> m_parts;
    struct Frame {
        double sx, sy, dx, dy;
    };
    std::vector<Frame> m_frames{{1, 1, 0, 0}};
};
