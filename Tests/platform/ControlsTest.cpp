#include "CFileDialog.h"
#include "CListCtrl.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>

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

TEST(Controls, ListControlCellsOwnerDrawingAndFileFilter) {
    CZemTestHost host;
    CPlainParent parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, 380, 260, host.hwnd(), nullptr));
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 360, 120), &parent, 300));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120);
    EXPECT_EQ(list.InsertColumn(1, L"Wert", LVCFMT_RIGHT, 80), 1);
    const std::wstring longText(300, L'x');
    EXPECT_EQ(list.InsertItem(0, longText.c_str()), 0);
    EXPECT_TRUE(list.SetItemText(0, 1, L"12,5"));
    EXPECT_EQ(std::wstring(list.GetItemText(0, 0)), longText);
    EXPECT_EQ(list.GetItemText(5, 0), L"");

    ASSERT_NE(list.GetHeaderCtrl(), nullptr);
    CRect cell;
    ASSERT_TRUE(list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 120);
    EXPECT_EQ(cell.Width(), 80);

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

    CFileDialog chooser(TRUE, L"chm", L"start.chm", OFN_FILEMUSTEXIST, L"(*.chm)|*.chm||", &parent);
    EXPECT_EQ(std::wstring(chooser.GetOFN().lpstrFilter, 16), std::wstring(L"(*.chm)\0*.chm\0\0", 16));
}

TEST(Controls, ToolTipsOfTheChildren) {
    CZemTestHost host;
    CPlainParent parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, host.hwnd(), nullptr));
    HWND button =
        CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE, 0, 160, 60, 24, parent, nullptr, nullptr, nullptr);
    CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 70, 160, 60, 24, parent, nullptr, nullptr, nullptr);
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
