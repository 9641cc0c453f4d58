#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

// Steps run from inside a modal loop, one per timer tick, each on the dialog
// on top (the topmost visible, enabled dialog window of this thread). Arm it,
// then open the dialog. A dialog still open when the time limit has passed
// is cancelled, and timedOut() says so, so that no test hangs.
class CZemModalScript {
public:
    using Step = std::function<void(HWND dialog)>;

    explicit CZemModalScript(std::vector<Step> steps, UINT limitMs = 15000);
    ~CZemModalScript();
    CZemModalScript(const CZemModalScript&) = delete;
    CZemModalScript& operator=(const CZemModalScript&) = delete;

    void arm();
    bool finished() const { return m_next == m_steps.size(); }
    bool timedOut() const { return m_timedOut; }
    // The caption of the dialog the first step ran on.
    const std::wstring& firstCaption() const { return m_firstCaption; }

    // The topmost visible, enabled dialog window of this thread, or null.
    static HWND topDialog();

    // Common steps.
    static Step clickButton(int id);
    static Step pressKey(UINT virtualKey);
    // Focuses a dialog item and posts the key to it, whether or not the focus
    // has arrived yet (Wine may move it late on a busy machine).
    static Step pressKeyOn(int id, UINT virtualKey);
    static Step setText(int id, const wchar_t* text);
    static Step focusItem(int id);
    static Step run(std::function<void(HWND)> action) { return Step(std::move(action)); }

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR timer, DWORD);
    void step();

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    UINT m_limitMs;
    DWORD m_started = 0;
    UINT_PTR m_timer = 0;
    bool m_timedOut = false;
    std::wstring m_firstCaption;
};
