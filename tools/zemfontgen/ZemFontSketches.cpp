#include "ZemFontSketches.h"

#include "ZemFontMetrics.h"

#include <cmath>

bool zem_font_draw(int code, CZemGlyphSketch& s) {
    return zem_font_draw_punct(code, s) || zem_font_draw_digits(code, s) ||
           zem_font_draw_upper(code, s) || zem_font_draw_lower(code, s);
}

double zem_font_slant_x(double edgeX, double y, double tx, double ty, int side) {
    // The horizontal distance between a slanted centre line and its edge
    // depends on the slope, which depends on the answer: a fixed point.
    double x = edgeX + side * kHalf;
    for (int k = 0; k < 20; ++k) {
        x = edgeX + side * kHalf * std::hypot(tx - x, ty - y) / std::fabs(ty - y);
    }
    return x;
}

ZemSkPoint zem_font_beyond(const ZemSkPoint& a, const ZemSkPoint& b, double d) {
    const double len = std::hypot(b.x - a.x, b.y - a.y);
    return {b.x + (b.x - a.x) / len * d, b.y + (b.y - a.y) / len * d};
}

void zem_font_s_curve(CZemGlyphSketch& s, double yLow, double yMid, double yTop) {
    const double ryu = (yTop - yMid) / 2;
    const double ryl = (yMid - yLow) / 2;
    s.start().arc(kXM, yMid + ryu, kRx - 0.03, ryu, 35, 270).arc(kXM, yLow + ryl, kRx, ryl, 90, -145);
}

void zem_font_umlaut(CZemGlyphSketch& s, double yLow, double yHigh) {
    const double gap = 0.17;
    s.part().seg(kXM - gap, yLow, kXM - gap, yHigh);
    s.part().seg(kXM + gap, yLow, kXM + gap, yHigh);
}
