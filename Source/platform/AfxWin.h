#pragma once

#include <windows.h>

// Start and end of the framework in the module whose state is current.

// The current state takes instance as its instance and resource module, and
// its application object learns the instance.
BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show);
// Removes the framework's window class.
void AfxWinTerm();
// End of a thread: its module state becomes the host's.
void AfxTermThread(HINSTANCE instance = nullptr);

// Registers the common control classes, once per process.
void zemInitCommonControls();
// The framework's plain window class, registered on first use.
LPCWSTR zemDefaultWndClass();
