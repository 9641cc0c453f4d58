#include "ZemDashPattern.h"

#include "ZemRegionUtil.h"

#include <cmath>

CZemDashPattern::CZemDashPattern(CZemArrayTempl<double> entries, int mode, double dotLen) : m_entries(entries) {
    if (m_entries.len() < 2 || !std::isfinite(dotLen)) return;
    for (int k = 0; k < m_entries.len(); ++k) {
        if (!std::isfinite(m_entries[k])) return;
    }
    m_usable = true;
    if (mode == 1) alignStart();
    layDots(dotLen);
}

// The pattern is turned until it starts with a dash longer than 0.21 that a
// gap follows; that dash is halved and its half appended, so every vertex
// begins and ends with half a long dash. Without such a dash the pattern
// keeps its order.
void CZemDashPattern::alignStart() {
    const int count = m_entries.len();
    for (int turn = 0; turn < count; ++turn) {
        if (m_entries[0] > 0.21 && m_entries[1] < 0.0) {
            m_entries[0] /= 2.0;
            m_entries.append(m_entries[0]);
            return;
        }
        const double first = m_entries[0];
        m_entries.removeAt(0);
        m_entries.append(first);
    }
}

void CZemDashPattern::layDots(double dotLen) {
    for (int k = 0; k < m_entries.len(); ++k) {
        // A dot becomes a short dash but counts 1.0 in the sum, not its length.
        if (m_entries[k] == 0.0) {
            m_entries[k] = dotLen;
            m_sum += 1.0;
        } else {
            m_sum += std::fabs(m_entries[k]);
        }
    }
}

bool CZemDashPattern::fitTo(double length, CZemArrayTempl<double>& fitted) const {
    fitted = m_entries;
    if (!(length - m_sum > 0.0)) return false;
    if (!(m_sum > 0.0)) return true;
    long long repeats = 0;
    if (!zem_reg_trunc(length / m_sum, repeats)) return false;
    const double rest = length - static_cast<double>(repeats) * m_sum;
    int gaps = 0;
    for (int k = 0; k < m_entries.len(); ++k) {
        if (m_entries[k] < 0.0) ++gaps;
    }
    if (gaps == 0) return true;
    const double widen = std::fabs(rest / (static_cast<double>(gaps) * static_cast<double>(repeats)));
    for (int k = 0; k < fitted.len(); ++k) {
        if (fitted[k] < 0.0) fitted[k] -= widen;
    }
    return true;
}
