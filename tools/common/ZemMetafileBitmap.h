#pragma once

#include <windows.h>

// An enhanced metafile played at its own scale (one record unit one pixel)
// onto a new white 32-bit bitmap of width by height; the caller deletes the
// bitmap. Null if the bitmap can't be made or the size is not positive.
HBITMAP zemMetafileBitmap(HENHMETAFILE metafile, int width, int height);
// The metafile file at path played as above and written as a PNG file; false
// if the metafile can't be read or a step fails.
bool zemMetafileToPng(const wchar_t* metafilePath, int width, int height, const wchar_t* pngPath);
