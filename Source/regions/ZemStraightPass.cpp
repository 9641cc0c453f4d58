#include "ZemStraightPass.h"

#include "ZemGeomTolerance.h"

#include <algorithm>
#include <cmath>

// The line is taken to the world once; a place on it is found there by the
// same interpolation as in the line frame, since the maps are affine.
CZemStraightPass::Outcome CZemStraightPass::run(const CZemVertexArray& q, CZemVertexArray& pieces) {
    m_line = q[0];
    m_length = std::hypot(m_line.m_end.x - m_line.m_start.x, m_line.m_end.y - m_line.m_start.y);
    if (!(m_length > m_edges.guard())) return Outcome::exact;
    m_ux = (m_line.m_end.x - m_line.m_start.x) / m_length;
    m_uy = (m_line.m_end.y - m_line.m_start.y) / m_length;
    if (!m_edges.crossLine(m_line.m_start, m_ux, m_uy, m_crossings)) return Outcome::exact;
    bool meets = false;
    const double from = m_dashes ? m_dashes->firstStart() : 0.0;
    const double to = m_dashes ? m_dashes->lastEnd() : m_length;
    if (!chordMeets(from, to, meets)) return Outcome::exact;
    if (!meets) return Outcome::clear;
    if (!spansWithin(m_length, m_places)) return Outcome::exact;
    // An odd count leaves the whole line without spans.
    if (m_places.size() % 2 != 0) return Outcome::met;
    m_worldStart = m_line.m_start * m_frame;
    m_worldEnd = m_line.m_end * m_frame;
    if (m_carry) {
        m_worldStart *= *m_carry;
        m_worldEnd *= *m_carry;
    }
    pieces.reserve(pieces.len() + roomFor(m_places));
    for (size_t k = m_places.size(); k >= 2; k -= 2) {
        const double hi = m_places[k - 1], lo = m_places[k - 2];
        const int before = pieces.len();
        if (!m_dashes) {
            addPiece(hi, lo, pieces);
        } else if (!cutDashes(CZemVertex(inLine(hi), inLine(lo), 0.0), lo, hi, pieces)) {
            return Outcome::exact;
        }
        // The contour alone clips once more. Pieces within a span do not
        // cross it, so a span outside it (beside a hole that sticks out)
        // loses all its pieces and a span inside keeps them.
        if (!CZemEdgeTable::insideContour(m_crossings, 0.5 * (lo + hi))) pieces.setLogicalLength(before);
    }
    return Outcome::met;
}

// The chord from the first dash to the last meets the contour where a
// crossing of the contour lies on it; one too near its ends is left to the
// exact rules.
bool CZemStraightPass::chordMeets(double from, double to, bool& meets) const {
    const double guard = m_edges.guard();
    for (const CZemEdgeTable::Crossing& c : m_crossings) {
        if (c.element != 0) continue;
        if (std::fabs(c.at - from) <= guard || std::fabs(c.at - to) <= guard) return false;
        if (c.at > from && c.at < to) meets = true;
    }
    return true;
}

bool CZemStraightPass::spansWithin(double length, std::vector<double>& places) const {
    const double guard = m_edges.guard();
    places.clear();
    for (const CZemEdgeTable::Crossing& c : m_crossings) {
        if (std::fabs(c.at) <= guard || std::fabs(c.at - length) <= guard) return false;
        if (c.at > 0.0 && c.at < length) places.push_back(c.at);
    }
    return true;
}

// Dashes clearly within the span (from offset hi, its start, to lo, its end)
// are kept whole and those clearly beside it dropped; the others are cut
// near the ends. False if that cannot be decided here.
bool CZemStraightPass::cutDashes(const CZemVertex& span, double lo, double hi, CZemVertexArray& pieces) {
    const double g = m_edges.guard();
    bool decided = true;
    m_dashes->forEachDash(m_length, lo, hi, [&](double a, double b) {
        if (a >= lo + g && b <= hi - g) {
            addPiece(a, b, pieces);
        } else if (decided && b >= lo - g && a <= hi + g) {
            decided = cutNearEnd(CZemVertex(inLine(a), inLine(b), 0.0), span, lo, hi, pieces);
        }
    });
    return decided;
}

