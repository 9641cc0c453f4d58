#pragma once

#include "ZemArrayTempl.h"
#include "ZemEdgeTable.h"
#include "ZemHatchSpans.h"
#include "ZemMatrix3d.h"
#include "ZemPatternLine.h"
#include "ZemPoint3d.h"
#include "ZemPrototypeDashes.h"
#include "ZemStraightPass.h"
#include "ZemVertexArray.h"

#include <memory>
#include <vector>

// The hatch lines of one pattern line over a region set: a prototype line
// that descends below the region and then sweeps up across it, one polyline
// of clipped dashes for each line that meets the region.
class CZemHatchFamily {
public:
    // How each pass is done: over the edges, with the prototype cut into
    // dashes only where it can meet the region (the exact rules deciding near
    // corners); or by the exact rules alone with the whole prototype cut.
    enum class Measure { window, whole };

    // regs: the region set in the hatch plane, element 0 the contour;
    // diagonal: of element 0's box; rotation: of the whole pattern, radians.
    CZemHatchFamily(const CZemPatternLine& line, const CZemArrayTempl<CZemVertexArray>& regs, double diagonal,
                    double rotation, Measure measure);
    CZemHatchFamily(const CZemHatchFamily&) = delete;
    CZemHatchFamily& operator=(const CZemHatchFamily&) = delete;

    // Appends the family's hatch lines, carried by mtx, to out.
    void sweep(const CZemMatrix3d& mtx, CZemArrayTempl<CZemVertexArray>& out);
    long long measuredDashes() const { return m_dashes ? m_dashes->measuredDashes() : 0; }

private:
    bool prepare(const CZemArrayTempl<CZemVertexArray>& regs, double diagonal);
    void copyIntoFrame(const CZemArrayTempl<CZemVertexArray>& regs, const CZemMatrix3d& toLine);
    double middleY() const;
    void uprightBox();
    static void growBox(const CZemVertexArray& vl, CZemPoint3d& lo, CZemPoint3d& hi);
    bool probeMeets(const CZemVertex& line);
    bool canReach() const;
    bool descendBelow();
    void descendClear();
    void step(double sign);
    int expectedLines() const;
    using Outcome = CZemStraightPass::Outcome;
    Outcome passOnce(CZemStraightPass* fast, const CZemMatrix3d* carry, CZemVertexArray& pieces);
    Outcome exactPass(double start, const CZemVertexArray& whole, CZemVertexArray& pieces);
    bool meetsContour(const CZemPoint3d& from, const CZemPoint3d& to) const;
    bool lineMeetsContour(const CZemVertexArray& w) const;
    CZemVertexArray piecesOf(const CZemVertexArray& w) const;

    const CZemPatternLine& m_line;
    Measure m_measure;
    double m_rotation;
    bool m_ready = false;
    CZemMatrix3d m_frame;
    CZemMatrix3d m_turn;
    CZemMatrix3d m_turnBack;
    CZemArrayTempl<CZemVertexArray> m_regions;
    CZemPoint3d m_low;
    CZemVertexArray m_prototype;
    CZemVertexArray m_whole;
    double m_length = 0.0;
    long long m_bound = 0;
    CZemPoint3d m_uprightLo;
    CZemPoint3d m_uprightHi;
    std::unique_ptr<CZemPrototypeDashes> m_dashes;
    CZemHatchSpans m_spans;
    std::unique_ptr<CZemEdgeTable> m_edges;
    std::vector<CZemEdgeTable::Crossing> m_probeCrossings;
};
