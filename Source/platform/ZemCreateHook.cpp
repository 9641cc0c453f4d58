#include "ZemCreateHook.h"

#include "CWnd.h"

#include <cwchar>

namespace {

thread_local CWnd* t_pending = nullptr;

// Input method windows appear while a top-level window is made; they are
// not the window that was asked for.
bool isInputMethodWindow(HWND hwnd) {
    wchar_t name[32] = {};
    GetClassNameW(hwnd, name, 32);
    return _wcsicmp(name, L"IME") == 0 || _wcsicmp(name, L"MSCTFIME UI") == 0;
}

}  // namespace

CZemCreateHook::CZemCreateHook(CWnd* wnd)
    : m_outerPending(t_pending), m_hook(SetWindowsHookExW(WH_CBT, cbtProc, nullptr, GetCurrentThreadId())) {
    t_pending = wnd;
}

CZemCreateHook::~CZemCreateHook() {
    if (m_hook != nullptr) UnhookWindowsHookEx(m_hook);
    t_pending = m_outerPending;
}

LRESULT CALLBACK CZemCreateHook::cbtProc(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && t_pending != nullptr) {
        HWND hwnd = reinterpret_cast<HWND>(wParam);
        if (!isInputMethodWindow(hwnd)) {
            CWnd* wnd = t_pending;
            t_pending = nullptr;
            wnd->bindAtCreation(hwnd);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
