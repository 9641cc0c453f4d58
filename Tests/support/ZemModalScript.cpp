#include "ZemModalScript.h"

#include "ZemTestHost.h"

#include <cwchar>
#include <string>

namespace {

// The script whose timer is running; one at a time.
CZemModalScript* g_active = nullptr;

constexpr UINT kTickMs = 20;

bool isDialogOfThisThread(HWND hwnd) {
    if (GetWindowThreadProcessId(hwnd, nullptr) != GetCurrentThreadId()) return false;
    if (!IsWindowVisible(hwnd) || !IsWindowEnabled(hwnd)) return false;
    wchar_t name[16] = {};
    GetClassNameW(hwnd, name, 16);
    return std::wcscmp(name, L"#32770") == 0;
}

}  // namespace

CZemModalScript::CZemModalScript(std::vector<Step> steps, UINT limitMs) : m_steps(std::move(steps)), m_limitMs(limitMs) {}

CZemModalScript::~CZemModalScript() {
    if (m_timer != 0) KillTimer(nullptr, m_timer);
    if (g_active == this) g_active = nullptr;
}

void CZemModalScript::arm() {
    g_active = this;
    m_started = GetTickCount();
    m_timer = SetTimer(nullptr, 0, kTickMs, &CZemModalScript::tick);
}

HWND CZemModalScript::topDialog() {
    for (HWND hwnd = GetTopWindow(nullptr); hwnd != nullptr; hwnd = GetWindow(hwnd, GW_HWNDNEXT)) {
        if (isDialogOfThisThread(hwnd)) return hwnd;
    }
    return nullptr;
}

void CALLBACK CZemModalScript::tick(HWND, UINT, UINT_PTR timer, DWORD) {
    if (g_active == nullptr || g_active->m_timer != timer) {
        KillTimer(nullptr, timer);
        return;
    }
    g_active->step();
}

void CZemModalScript::step() {
    HWND dialog = topDialog();
    if (dialog == nullptr) return;
    if (GetTickCount() - m_started > m_limitMs) {
        m_timedOut = true;
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    if (finished()) return;
    if (m_next == 0) {
        wchar_t caption[256] = {};
        GetWindowTextW(dialog, caption, 256);
        m_firstCaption = caption;
    }
    // Advance first: a step may open a nested loop that ticks meanwhile.
    const Step& current = m_steps[m_next++];
    current(dialog);
}

CZemModalScript::Step CZemModalScript::clickButton(int id) {
    return [id](HWND dialog) {
        HWND button = GetDlgItem(dialog, id);
        if (button != nullptr) {
            SendMessageW(button, BM_CLICK, 0, 0);
        } else {
            PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0);
        }
    };
}

CZemModalScript::Step CZemModalScript::pressKey(UINT virtualKey) {
    return [virtualKey](HWND dialog) {
        HWND focus = GetFocus();
        CZemTestHost::postKey(focus != nullptr ? focus : dialog, virtualKey);
    };
}

CZemModalScript::Step CZemModalScript::pressKeyOn(int id, UINT virtualKey) {
    return [id, virtualKey](HWND dialog) {
        HWND item = GetDlgItem(dialog, id);
        SetFocus(item);
        CZemTestHost::postKey(item != nullptr ? item : dialog, virtualKey);
    };
}

CZemModalScript::Step CZemModalScript::setText(int id, const wchar_t* text) {
    const std::wstring copy(text);
    return [id, copy](HWND dialog) { SetDlgItemTextW(dialog, id, copy.c_str()); };
}

CZemModalScript::Step CZemModalScript::focusItem(int id) {
    return [id](HWND dialog) { SetFocus(GetDlgItem(dialog, id)); };
}
