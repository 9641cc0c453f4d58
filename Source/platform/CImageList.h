#pragma once

#include "CObject.h"

#include <windows.h>
#include <commctrl.h>

class CBitmap;

// An owned image list; destroyed with the object.
class CImageList : public CObject {
public:
    CImageList() = default;
    ~CImageList() override;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    bool Attach(HIMAGELIST list);
    HIMAGELIST Detach();

    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);  // ImageList_Create
    BOOL DeleteImageList();
    // Index of the new image, or -1.
    int Add(HICON icon);                           // ImageList_AddIcon
    int Add(CBitmap* image, CBitmap* mask);        // ImageList_Add
    int Add(CBitmap* image, COLORREF maskColor);   // ImageList_AddMasked
    int GetImageCount() const;                     // ImageList_GetImageCount

private:
    HIMAGELIST m_hImageList = nullptr;
};
