#pragma once

#include "ZemArrayTempl.h"
#include "ZemString.h"
#include "ZemUnitTypes.h"

// Lengths in the units of the host drawing system (Zem::lUnit, numbered as
// its INSUNITS). Factors are exact: the inch is 25.4 mm, the foot 12 inches,
// the yard 3 feet, the mile 5280 feet, the astronomical unit 149597870700 m,
// the light year 9460730472580800 m; the parsec is 648000/pi AU.
namespace ZEM {

// Converts a length between units; -1 stands for the drawing unit. False,
// value untouched, for unit 0 or a unit outside -1 to 20.
bool acadUnitCv(double& value, Zem::lUnit from, Zem::lUnit to);
bool acadUnitCv(double value, Zem::lUnit from, Zem::lUnit to, double& out);

// The drawing unit: configuration key INSUNITS if it holds 1 to 20, else
// millimetres. acad_unit_set writes that key.
Zem::lUnit acad_unit_get();
void acad_unit_set(Zem::lUnit unit);

// The names of the units 0 to 20, indexed by unit, in a language (null: the
// message language). Texts come from the messages ZEM_UNIT_00 to ZEM_UNIT_20,
// with German names for DEU and English ones for other languages as their
// defaults. The list lives as long as the process; each call renews it.
CZemArrayTempl<CZemString>& acad_units(const wchar_t* language);

// The display precision of lengths in a unit and format, for a precision
// given in decimal places of millimetres: the places (0 to 16) that show the
// same resolution in the unit, or for the formats 4 and 5 the power of two
// (0 to 8) of the finest fraction that does. Scientific format keeps the
// precision as given. Unit -1 is the drawing unit; unit 0 counts as mm.
int autoPrec(int precision, Zem::lUnit unit, Zem::lFormat format);

}  // namespace ZEM
