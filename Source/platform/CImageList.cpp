#include "CImageList.h"

#include "CBitmap.h"

CImageList::~CImageList() { DeleteImageList(); }

bool CImageList::Attach(HIMAGELIST list) {
    if (m_hImageList != nullptr || list == nullptr) return false;
    m_hImageList = list;
    return true;
}

HIMAGELIST CImageList::Detach() {
    HIMAGELIST list = m_hImageList;
    m_hImageList = nullptr;
    return list;
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow) {
    return Attach(ImageList_Create(cx, cy, flags, initial, grow));
}

BOOL CImageList::DeleteImageList() {
    if (m_hImageList == nullptr) return FALSE;
    return ImageList_Destroy(Detach());
}

int CImageList::Add(HICON icon) { return m_hImageList != nullptr ? ImageList_AddIcon(m_hImageList, icon) : -1; }

int CImageList::Add(CBitmap* image, CBitmap* mask) {
    if (m_hImageList == nullptr || image == nullptr) return -1;
    return ImageList_Add(m_hImageList, *image, mask != nullptr ? static_cast<HBITMAP>(*mask) : nullptr);
}

int CImageList::Add(CBitmap* image, COLORREF maskColor) {
    if (m_hImageList == nullptr || image == nullptr) return -1;
    return ImageList_AddMasked(m_hImageList, *image, maskColor);
}

int CImageList::GetImageCount() const { return m_hImageList != nullptr ? ImageList_GetImageCount(m_hImageList) : 0; }
