#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

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

    // The stretch of prototype q from its first dash's start to its last
    // dash's end.
    CZemVertex chordOf(const CZemVertexArray& q) const;
    // Appends to out the dashes of prototype q that lie between the offsets
    // lo and hi along it, in order.
    void measure(const CZemVertexArray& q, double lo, double hi, CZemVertexArray& out);
    // The dashes of the whole prototype q, by ZEM::g_vl_measure.
    CZemVertexArray measureWhole(const CZemVertexArray& q);
    // How many dashes were laid so far.
    long long measuredDashes() const { return m_measured; }

private:
    void lay(const CZemVertex& q, double total, double from, double to, CZemVertexArray& out) const;

    CZemArrayTempl<double> m_parm;
    std::vector<double> m_dashes;
    double m_period;
    double m_length;
    double m_firstStart = 0.0;
    double m_lastEnd = 0.0;
    long long m_measured = 0;
};
