#pragma once

#include <windows.h>

class CWinApp;

// What the framework knows of one module: its instance, the module its
// resources come from first, and its application object. Two exist: the
// host's (the process's program) and this library's.
class CZemModuleState {
public:
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    CWinApp* m_pCurrentWinApp = nullptr;
};

using AFX_MODULE_STATE = CZemModuleState;

// The state in force on this thread: the last one switched to, else the host's.
AFX_MODULE_STATE* AfxGetModuleState();
// Makes state current on this thread (null: the host's); returns the former one.
AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state);
// This library's own state.
AFX_MODULE_STATE* AfxGetStaticModuleState();
HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE resources);
// The module that holds a resource: the current state's resources first,
// then each library of the chain (CDynLinkLibrary); the current resources if
// none has it.
HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);
// The application object of the current state; the host has none.
CWinApp* AfxGetApp();
