#include "ZemPatternHatcher.h"

#include "ZemPolyline.h"
#include "ZemPatternLine.h"
#include "ZemPoint3dArray.h"
#include "ZemRegionPrep.h"

#include <cmath>

CZemPatternHatcher::CZemPatternHatcher(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx,
                                       const CZemHatchProp& prop, CZemHatchFamily::Measure measure)
    : m_regs(regs), m_mtx(mtx), m_prop(prop), m_measure(measure) {
    zem_reg_orient(m_regs);
    zem_reg_transform(m_regs, mtx.inverse());
    zem_reg_ensure_contour(m_regs);
    // A mirroring plane turns the contours round; they are set right again.
    zem_reg_orient(m_regs);
}

CZemArrayTempl<CZemVertexArray> CZemPatternHatcher::hatch(const CZemArrayTempl<CZemArrayTempl<double>>& lines) {
    CZemArrayTempl<CZemVertexArray> out;
    m_measured = 0;
    if (lines.isEmpty() || m_regs[0].isEmpty() || !std::isfinite(m_prop.angle)) return out;
    const CZemPoint3dArray box = ZEM::g_vl_extmax(m_regs[0], 0.0);
    const double diagonal = box[0].distanceTo(box[1]);
    const double dotLen = zem_reg_dot_length();
    for (int k = 0; k < lines.len(); ++k) {
        const CZemPatternLine line(lines[k], m_prop, dotLen);
        CZemHatchFamily family(line, m_regs, diagonal, m_prop.angle, m_measure);
        family.sweep(m_mtx, out);
        m_measured += family.measuredDashes();
    }
    return out;
}
