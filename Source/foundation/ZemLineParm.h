#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"

// A prepared dash pattern for ZEM::g_vl_measure: each entry a length laid
// along the line in turn, positive a dash, negative a gap, 0.0 a dot.
class CZemLineParm : public CZemObj {
public:
    CZemLineParm() = default;
    explicit CZemLineParm(const CZemArrayTempl<double>& pattern);
    // The two-entry pattern (first, second), as a dot and a gap (0.0, -s).
    CZemLineParm(double first, double second);
    ~CZemLineParm() override = default;

    const CZemArrayTempl<double>& entries() const { return m_entries; }

private:
    CZemArrayTempl<double> m_entries;
};
