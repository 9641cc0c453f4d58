#pragma once

#include "CWinApp.h"

// The library's application object. Loading the library runs the
// framework's start, then InitInstance, then puts the library's resources
// into the search chain; unloading undoes it in reverse.
class CZemMfcApp : public CWinApp {
public:
    CZemMfcApp();
    BOOL InitInstance() override;
};
