#pragma once

#include <windows.h>

// Writes a bitmap as a PNG file through the platform's imaging component;
// false if a step fails.
bool zemWritePng(HBITMAP bitmap, const wchar_t* path);
