#include "ZemHatchFamily.h"

#include "ZemBase.h"
#include "ZemClip.h"
#include "ZemPolyline.h"
#include "ZemPoint3dArray.h"
#include "ZemRegionPrep.h"
#include "ZemVector3d.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double kPi = 3.14159265358979323846;

}  // namespace

CZemHatchFamily::CZemHatchFamily(const CZemPatternLine& line, const CZemArrayTempl<CZemVertexArray>& regs,
                                 double diagonal, double rotation, Measure measure)
    : m_line(line), m_measure(measure), m_rotation(rotation), m_spans(m_regions) {
    m_turn.setToRotation(rotation, CZemVector3d::kZAxis, CZemPoint3d::kOrigin);
    m_turnBack.setToRotation(-rotation, CZemVector3d::kZAxis, CZemPoint3d::kOrigin);
    m_ready = line.hasLines() && prepare(regs, diagonal);
    if (m_ready && measure == Measure::window) m_edges = std::make_unique<CZemEdgeTable>(m_regions);
}

// The regions go into the line's frame, where the family's lines run along X
// and follow each other along Y; the prototype is laid through the base point.
bool CZemHatchFamily::prepare(const CZemArrayTempl<CZemVertexArray>& regs, double diagonal) {
    const double angle = m_line.angle();
    m_frame.setCoordSystem(CZemPoint3d::kOrigin, ZEM::polar(angle, 1.0), ZEM::polar(angle + kPi / 2.0, 1.0),
                           CZemVector3d::kZAxis);
    const CZemMatrix3d toLine = m_frame.inverse();
    copyIntoFrame(regs, toLine);
    zem_reg_ensure_contour(m_regions);
    // The contour's plain box; both corners stay at the origin when it has
    // no finite vertex.
    CZemPoint3d boxHi;
    m_regions[0].extents(m_low, boxHi);
    double half = 0.0;
    if (!m_line.sweepBound(m_low.distanceTo(boxHi), m_bound) || !m_line.halfLength(diagonal, half)) return false;
    // A dash list of gaps alone lays nothing, so no line can show.
    if (m_line.isDashed() && !m_line.laysDashes()) return false;
    const CZemPoint3d base = m_line.base() * toLine;
    m_prototype = CZemVertexArray(CZemVertex(ZEM::polar(base, 0.0, -half), ZEM::polar(base, 0.0, half), 0.0));
    if (m_line.isDashed()) {
        m_dashes = std::make_unique<CZemPrototypeDashes>(m_line.dashes(), m_line.laidPeriod(), 2.0 * half);
    }
    uprightBox();
    m_length = 2.0 * half;
    return descendBelow() && canReach();
}

// The regions in the line frame, as transforming copies would give them:
// straight elements vertex by vertex with the normal that transforming a
// list of theirs gives, others by transforming the list.
void CZemHatchFamily::copyIntoFrame(const CZemArrayTempl<CZemVertexArray>& regs, const CZemMatrix3d& toLine) {
    for (int k = 0; k < regs.len(); ++k) {
        const CZemVertexArray& element = regs[k];
        bool straight = true;
        for (int v = 0; v < element.len() && straight; ++v) straight = element[v].m_bulge == 0.0;
        if (straight && k > 0 && element.normal() == regs[k - 1].normal()) {
            m_regions.append(element);
            for (int v = 0; v < element.len(); ++v) m_regions[k][v].transformBy(toLine);
            m_regions[k].setNormal(m_regions[k - 1].normal());
        } else {
            m_regions.append(element.getTransformedCopy(toLine));
        }
    }
}

// The middle of the prototype's one straight vertex, as CZemVertex::mid
// gives it.
double CZemHatchFamily::middleY() const {
    const CZemVertex& q = m_prototype[0];
    return q.m_start.y + 0.5 * (q.m_end.y - q.m_start.y);
}

// The box of the regions turned back by the pattern's rotation, where the
// prototype runs along X before it is turned: its X range is the stretch of
// the prototype that can meet them. Widened by a period, so that partial
// dashes at its ends never matter.
void CZemHatchFamily::uprightBox() {
    const double inf = std::numeric_limits<double>::infinity();
    m_uprightLo.set(inf, inf, 0.0);
    m_uprightHi.set(-inf, -inf, 0.0);
    for (int k = 0; k < m_regions.len(); ++k) {
        if (m_regions[k].isEmpty()) continue;
        // Unturned regions are read in place rather than copied.
        if (m_rotation == 0.0) {
            growBox(m_regions[k], m_uprightLo, m_uprightHi);
        } else {
            growBox(m_regions[k].getTransformedCopy(m_turnBack), m_uprightLo, m_uprightHi);
        }
    }
    const double size = std::fabs(m_uprightLo.x) + std::fabs(m_uprightHi.x) + std::fabs(m_uprightLo.y) +
                        std::fabs(m_uprightHi.y);
    const double margin = m_line.laidPeriod() + 1e-6 * (1.0 + size);
    m_uprightLo -= CZemVector3d(margin, margin, 0.0);
    m_uprightHi += CZemVector3d(margin, margin, 0.0);
}

