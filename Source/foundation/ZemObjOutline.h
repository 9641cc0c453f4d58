#pragma once

#include "ZemDataItem.h"
#include "ZemString.h"
#include "ZemUnitTypes.h"
#include "ZemVertexArray.h"

// Stored outline items, as the sheet dialog writes them: a directory of
// TYPE "OUTLINE" with ID (the form of ZEM::g_outline), BASE (its base
// point), PARM1, PARM2, ... (the parameters, up to the first one missing)
// and INSUNIT (the unit of BASE and the parameters).

// The outline of an outline item in a unit (-1: the drawing unit), scaled
// from INSUNIT (absent: already in unit). False, out untouched, for a null
// item, a value, another TYPE, no ID, a unit that does not convert, or a
// form that gives no outline.
bool zem_g_outline(CZemVertexArray& out, CZemDataItem* item, Zem::lUnit unit);

// The polyline of a machining (a directory with GEN, MOV, ROT, SCAL and
// INSUNIT) in a unit: GEN's outline, or GEN's plain polyline taken in
// INSUNIT, scaled by SCAL (default 1, 1; z stays 1), turned by ROT and moved
// by MOV, which is in INSUNIT. False, out untouched, if GEN gives no polyline.
bool zem_g_machining(CZemVertexArray& out, CZemDataItem* machining, Zem::lUnit unit);

namespace ZEM {

// The label of a stored object in a language (null: the message language).
// An outline item: the message of its form's LABEL in the outline catalogue
// (*ZEM_OUTLINE* of the configuration, else the default one) followed by its
// parameters, as "Rechteck 100 x 50". Another object: its LABEL (a label
// text, ZemLabel.h), else the label of its GEN. Empty if none.
CZemString obj_label(CZemDataItem* item, const wchar_t* language);

}  // namespace ZEM
