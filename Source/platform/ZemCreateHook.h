#pragma once

#include <windows.h>

class CWnd;

// While alive, binds the next window created on this thread to wnd, before
// the window's first message. Hooks nest: an inner one serves first.
class CZemCreateHook {
public:
    explicit CZemCreateHook(CWnd* wnd);
    ~CZemCreateHook();
    CZemCreateHook(const CZemCreateHook&) = delete;
    CZemCreateHook& operator=(const CZemCreateHook&) = delete;

private:
    static LRESULT CALLBACK cbtProc(int code, WPARAM wParam, LPARAM lParam);

    CWnd* m_outerPending;
    HHOOK m_hook;
};
