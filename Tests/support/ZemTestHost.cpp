#include "ZemTestHost.h"

#include <commctrl.h>

namespace {

const wchar_t kHostClass[] = L"ZemTestHost";

std::wstring textOf(HWND hwnd) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(hwnd)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(hwnd, &text[0], static_cast<int>(text.size()))));
    return text;
}

void registerHostClass(WNDPROC proc) {
    WNDCLASSEXW cls = {};
    cls.cbSize = sizeof cls;
    cls.style = CS_DBLCLKS;
    cls.lpfnWndProc = proc;
    cls.hInstance = GetModuleHandleW(nullptr);
    cls.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    cls.lpszClassName = kHostClass;
    RegisterClassExW(&cls);
}

}  // namespace

CZemTestHost::CZemTestHost(int width, int height) {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    registerHostClass(&CZemTestHost::windowProc);
    m_hwnd = CreateWindowExW(0, kHostClass, L"Test host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 10, 10, width, height,
                             nullptr, nullptr, GetModuleHandleW(nullptr), this);
    ShowWindow(m_hwnd, SW_SHOW);
    SetForegroundWindow(m_hwnd);
    SetActiveWindow(m_hwnd);
    pump();
}

CZemTestHost::~CZemTestHost() {
    if (IsWindow(m_hwnd)) DestroyWindow(m_hwnd);
    pump();
}

HWND CZemTestHost::addControl(const wchar_t* windowClass, DWORD style, int id, RECT rect, const wchar_t* text) {
    return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                           rect.right - rect.left, rect.bottom - rect.top, m_hwnd,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
}

void CZemTestHost::hear(UINT message, UINT code, UINT id, HWND from) {
    m_heard.push_back(Heard{message, code, id, from != nullptr ? textOf(from) : std::wstring()});
}

LRESULT CALLBACK CZemTestHost::windowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* host = reinterpret_cast<CZemTestHost*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (host != nullptr && message == WM_COMMAND && lParam != 0) {
        host->hear(message, HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam));
    } else if (host != nullptr && message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        host->hear(message, header->code, static_cast<UINT>(header->idFrom), nullptr);
    } else if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

void CZemTestHost::pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

void CZemTestHost::focus(HWND target) {
    SetFocus(target);
    pump();
}

void CZemTestHost::postKey(HWND target, UINT virtualKey) {
    const UINT scan = MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC);
    PostMessageW(target, WM_KEYDOWN, virtualKey, static_cast<LPARAM>(1 | (scan << 16)));
    PostMessageW(target, WM_KEYUP, virtualKey, static_cast<LPARAM>(1 | (scan << 16) | (3u << 30)));
}

void CZemTestHost::type(HWND target, const wchar_t* text) {
    for (const wchar_t* c = text; *c != L'\0'; ++c) SendMessageW(target, WM_CHAR, *c, 1);
    pump();
}

LRESULT CZemTestHost::wheel(HWND target, short delta, POINT client, UINT keys) {
    POINT screen = client;
    ClientToScreen(target, &screen);
    return SendMessageW(target, WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(delta)),
                        MAKELPARAM(screen.x, screen.y));
}
