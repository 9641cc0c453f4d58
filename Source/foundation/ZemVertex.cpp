#include "ZemVertex.h"

CZemVertex& CZemVertex::set(const CZemPoint3d& start, const CZemPoint3d& end, double bulge) {
    m_start = start;
    m_end = end;
    m_bulge = bulge;
    return *this;
}
