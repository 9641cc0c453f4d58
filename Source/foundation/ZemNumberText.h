#pragma once

#include "ZemUnitTypes.h"

// Writes value into out (room for 60 characters with the closing 0) in a host
// number format: 1 scientific "1.2500E+01", 2 decimal "12.5000", 3 engineering
// "1'-0.50"" and 4 architectural "1'-0 1/2"" (value in inches), 5 fractional
// "12 1/2". precision counts decimal places (clamped to 0..16) for 1 to 3, and
// is the power of two of the finest denominator (clamped to 0..8) for 4 and 5;
// fractions are reduced, halves round away from zero. option suppresses zeros:
// trailing decimal zeros and the point ("12.5", "1.25E+01", "1'-0.5""), and
// zero feet ("6.5"", "1/2""). False, with out untouched, for a null out, a NaN
// or infinite value, a format other than 1..5 or text longer than 59.
bool zemRtoS(wchar_t* out, double value, Zem::lFormat format, int precision, bool option);

// Reads a number as a user typed it: leading and trailing white space, a sign,
// then a plain number ("12.5", "12,5", ".5", "1.25E+01"), a fraction ("1/2",
// "12 1/2", "12-1/2"), inches ("6.5"") or feet and inches ("1'", "1'-0 1/2"",
// "1' 6", "1.5'"), feet counting 12. Everything zemRtoS writes reads back.
// A quiet NaN for a null, empty or unreadable text and for a non-finite result.
double zemAtoF(const wchar_t* text);
