#include "ZemFontMetrics.h"
#include "ZemFontSketches.h"

namespace {

constexpr double kMidX = (kRB + kYX) / 2;
constexpr double kRyX = (kYX - kRB) / 2;
constexpr double kLowDots[2] = {1.0 - kDot, 1.0};

// Clip window of the x-height glyphs with slanted strokes.
void xBand(CZemGlyphSketch& s, double low) { s.clip(-1, low, 3, kXHeight); }

void roundBody(CZemGlyphSketch& s) { s.ellipse(kXL, kRB, kXR, kYX); }

void drawA(CZemGlyphSketch& s) {
    const double yc = 0.46;
    s.part().start().arc(kXM, yc, kRx, kYX - yc, 155, 0).line(kXR, 0);
    s.ellipse(kXL, kRB, kXR, 0.4);
}

void drawB(CZemGlyphSketch& s) {
    s.part().seg(kXL, kCap, kXL, 0);
    roundBody(s);
}

void drawC(CZemGlyphSketch& s) { s.part().start().arc(kXM, kMidX, kRx, kRyX, 45, 315); }

void drawD(CZemGlyphSketch& s) {
    s.part().seg(kXR, kCap, kXR, 0);
    roundBody(s);
}

void drawE(CZemGlyphSketch& s) {
    s.part().move(kXL, kMidX).line(kXR, kMidX).arc(kXM, kMidX, kRx, kRyX, 0, 320);
}

void drawF(CZemGlyphSketch& s) {
    const double xs = 0.33;
    const double yc = 0.78;
    s.part().move(xs, 0).line(xs, yc).arc(xs + 0.2, yc, 0.2, kYT - yc, 180, 35);
    s.seg(kLeft, kYX, 0.6, kYX);
}

// A stem on the right from the x-height down to y, hooked to the left below.
void descHook(CZemGlyphSketch& s, double x, double yc, double rx, double endAngle) {
    const double bottom = kDescGjy + kHalf;
    s.move(x, kXHeight).line(x, yc).arc(x - rx, yc, rx, yc - bottom, 0, endAngle);
}

void drawG(CZemGlyphSketch& s) {
    s.part();
    roundBody(s);
    descHook(s, kXR, -0.1, kRx, -165);
}

// An arch from a stem at x0 over to a stem at x1 that ends on the baseline.
void arch(CZemGlyphSketch& s, double x0, double x1, double y) {
    const double r = (x1 - x0) / 2;
    s.start().arc(x0 + r, y, r, kYX - y, 180, 0).line(x1, 0);
}

void drawH(CZemGlyphSketch& s) {
    s.part().seg(kXL, kCap, kXL, 0);
    arch(s, kXL, kXR, 0.35);
}

void drawI(CZemGlyphSketch& s) {
    s.part().seg(kXL, 0, kXL, kXHeight);
    s.part().seg(kXL, kLowDots[0], kXL, kLowDots[1]);
}

void drawJ(CZemGlyphSketch& s) {
    const double x = kXL + 0.3;
    s.part();
    descHook(s, x, -0.08, 0.15, -180);
    s.part().seg(x, kLowDots[0], x, kLowDots[1]);
}

void drawK(CZemGlyphSketch& s) {
    const ZemSkPoint top{kXR - 0.05, kXHeight};
    const ZemSkPoint joint{kXL, 0.22};
    const double t = 0.55;
    const ZemSkPoint fork{top.x + (joint.x - top.x) * t, top.y + (joint.y - top.y) * t};
    const ZemSkPoint start = zem_font_beyond(joint, top, 0.05);
    const ZemSkPoint end = zem_font_beyond(fork, {kXR, 0}, 0.05);
    s.part().seg(kXL, 0, kXL, kCap).seg(start.x, start.y, joint.x, joint.y).seg(fork.x, fork.y, end.x, end.y);
    s.clip({{kLeft, 0}, {kRight, 0}, {kRight, kXHeight}, {0.25, kXHeight}, {0.25, kCap}, {kLeft, kCap}});
}

// A stem from yTop that turns right at the foot and ends at xEnd.
void footStem(CZemGlyphSketch& s, double x, double yTop, double xEnd) {
    const double r = 0.1;
    s.move(x, yTop).line(x, kYB + r).arc(x + r, kYB + r, r, r, 180, 270).line(xEnd, kYB);
}

void drawL(CZemGlyphSketch& s) {
    s.part();
    footStem(s, kXL, kCap, kRightL);
}

void drawM(CZemGlyphSketch& s) {
    s.part().seg(kXL, kXHeight, kXL, 0);
    arch(s, kXL, kXM, 0.42);
    arch(s, kXM, kXR, 0.42);
}

void drawN(CZemGlyphSketch& s) {
    s.part().seg(kXL, kXHeight, kXL, 0);
    arch(s, kXL, kXR, 0.35);
}

void drawO(CZemGlyphSketch& s) {
    s.part();
    roundBody(s);
}

void drawP(CZemGlyphSketch& s) {
    s.part().seg(kXL, kXHeight, kXL, kDescPq);
    roundBody(s);
}

void drawQ(CZemGlyphSketch& s) {
    s.part().seg(kXR, kXHeight, kXR, kDescPq);
    roundBody(s);
}

void drawR(CZemGlyphSketch& s) {
    const double yc = 0.35;
    s.part().seg(kXL, kXHeight, kXL, 0).start().arc(kXL + 0.3, yc, 0.3, kYX - yc, 180, 50);
}

void drawS(CZemGlyphSketch& s) {
    s.part();
    zem_font_s_curve(s, kRB, 0.35, kYX);
}

void drawT(CZemGlyphSketch& s) {
    s.part();
    footStem(s, 0.33, 0.92, 0.62);
    s.seg(kLeft, kYX, 0.62, kYX);
}

void drawU(CZemGlyphSketch& s) {
    const double yc = 0.33;
    s.part().move(kXL, kXHeight).line(kXL, yc).arc(kXM, yc, kRx, yc - kRB, 180, 360).line(kXR, kXHeight);
    s.seg(kXR, yc, kXR, 0);
}

// Strokes from the x-height through the apexes to the far top corner; the
// outer edges meet the x-height at the left and right edge of the letter.
void zigzag(CZemGlyphSketch& s, const std::vector<ZemSkPoint>& inner) {
    const ZemSkPoint& first = inner.front();
    const ZemSkPoint& last = inner.back();
    const double xa = zem_font_slant_x(kLeft, kXHeight, first.x, first.y, 1);
    const double xb = zem_font_slant_x(kRight, kXHeight, last.x, last.y, -1);
    const ZemSkPoint a = zem_font_beyond(first, {xa, kXHeight}, 0.05);
    const ZemSkPoint b = zem_font_beyond(last, {xb, kXHeight}, 0.05);
    s.move(a.x, a.y);
    for (const ZemSkPoint& p : inner) s.line(p.x, p.y);
    s.line(b.x, b.y);
}

void drawV(CZemGlyphSketch& s) {
    s.part();
    zigzag(s, {{kXM, 0}});
    xBand(s, 0);
}

void drawW(CZemGlyphSketch& s) {
    s.part();
    zigzag(s, {{0.33, 0}, {kXM, 0.55}, {0.67, 0}});
    xBand(s, 0);
}

void drawX(CZemGlyphSketch& s) {
    const double c = kXHeight / 2;
    const double xa = zem_font_slant_x(kLeft, kXHeight, kXM, c, 1);
    const ZemSkPoint a0 = zem_font_beyond({kXM, c}, {xa, kXHeight}, 0.05);
    const ZemSkPoint a1 = zem_font_beyond({kXM, c}, {2 * kXM - xa, 0}, 0.05);
    const ZemSkPoint b0 = zem_font_beyond({kXM, c}, {2 * kXM - xa, kXHeight}, 0.05);
    const ZemSkPoint b1 = zem_font_beyond({kXM, c}, {xa, 0}, 0.05);
    s.part().seg(a0.x, a0.y, a1.x, a1.y).seg(b0.x, b0.y, b1.x, b1.y);
    xBand(s, 0);
}

void drawY(CZemGlyphSketch& s) {
    const ZemSkPoint low{0.32, kDescGjy};
    const double xr = zem_font_slant_x(kRight, kXHeight, low.x, low.y, -1);
    const double t = kXHeight / (kXHeight - low.y);
    const ZemSkPoint meet{xr + (low.x - xr) * t, 0};
    const double xl = zem_font_slant_x(kLeft, kXHeight, meet.x, meet.y, 1);
    const ZemSkPoint a = zem_font_beyond(meet, {xl, kXHeight}, 0.05);
    const ZemSkPoint b = zem_font_beyond(low, {xr, kXHeight}, 0.05);
    const ZemSkPoint c = zem_font_beyond({xr, kXHeight}, low, 0.05);
    s.part().seg(a.x, a.y, meet.x, meet.y).seg(b.x, b.y, c.x, c.y);
    xBand(s, kDescGjy);
}

void drawZ(CZemGlyphSketch& s) {
    s.part().move(kLeft, kYX).line(kXR, kYX).line(kXL, kYB).line(kRight, kYB);
    s.clip(kLeft, 0, kRight, kXHeight);
}

void drawSharpS(CZemGlyphSketch& s) {
    const double yTop = 0.72;
    const double yMid = 0.45;
    const double rxu = 0.28;
    const double bx = 0.55;
    const double ryl = (yMid - kRB) / 2;
    s.part().move(kXL, 0).line(kXL, yTop).arc(kXL + rxu, yTop, rxu, kYT - yTop, 180, -90);
    s.line(0.37, yMid).move(0.37, yMid).line(bx, yMid).arc(bx, kRB + ryl, kXR - bx, ryl, 90, -150);
}

void drawPlusMinus(CZemGlyphSketch& s) {
    const double y = 0.6;
    s.part().seg(kBarLeft, y, kBarRight, y).seg(kXM, y - kBarHalf, kXM, y + kBarHalf);
    s.part().seg(kBarLeft, kYB, kBarRight, kYB);
}

void drawOrdinal(CZemGlyphSketch& s) { s.part().ellipse(kXL, 0.6, 0.47, kYT); }

}  // namespace

bool zem_font_draw_lower(int code, CZemGlyphSketch& s) {
    using Draw = void (*)(CZemGlyphSketch&);
    static const Draw letters[26] = {drawA, drawB, drawC, drawD, drawE, drawF, drawG,
                                     drawH, drawI, drawJ, drawK, drawL, drawM, drawN,
                                     drawO, drawP, drawQ, drawR, drawS, drawT, drawU,
                                     drawV, drawW, drawX, drawY, drawZ};
    if (code >= 'a' && code <= 'z') {
        letters[code - 'a'](s);
        return true;
    }
    switch (code) {
    case 0xDF: drawSharpS(s); return true;
    case 0xB1: drawPlusMinus(s); return true;
    case 0xBA: drawOrdinal(s); return true;
    default: break;
    }
    const int base = code == 0xE4 ? 'a' : code == 0xF6 ? 'o' : code == 0xFC ? 'u' : 0;
    if (base == 0) return false;
    letters[base - 'a'](s);
    zem_font_umlaut(s, 0.82, 0.96);
    return true;
}
