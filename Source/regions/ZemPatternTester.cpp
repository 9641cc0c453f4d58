#include "ZemPatternTester.h"

#include "ZemBase.h"
#include "ZemPolyline.h"
#include "ZemPoint3dArray.h"
#include "ZemRegionPrep.h"
#include "ZemVector3d.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;
const double kMaxRepetitions = 95.0;
const double kMinDeviceStep = 2.3;

// An entry of a pattern line times the scale; no value (NaN) when the entry
// is absent or 0.
double stepOf(const CZemArrayTempl<double>& line, int index, double scale) {
    return line.len() > index && line[index] != 0.0 ? line[index] * scale : ZEM::nan();
}

}  // namespace

CZemPatternTester::CZemPatternTester(CZemArrayTempl<CZemVertexArray> regs, const CZemHatchProp& prop,
                                     const CZemMatrix3d& mtx)
    : m_regs(regs), m_scale(prop.scale), m_maxCount(-DBL_MAX), m_minStep(DBL_MAX) {
    m_deviceScale = (CZemVector3d::kXAxis * mtx).abs();
    zem_reg_orient(m_regs);
    zem_reg_ensure_contour(m_regs);
}

// The count is a pure number and does not change with the zoom; the step is
// taken to the device and does.
bool CZemPatternTester::isLegible(const CZemArrayTempl<CZemArrayTempl<double>>& lines) {
    for (int k = 0; k < lines.len(); ++k) countLine(lines[k]);
    const double minStep = m_minStep * m_deviceScale;
    return kMaxRepetitions > m_maxCount && minStep > kMinDeviceStep;
}

void CZemPatternTester::countLine(const CZemArrayTempl<double>& line) {
    if (line.len() < 3) return;
    const double angle = line[0] * kPi / 180.0;
    CZemMatrix3d frame;
    frame.setCoordSystem(CZemPoint3d::kOrigin, ZEM::polar(angle, 1.0), ZEM::polar(angle + kPi / 2.0, 1.0),
                         CZemVector3d::kZAxis);
    const CZemPoint3dArray box = ZEM::g_vl_extmax(m_regs[0].getTransformedCopy(frame.inverse()), 0.0);
    countStep(stepOf(line, 3, m_scale), std::fabs(box[0].x - box[1].x));
    countStep(stepOf(line, 4, m_scale), std::fabs(box[0].y - box[1].y));
}

// A negative step gives a negative count, which never raises the maximum,
// but its length still counts for the smallest step.
void CZemPatternTester::countStep(double step, double across) {
    if (!std::isfinite(step)) return;
    m_maxCount = std::max(m_maxCount, across / step);
    m_minStep = std::min(m_minStep, std::fabs(step));
}
