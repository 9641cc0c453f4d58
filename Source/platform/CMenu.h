#pragma once

#include "CObject.h"

#include <windows.h>

class CWnd;

// An owned menu; destroyed with the object.
class CMenu : public CObject {
public:
    CMenu() = default;
    ~CMenu() override;

    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    bool Attach(HMENU menu);
    HMENU Detach();

    BOOL CreatePopupMenu();
    BOOL CreateMenu();
    BOOL DestroyMenu();
    BOOL AppendMenuW(UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr);
    int GetMenuItemCount() const;
    // With TPM_RETURNCMD the chosen command, else nonzero on success.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT ignored = nullptr);

    HMENU m_hMenu = nullptr;
};
