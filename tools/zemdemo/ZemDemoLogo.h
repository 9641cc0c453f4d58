#pragma once

// Writes the demo's logo, a house on a blue tile, as a 24-bit BMP file of
// size by size pixels; false if it can't be drawn or written.
bool zem_demo_logo_write(const wchar_t* path, int size);
