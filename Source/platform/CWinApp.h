#pragma once

#include "CCmdTarget.h"

#include <windows.h>

// The application object of a module; the library has one, made by a static
// constructor, and runs its InitInstance when loaded and ExitInstance when
// unloaded.
class CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)
public:
    // Becomes the application object of this library's module state.
    explicit CWinApp(LPCWSTR appName = nullptr);
    ~CWinApp() override;

    // False makes the load fail.
    virtual BOOL InitInstance();
    virtual int ExitInstance();

    HINSTANCE m_hInstance = nullptr;
    LPCWSTR m_pszAppName;
};
