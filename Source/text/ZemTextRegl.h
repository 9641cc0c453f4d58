#pragma once

#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

class CZemDataItem;

// Has the host lay a stored text (a directory of the data tree) out as
// regions: the application object's host function "zem_text_to_regl" gets
// the item's list and scale behind it. regl is replaced; true if at least
// one region came back. A failed call and an empty answer both give false.
bool zem_text_to_regl(const CZemDataItem* text, CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& regl,
                      double scale);
