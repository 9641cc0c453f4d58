#pragma once

#include "CBitmap.h"
#include "CDC.h"

#include <windows.h>

// The background colour of the bitmap selected in dc, whose size bitmap
// gives: the colour that comes most often among its four corners and its
// centre, the numerically lowest among equal counts. CLR_INVALID without a
// device or size record.
DWORD zem_gdx_picture_bkcolor_get(CDC* dc, BITMAP* bitmap);

// Draws bitmap at (x, y) of dc at its own size, leaving the pixels of its
// background colour (as above) as they were on dc. The two integers after
// y are not read. Always true.
bool zem_gdx_picture_transparent(CDC* dc, int x, int y, int, int, CBitmap* bitmap);
