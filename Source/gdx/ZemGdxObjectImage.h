#pragma once

class CZemDataItem;
class CZemGDX;

// The default host's drawing of the stored objects that the library itself
// understands, hooked into CZemDefaultHost when this library is loaded:
// - a sheet: the machinings under HOLE, each placed (zem_g_machining);
// - its own geometry: VL, else GEN placed by MOV, ROT and SCAL, else the
//   item itself as an outline item (zem_g_outline); with VIEW 1 and a
//   HEIGHT (and ELEV, in INSUNIT) the side view instead: the rectangle of
//   the plan's Y extent by the height, seen along -X.
// Each polyline becomes one item, solid, under the parameters (may be null):
//   STACK  int list or int   the group path (default none)
//   CMODE  int               the flags word (default 0)
//   MTX    matrix            the item matrix (default identity)
//   COLOR  colour            as in the configuration (default index 7)
// Lengths are in the drawing unit. False, list unchanged, if nothing is drawn.
bool zem_gdx_image_object(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters);
