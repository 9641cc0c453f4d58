#pragma once

#include "ZemGlyphStroker.h"

#include <string>
#include <vector>

// The character set of the font in the order the font map enters it, one
// list of codes per fill step.
const std::vector<std::vector<int>>& zem_font_fill_steps();

// The number of holes of each region the glyph of code must have, region by
// region; empty for a code outside the font.
std::vector<int> zem_font_expected_holes(int code);

// Checks one glyph: its region and hole structure, every contour a closed
// polygon of distinct points with area, holes inside their outer contour and
// regions apart. False with the reason in error.
bool zem_font_check_glyph(const ZemGlyphOutline& glyph, std::string& error);
