#include "CComboBox.h"
#include "CFileDialog.h"
#include "CListBox.h"
#include "CListCtrl.h"
#include "CTabCtrl.h"
#include "CTreeCtrl.h"
#include "ZemModalScript.h"
#include "ZemTestHost.h"

#include <dlgs.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

// An owner-drawn list with rows 30 pixels high that counts the rows it is
// asked to draw.
class CCountingList : public CListCtrl {
public:
    int rowsDrawn = 0;
    int measured = 0;
    void DrawItem(LPDRAWITEMSTRUCT draw) override {
        if (draw->itemAction & ODA_DRAWENTIRE) ++rowsDrawn;
    }

protected:
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT measure) {
        ++measured;
        measure->itemHeight = 30;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCountingList, CListCtrl)
ON_WM_MEASUREITEM_REFLECT()
END_MESSAGE_MAP()

// A parent window object with no entries but the tool tip text of its children.
class CPlainParent : public CWnd {
public:
    UINT tipId = 99;

protected:
    afx_msg BOOL onNeedText(UINT id, NMHDR* header, LRESULT*) {
        auto* tip = reinterpret_cast<NMTTDISPINFOW*>(header);
        if (!(tip->uFlags & TTF_IDISHWND)) return FALSE;
        tipId = id;
        static wchar_t text[] = L"Breite der Kontur";
        tip->lpszText = text;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPlainParent, CWnd)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, onNeedText)
END_MESSAGE_MAP()

}  // namespace

TEST(Controls, ListControlCellsHeaderAndOwnerDrawing) {
    CZemTestHost host;
    CPlainParent parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, 380, 260, host.hwnd(), nullptr));
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 360, 120), &parent, 300));
    EXPECT_EQ(list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120), 0);
    EXPECT_EQ(list.InsertColumn(1, L"Wert", LVCFMT_RIGHT, 80), 1);
    const std::wstring longText(300, L'x');
    EXPECT_EQ(list.InsertItem(0, longText.c_str()), 0);
    EXPECT_TRUE(list.SetItemText(0, 1, L"12,5"));
    EXPECT_EQ(std::wstring(list.GetItemText(0, 0)), longText);
    EXPECT_EQ(list.GetItemText(0, 1), L"12,5");
    EXPECT_EQ(list.GetItemText(5, 0), L"");

    CHeaderCtrl* header = list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetItemCount(), 2);
    EXPECT_EQ(list.GetHeaderCtrl(), header);
    CRect cell;
    ASSERT_TRUE(list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 120);
    EXPECT_EQ(cell.Width(), 80);

    EXPECT_TRUE(list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED), 0);

    CCountingList drawn;
    ASSERT_TRUE(drawn.Create(WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(0, 130, 360, 250), &parent, 301));
    drawn.InsertColumn(0, L"Zeile", LVCFMT_LEFT, 100);
    drawn.InsertItem(0, L"a");
    drawn.InsertItem(1, L"b");
    drawn.Invalidate();
    drawn.UpdateWindow();
    EXPECT_EQ(drawn.rowsDrawn, 2) << "WM_DRAWITEM of the parent reaches the list's DrawItem";
    EXPECT_GE(drawn.measured, 1) << "WM_MEASUREITEM of the parent reaches the list's MeasureItem";
    CRect row;
    ASSERT_TRUE(drawn.GetItemRect(1, &row, LVIR_BOUNDS));
    EXPECT_EQ(row.Height(), 30);
}

