#pragma once

#include "ZemArrayTempl.h"
#include "ZemHatchFamily.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// Pattern hatching of a region set: every line of a named pattern laid as a
// family of dashed lines, turned and scaled by the hatch, one polyline of
// separate straight pieces per hatch line that meets the region.
class CZemPatternHatcher {
public:
    // regs in world coordinates, element 0 the contour and the others holes;
    // mtx maps the hatch plane to the world.
    CZemPatternHatcher(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx, const CZemHatchProp& prop,
                       CZemHatchFamily::Measure measure = CZemHatchFamily::Measure::window);

    // The hatch lines of the pattern lines, in their order.
    CZemArrayTempl<CZemVertexArray> hatch(const CZemArrayTempl<CZemArrayTempl<double>>& lines);
    // Dashes cut from the prototypes during the last hatch.
    long long measuredDashes() const { return m_measured; }

private:
    CZemArrayTempl<CZemVertexArray> m_regs;
    CZemMatrix3d m_mtx;
    CZemHatchProp m_prop;
    CZemHatchFamily::Measure m_measure;
    long long m_measured = 0;
};
