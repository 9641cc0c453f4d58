#pragma once

#include "ZemArrayTempl.h"
#include "ZemGeomTolerance.h"
#include "ZemVertexArray.h"

#include <algorithm>
#include <cmath>
#include <vector>

// The dashes of a hatch line's prototype, a straight line far longer than the
// region. Only the stretch that can meet the region is laid, starting a whole
// number of periods after the prototype's start, so each dash lies where
// ZEM::g_vl_measure of the whole prototype puts it: entries laid in turn,
// dashes cut short at the end, stretches no longer than ZEM::kDistTol left out.
class CZemPrototypeDashes {
public:
    // dashes: the scaled dash list (positive dashes, negative gaps, 0.0 dots);
    // laidPeriod: its length; length: the prototype's length.
    CZemPrototypeDashes(const CZemArrayTempl<double>& dashes, double laidPeriod, double length);

    // Offsets along the prototype of its first dash's start and of its last
    // dash's end.
    double firstStart() const { return m_firstStart; }
    double lastEnd() const { return m_lastEnd; }
    // The stretch of prototype q from its first dash's start to its last
    // dash's end.
    CZemVertex chordOf(const CZemVertexArray& q) const;
    // Appends to out the dashes of prototype q that lie between the offsets
    // lo and hi along it, in order.
    void measure(const CZemVertexArray& q, double lo, double hi, CZemVertexArray& out);
    // The dashes of the whole prototype q, by ZEM::g_vl_measure.
    CZemVertexArray measureWhole(const CZemVertexArray& q);
    // Calls visit(from, to) with the offsets of each dash of a prototype of
    // length total that lies between the offsets lo and hi, in order.
    template <class Visit>
    void forEachDash(double total, double lo, double hi, Visit&& visit);
    // Room for the dashes and dots a stretch of this length holds, with one
    // more at each end; at most 65536, 0 for a length that is no number.
    int roomOver(double length) const;
    // How many dashes were laid so far.
    long long measuredDashes() const { return m_measured; }

private:
    template <class Visit>
    void lay(double total, double from, double to, Visit&& visit) const;

    CZemArrayTempl<double> m_parm;
    std::vector<double> m_dashes;
    double m_period;
    int m_pieces = 0;
    double m_firstStart = 0.0;
    double m_lastEnd = 0.0;
    long long m_measured = 0;
};

template <class Visit>
void CZemPrototypeDashes::forEachDash(double total, double lo, double hi, Visit&& visit) {
    const double from = std::max(0.0, std::floor(lo / m_period) * m_period);
    const double to = std::min(total, std::ceil(hi / m_period) * m_period);
    if (!(from < to)) return;
    lay(total, from, to, [&](double a, double b) {
        ++m_measured;
        visit(a, b);
    });
}

// Entries are laid from offset `from`, which starts a period, until the
// offset passes `to`: a dash gives the stretch of its length, cut short at
// the end and left out if no longer than ZEM::kDistTol, a dot gives a place.
// At most as many entries as whole periods up to `to` hold are laid, so an
// offset that no longer grows cannot hold the walk.
template <class Visit>
void CZemPrototypeDashes::lay(double total, double from, double to, Visit&& visit) const {
    const size_t count = m_dashes.size();
    const double periods = std::ceil((to - from) / m_period) + 1.0;
    if (count == 0 || !(periods < 1e9)) return;
    const long long limit = static_cast<long long>(periods) * static_cast<long long>(count);
    double at = from;
    size_t entry = 0;
    for (long long k = 0; k < limit && at <= to && at <= total + ZEM::kDistTol; ++k) {
        const double e = m_dashes[entry];
        entry = entry + 1 == count ? 0 : entry + 1;
        if (e > 0.0 && at < total - ZEM::kDistTol) {
            const double end = at + e < total ? at + e : total;
            if (end - at > ZEM::kDistTol) visit(at, end);
        } else if (e == 0.0) {
            visit(at, at);
        }
        at += std::fabs(e);
    }
}
