#pragma once

#include "ZemArrayTempl.h"
#include "ZemMatrix3d.h"
#include "ZemObj.h"
#include "ZemVertexArray.h"
#include "ZemVertexArrayEx.h"

#include <vector>

// A body made of prisms: closed outlines in the XY plane, each with holes
// through it, extruded along Z. Its edges project into a view with the parts
// that faces hide told apart. Prisms are not united: where two overlap, the
// edges of both are drawn and no intersection curve is made.
class CZem_Solid : public CZemObj {
public:
    CZem_Solid() = default;

    // Adds a prism between the heights z0 and z1. The outline and the holes
    // must be closed and enclose an area; their z is ignored and arcs become
    // chords of at most 10 degrees. False, body unchanged, for anything
    // else, for a zero height and for numbers that are not finite.
    bool addPrism(const CZemVertexArray& outline, const CZemArrayTempl<CZemVertexArray>& holes, double z0, double z1);
    void clear();
    int prismCount() const { return static_cast<int>(m_prisms.size()); }

    // Builds the faces and edges of the prisms; false for an empty body.
    virtual bool prepare();
    // 1: projections divide edges into visible and hidden parts (the
    // default); 0: every edge counts as visible.
    virtual void hiddenLineSet(int on);
    // Projects the edges into the frame view (as CZemMatrix3d::setCoordSystem
    // builds it: its Z axis points at the viewer, X right, Y up), by the
    // inverse of view. Visible parts go to visible, hidden ones to hidden, as
    // polylines of straight vertices in view coordinates, with z kept for
    // depth 1 and put to 0 for depth 0. replace 1 empties both arrays first,
    // 0 appends. Edges where walls meet smoothly (on an arc) are drawn only
    // on the outline of the view. Prepares the body if that was not done;
    // false for an empty body.
    virtual bool project(const CZemMatrix3d& view, int depth, CZemArrayTempl<CZemVertexArrayEx>& visible,
                         CZemArrayTempl<CZemVertexArrayEx>& hidden, int replace);

private:
    struct Point {
        double x, y;
        bool smooth;  // the walls before and after this corner meet tangentially
    };
    typedef std::vector<Point> Ring;
    struct Prism {
        std::vector<Ring> rings;  // the outline, then the holes
        double z0, z1;
    };
    struct Face {
        std::vector<std::vector<CZemPoint3d>> loops;
    };
    struct Edge {
        CZemPoint3d a, b;
        int face0, face1;
        bool smooth;
    };

    static bool toRing(const CZemVertexArray& vl, Ring& out);
    void addPrismFaces(const Prism& prism);
    void addRingWalls(const Ring& ring, double z0, double z1, int bottom, int top);
    bool onOutline(const Edge& edge, const CZemMatrix3d& toView) const;
    void emit(const Edge& edge, const CZemMatrix3d& toView, int depth, double from, double to,
              CZemArrayTempl<CZemVertexArrayEx>& out) const;

    std::vector<Prism> m_prisms;
    std::vector<Face> m_faces;
    std::vector<Edge> m_edges;
    bool m_prepared = false;
    bool m_hiddenLines = true;
};
