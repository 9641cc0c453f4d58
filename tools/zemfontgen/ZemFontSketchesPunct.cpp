#include "ZemFontMetrics.h"
#include "ZemFontSketches.h"

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTickLow = 0.72;
constexpr double kBracketLow = -0.1;
constexpr double kX1 = kXL + 0.2;
// Outline width of a parenthesis, the mirror axis of the closing one.
constexpr double kParenWidth = 0.2552014;

// The period is a stroke-wide bar; its outline is fixed point by point.
void period(CZemGlyphSketch& s) {
    s.part().contour({{0.178305, 0}, {0.155932, 0}, {0.155932, 0.16678}, {0.178305, 0.16678}});
}

void comma(CZemGlyphSketch& s) {
    const double x = kXL + 0.06;
    const ZemSkPoint end = zem_font_beyond({x, 0}, {kXL, kCommaLow}, 0.05);
    s.part().move(x, kDot).line(x, 0).line(end.x, end.y).clip(-1, kCommaLow, 3, kCap);
}

void drawExclam(CZemGlyphSketch& s) {
    s.part().contour({{0.178305, 0.333559}, {0.155932, 0.333559}, {0.155932, 1.0}, {0.178305, 1.0}});
    period(s);
}

void drawQuote(CZemGlyphSketch& s) {
    s.part().seg(kXL, kTickLow, kXL, kCap);
    s.part().seg(kX1, kTickLow, kX1, kCap);
}

void drawHash(CZemGlyphSketch& s) {
    s.part().seg(0.37, 0.04, 0.37, 0.96).seg(0.63, 0.04, 0.63, 0.96);
    s.seg(kBarLeft, 0.34, kBarRight, 0.34).seg(kBarLeft, 0.66, kBarRight, 0.66);
}

void drawDollar(CZemGlyphSketch& s) {
    s.part().seg(kXM, 0, kXM, kCap);
    zem_font_s_curve(s, 0.11, 0.5, 0.89);
}

void drawPercent(CZemGlyphSketch& s) {
    const ZemSkPoint a = zem_font_beyond({0.78, kCap}, {0.22, 0}, 0.05);
    const ZemSkPoint b = zem_font_beyond({0.22, 0}, {0.78, kCap}, 0.05);
    s.part().ellipse(kXL, 0.63, 0.42, 0.97);
    s.part().ellipse(0.58, 0.03, kXR, 0.37);
    s.part().seg(a.x, a.y, b.x, b.y).clip(-1, 0, 3, kCap);
}

void drawAmpersand(CZemGlyphSketch& s) {
    const double lx = 0.43;
    const double ly = 0.8;
    const double bx = 0.41;
    const double by = 0.25;
    s.part().move(kXR, 0).line(0.32, 0.62).arc(lx, ly, 0.14, kYT - ly, 220, -50);
    s.arc(bx, by, 0.25, by - kRB, 140, 360).line(kXR, 0.42);
    s.clip(kLeft, 0, kRight, kCap);
}

void drawApostrophe(CZemGlyphSketch& s) { s.part().seg(kXL, kTickLow, kXL, kCap); }

void drawParenLeft(CZemGlyphSketch& s) {
    const double rx = 0.42;
    const double ry = 0.58;
    s.part().start().arc(kXL + rx, 0.45, rx, ry, 115, 245);
}

void drawParenRight(CZemGlyphSketch& s) {
    s.pushFrame(-1, 1, 2 * kLeft + kParenWidth, 0);
    drawParenLeft(s);
    s.popFrame();
}

void drawAsterisk(CZemGlyphSketch& s) {
    const double cx = kXM;
    const double cy = 0.75;
    const double r = 0.2;
    s.part();
    for (int k = 0; k < 3; ++k) {
        const double a = (90.0 + 60.0 * k) * kPi / 180.0;
        s.seg(cx + r * std::cos(a), cy + r * std::sin(a), cx - r * std::cos(a), cy - r * std::sin(a));
    }
}

void drawPlus(CZemGlyphSketch& s) {
    s.part().seg(kBarLeft, 0.5, kBarRight, 0.5).seg(kXM, 0.5 - kBarHalf, kXM, 0.5 + kBarHalf);
}

void drawMinus(CZemGlyphSketch& s) {
    s.part().contour({{0.83322, 0.488814}, {0.16678, 0.488814}, {0.16678, 0.511186}, {0.83322, 0.511186}});
}

void drawSlash(CZemGlyphSketch& s) {
    const double top = 0.7;
    const double x = zem_font_slant_x(kLeft, 0, top, kCap, 1);
    const ZemSkPoint a = zem_font_beyond({top, kCap}, {x, 0}, 0.05);
    const ZemSkPoint b = zem_font_beyond({x, 0}, {top, kCap}, 0.05);
    s.part().seg(a.x, a.y, b.x, b.y).clip(-1, 0, 3, kCap);
}

void drawColon(CZemGlyphSketch& s) {
    s.part().seg(kXL, kXHeight - kDot, kXL, kXHeight);
    period(s);
}

void drawSemicolon(CZemGlyphSketch& s) {
    s.part().seg(kXL, kXHeight - kDot, kXL, kXHeight);
    comma(s);
}

