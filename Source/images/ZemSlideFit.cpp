#include "ZemSlideFit.h"

#include <cmath>
#include <limits>

namespace {

int truncToInt(double value)
{
    constexpr double kMax = std::numeric_limits<int>::max();
    constexpr double kMin = std::numeric_limits<int>::min();
    if (std::isnan(value))
        return 0;
    if (value >= kMax)
        return std::numeric_limits<int>::max();
    if (value <= kMin)
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

// Halves rounding toward minus infinity, as an arithmetic shift right by one.
int halfDown(int value) { return value >= 0 ? value / 2 : -((1 - value) / 2); }

// A raster of zero extent (a single dot) doesn't limit the scale.
double ratio(double span, int dots)
{
    return dots > 0 ? span / dots : std::numeric_limits<double>::infinity();
}

}  // namespace

// The pixel rectangle spans rectWidth - 1 by rectHeight - 1 units between its
// outer pixel centres; the smaller of the two ratios keeps the proportions.
void CZemSlideFit::SetCoordSystem(int rectWidth, int rectHeight, int width, int height)
{
    const double w = static_cast<double>(rectWidth) - 1.0;
    const double h = static_cast<double>(rectHeight) - 1.0;
    const double scaleX = ratio(w, width);
    const double scaleY = ratio(h, height);
    m_scale = scaleX < scaleY ? scaleX : scaleY;
    if (!std::isfinite(m_scale))
        m_scale = 0.0;
    m_offX = halfDown(truncToInt(w - width * m_scale));
    m_offY = halfDown(truncToInt(h - height * m_scale));
    m_height = height;
}

void CZemSlideFit::trans(int& x, int& y) const
{
    x = truncToInt(x * m_scale + m_offX);
    y = truncToInt((static_cast<double>(m_height) - y) * m_scale + m_offY);
}
