#include "CWinApp.h"

#include "ZemModuleState.h"

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCWSTR appName) : m_pszAppName(appName) {
    AfxGetStaticModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE* state = AfxGetStaticModuleState();
    if (state->m_pCurrentWinApp == this) state->m_pCurrentWinApp = nullptr;
}

BOOL CWinApp::InitInstance() { return TRUE; }

int CWinApp::ExitInstance() { return 0; }
