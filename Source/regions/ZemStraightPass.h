#pragma once

#include "ZemEdgeTable.h"
#include "ZemHatchSpans.h"
#include "ZemMatrix3d.h"
#include "ZemPrototypeDashes.h"
#include "ZemVertexArray.h"

#include <vector>

// One sweep pass of a hatch line over regions of straight edges, done in one
// walk over the edges: the crossings of the turned prototype, its spans by
// even-odd pairing, its dashes laid only over the spans and cut to them, and
// the spans outside the contour left out. Where the line comes near a corner,
// a crossing near another, or a cut dash reaches out of its span, the pass
// leaves the line to the exact rules of the polyline geometry.
class CZemStraightPass {
public:
    enum class Outcome {
        clear,  // the line's chord misses the contour
        met,    // the line meets the contour; the pieces are what lies within
        exact   // the exact rules must decide
    };

    // dashes: the family's dash layer, or null for a continuous line; frame
    // and carry (null for none) take the line frame to the world.
    CZemStraightPass(const CZemEdgeTable& edges, const CZemHatchSpans& spans, CZemPrototypeDashes* dashes,
                     const CZemMatrix3d& frame, const CZemMatrix3d* carry)
        : m_edges(edges), m_spans(spans), m_dashes(dashes), m_frame(frame), m_carry(carry) {}

    // q: the turned prototype, one straight vertex. pieces receives the
    // separate straight pieces within the region in world coordinates, spans
    // from q's end back.
    Outcome run(const CZemVertexArray& q, CZemVertexArray& pieces);

private:
    bool chordMeets(double from, double to, bool& meets) const;
    bool spansWithin(double length, std::vector<double>& places) const;
    bool cutDashes(const CZemVertex& span, double lo, double hi, CZemVertexArray& pieces);
    bool cutNearEnd(const CZemVertex& dash, const CZemVertex& span, double lo, double hi, CZemVertexArray& pieces);
    bool keepPart(const CZemVertex& dash, const CZemPoint3d& cut, double a, double at, double b,
                  CZemVertexArray& part) const;
    int roomFor(const std::vector<double>& places) const;
    void addPiece(double from, double to, CZemVertexArray& pieces) const;
    static bool holds(double a, double b, double x, bool& sure);
    static bool clear(double difference);
    CZemPoint3d inLine(double at) const;
    CZemPoint3d inWorld(double at) const;
    double offset(const CZemPoint3d& p) const;

    const CZemEdgeTable& m_edges;
    const CZemHatchSpans& m_spans;
    CZemPrototypeDashes* m_dashes;
    const CZemMatrix3d& m_frame;
    const CZemMatrix3d* m_carry;
    std::vector<CZemEdgeTable::Crossing> m_crossings;
    std::vector<double> m_places;
    CZemVertexArray m_part;
    CZemVertex m_line;
    CZemPoint3d m_worldStart;
    CZemPoint3d m_worldEnd;
    double m_length = 0.0;
    double m_ux = 1.0;
    double m_uy = 0.0;
};