// A dash near or across an end of the span, cut by the rules of the exact
// clipping, reckoned in offsets along the line: a point lies on a stretch
// within ZEM::kDistTol of it, and a vertex breaks only at a point more than
// that from both its ends. When a comparison comes too close to call, the
// exact rules take the dash. What is kept must lie within the span, or the
// contour might cut it: false otherwise.
bool CZemStraightPass::cutNearEnd(const CZemVertex& dash, const CZemVertex& span, double lo, double hi,
                                  CZemVertexArray& pieces) {
    const double a = offset(dash.m_start), b = offset(dash.m_end);
    m_part.setLogicalLength(0);
    bool sure = true;
    const bool holdsStart = holds(a, b, hi, sure), holdsEnd = holds(a, b, lo, sure);
    const bool heldWhole = holds(lo, hi, a, sure) && holds(lo, hi, b, sure);
    if (sure && holdsStart && holdsEnd) {
        m_part.append(CZemVertex(inLine(lo), inLine(hi), 0.0));
    } else if (sure && heldWhole) {
        m_part.append(dash);
    } else if (sure && (holdsStart || holdsEnd)) {
        sure = keepPart(dash, holdsStart ? span.m_start : span.m_end, a, holdsStart ? hi : lo, b, m_part);
    }
    if (!sure) {
        m_part.setLogicalLength(0);
        m_spans.clipToSpan(dash, span, m_part);
    }
    const double g = m_edges.guard();
    for (int k = 0; k < m_part.len(); ++k) {
        CZemVertex piece = m_part[k];
        const double from = offset(piece.m_start), to = offset(piece.m_end);
        if (std::min(from, to) < lo - g || std::max(from, to) > hi + g) return false;
        piece.transformBy(m_frame);
        if (m_carry) piece.transformBy(*m_carry);
        pieces.append(piece);
    }
    return true;
}

// About as many pieces as the spans between the places will hold: one per
// span of a continuous line, for a dashed one the dashes over it and one
// more at each end.
int CZemStraightPass::roomFor(const std::vector<double>& places) const {
    if (!m_dashes) return static_cast<int>(places.size() / 2);
    int room = 0;
    for (size_t k = 0; k + 1 < places.size(); k += 2) room += m_dashes->roomOver(places[k + 1] - places[k]);
    return room;
}

// The stretch of the line from offset `from` to `to`, in the world, written
// into the next slot of pieces.
void CZemStraightPass::addPiece(double from, double to, CZemVertexArray& pieces) const {
    CZemVertex& piece = pieces[pieces.len()];
    piece.m_start = inWorld(from);
    piece.m_end = inWorld(to);
    piece.m_bulge = 0.0;
}

// Whether the stretch from offset a to b holds the point at offset x.
bool CZemStraightPass::holds(double a, double b, double x, bool& sure) {
    sure = sure && clear(x - (a - ZEM::kDistTol)) && clear(b + ZEM::kDistTol - x);
    return x >= a - ZEM::kDistTol && x <= b + ZEM::kDistTol;
}

// A margin far above the rounding of offsets and far below the tolerance.
bool CZemStraightPass::clear(double difference) { return std::fabs(difference) > 0.1 * ZEM::kDistTol; }

// The dash breaks at `at` unless that lies within ZEM::kDistTol of an end, in
// which case it only touches and adds nothing; of the two parts the first
// whose middle lies inside the region is kept. False when a distance or a
// middle comes too close to call.
bool CZemStraightPass::keepPart(const CZemVertex& dash, const CZemPoint3d& cut, double a, double at, double b,
                                CZemVertexArray& part) const {
    if (!clear(at - a - ZEM::kDistTol) || !clear(b - at - ZEM::kDistTol)) return false;
    if (at - a <= ZEM::kDistTol || b - at <= ZEM::kDistTol) return true;
    bool sure = true;
    const bool firstIn = m_edges.insideRegion(m_crossings, 0.5 * (a + at), sure);
    if (!sure) return false;
    if (firstIn) {
        part.append(CZemVertex(dash.m_start, cut, 0.0));
        return true;
    }
    const bool secondIn = m_edges.insideRegion(m_crossings, 0.5 * (at + b), sure);
    if (!sure) return false;
    if (secondIn) part.append(CZemVertex(cut, dash.m_end, 0.0));
    return true;
}

CZemPoint3d CZemStraightPass::inLine(double at) const {
    const double t = at / m_length;
    return CZemPoint3d(m_line.m_start.x + t * (m_line.m_end.x - m_line.m_start.x),
                       m_line.m_start.y + t * (m_line.m_end.y - m_line.m_start.y),
                       m_line.m_start.z + t * (m_line.m_end.z - m_line.m_start.z));
}

CZemPoint3d CZemStraightPass::inWorld(double at) const {
    const double t = at / m_length;
    return CZemPoint3d(m_worldStart.x + t * (m_worldEnd.x - m_worldStart.x),
                       m_worldStart.y + t * (m_worldEnd.y - m_worldStart.y),
                       m_worldStart.z + t * (m_worldEnd.z - m_worldStart.z));
}

double CZemStraightPass::offset(const CZemPoint3d& p) const {
    return m_ux * (p.x - m_line.m_start.x) + m_uy * (p.y - m_line.m_start.y);
}
