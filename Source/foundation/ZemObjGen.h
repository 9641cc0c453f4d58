#pragma once

#include "ZemArrayTempl.h"
#include "ZemDataItem.h"
#include "ZemString.h"

class CZem_Solid;

// Stored objects: the object library, generation, and solids from data. The
// library is the data set of configuration key OBJECTS (ZEM::cfgDataSet;
// default file zem_obj.dta); an object key is a text path in it, as
// "NORM\DIN125\M8".
//
// A stored body, read by zemObjModel:
//   VL       polyline      its outline, closed; or
//   GEN      outline item  or plain polyline, as a machining's (ZemObjOutline.h)
//   HEIGHT   double        extrusion along Z, not 0 (negative: downwards)
//   ELEV     double        z of its base (default 0)
//   INSUNIT  unit          of VL, HEIGHT and ELEV (default: the drawing unit)
//   HOLE     directory     machinings cut through it, as the sheet dialog
//                          stores them; holes that are not closed are left out
// An object holds one body, or several under SOLID (a directory of bodies).

namespace ZEM {

// Generates the derived geometry of a stored object: VL, the polyline of its
// GEN (an outline item or a plain polyline) in the drawing unit. The number
// is not read. False, item unchanged, for a null item, a value, or no GEN
// that gives a polyline.
bool objGen(CZemDataItem* item, int mode);

}  // namespace ZEM

// A copy of the object at a key of the object library, which the caller
// deletes; null if there is no directory there.
CZemDataItem* zem_obj_key_to_gen(const wchar_t* key);

// The names of the coordinate points of a norm part: the keys of its SCORDP
// directory, in stored order; none for a null item or no SCORDP.
CZemArrayTempl<CZemString> zem_norm_scordp(CZemDataItem* item);

// Replaces the content of solid by the bodies stored in item, in the drawing
// unit. False if no body gives a prism.
bool zemObjModel(CZem_Solid& solid, CZemDataItem* item);
