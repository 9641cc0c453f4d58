#pragma once

#include "ZemArrayTempl.h"
#include "ZemHatchProp.h"
#include "ZemPoint3d.h"

// One line of a hatch pattern at a hatch's scale: the family's angle, base
// point, shift along the line and step between lines, its dash list, and the
// prototype length and sweep count that the pattern hatching uses for it.
class CZemPatternLine {
public:
    // entries as a pattern file gives them: angle in degrees, base x and y,
    // dx, dy, then dashes (positive), gaps (negative) and dots (0.0, laid as
    // dashes of dotLen).
    CZemPatternLine(const CZemArrayTempl<double>& entries, const CZemHatchProp& prop, double dotLen);

    // False when the family has no lines: fewer than three entries, no or a
    // zero dy, or a value that is not finite.
    bool hasLines() const { return m_hasLines; }

    double angle() const { return m_angle; }
    const CZemPoint3d& base() const { return m_base; }
    double dx() const { return m_dx; }
    double dy() const { return m_dy; }

    bool isDashed() const { return !m_dashes.isEmpty(); }
    const CZemArrayTempl<double>& dashes() const { return m_dashes; }
    // The pattern's period with every dot counted as 1.0.
    double period() const { return m_period; }
    // The length that one repetition of the dash list really takes.
    double laidPeriod() const { return m_laidPeriod; }
    // True if the dash list lays anything visible (a dash or a dot).
    bool laysDashes() const { return m_laysDashes; }

    // Half the prototype's length over a region of this diagonal: a whole
    // number of periods for a dash list. False if the count overflows.
    bool halfLength(double diagonal, double& half) const;
    // The sweep bound N for a region of this extent across the lines (the
    // distance between the corners of its box). False if it overflows.
    bool sweepBound(double extent, long long& bound) const;

private:
    void scaleDashes(const CZemArrayTempl<double>& entries, double scale, double dotLen);

    bool m_hasLines = false;
    bool m_gravel = false;
    bool m_fineScale = false;
    double m_angle = 0.0;
    CZemPoint3d m_base;
    double m_dx = 0.0;
    double m_dy = 0.0;
    CZemArrayTempl<double> m_dashes;
    double m_period = 0.0;
    double m_laidPeriod = 0.0;
    bool m_laysDashes = false;
};
