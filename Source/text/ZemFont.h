#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

// The glyph of character c in the built-in stroke font: its regions, each a
// list of closed straight contours (the outer one first, then its holes), in
// a cell of height 1.0 on the baseline y = 0. A copy; empty for a character
// outside the font. The font map is filled on the first call.
CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> get_ascii_from_map(wchar_t c);
// The same, with c cut to its low 16 bits.
CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> get_ascii_from_map(int c);
