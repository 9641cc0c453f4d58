#include "ZemLineParm.h"

CZemLineParm::CZemLineParm(const CZemArrayTempl<double>& pattern) : m_entries(pattern) {}

CZemLineParm::CZemLineParm(double first, double second) {
    m_entries.append(first);
    m_entries.append(second);
}
