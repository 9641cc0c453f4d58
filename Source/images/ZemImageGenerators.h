#pragma once

class CZemDataItem;
class CZemDtaFilePointer;
class CZemGDX;

// Generators that fill a display list from stored data: the picture of an
// interactive wall edit, drilled parts and norm part previews.

// The picture of the wall edit in the configuration (*WALL_EDIT*: BT, MODE,
// VL) for the wall data set wall (may be null): hands the parameters VL, ACT
// (for a shell edit) and COORD to the image function "WALL". False for a null
// list, without an entry number to edit or a "WALL" function, or as "WALL" says.
bool zem_wall_edit_image(CZemGDX* gdx, CZemDtaFilePointer* wall);

// An image function: view 3 of object draws the projection of its solid in a
// fixed isometric view; any other view hands object to the application's
// drawing, with an origin marker if parameters ask for one (COORD 1). False
// for a null list, or when the object's solid can't be made or modelled.
bool zem_gdx_image_drill(CZemGDX* gdx, CZemDtaFilePointer* object, CZemDtaFilePointer* parameters);

// The preview of the norm part at key of the object library, drawn by the
// application under the group path "STACK" of parameters (may be null); a
// "PIECE" gets a second view beside or above the first. False for a null
// list or key, or a key that names no part.
bool zem_gdx_image_norm_prototype(CZemGDX* gdx, const wchar_t* key, CZemDataItem* parameters);
