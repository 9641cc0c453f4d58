#include "ZemFontMetrics.h"
#include "ZemFontSketches.h"

namespace {


void drawZero(CZemGlyphSketch& s) {
    const double ry = 0.3;
    s.start().arc(kXM, kRT - ry, kRx, ry, 0, 180).arc(kXM, kRB + ry, kRx, ry, 180, 360).close();
}

void drawOne(CZemGlyphSketch& s) {
    const double x = 0.6;
    s.move(0.27, 0.78).line(x, kCap).line(x, 0).clip(-1, 0, 3, kCap);
}

void drawTwo(CZemGlyphSketch& s) {
    const double yc = 0.7;
    s.start().arc(kXM, yc, kRx, kRT - yc, 165, -35).line(kXL, kYB).line(kRight, kYB);
    s.clip(kLeft, 0, kRight + 1, kCap + 1);
}

void drawThree(CZemGlyphSketch& s) {
    const double ym = 0.54;
    const double xm = 0.42;
    const double ryu = (kRT - ym) / 2;
    const double ryl = (ym - kRB) / 2;
    s.start().arc(kXM, ym + ryu, kRx - 0.04, ryu, 150, -90).line(xm, ym);
    s.move(xm, ym).line(kXM, ym).arc(kXM, kRB + ryl, kRx, ryl, 90, -150);
}

void drawFour(CZemGlyphSketch& s) {
    const double x = 0.64;
    const double y = 0.3;
    s.move(kRight, y).line(kXL, y).line(x, kCap).line(x, 0).clip(kLeft, 0, kRight, kCap);
}

void drawFive(CZemGlyphSketch& s) {
    const double x = 0.23;
    const double cx = 0.49;
    const double top = 0.62;
    const double ry = (top - kRB) / 2;
    s.move(kXR - 0.03, kYT).line(x, kYT).line(x, 0.53).arc(cx, kRB + ry, kXR - cx, ry, 140, -145);
}

void drawSix(CZemGlyphSketch& s) {
    const double top = 0.62;
    const double yc = 0.5;
    s.ellipse(kXL, kRB, kXR, top);
    s.start().arc(kXM, yc, kRx, kRT - yc, 40, 180).line(kXL, (kRB + top) / 2);
}

void drawSeven(CZemGlyphSketch& s) {
    const ZemSkPoint end = zem_font_beyond({kXR, kYT}, {0.36, 0}, 0.05);
    s.move(kLeft, kYT).line(kXR, kYT).line(end.x, end.y).clip(kLeft, 0, kRight, kCap);
}

void drawEight(CZemGlyphSketch& s) {
    const double ym = 0.53;
    s.ellipse(kXL + 0.035, ym, kXR - 0.035, kRT).ellipse(kXL, kRB, kXR, ym);
}

void drawNine(CZemGlyphSketch& s) {
    s.pushFrame(-1, -1, 2 * kXM, kRB + kRT);
    drawSix(s);
    s.popFrame();
}

void drawDigit(CZemGlyphSketch& s, int digit) {
    using Draw = void (*)(CZemGlyphSketch&);
    static const Draw digits[10] = {drawZero, drawOne,  drawTwo,   drawThree, drawFour,
                                    drawFive, drawSix, drawSeven, drawEight, drawNine};
    digits[digit](s);
}

// Draws a digit shrunk so that its outline fills the box about (x0, y0)-(x1, y1).
void smallDigit(CZemGlyphSketch& s, int digit, double x0, double y0, double x1, double y1) {
    const double sx = (x1 - x0 - kStroke) / (kXR - kXL);
    const double sy = (y1 - y0 - kStroke) / (kRT - kRB);
    s.pushFrame(sx, sy, x0 + kHalf - sx * kXL, y0 + kHalf - sy * kRB);
    drawDigit(s, digit);
    s.popFrame();
}

void drawSuperscript(CZemGlyphSketch& s, int digit) {
    s.part();
    smallDigit(s, digit, 0.04, 0.38, 0.43, 0.97);
}

void drawFraction(CZemGlyphSketch& s, int numerator, int denominator) {
    s.part();
    smallDigit(s, numerator, kLeft, 0.5, 0.45, kCap);
    const ZemSkPoint a = zem_font_beyond({0.8, kCap}, {0.2, 0}, 0.05);
    const ZemSkPoint b = zem_font_beyond({0.2, 0}, {0.8, kCap}, 0.05);
    s.part().seg(a.x, a.y, b.x, b.y).clip(-1, 0, 3, kCap);
    s.part();
    smallDigit(s, denominator, 0.62, 0, 1.01, 0.5);
}

}  // namespace

bool zem_font_draw_digits(int code, CZemGlyphSketch& s) {
    if (code >= '0' && code <= '9') {
        s.part();
        drawDigit(s, code - '0');
        return true;
    }
    switch (code) {
    case 0xB2: drawSuperscript(s, 2); return true;
    case 0xB3: drawSuperscript(s, 3); return true;
    case 0xBC: drawFraction(s, 1, 4); return true;
    case 0xBD: drawFraction(s, 1, 2); return true;
    case 0xBE: drawFraction(s, 3, 4); return true;
    default: return false;
    }
}
