#include "ZemFontMetrics.h"
#include "ZemFontSketches.h"

namespace {

constexpr double kRoundMid = (kRB + kRT) / 2;
constexpr double kRoundRy = (kRT - kRB) / 2;
constexpr double kCapDots[2] = {1.1, 1.2};

// Clip window of the cap-height glyphs: cuts mitre points and slanted ends
// flat on the baseline and the cap line.
void capBand(CZemGlyphSketch& s) { s.clip(-1, 0, 3, kCap); }

// The outline of A is fixed point by point; its legs stand upright below the
// cross bar and the apex is cut flat at the cap line.
void drawA(CZemGlyphSketch& s) {
    s.part()
        .contour({{0.844746, 0},
                  {0.822373, 0},
                  {0.822373, 0.322712},
                  {0.178305, 0.322712},
                  {0.178305, 0},
                  {0.155932, 0},
                  {0.155932, 0.336271},
                  {0.487458, 1.0},
                  {0.51322, 1.0},
                  {0.844746, 0.336271}})
        .contour({{0.815593, 0.344407}, {0.500339, 0.974915}, {0.185085, 0.344407}});
}

// A stem with a bowl on its right from yTop down to yLow, whose round end
// reaches xRight.
void bowl(CZemGlyphSketch& s, double yTop, double yLow, double xRight, double rx) {
    const double ry = (yTop - yLow) / 2;
    const double bx = xRight - rx;
    s.move(kXL, yTop).line(bx, yTop).arc(bx, yLow + ry, rx, ry, 90, -90).line(kXL, yLow);
}

void drawB(CZemGlyphSketch& s) {
    const double ym = 0.53;
    s.part().seg(kXL, 0, kXL, kCap);
    bowl(s, kYT, ym, kXR - 0.045, 0.23);
    bowl(s, ym, kYB, kXR, 0.26);
}

void drawC(CZemGlyphSketch& s) { s.part().start().arc(kXM, kRoundMid, kRx, kRoundRy, 45, 315); }

void drawD(CZemGlyphSketch& s) {
    s.part().seg(kXL, 0, kXL, kCap);
    bowl(s, kYT, kYB, kXR, 0.38);
}

void drawE(CZemGlyphSketch& s) {
    s.part().move(kRight, kYT).line(kXL, kYT).line(kXL, kYB).line(kRight, kYB);
    s.seg(kXL, 0.5, kXR - 0.08, 0.5);
}

void drawF(CZemGlyphSketch& s) {
    s.part().move(kRight, kYT).line(kXL, kYT).line(kXL, 0);
    s.seg(kXL, 0.5, kXR - 0.08, 0.5);
}

void drawG(CZemGlyphSketch& s) {
    const double yBar = 0.46;
    s.part().start().arc(kXM, kRoundMid, kRx, kRoundRy, 45, 360).line(kXR, yBar).line(kXM + 0.06, yBar);
}

void drawH(CZemGlyphSketch& s) {
    s.part().seg(kXL, 0, kXL, kCap).seg(kXR, 0, kXR, kCap).seg(kXL, 0.5, kXR, 0.5);
}

void drawI(CZemGlyphSketch& s) {
    const double xc = (kLeft + kRightI) / 2;
    s.part().seg(kLeft, kYT, kRightI, kYT).seg(kLeft, kYB, kRightI, kYB).seg(xc, kYT, xc, kYB);
}

void drawJ(CZemGlyphSketch& s) {
    const double yc = 0.33;
    s.part().move(kXR, kCap).line(kXR, yc).arc(kXM, yc, kRx, yc - kRB, 0, -180);
}

void drawK(CZemGlyphSketch& s) {
    const ZemSkPoint top{kXR, kCap};
    const ZemSkPoint joint{kXL, 0.36};
    const double t = 0.6;
    const ZemSkPoint fork{top.x + (joint.x - top.x) * t, top.y + (joint.y - top.y) * t};
    const ZemSkPoint end = zem_font_beyond(fork, {kXR, 0}, 0.05);
    const ZemSkPoint start = zem_font_beyond(joint, top, 0.05);
    s.part().seg(kXL, 0, kXL, kCap).seg(start.x, start.y, joint.x, joint.y).seg(fork.x, fork.y, end.x, end.y);
    s.clip(kLeft, 0, kRight, kCap);
}

void drawL(CZemGlyphSketch& s) { s.part().move(kXL, kCap).line(kXL, kYB).line(kRight, kYB); }

void drawM(CZemGlyphSketch& s) {
    s.part().move(kXL, 0).line(kXL, kCap).line(kXM, 0.25).line(kXR, kCap).line(kXR, 0);
    capBand(s);
}

void drawN(CZemGlyphSketch& s) {
    s.part().move(kXL, 0).line(kXL, kCap).line(kXR, 0).line(kXR, kCap);
    capBand(s);
}

void drawO(CZemGlyphSketch& s) { s.part().ellipse(kXL, kRB, kXR, kRT); }

void drawP(CZemGlyphSketch& s) {
    s.part().seg(kXL, 0, kXL, kCap);
    bowl(s, kYT, 0.45, kXR, 0.28);
}

void drawQ(CZemGlyphSketch& s) {
    const ZemSkPoint end = zem_font_beyond({0.6, 0.2}, {0.84, -0.02}, 0.04);
    s.part().ellipse(kXL, kRB, kXR, kRT).seg(0.6, 0.2, end.x, end.y);
    s.clip(kLeft, kRoundLow, kRight, kRoundHigh);
}

void drawR(CZemGlyphSketch& s) {
    const double ym = 0.45;
    const ZemSkPoint end = zem_font_beyond({0.5, ym}, {kXR, 0}, 0.05);
    s.part().seg(kXL, 0, kXL, kCap);
    bowl(s, kYT, ym, kXR, 0.28);
    s.seg(0.5, ym, end.x, end.y).clip(kLeft, 0, kRight, kCap);
}

void drawS(CZemGlyphSketch& s) {
    s.part();
    zem_font_s_curve(s, kRB, 0.53, kRT);
}

void drawT(CZemGlyphSketch& s) { s.part().seg(kLeft, kYT, kRight, kYT).seg(kXM, kYT, kXM, 0); }

void drawU(CZemGlyphSketch& s) {
    const double yc = 0.36;
    s.part().move(kXL, kCap).line(kXL, yc).arc(kXM, yc, kRx, yc - kRB, 180, 360).line(kXR, kCap);
}

// Two slanted strokes from the cap line down to an apex on the baseline, the
// outer edges through (xLeft, cap) and (xRight, cap).
void vShape(CZemGlyphSketch& s, double xLeft, double apexX, double xRight) {
    const ZemSkPoint apex{apexX, 0};
    const ZemSkPoint a = zem_font_beyond(apex, {zem_font_slant_x(xLeft, kCap, apex.x, 0, 1), kCap}, 0.05);
    const ZemSkPoint b = zem_font_beyond(apex, {zem_font_slant_x(xRight, kCap, apex.x, 0, -1), kCap}, 0.05);
    s.move(a.x, a.y).line(apex.x, apex.y).line(b.x, b.y);
}

void drawV(CZemGlyphSketch& s) {
    s.part();
    vShape(s, kLeft, (kLeft + kRightV) / 2, kRightV);
    capBand(s);
}

void drawW(CZemGlyphSketch& s) {
    const double mid = (kLeft + kRightW) / 2;
    const double span = kRightW - kLeft;
    const ZemSkPoint apex1{kLeft + span * 0.25, 0};
    const ZemSkPoint apex2{kLeft + span * 0.75, 0};
    const ZemSkPoint a = zem_font_beyond(apex1, {zem_font_slant_x(kLeft, kCap, apex1.x, 0, 1), kCap}, 0.05);
    const ZemSkPoint b = zem_font_beyond(apex2, {zem_font_slant_x(kRightW, kCap, apex2.x, 0, -1), kCap}, 0.05);
    s.part().move(a.x, a.y).line(apex1.x, 0).line(mid, 0.8).line(apex2.x, 0).line(b.x, b.y);
    capBand(s);
}

void drawX(CZemGlyphSketch& s) {
    const double xa = zem_font_slant_x(kLeft, kCap, kXR, 0, 1);
    const double xb = zem_font_slant_x(kRight, kCap, kXL, 0, -1);
    const ZemSkPoint a0 = zem_font_beyond({kLeft + kRight - xa, 0}, {xa, kCap}, 0.05);
    const ZemSkPoint a1 = zem_font_beyond({xa, kCap}, {kLeft + kRight - xa, 0}, 0.05);
    const ZemSkPoint b0 = zem_font_beyond({kLeft + kRight - xb, 0}, {xb, kCap}, 0.05);
    const ZemSkPoint b1 = zem_font_beyond({xb, kCap}, {kLeft + kRight - xb, 0}, 0.05);
    s.part().seg(a0.x, a0.y, a1.x, a1.y).seg(b0.x, b0.y, b1.x, b1.y);
    capBand(s);
}

void drawY(CZemGlyphSketch& s) {
    const ZemSkPoint fork{kXM, 0.47};
    const ZemSkPoint a = zem_font_beyond(fork, {zem_font_slant_x(kLeft, kCap, fork.x, fork.y, 1), kCap}, 0.05);
    const ZemSkPoint b = zem_font_beyond(fork, {zem_font_slant_x(kRight, kCap, fork.x, fork.y, -1), kCap}, 0.05);
    s.part().move(a.x, a.y).line(fork.x, fork.y).line(b.x, b.y).seg(fork.x, fork.y, fork.x, 0);
    capBand(s);
}

void drawZ(CZemGlyphSketch& s) {
    s.part().move(kLeft, kYT).line(kXR, kYT).line(kXL, kYB).line(kRight, kYB);
    s.clip(kLeft, 0, kRight, kCap);
}

}  // namespace

bool zem_font_draw_upper(int code, CZemGlyphSketch& s) {
    using Draw = void (*)(CZemGlyphSketch&);
    static const Draw letters[26] = {drawA, drawB, drawC, drawD, drawE, drawF, drawG,
                                     drawH, drawI, drawJ, drawK, drawL, drawM, drawN,
                                     drawO, drawP, drawQ, drawR, drawS, drawT, drawU,
                                     drawV, drawW, drawX, drawY, drawZ};
    if (code >= 'A' && code <= 'Z') {
        letters[code - 'A'](s);
        return true;
    }
    const int base = code == 0xC4 ? 'A' : code == 0xD6 ? 'O' : code == 0xDC ? 'U' : 0;
    if (base == 0) return false;
    letters[base - 'A'](s);
    zem_font_umlaut(s, kCapDots[0], kCapDots[1]);
    return true;
}
