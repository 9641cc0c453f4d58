#pragma once

#include "ZemArrayTempl.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemVertexArray.h"

// Whether a hatch pattern over a region would be legible: fewer than 95
// steps of any pattern line across the region, and every step longer than
// 2.3 device units.
class CZemPatternTester {
public:
    // regs: element 0 the contour; mtx: from the region to device units.
    CZemPatternTester(CZemArrayTempl<CZemVertexArray> regs, const CZemHatchProp& prop, const CZemMatrix3d& mtx);

    bool isLegible(const CZemArrayTempl<CZemArrayTempl<double>>& lines);

private:
    void countLine(const CZemArrayTempl<double>& line);
    void countStep(double step, double across);

    CZemArrayTempl<CZemVertexArray> m_regs;
    double m_scale;
    double m_deviceScale;
    double m_maxCount;
    double m_minStep;
};