// Grows the box by the list: by the ends of its vertices when all are
// straight, else by its true extents.
void CZemHatchFamily::growBox(const CZemVertexArray& vl, CZemPoint3d& lo, CZemPoint3d& hi) {
    bool straight = true;
    for (int k = 0; k < vl.len() && straight; ++k) straight = vl[k].m_bulge == 0.0;
    if (!straight) {
        CZemPoint3d min, max;
        if (!vl.extents(min, max)) return;
        lo = ZEM::p_min(lo, min);
        hi = ZEM::p_max(hi, max);
        return;
    }
    for (int k = 0; k < vl.len(); ++k) {
        lo = ZEM::p_min(ZEM::p_min(lo, vl[k].m_start), vl[k].m_end);
        hi = ZEM::p_max(ZEM::p_max(hi, vl[k].m_start), vl[k].m_end);
    }
}

// Whether any pass can bring the prototype over the regions: the second
// descent and the sweep move it at most 4 N steps, and it only meets them
// where its stretch and theirs overlap in both directions.
bool CZemHatchFamily::canReach() const {
    const double steps = 4.0 * static_cast<double>(m_bound);
    const double along = steps * std::fabs(m_line.dx()), across = steps * std::fabs(m_line.dy());
    const CZemPoint3d& start = m_prototype[0].m_start;
    const bool alongMeets = start.x - along <= m_uprightHi.x && start.x + m_length + along >= m_uprightLo.x;
    const bool acrossMeets = start.y - across <= m_uprightHi.y && start.y + across >= m_uprightLo.y;
    return alongMeets && acrossMeets;
}

// First descent: below the box of the contour. A far base point is brought
// near in one move; the last steps are taken one by one.
bool CZemHatchFamily::descendBelow() {
    const double lowY = m_low.y;
    const double startY = middleY();
    if (!(startY > lowY)) return true;
    const double steps = std::floor((startY - lowY) / std::fabs(m_line.dy())) - 2.0;
    if (!std::isfinite(steps)) return false;
    if (steps > 0.0) {
        const double shift = m_line.dy() > 0.0 ? m_line.dx() : -m_line.dx();
        m_prototype.move(CZemVector3d(-steps * shift, -steps * std::fabs(m_line.dy()), 0.0));
    }
    for (double y = middleY(); y > lowY;) {
        step(-1.0);
        const double next = middleY();
        if (!(next < y)) return false;
        y = next;
    }
    // At a distance where a step no longer moves the line the sweep could
    // never reach the region.
    const double y = middleY();
    return y - std::fabs(m_line.dy()) < y;
}

// Second descent: on until the line, turned by the pattern's rotation, no
// longer meets the contour, at most the sweep bound times.
void CZemHatchFamily::descendClear() {
    for (long long k = 0; k < m_bound; ++k) {
        step(-1.0);
        CZemVertexArray probe(m_prototype);
        if (m_rotation != 0.0) probe.transformBy(m_turn);
        if (!probeMeets(probe[0])) return;
    }
}

// Whether the straight line meets the contour: by its crossings with the
// edges where they are clear of its ends and of corners, else by the exact
// intersection.
bool CZemHatchFamily::probeMeets(const CZemVertex& line) {
    const double length = std::hypot(line.m_end.x - line.m_start.x, line.m_end.y - line.m_start.y);
    if (m_edges && m_edges->isUsable() && length > m_edges->guard()) {
        const double ux = (line.m_end.x - line.m_start.x) / length, uy = (line.m_end.y - line.m_start.y) / length;
        bool sure = m_edges->crossLine(line.m_start, ux, uy, m_probeCrossings), meets = false;
        for (const CZemEdgeTable::Crossing& c : m_probeCrossings) {
            if (!sure || c.element != 0) continue;
            sure = std::fabs(c.at) > m_edges->guard() && std::fabs(c.at - length) > m_edges->guard();
            meets = meets || (c.at > 0.0 && c.at < length);
        }
        if (sure) return meets;
    }
    return meetsContour(line.m_start, line.m_end);
}

// One step of the family, up (+1) or down (-1): |dy| across the lines and dx
// along them, with the sign of dy.
void CZemHatchFamily::step(double sign) {
    const double dy = m_line.dy();
    const double shift = dy > 0.0 ? m_line.dx() : -m_line.dx();
    m_prototype.move(CZemVector3d(sign * shift, sign * std::fabs(dy), 0.0));
}

