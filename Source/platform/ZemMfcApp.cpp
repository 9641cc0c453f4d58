#include "ZemMfcApp.h"

#include "AfxWin.h"
#include "CDynLinkLibrary.h"
#include "CWnd.h"
#include "ZemConfig.h"
#include "ZemModuleStateGuard.h"

#include <cwchar>
#include <new>

namespace {

CZemMfcApp theApp;
AFX_EXTENSION_MODULE g_extension;

// Undoes the start after a failed step; the load then fails.
BOOL failLoad() {
    theApp.ExitInstance();
    AfxWinTerm();
    return FALSE;
}

BOOL attachProcess(HINSTANCE instance) {
    if (!AfxWinInit(instance, nullptr, nullptr, 0)) return FALSE;
    if (!theApp.InitInstance()) return failLoad();
    if (!AfxInitExtensionModule(g_extension, instance)) return failLoad();
    if (new (std::nothrow) CDynLinkLibrary(g_extension) == nullptr) return failLoad();
    return TRUE;
}

void detachProcess() {
    theApp.ExitInstance();
    CWnd::DeleteTempMap();
    AfxWinTerm();
    AfxTermExtensionModule(g_extension, TRUE);
}

}  // namespace

CZemMfcApp::CZemMfcApp() : CWinApp(L"Zem_Mfc") {}

// The configuration file zem.cfg is looked for beside the library.
BOOL CZemMfcApp::InitInstance() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(m_hInstance, path, MAX_PATH);
    if (length > 0 && length < MAX_PATH) {
        if (wchar_t* slash = wcsrchr(path, L'\\')) *slash = 0;
        ZEM::cfgLibraryDirSet(path);
    }
    return CWinApp::InitInstance();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return attachProcess(instance);
    case DLL_PROCESS_DETACH:
        detachProcess();
        break;
    case DLL_THREAD_DETACH:
        CWnd::DeleteTempMap();
        AfxTermThread(instance);
        break;
    default:
        break;
    }
    return TRUE;
}
