#pragma once

#include <utility>
#include <vector>

// Which parts of straight edges the faces of a body hide, seen along -Z of
// view coordinates (the viewer stands at +Z). Faces are planar loops, the
// first the outer boundary and the others holes, in any orientation.
class CZemHiddenLine {
public:
    struct Point {
        double x, y, z;
    };
    typedef std::vector<Point> Loop;
    typedef std::vector<std::pair<double, double>> Intervals;

    // scale: the size of the scene, for the tolerances.
    explicit CZemHiddenLine(double scale);

    // Adds a face; returns its number. A face seen edge-on hides nothing.
    int addFace(const std::vector<Loop>& loops);

    // The parts of the segment a-b hidden by faces other than skip0 and
    // skip1 (the faces the segment bounds), as sorted, disjoint intervals of
    // the parameter 0 to 1. A face hides where the segment's projection runs
    // inside it (not on its boundary) and the face lies nearer the viewer.
    Intervals hiddenParts(const Point& a, const Point& b, int skip0, int skip1) const;

private:
    struct Face {
        std::vector<Loop> loops;
        double nx, ny, nz, d;  // plane nx*x + ny*y + nz*z = d
        double minX, maxX, minY, maxY;
    };

    void hiddenBy(const Face& face, const Point& a, const Point& b, Intervals& out) const;
    void crossings(const Face& face, const Point& a, const Point& b, std::vector<double>& out) const;
    bool inside(const Face& face, double x, double y) const;
    double faceZ(const Face& face, double x, double y) const;

    std::vector<Face> m_faces;
    double m_tol;       // in the plane: a point this near a boundary is on it
    double m_depthTol;  // a face must lie this much nearer to hide
};
