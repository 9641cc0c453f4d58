#include "ZemDCSelect.h"

#include <utility>

CZemDCSelect::CZemDCSelect(HDC dc, HGDIOBJ object) {
    // A region is copied as the clip region, not selected; there is nothing to restore.
    if (dc == nullptr || object == nullptr || ::GetObjectType(object) == OBJ_REGION) return;
    HGDIOBJ previous = ::SelectObject(dc, object);
    if (previous == nullptr || previous == HGDI_ERROR) return;
    m_dc = dc;
    m_previous = previous;
}

CZemDCSelect::CZemDCSelect(CZemDCSelect&& other) noexcept
    : m_dc(std::exchange(other.m_dc, nullptr)), m_previous(std::exchange(other.m_previous, nullptr)) {}

CZemDCSelect& CZemDCSelect::operator=(CZemDCSelect&& other) noexcept {
    if (this != &other) {
        Restore();
        m_dc = std::exchange(other.m_dc, nullptr);
        m_previous = std::exchange(other.m_previous, nullptr);
    }
    return *this;
}

CZemDCSelect::~CZemDCSelect() { Restore(); }

void CZemDCSelect::Restore() {
    if (m_previous != nullptr) ::SelectObject(m_dc, m_previous);
    m_dc = nullptr;
    m_previous = nullptr;
}
