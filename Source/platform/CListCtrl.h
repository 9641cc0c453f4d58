#pragma once

#include "CHeaderCtrl.h"
#include "CWnd.h"

#include <commctrl.h>

class CImageList;

// A list view control. Owner-drawn rows come to DrawItem, reflected from
// the parent's WM_DRAWITEM.
class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    ~CListCtrl() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const;                                           // LVM_GETITEMCOUNT
    int InsertColumn(int column, LPCWSTR heading, int format = LVCFMT_LEFT, int width = -1,
                     int subItem = -1);                                 // LVM_INSERTCOLUMNW
    BOOL DeleteColumn(int column);                                      // LVM_DELETECOLUMN
    int GetColumnWidth(int column) const;                               // LVM_GETCOLUMNWIDTH
    BOOL SetColumnWidth(int column, int cx);                            // LVM_SETCOLUMNWIDTH
    int InsertItem(int item, LPCWSTR text);                             // LVM_INSERTITEMW
    int InsertItem(const LVITEMW* item);                                // LVM_INSERTITEMW
    BOOL DeleteItem(int item);                                          // LVM_DELETEITEM
    BOOL DeleteAllItems();                                              // LVM_DELETEALLITEMS
    BOOL GetItem(LVITEMW* item) const;                                  // LVM_GETITEMW
    BOOL SetItem(const LVITEMW* item);                                  // LVM_SETITEMW
    CString GetItemText(int item, int subItem) const;                   // LVM_GETITEMTEXTW
    BOOL SetItemText(int item, int subItem, LPCWSTR text);              // LVM_SETITEMTEXTW
    BOOL SetItemState(int item, UINT state, UINT mask);                 // LVM_SETITEMSTATE
    UINT GetItemState(int item, UINT mask) const;                       // LVM_GETITEMSTATE
    DWORD_PTR GetItemData(int item) const;                              // LVM_GETITEMW with LVIF_PARAM
    BOOL SetItemData(int item, DWORD_PTR data);                         // LVM_SETITEMW with LVIF_PARAM
    int GetNextItem(int start, int flags) const;                        // LVM_GETNEXTITEM
    int GetSelectedCount() const;                                       // LVM_GETSELECTEDCOUNT
    BOOL EnsureVisible(int item, BOOL partialOK);                       // LVM_ENSUREVISIBLE
    int HitTest(LVHITTESTINFO* hit) const;                              // LVM_HITTEST
    int SubItemHitTest(LVHITTESTINFO* hit);                             // LVM_SUBITEMHITTEST
    BOOL GetItemRect(int item, LPRECT rect, UINT area) const;           // LVM_GETITEMRECT
    BOOL GetSubItemRect(int item, int subItem, int area, CRect& rect) const;  // LVM_GETSUBITEMRECT
    DWORD GetExtendedStyle() const;                                     // LVM_GETEXTENDEDLISTVIEWSTYLE
    DWORD SetExtendedStyle(DWORD style);                                // LVM_SETEXTENDEDLISTVIEWSTYLE
    // Returns the former list; the control doesn't own it with LVS_SHAREIMAGELISTS.
    HIMAGELIST SetImageList(CImageList* list, int which);               // LVM_SETIMAGELIST
    // The header, bound to an object of this control; null in views without one.
    CHeaderCtrl* GetHeaderCtrl();

    // Draws one row of an owner-drawn list; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT draw);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    CHeaderCtrl m_header;
};
