#pragma once

class CZemGDX;

// Draws the display list into a new enhanced metafile of height by width
// device units: into the file, or onto the clipboard without a name. The list
// is sorted into drawing order and keeps the view fitted for the metafile.
// True; false only for a null list, which writes nothing.
bool refresh(CZemGDX* gdx, const wchar_t* file, int height, int width);
