#include "CMetaFileDC.h"

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CMetaFileDC::~CMetaFileDC() {
    HENHMETAFILE left = CloseEnhanced();
    if (left != nullptr) ::DeleteEnhMetaFile(left);
}

BOOL CMetaFileDC::CreateEnhanced(const CDC* reference, LPCWSTR fileName, LPCRECT bounds, LPCWSTR description) {
    if (m_hDC != nullptr) return FALSE;
    return Attach(::CreateEnhMetaFileW(reference != nullptr ? reference->m_hDC : nullptr, fileName, bounds,
                                       description));
}

HENHMETAFILE CMetaFileDC::CloseEnhanced() {
    if (m_hDC == nullptr) return nullptr;
    return ::CloseEnhMetaFile(Detach());
}
