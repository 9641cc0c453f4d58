#include "ZemModuleState.h"

namespace {

CZemModuleState g_libraryState;
CZemModuleState g_hostState;
thread_local CZemModuleState* t_current = nullptr;

CZemModuleState* hostState() {
    if (g_hostState.m_hCurrentInstanceHandle == nullptr) {
        g_hostState.m_hCurrentInstanceHandle = GetModuleHandleW(nullptr);
        g_hostState.m_hCurrentResourceHandle = g_hostState.m_hCurrentInstanceHandle;
    }
    return &g_hostState;
}

}  // namespace

AFX_MODULE_STATE* AfxGetModuleState() { return t_current != nullptr ? t_current : hostState(); }

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state) {
    AFX_MODULE_STATE* former = AfxGetModuleState();
    t_current = state;
    return former;
}

AFX_MODULE_STATE* AfxGetStaticModuleState() { return &g_libraryState; }

HINSTANCE AfxGetInstanceHandle() { return AfxGetModuleState()->m_hCurrentInstanceHandle; }

HINSTANCE AfxGetResourceHandle() { return AfxGetModuleState()->m_hCurrentResourceHandle; }

void AfxSetResourceHandle(HINSTANCE resources) { AfxGetModuleState()->m_hCurrentResourceHandle = resources; }

CWinApp* AfxGetApp() { return AfxGetModuleState()->m_pCurrentWinApp; }