// Each hatch line is built in the next slot of out, which is given back if
// the line leaves nothing.
void CZemHatchFamily::sweep(const CZemMatrix3d& mtx, CZemArrayTempl<CZemVertexArray>& out) {
    if (!m_ready) return;
    descendClear();
    const CZemMatrix3d* carry = mtx == CZemMatrix3d::kIdentity ? nullptr : &mtx;
    std::unique_ptr<CZemStraightPass> fast;
    if (m_edges && m_edges->isUsable()) {
        fast = std::make_unique<CZemStraightPass>(*m_edges, m_spans, m_dashes.get(), m_frame, carry);
    }
    // The normal that transforming a list by the frame and mtx gives it.
    CZemVertexArray carried;
    carried.transformBy(m_frame);
    if (carry) carried.transformBy(*carry);
    out.reserve(out.len() + expectedLines());
    bool seen = false;
    for (long long pass = 0; pass < 3 * m_bound; ++pass) {
        step(1.0);
        const int slot = out.len();
        CZemVertexArray& pieces = out[slot];
        pieces.setLogicalLength(0);
        const Outcome outcome = passOnce(fast.get(), carry, pieces);
        if (outcome == Outcome::met) seen = true;
        if (pieces.isEmpty()) {
            out.setLogicalLength(slot);
            if (outcome == Outcome::clear && seen) return;
            continue;
        }
        pieces.setNormal(carried.normal());
    }
}

// About how many lines of the family cross the regions: their upright
// height over the spacing of the lines, bounded by the passes of a sweep.
int CZemHatchFamily::expectedLines() const {
    const double lines = (m_uprightHi.y - m_uprightLo.y) / std::fabs(m_line.dy()) + 2.0;
    if (!(lines > 0.0)) return 0;
    return static_cast<int>(std::min({lines, 3.0 * static_cast<double>(m_bound), 65536.0}));
}

// The prototype is turned by the pattern's rotation for the pass and back
// after it. Measured whole, its dashes are cut before it is turned. The
// pieces end in world coordinates.
CZemHatchFamily::Outcome CZemHatchFamily::passOnce(CZemStraightPass* fast, const CZemMatrix3d* carry,
                                                   CZemVertexArray& pieces) {
    if (m_measure == Measure::whole && m_line.isDashed()) m_whole = m_dashes->measureWhole(m_prototype);
    const double start = m_prototype[0].m_start.x;
    if (m_rotation != 0.0) {
        m_prototype.transformBy(m_turn);
        m_whole.transformBy(m_turn);
    }
    Outcome outcome = fast ? fast->run(m_prototype, pieces) : Outcome::exact;
    if (outcome == Outcome::exact) {
        pieces.setLogicalLength(0);
        outcome = exactPass(start, m_whole, pieces);
        for (int k = 0; k < pieces.len(); ++k) {
            pieces[k].transformBy(m_frame);
            if (carry) pieces[k].transformBy(*carry);
        }
    }
    if (m_rotation != 0.0) m_prototype.transformBy(m_turnBack);
    return outcome;
}

// The pass by the exact rules of the polyline geometry: the dashes' chord
// tested against the contour, the spans from the crossings with every
// element, the dashes cut to them and clipped by the contour once more.
CZemHatchFamily::Outcome CZemHatchFamily::exactPass(double start, const CZemVertexArray& whole,
                                                    CZemVertexArray& pieces) {
    CZemVertexArray w;
    if (!m_line.isDashed()) {
        w = m_prototype;
    } else if (m_measure == Measure::whole) {
        w = whole;
    } else {
        m_dashes->measure(m_prototype, m_uprightLo.x - start, m_uprightHi.x - start, w);
    }
    if (!lineMeetsContour(w)) return Outcome::clear;
    pieces = piecesOf(w);
    return Outcome::met;
}

bool CZemHatchFamily::meetsContour(const CZemPoint3d& from, const CZemPoint3d& to) const {
    const CZemVertexArray chord(CZemVertex(from, to, 0.0));
    return m_regions[0].intersectWith(chord, 0).len() > 0;
}

// The chord of the dashed line runs from its first dash to its last; in the
// window it is taken from the prototype, as the window lacks the far dashes.
bool CZemHatchFamily::lineMeetsContour(const CZemVertexArray& w) const {
    if (m_line.isDashed() && m_measure == Measure::window) {
        const CZemVertex chord = m_dashes->chordOf(m_prototype);
        return meetsContour(chord.m_start, chord.m_end);
    }
    return meetsContour(w[0].m_start, w[-1].m_end);
}

// The line's spans, its dashes cut to them, and once more clipped by the
// contour alone (holes were already left out by the spans).
CZemVertexArray CZemHatchFamily::piecesOf(const CZemVertexArray& w) const {
    const CZemVertexArray spans = m_spans.spansOf(m_prototype);
    CZemVertexArray pieces = m_line.isDashed() ? m_spans.clip(w, spans, m_prototype) : spans;
    CZemVertexArray kept;
    if (pieces.isEmpty()) return kept;
    const CZemArrayTempl<CZemVertexArray> punched = ZEM::g_vl_punch(pieces, m_regions[0], true);
    for (int k = 0; k < punched.len(); ++k) kept += punched[k];
    return kept;
}
