#include "CListCtrl.h"

#include "CImageList.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

// The header window belongs to the list view; the object only borrows it.
CListCtrl::~CListCtrl() { m_header.Detach(); }

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, WC_LISTVIEWW, nullptr, style | WS_CHILD, rect, parent, id);
}

int CListCtrl::GetItemCount() const { return static_cast<int>(SendMessageW(LVM_GETITEMCOUNT)); }

int CListCtrl::InsertColumn(int column, LPCWSTR heading, int format, int width, int subItem) {
    LVCOLUMNW col = {};
    col.mask = LVCF_TEXT | LVCF_FMT;
    col.fmt = format;
    col.pszText = const_cast<LPWSTR>(heading);
    if (width != -1) {
        col.mask |= LVCF_WIDTH;
        col.cx = width;
    }
    if (subItem != -1) {
        col.mask |= LVCF_SUBITEM;
        col.iSubItem = subItem;
    }
    return static_cast<int>(SendMessageW(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&col)));
}

BOOL CListCtrl::DeleteColumn(int column) {
    return static_cast<BOOL>(SendMessageW(LVM_DELETECOLUMN, static_cast<WPARAM>(column)));
}

int CListCtrl::GetColumnWidth(int column) const {
    return static_cast<int>(SendMessageW(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

BOOL CListCtrl::SetColumnWidth(int column, int cx) {
    return static_cast<BOOL>(SendMessageW(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), cx));
}

int CListCtrl::InsertItem(int item, LPCWSTR text) {
    LVITEMW row = {};
    row.mask = LVIF_TEXT;
    row.iItem = item;
    row.pszText = const_cast<LPWSTR>(text);
    return InsertItem(&row);
}

int CListCtrl::InsertItem(const LVITEMW* item) {
    return static_cast<int>(SendMessageW(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CListCtrl::DeleteItem(int item) { return static_cast<BOOL>(SendMessageW(LVM_DELETEITEM, static_cast<WPARAM>(item))); }

BOOL CListCtrl::DeleteAllItems() { return static_cast<BOOL>(SendMessageW(LVM_DELETEALLITEMS)); }

BOOL CListCtrl::GetItem(LVITEMW* item) const {
    return static_cast<BOOL>(SendMessageW(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CListCtrl::SetItem(const LVITEMW* item) {
    return static_cast<BOOL>(SendMessageW(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

// Asks with a growing buffer until the text fits.
CString CListCtrl::GetItemText(int item, int subItem) const {
    CString text;
    for (int size = 256;; size *= 2) {
        LVITEMW cell = {};
        cell.iSubItem = subItem;
        cell.cchTextMax = size;
        cell.pszText = text.GetBuffer(size);
        const LRESULT length =
            SendMessageW(LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell));
        if (length < size - 1 || size >= (1 << 20)) {
            text.ReleaseBuffer(static_cast<int>(length));
            return text;
        }
    }
}

BOOL CListCtrl::SetItemText(int item, int subItem, LPCWSTR text) {
    LVITEMW cell = {};
    cell.iSubItem = subItem;
    cell.pszText = const_cast<LPWSTR>(text);
    return static_cast<BOOL>(SendMessageW(LVM_SETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell)));
}

BOOL CListCtrl::SetItemState(int item, UINT state, UINT mask) {
    LVITEMW row = {};
    row.state = state;
    row.stateMask = mask;
    return static_cast<BOOL>(SendMessageW(LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&row)));
}

UINT CListCtrl::GetItemState(int item, UINT mask) const {
    return static_cast<UINT>(SendMessageW(LVM_GETITEMSTATE, static_cast<WPARAM>(item), mask));
}

DWORD_PTR CListCtrl::GetItemData(int item) const {
    LVITEMW row = {};
    row.mask = LVIF_PARAM;
    row.iItem = item;
    return GetItem(&row) ? static_cast<DWORD_PTR>(row.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int item, DWORD_PTR data) {
    LVITEMW row = {};
    row.mask = LVIF_PARAM;
    row.iItem = item;
    row.lParam = static_cast<LPARAM>(data);
    return SetItem(&row);
}

int CListCtrl::GetNextItem(int start, int flags) const {
    return static_cast<int>(SendMessageW(LVM_GETNEXTITEM, static_cast<WPARAM>(start), flags));
}

int CListCtrl::GetSelectedCount() const { return static_cast<int>(SendMessageW(LVM_GETSELECTEDCOUNT)); }

BOOL CListCtrl::EnsureVisible(int item, BOOL partialOK) {
    return static_cast<BOOL>(SendMessageW(LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), partialOK));
}

int CListCtrl::HitTest(LVHITTESTINFO* hit) const {
    return static_cast<int>(SendMessageW(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(hit)));
}

int CListCtrl::SubItemHitTest(LVHITTESTINFO* hit) {
    return static_cast<int>(SendMessageW(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(hit)));
}

BOOL CListCtrl::GetItemRect(int item, LPRECT rect, UINT area) const {
    rect->left = static_cast<LONG>(area);
    return static_cast<BOOL>(SendMessageW(LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(rect)));
}

BOOL CListCtrl::GetSubItemRect(int item, int subItem, int area, CRect& rect) const {
    rect.top = subItem;
    rect.left = area;
    return static_cast<BOOL>(
        SendMessageW(LVM_GETSUBITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect))));
}

DWORD CListCtrl::GetExtendedStyle() const { return static_cast<DWORD>(SendMessageW(LVM_GETEXTENDEDLISTVIEWSTYLE)); }

DWORD CListCtrl::SetExtendedStyle(DWORD style) {
    return static_cast<DWORD>(SendMessageW(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

HIMAGELIST CListCtrl::SetImageList(CImageList* list, int which) {
    HIMAGELIST handle = list != nullptr ? list->GetSafeHandle() : nullptr;
    return reinterpret_cast<HIMAGELIST>(
        SendMessageW(LVM_SETIMAGELIST, static_cast<WPARAM>(which), reinterpret_cast<LPARAM>(handle)));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    HWND header = reinterpret_cast<HWND>(SendMessageW(LVM_GETHEADER));
    if (m_header.m_hWnd != header) {
        m_header.Detach();
        if (header == nullptr) return nullptr;
        if (!m_header.Attach(header)) {
            // The header has an object of its own already.
            CWnd* bound = FromHandlePermanent(header);
            return bound != nullptr && bound->IsKindOf(RUNTIME_CLASS(CHeaderCtrl)) ? static_cast<CHeaderCtrl*>(bound)
                                                                                   : nullptr;
        }
    }
    return &m_header;
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    if (result != nullptr) *result = TRUE;
    return TRUE;
}
