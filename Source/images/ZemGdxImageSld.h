#pragma once

class CZemDataItem;
class CZemGDX;

// Enters the slide name of the slide library lib into gdx: each vector as a
// polyline item, each solid fill as a filled region item, with the item flags
// flags, under the stack path "STACK" of item and placed by its matrix "MTX"
// (item may be null). The name "LEER" (any case) is the empty slide: one
// hidden point at the origin. False for a null list, name or library, a
// slide not found, an unknown header level, or a slide that makes no item.
bool zem_gdx_image_sld(CZemGDX* gdx, const wchar_t* name, const wchar_t* lib, unsigned long flags,
                       CZemDataItem* item);
