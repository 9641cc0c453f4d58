#pragma once

#include "ZemGlyphSketch.h"

// The stroke skeletons of the font's characters, one family of drawing
// functions per group. Each draws the strokes of its character into the
// sketch, under the sketch's current frame, and returns false for a code
// outside its group.
bool zem_font_draw_punct(int code, CZemGlyphSketch& s);
bool zem_font_draw_digits(int code, CZemGlyphSketch& s);
bool zem_font_draw_upper(int code, CZemGlyphSketch& s);
bool zem_font_draw_lower(int code, CZemGlyphSketch& s);

// The sketch of any character of the font; false for a code outside it.
bool zem_font_draw(int code, CZemGlyphSketch& s);

// The x at height y of a slanted centre line running towards (tx, ty) whose
// outline edge passes through (edgeX, y); side +1 puts the centre line to the
// right of that edge, -1 to the left.
double zem_font_slant_x(double edgeX, double y, double tx, double ty, int side);

// The point d beyond b on the line from a through b, so that a stroke's end
// reaches past a clip edge.
ZemSkPoint zem_font_beyond(const ZemSkPoint& a, const ZemSkPoint& b, double d);

// The centre line of an S from yLow to yTop: a narrower upper bowl turning
// into a full-width lower one at yMid.
void zem_font_s_curve(CZemGlyphSketch& s, double yLow, double yMid, double yTop);

// Two short upright bars from yLow to yHigh either side of the middle of a
// full-width letter, as the marks of an umlaut; each is a region of its own.
void zem_font_umlaut(CZemGlyphSketch& s, double yLow, double yHigh);
