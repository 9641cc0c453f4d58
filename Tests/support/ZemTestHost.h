#pragma once

#include <windows.h>

#include <string>
#include <vector>

// A visible top-level window that holds the controls of a test and hears
// their notifications, and the input a user causes, delivered as the
// platform delivers it.
class CZemTestHost {
public:
    // A notification the host heard, with the text its control had then.
    struct Heard {
        UINT message;
        UINT code;
        UINT id;
        std::wstring text;
    };

    CZemTestHost(int width = 400, int height = 300);
    ~CZemTestHost();
    CZemTestHost(const CZemTestHost&) = delete;
    CZemTestHost& operator=(const CZemTestHost&) = delete;

    HWND hwnd() const { return m_hwnd; }
    // A child control; null if it couldn't be made.
    HWND addControl(const wchar_t* windowClass, DWORD style, int id, RECT rect, const wchar_t* text = L"");
    // WM_COMMAND and WM_NOTIFY that reached the host, in order.
    const std::vector<Heard>& heard() const { return m_heard; }
    void clearHeard() { m_heard.clear(); }

    // Dispatches everything queued for this thread.
    static void pump();
    // Moves the focus as a user's Tab or click would, and lets it settle.
    static void focus(HWND target);
    // Key down and up, queued for the loop that runs next (a modal loop, or pump).
    static void postKey(HWND target, UINT virtualKey);
    // Characters as typed.
    static void type(HWND target, const wchar_t* text);
    // A wheel turn over a client point, with keys held (MK_...).
    static LRESULT wheel(HWND target, short delta, POINT client, UINT keys = 0);

private:
    static LRESULT CALLBACK windowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void hear(UINT message, UINT code, UINT id, HWND from);

    HWND m_hwnd = nullptr;
    std::vector<Heard> m_heard;
};
