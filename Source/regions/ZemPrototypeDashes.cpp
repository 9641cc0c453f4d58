#include "ZemPrototypeDashes.h"

#include "ZemMeasure.h"

#include <algorithm>
#include <cmath>

namespace {

// The point at offset t from the start of the straight vertex q of length
// total, by the same interpolation that measuring uses.
CZemPoint3d pointAt(const CZemVertex& q, double t, double total) {
    return q.m_start + (q.m_end - q.m_start) * (t / total);
}

}  // namespace

CZemPrototypeDashes::CZemPrototypeDashes(const CZemArrayTempl<double>& dashes, double laidPeriod, double length)
    : m_parm(dashes), m_period(laidPeriod) {
    for (int k = 0; k < dashes.len(); ++k) {
        m_dashes.push_back(dashes[k]);
        if (dashes[k] >= 0.0) ++m_pieces;
    }
    // The first dash lies in the first period and the last one in the last
    // two; laying those stretches of a model prototype along X from the
    // origin gives their offsets, interpolated as measuring places points.
    bool first = true;
    lay(length, 0.0, std::min(m_period, length), [&](double a, double) {
        if (first) m_firstStart = length * (a / length);
        first = false;
    });
    const double lastPeriods = std::max(0.0, std::floor(length / m_period) - 1.0);
    lay(length, lastPeriods * m_period, length, [&](double, double b) { m_lastEnd = length * (b / length); });
}

CZemVertex CZemPrototypeDashes::chordOf(const CZemVertexArray& q) const {
    const double total = q[0].m_start.distanceTo(q[0].m_end);
    return CZemVertex(pointAt(q[0], m_firstStart, total), pointAt(q[0], m_lastEnd, total), 0.0);
}

void CZemPrototypeDashes::measure(const CZemVertexArray& q, double lo, double hi, CZemVertexArray& out) {
    const CZemVertex& line = q[0];
    const double total = line.m_start.distanceTo(line.m_end);
    out.reserve(out.len() + roomOver(hi - lo + m_period));
    forEachDash(total, lo, hi, [&](double a, double b) {
        out.append(CZemVertex(pointAt(line, a, total), pointAt(line, b, total), 0.0));
    });
}

int CZemPrototypeDashes::roomOver(double length) const {
    // Beyond this the arrays simply grow as dashes come.
    const double kMostRoom = 65536.0;
    const double room = length / m_period * static_cast<double>(m_pieces) + 2.0;
    return room > 0.0 ? static_cast<int>(std::min(room, kMostRoom)) : 0;
}

CZemVertexArray CZemPrototypeDashes::measureWhole(const CZemVertexArray& q) {
    CZemVertexArray out;
    const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_measure(q, 1.0, CZemLineParm(m_parm));
    for (int k = 0; k < pieces.len(); ++k) out += pieces[k];
    m_measured += out.len();
    return out;
}
