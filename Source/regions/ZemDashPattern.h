#pragma once

#include "ZemArrayTempl.h"

// A line type's dash list made ready for fitting to the vertices of a
// polyline: in mode 1 started and ended with half of its first long dash,
// dots laid as short dashes, and the sum that each repetition counts.
class CZemDashPattern {
public:
    // entries: positive a dash, negative a gap, 0.0 a dot, in drawing units.
    CZemDashPattern(CZemArrayTempl<double> entries, int mode, double dotLen);

    // False for fewer than two entries or an entry that is not finite.
    bool isUsable() const { return m_usable; }
    const CZemArrayTempl<double>& entries() const { return m_entries; }
    // |entry| summed, each dot counted as 1.0.
    double sum() const { return m_sum; }

    // The pattern fitted to a vertex of this length: whole repetitions, the
    // rest spread over the gaps. False if the vertex stays solid (not longer
    // than one repetition, or too long for the repetitions to be counted).
    bool fitTo(double length, CZemArrayTempl<double>& fitted) const;

private:
    void alignStart();
    void layDots(double dotLen);

    bool m_usable = false;
    CZemArrayTempl<double> m_entries;
    double m_sum = 0.0;
};
