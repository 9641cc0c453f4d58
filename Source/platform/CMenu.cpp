#include "CMenu.h"

#include "CWnd.h"

CMenu::~CMenu() { DestroyMenu(); }

bool CMenu::Attach(HMENU menu) {
    if (m_hMenu != nullptr || menu == nullptr) return false;
    m_hMenu = menu;
    return true;
}

HMENU CMenu::Detach() {
    HMENU menu = m_hMenu;
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::CreatePopupMenu() { return Attach(::CreatePopupMenu()); }

BOOL CMenu::CreateMenu() { return Attach(::CreateMenu()); }

BOOL CMenu::DestroyMenu() {
    if (m_hMenu == nullptr) return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenuW(UINT flags, UINT_PTR id, LPCWSTR text) { return ::AppendMenuW(m_hMenu, flags, id, text); }

int CMenu::GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT) {
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, owner != nullptr ? owner->m_hWnd : nullptr, nullptr);
}