void drawLess(CZemGlyphSketch& s) {
    const ZemSkPoint a = zem_font_beyond({kXL, 0.5}, {kXR, 0.83}, 0.05);
    const ZemSkPoint b = zem_font_beyond({kXL, 0.5}, {kXR, 0.17}, 0.05);
    s.part().move(a.x, a.y).line(kXL, 0.5).line(b.x, b.y).clip(kLeft, -1, kRight, 2);
}

void drawEquals(CZemGlyphSketch& s) {
    s.part().seg(kBarLeft, 0.62, kBarRight, 0.62);
    s.part().seg(kBarLeft, 0.38, kBarRight, 0.38);
}

void drawGreater(CZemGlyphSketch& s) {
    s.pushFrame(-1, 1, kXL + kXR, 0);
    drawLess(s);
    s.popFrame();
}

void drawQuestion(CZemGlyphSketch& s) {
    const double yc = 0.75;
    s.part().start().arc(kXM, yc, kRx, kRT - yc, 160, -90).line(kXM, 0.333559);
    s.part().seg(kXM, 0, kXM, kDot);
}

void drawAt(CZemGlyphSketch& s) {
    const double stem = 0.68;
    s.part().ellipse(0.36, 0.22, stem, 0.66);
    s.move(stem, 0.68).line(stem, 0.3).arc(stem + 0.07, 0.3, 0.07, 0.09, 180, 360);
    s.arc(kXM, 0.45, kRx, 0.45 - kRB, 0, 300);
}

void drawBracketLeft(CZemGlyphSketch& s) {
    const double x = 0.42;
    const double low = kBracketLow + kHalf;
    s.part().move(x, kYT).line(kXL, kYT).line(kXL, low).line(x, low);
}

void drawBackslash(CZemGlyphSketch& s) {
    s.pushFrame(-1, 1, kLeft + 0.7 + kStroke, 0);
    drawSlash(s);
    s.popFrame();
}

void drawBracketRight(CZemGlyphSketch& s) {
    s.pushFrame(-1, 1, kXL + 0.42, 0);
    drawBracketLeft(s);
    s.popFrame();
}

void drawCaret(CZemGlyphSketch& s) {
    s.part().move(0.25, 0.62).line(kXM, kCap).line(0.75, 0.62).clip(-1, -1, 3, kCap);
}

void drawUnderscore(CZemGlyphSketch& s) {
    const double y = kUnderscoreLow + kHalf;
    s.part().seg(kLeft, y, kRight, y);
}

void drawGrave(CZemGlyphSketch& s) {
    const ZemSkPoint a = zem_font_beyond({0.3, 0.8}, {kXL + 0.02, kCap}, 0.05);
    s.part().seg(a.x, a.y, 0.3, 0.8).clip(-1, -1, 3, kCap);
}

void drawBraceLeft(CZemGlyphSketch& s) {
    const double x = 0.33;
    const double end = 0.45;
    const double low = kBracketLow + kHalf;
    s.part().start().arc(end, 0.85, end - x, kYT - 0.85, 90, 180).line(x, 0.62);
    s.arc(kXL, 0.62, x - kXL, 0.12, 0, -70).line(kXL, 0.5).arc(kXL, 0.38, x - kXL, 0.12, 70, 0).line(x, 0.05);
    s.arc(end, 0.05, end - x, 0.05 - low, 180, 270).clip(kLeft, -1, 3, 2);
}

void drawBar(CZemGlyphSketch& s) { s.part().seg(kXL, kBracketLow, kXL, kCap); }

void drawBraceRight(CZemGlyphSketch& s) {
    s.pushFrame(-1, 1, kXL + 0.45, 0);
    drawBraceLeft(s);
    s.popFrame();
}

void drawTilde(CZemGlyphSketch& s) {
    const int n = 12;
    s.part().start();
    for (int k = 0; k <= n; ++k) {
        const double t = static_cast<double>(k) / n;
        s.line(kLeft + (kRight - kLeft) * t, 0.5 + 0.07 * std::sin(2 * kPi * t));
    }
}

}  // namespace

bool zem_font_draw_punct(int code, CZemGlyphSketch& s) {
    using Draw = void (*)(CZemGlyphSketch&);
    static const Draw first[15] = {drawExclam,     drawQuote,      drawHash,     drawDollar,
                                   drawPercent,    drawAmpersand,  drawApostrophe, drawParenLeft,
                                   drawParenRight, drawAsterisk,   drawPlus,     comma,
                                   drawMinus,      period,         drawSlash};
    static const Draw second[7] = {drawColon,   drawSemicolon, drawLess, drawEquals,
                                   drawGreater, drawQuestion,  drawAt};
    static const Draw third[6] = {drawBracketLeft, drawBackslash,  drawBracketRight,
                                  drawCaret,       drawUnderscore, drawGrave};
    static const Draw fourth[4] = {drawBraceLeft, drawBar, drawBraceRight, drawTilde};
    Draw draw = nullptr;
    if (code >= 33 && code <= 47) draw = first[code - 33];
    if (code >= 58 && code <= 64) draw = second[code - 58];
    if (code >= 91 && code <= 96) draw = third[code - 91];
    if (code >= 123 && code <= 126) draw = fourth[code - 123];
    if (draw == nullptr) return false;
    draw(s);
    return true;
}
