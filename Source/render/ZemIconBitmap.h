#pragma once

#include <windows.h>

// The icon as a bitmap compatible with the display, transparent pixels
// white; the icon is destroyed. Null if the icon or a device fails.
HBITMAP zem_icon_to_bitmap(HICON icon);
