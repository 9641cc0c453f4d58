#pragma once

#include "CCmdTarget.h"
#include "ZemModuleState.h"

#include <windows.h>

// A library whose resources the framework searches after the current module's.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& module, HMODULE hModule);
// Ends the module; with all set, also removes its libraries from the chain.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module, BOOL all = FALSE);

// While alive, puts an extension module's resources into the search chain.
class CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& module);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;

private:
    friend HINSTANCE AfxFindResourceHandle(LPCWSTR, LPCWSTR);
    friend void AfxTermExtensionModule(AFX_EXTENSION_MODULE&, BOOL);

    CDynLinkLibrary* m_pNextDLL = nullptr;
    static CDynLinkLibrary* s_first;
};
