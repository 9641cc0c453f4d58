#pragma once

#include "CWnd.h"

#include <commctrl.h>

class CImageList;

// A tree view control.
class CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    HTREEITEM InsertItem(LPTVINSERTSTRUCTW insert);                      // TVM_INSERTITEMW
    HTREEITEM InsertItem(LPCWSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCWSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item);                                      // TVM_DELETEITEM
    BOOL DeleteAllItems();                                                // TVM_DELETEITEM with TVI_ROOT
    BOOL GetItem(TVITEMW* item) const;                                    // TVM_GETITEMW
    BOOL SetItem(TVITEMW* item);                                          // TVM_SETITEMW
    BOOL SetItem(HTREEITEM item, UINT mask, LPCWSTR text, int image, int selectedImage, UINT state,
                 UINT stateMask, LPARAM param);
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCWSTR text);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;               // TVM_GETNEXTITEM
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    HTREEITEM GetSelectedItem() const;
    BOOL ItemHasChildren(HTREEITEM item) const;
    BOOL SelectItem(HTREEITEM item);                                      // TVM_SELECTITEM with TVGN_CARET
    BOOL Expand(HTREEITEM item, UINT code);                               // TVM_EXPAND
    BOOL EnsureVisible(HTREEITEM item);                                   // TVM_ENSUREVISIBLE
    BOOL SortChildren(HTREEITEM item);                                    // TVM_SORTCHILDREN
    UINT GetCount() const;                                                // TVM_GETCOUNT
    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const;         // TVM_HITTEST
    HIMAGELIST SetImageList(CImageList* list, int which);                 // TVM_SETIMAGELIST
};
