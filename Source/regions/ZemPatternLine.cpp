#include "ZemPatternLine.h"

#include "ZemRegionUtil.h"

#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;

bool allFinite(const CZemArrayTempl<double>& entries) {
    for (int k = 0; k < entries.len(); ++k) {
        if (!std::isfinite(entries[k])) return false;
    }
    return true;
}

}  // namespace

CZemPatternLine::CZemPatternLine(const CZemArrayTempl<double>& entries, const CZemHatchProp& prop, double dotLen) {
    const double scale = prop.scale;
    // "GRAVEL" is matched exactly: its stones are short dashes on long
    // prototypes, so it gets longer prototypes and, when fine, more lines.
    m_gravel = prop.name == L"GRAVEL";
    m_fineScale = scale < 1.0;
    if (entries.len() < 3 || !allFinite(entries) || !std::isfinite(scale) || !std::isfinite(dotLen)) return;
    m_angle = entries[0] * kPi / 180.0;
    m_base.set(scale * entries[1], scale * entries[2], 0.0);
    m_dx = entries.len() > 3 ? scale * entries[3] : 0.0;
    m_dy = entries.len() > 4 ? scale * entries[4] : 0.0;
    scaleDashes(entries, scale, dotLen);
    m_hasLines = m_dy != 0.0 && std::isfinite(m_dy) && std::isfinite(m_dx);
}

void CZemPatternLine::scaleDashes(const CZemArrayTempl<double>& entries, double scale, double dotLen) {
    for (int k = 5; k < entries.len(); ++k) {
        const double entry = entries[k];
        // A dot is laid as a short dash of dotLen but counts 1.0 in the
        // period, so dotted families do not keep their phase exactly.
        const double laid = entry == 0.0 ? dotLen : entry * scale;
        m_dashes.append(laid);
        m_period += entry == 0.0 ? 1.0 : std::fabs(laid);
        m_laidPeriod += std::fabs(laid);
        if (laid > 0.0) m_laysDashes = true;
    }
}

bool CZemPatternLine::halfLength(double diagonal, double& half) const {
    if (!isDashed()) {
        half = 15.0 * diagonal;
        return std::isfinite(half);
    }
    long long periods = 0;
    if (!zem_reg_trunc(diagonal / m_period, periods)) return false;
    double factor = 20.0;
    if (m_gravel) factor = m_fineScale ? 200.0 : 150.0;
    half = static_cast<double>(periods + 1) * m_period * factor;
    return std::isfinite(half);
}

bool CZemPatternLine::sweepBound(double extent, long long& bound) const {
    long long lines = 0;
    if (!zem_reg_trunc(extent / std::fabs(m_dy) + 1.0, lines)) return false;
    // The sweep factor of a fine "GRAVEL" is 200; a coarse one takes the
    // common 20 here although its prototype took 150.
    bound = lines * (m_gravel && m_fineScale ? 200 : 20);
    return true;
}