TEST(Controls, TextOfComboListBoxAndTreeEntries) {
    CZemTestHost host;
    CWnd* parent = CWnd::FromHandle(host.hwnd());
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 120, 200), parent, 400));
    combo.AddString(L"mm");
    combo.AddString(L"m");
    combo.SetItemData(1, 1000);
    CString text;
    combo.GetLBText(1, text);
    EXPECT_EQ(text, L"m");
    combo.GetLBText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(combo.GetItemData(1), 1000u);
    CZemTestHost::chooseComboItem(combo, 1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(host.codesFrom(400).back(), static_cast<UINT>(CBN_SELCHANGE));

    CListBox units;
    ASSERT_TRUE(units.Create(WS_VISIBLE | LBS_NOTIFY, CRect(130, 0, 250, 100), parent, 401));
    units.AddString(L"Meter");
    units.GetText(0, text);
    EXPECT_EQ(text, L"Meter");
    units.GetText(-1, text);
    EXPECT_TRUE(text.IsEmpty());

    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE | TVS_HASLINES, CRect(0, 110, 250, 250), parent, 402));
    HTREEITEM root = tree.InsertItem(L"Bibliothek");
    const std::wstring longName(400, L'b');
    HTREEITEM child = tree.InsertItem(longName.c_str(), root);
    EXPECT_EQ(tree.GetItemText(root), L"Bibliothek");
    EXPECT_EQ(std::wstring(tree.GetItemText(child)), longName);
    EXPECT_EQ(tree.GetParentItem(child), root);
    EXPECT_EQ(tree.GetChildItem(root), child);
    EXPECT_TRUE(tree.SetItemData(child, 42));
    EXPECT_EQ(tree.GetItemData(child), 42u);
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_EQ(tree.GetCount(), 2u);
}

TEST(Controls, TabsAndToolTipsOfTheChildren) {
    CZemTestHost host;
    CPlainParent parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, host.hwnd(), nullptr));
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE, CRect(0, 0, 280, 150), &parent, 500));
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT, 0, L"Eins", 0, 0), 0);
    EXPECT_EQ(tabs.InsertItem(5, L"Zwei"), 1);
    EXPECT_EQ(tabs.GetItemCount(), 2);
    EXPECT_EQ(tabs.SetCurSel(1), 0);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    CRect first;
    EXPECT_TRUE(tabs.GetItemRect(0, &first));
    EXPECT_FALSE(first.IsRectEmpty());

    HWND button =
        CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE, 0, 160, 60, 24, parent, nullptr, nullptr, nullptr);
    EXPECT_TRUE(parent.EnableToolTips(TRUE));
    EXPECT_TRUE(parent.EnableToolTips(TRUE));
    HWND tip = nullptr;
    for (HWND w = GetTopWindow(nullptr); w != nullptr && tip == nullptr; w = GetWindow(w, GW_HWNDNEXT)) {
        wchar_t cls[64] = {};
        GetClassNameW(w, cls, 64);
        if (std::wstring(cls) == TOOLTIPS_CLASSW && GetWindow(w, GW_OWNER) == GetAncestor(parent, GA_ROOT)) tip = w;
    }
    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0), 2) << "one tool for each child, however often enabled";
    wchar_t text[80] = {};
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = parent;
    tool.uId = reinterpret_cast<UINT_PTR>(button);
    tool.lpszText = text;
    SendMessageW(tip, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(text, L"Breite der Kontur");
    EXPECT_EQ(parent.tipId, 0u) << "a pop-up tool tip has the control id 0";
    EXPECT_TRUE(parent.EnableToolTips(FALSE));
    EXPECT_FALSE(IsWindow(tip));
}

TEST(Controls, FileDialogGivesTheChosenPath) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"zem_platform_help.chm";
    FILE* file = _wfopen(path.c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    std::fclose(file);

    CZemTestHost host;
    CFileDialog chooser(TRUE, L"chm", L"start.chm", OFN_FILEMUSTEXIST, L"(*.chm)|*.chm||", CWnd::FromHandle(host.hwnd()));
    EXPECT_EQ(std::wstring(chooser.GetOFN().lpstrFilter, 16), std::wstring(L"(*.chm)\0*.chm\0\0", 16));
    // The shell's first look at the folders may take a while.
    const UINT patience = 30000;
    CZemModalScript script({CZemModalScript::setText(cmb13, path.c_str()), CZemModalScript::clickButton(IDOK)},
                           patience);
    script.arm();
    EXPECT_EQ(chooser.DoModal(), IDOK);
    EXPECT_FALSE(script.timedOut());
    EXPECT_EQ(chooser.GetPathName().CompareNoCase(path.c_str()), 0);
    EXPECT_EQ(chooser.GetFileName().CompareNoCase(L"zem_platform_help.chm"), 0);
    EXPECT_EQ(chooser.GetFileExt(), L"chm");
    EXPECT_EQ(chooser.GetOFN().hwndOwner, host.hwnd());
    _wremove(path.c_str());

    CFileDialog cancelled(TRUE);
    CZemModalScript cancel({CZemModalScript::clickButton(IDCANCEL)}, patience);
    cancel.arm();
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
}
