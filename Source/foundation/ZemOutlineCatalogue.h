#pragma once

#include "ZemDataItem.h"

// Writes the default outline catalogue into a directory (a value node
// becomes one; entries of the same numbers are replaced): one entry for each
// form of ZEM::g_outline, under its number as an integer key, with
//   CODE    int     groups: 1 basic forms, 2 further forms, 4 profiles,
//                   8 machinings
//   LABEL   string  message key of the form's name (ZEM_OUTL_0011 to 0031)
//   TXTGEN  int     3
//   PARMS   int     number of parameters
//   PARMn   dir     each parameter, from 1:
//     LABEL   string  message key of its name (positive sense)
//     MINUSP  string  message key of the negative sense, for a parameter
//                     whose sign mirrors the form or moves a part to the
//                     other side
//     VALID   int     edit flags: 1 required, 2 no zero, 4 no negative
//     TYPE    string  "L" a length, "A" an angle (radians; for form 21
//                     the sweep in degrees), "N" a count
//     KWORD   dir     words for values, as "Halbkreis" for pi
//     VAL     dir     defaults under the keys 1 to 4 for the four ranges;
//                     lengths grow tenfold from range to range
// False for a null item.
bool zemOutlineInit(CZemDataItem* catalogue);
