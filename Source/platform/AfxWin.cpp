#include "AfxWin.h"

#include "CWinApp.h"
#include "ZemModuleState.h"

#include <commctrl.h>

namespace {

const wchar_t kDefaultClass[] = L"ZemMfcWnd";
ATOM g_defaultClass = 0;

}  // namespace

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
    if (instance == nullptr) return FALSE;
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = instance;
    state->m_hCurrentResourceHandle = instance;
    if (state->m_pCurrentWinApp != nullptr) state->m_pCurrentWinApp->m_hInstance = instance;
    return TRUE;
}

void AfxWinTerm() {
    if (g_defaultClass != 0) {
        UnregisterClassW(kDefaultClass, AfxGetStaticModuleState()->m_hCurrentInstanceHandle);
        g_defaultClass = 0;
    }
}

void AfxTermThread(HINSTANCE) { AfxSetModuleState(nullptr); }

void zemInitCommonControls() {
    static bool done = false;
    if (done) return;
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    done = InitCommonControlsEx(&controls) != FALSE;
}

LPCWSTR zemDefaultWndClass() {
    if (g_defaultClass == 0) {
        WNDCLASSEXW cls = {};
        cls.cbSize = sizeof cls;
        cls.style = CS_DBLCLKS;
        cls.lpfnWndProc = DefWindowProcW;
        cls.hInstance = AfxGetStaticModuleState()->m_hCurrentInstanceHandle;
        cls.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        cls.lpszClassName = kDefaultClass;
        g_defaultClass = RegisterClassExW(&cls);
    }
    return kDefaultClass;
}
