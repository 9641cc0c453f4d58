#pragma once

#include <windows.h>

// An object selected into a device context for the guard's lifetime: the
// former object goes back in when the guard ends or at Restore. The guard
// never deletes anything; it must end before the selected object does.
class [[nodiscard]] CZemDCSelect {
public:
    CZemDCSelect() = default;
    // Selects object into dc; a failed selection, or a region, leaves an empty guard.
    CZemDCSelect(HDC dc, HGDIOBJ object);
    CZemDCSelect(CZemDCSelect&& other) noexcept;
    CZemDCSelect& operator=(CZemDCSelect&& other) noexcept;
    CZemDCSelect(const CZemDCSelect&) = delete;
    CZemDCSelect& operator=(const CZemDCSelect&) = delete;
    ~CZemDCSelect();

    void Restore();
    bool selected() const { return m_previous != nullptr; }
    HGDIOBJ previous() const { return m_previous; }

private:
    HDC m_dc = nullptr;
    HGDIOBJ m_previous = nullptr;
};
