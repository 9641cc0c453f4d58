#include "CDynLinkLibrary.h"

#include "ZemModuleState.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary* CDynLinkLibrary::s_first = nullptr;

CDynLinkLibrary::CDynLinkLibrary(const AFX_EXTENSION_MODULE& module)
    : m_hModule(module.hModule), m_hResource(module.hResource), m_pNextDLL(s_first) {
    s_first = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    for (CDynLinkLibrary** link = &s_first; *link != nullptr; link = &(*link)->m_pNextDLL) {
        if (*link == this) {
            *link = m_pNextDLL;
            break;
        }
    }
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& module, HMODULE hModule) {
    if (hModule == nullptr) return FALSE;
    if (!module.bInitialized) {
        module.hModule = hModule;
        module.hResource = hModule;
        module.bInitialized = TRUE;
    }
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module, BOOL all) {
    if (all) {
        CDynLinkLibrary* lib = CDynLinkLibrary::s_first;
        while (lib != nullptr) {
            CDynLinkLibrary* next = lib->m_pNextDLL;
            if (lib->m_hModule == module.hModule) delete lib;
            lib = next;
        }
    }
    module.bInitialized = FALSE;
}

HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type) {
    HINSTANCE current = AfxGetResourceHandle();
    if (current != nullptr && FindResourceW(current, name, type) != nullptr) return current;
    for (CDynLinkLibrary* lib = CDynLinkLibrary::s_first; lib != nullptr; lib = lib->m_pNextDLL) {
        if (lib->m_hResource != nullptr && FindResourceW(lib->m_hResource, name, type) != nullptr) {
            return lib->m_hResource;
        }
    }
    return current;
}
