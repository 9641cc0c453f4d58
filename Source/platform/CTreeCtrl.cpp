#include "CTreeCtrl.h"

#include "CImageList.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, WC_TREEVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCTW insert) {
    return reinterpret_cast<HTREEITEM>(SendMessageW(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(insert)));
}

HTREEITEM CTreeCtrl::InsertItem(LPCWSTR text, HTREEITEM parent, HTREEITEM after) {
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<LPWSTR>(text);
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCWSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after) {
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<LPWSTR>(text);
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    return InsertItem(&insert);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
    return static_cast<BOOL>(SendMessageW(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::DeleteAllItems() { return DeleteItem(TVI_ROOT); }

BOOL CTreeCtrl::GetItem(TVITEMW* item) const {
    return static_cast<BOOL>(SendMessageW(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SetItem(TVITEMW* item) {
    return static_cast<BOOL>(SendMessageW(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCWSTR text, int image, int selectedImage, UINT state,
                        UINT stateMask, LPARAM param) {
    TVITEMW tv = {};
    tv.hItem = item;
    tv.mask = mask;
    tv.pszText = const_cast<LPWSTR>(text);
    tv.iImage = image;
    tv.iSelectedImage = selectedImage;
    tv.state = state;
    tv.stateMask = stateMask;
    tv.lParam = param;
    return SetItem(&tv);
}

// Asks with a growing buffer until the text fits.
CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    CString text;
    for (int size = 256;; size *= 2) {
        TVITEMW tv = {};
        tv.hItem = item;
        tv.mask = TVIF_TEXT;
        tv.cchTextMax = size;
        tv.pszText = text.GetBuffer(size);
        tv.pszText[0] = L'\0';
        if (!GetItem(&tv)) {
            text.Empty();
            return text;
        }
        text.ReleaseBuffer();
        if (text.GetLength() < size - 1 || size >= (1 << 20)) return text;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCWSTR text) { return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0); }

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    TVITEMW tv = {};
    tv.hItem = item;
    tv.mask = TVIF_PARAM;
    return GetItem(&tv) ? static_cast<DWORD_PTR>(tv.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(data));
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage) {
    return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0, 0);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const {
    return reinterpret_cast<HTREEITEM>(SendMessageW(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }

HTREEITEM CTreeCtrl::GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const {
    TVITEMW tv = {};
    tv.hItem = item;
    tv.mask = TVIF_CHILDREN;
    return GetItem(&tv) && tv.cChildren != 0;
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
    return static_cast<BOOL>(SendMessageW(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    return static_cast<BOOL>(SendMessageW(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item) {
    return static_cast<BOOL>(SendMessageW(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item) {
    return static_cast<BOOL>(SendMessageW(TVM_SORTCHILDREN, 0, reinterpret_cast<LPARAM>(item)));
}

UINT CTreeCtrl::GetCount() const { return static_cast<UINT>(SendMessageW(TVM_GETCOUNT)); }

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const {
    TVHITTESTINFO hit = {};
    hit.pt = point;
    HTREEITEM item = reinterpret_cast<HTREEITEM>(SendMessageW(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (flags != nullptr) *flags = hit.flags;
    return item;
}

HIMAGELIST CTreeCtrl::SetImageList(CImageList* list, int which) {
    HIMAGELIST handle = list != nullptr ? list->GetSafeHandle() : nullptr;
    return reinterpret_cast<HIMAGELIST>(
        SendMessageW(TVM_SETIMAGELIST, static_cast<WPARAM>(which), reinterpret_cast<LPARAM>(handle)));
}
