#include "ZemWndMap.h"

#include "CWnd.h"

#include <new>
#include <unordered_map>
#include <vector>

namespace {

const wchar_t kObjectProp[] = L"Zem_Mfc.Wnd";
const wchar_t kSuperProp[] = L"Zem_Mfc.Super";

// Above this many temporaries a new one first sweeps out those of dead windows.
constexpr std::size_t kSweepThreshold = 256;

std::unordered_map<HWND, CWnd*>& temporaries() {
    static std::unordered_map<HWND, CWnd*> table;
    return table;
}

void deleteWhere(bool (*doomed)(HWND)) {
    auto& table = temporaries();
    std::vector<CWnd*> gone;
    for (auto it = table.begin(); it != table.end();) {
        if (doomed(it->first)) {
            gone.push_back(it->second);
            it = table.erase(it);
        } else {
            ++it;
        }
    }
    for (CWnd* wnd : gone) delete wnd;
}

bool isDead(HWND hwnd) { return !IsWindow(hwnd); }

bool isDeadOrOfThisThread(HWND hwnd) {
    return !IsWindow(hwnd) || GetWindowThreadProcessId(hwnd, nullptr) == GetCurrentThreadId();
}

}  // namespace

CWnd* CZemWndMap::permanent(HWND hwnd) {
    return hwnd != nullptr ? static_cast<CWnd*>(GetPropW(hwnd, kObjectProp)) : nullptr;
}

bool CZemWndMap::bind(HWND hwnd, CWnd* wnd) {
    if (hwnd == nullptr || wnd == nullptr || wnd->m_hWnd != nullptr || permanent(hwnd) != nullptr) return false;
    if (!SetPropW(hwnd, kObjectProp, wnd)) return false;
    RemovePropW(hwnd, kSuperProp);
    wnd->m_hWnd = hwnd;
    return true;
}

void CZemWndMap::unbind(HWND hwnd) {
    if (hwnd != nullptr) RemovePropW(hwnd, kObjectProp);
}

WNDPROC CZemWndMap::orphanSuper(HWND hwnd) { return reinterpret_cast<WNDPROC>(GetPropW(hwnd, kSuperProp)); }

void CZemWndMap::setOrphanSuper(HWND hwnd, WNDPROC super) {
    SetPropW(hwnd, kSuperProp, reinterpret_cast<HANDLE>(super));
}

void CZemWndMap::dropProperties(HWND hwnd) {
    RemovePropW(hwnd, kObjectProp);
    RemovePropW(hwnd, kSuperProp);
}

CWnd* CZemWndMap::temporary(HWND hwnd) {
    auto& table = temporaries();
    const auto found = table.find(hwnd);
    if (found != table.end()) return found->second;
    if (table.size() >= kSweepThreshold) deleteWhere(isDead);
    CWnd* wnd = new (std::nothrow) CWnd;
    if (wnd == nullptr) return nullptr;
    wnd->m_hWnd = hwnd;
    wnd->m_temporary = true;
    table.emplace(hwnd, wnd);
    return wnd;
}

void CZemWndMap::deleteTemporaries() { deleteWhere(isDeadOrOfThisThread); }
