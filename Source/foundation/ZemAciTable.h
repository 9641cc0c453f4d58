#pragma once

// The host drawing system's 256 colour indices as Windows colour values
// (R + 256 G + 65536 B). Index 0 and indices outside 0..255 give black.
unsigned long zem_aci_rgb(int index);
