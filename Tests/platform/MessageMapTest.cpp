#include "CButton.h"
#include "CListCtrl.h"
#include "CWnd.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr UINT kPing = WM_APP + 1;
constexpr UINT kThrow = WM_APP + 2;

class CBaseProbe : public CWnd {
public:
    std::vector<std::string> log;

protected:
    afx_msg void OnLButtonDown(UINT, CPoint) { log.push_back("base down"); }
    afx_msg LRESULT OnPing(WPARAM w, LPARAM l) { return static_cast<LRESULT>(w) + l; }
    afx_msg LRESULT OnThrow(WPARAM, LPARAM) { throw std::runtime_error("handler fault"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseProbe, CWnd)
ON_WM_LBUTTONDOWN()
ON_MESSAGE(kPing, OnPing)
ON_MESSAGE(kThrow, OnThrow)
END_MESSAGE_MAP()

class CDerivedProbe : public CBaseProbe {
public:
    CPoint point;
    UINT flags = 0;
    short delta = 0;

protected:
    afx_msg void OnLButtonDown(UINT keys, CPoint at) {
        log.push_back("derived down");
        flags = keys;
        point = at;
    }
    afx_msg BOOL OnMouseWheel(UINT keys, short turn, CPoint screen) {
        flags = keys;
        delta = turn;
        point = screen;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedProbe, CBaseProbe)
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

// A panel that takes its buttons' clicks, one by id and three by a range,
// and its list's selection changes.
class CPanel : public CWnd {
public:
    std::vector<std::string> log;

protected:
    afx_msg void onSingle() { log.push_back("single"); }
    afx_msg void onItemChanged(NMHDR* header, LRESULT*) {
        const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
        if (change->uNewState & LVIS_SELECTED) log.push_back("panel: row " + std::to_string(change->iItem));
    }
    afx_msg void onRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    afx_msg void onReflectedAway() { log.push_back("parent heard 130"); }
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        log.push_back(std::string("create ") + (create->lpszName != nullptr ? "named" : "unnamed"));
        return CWnd::OnCreate(create);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CWnd)
ON_WM_CREATE()
ON_BN_CLICKED(101, onSingle)
ON_CONTROL_RANGE(BN_CLICKED, 110, 112, onRange)
ON_BN_CLICKED(130, onReflectedAway)
ON_BN_CLICKED(131, onReflectedAway)
ON_NOTIFY(LVN_ITEMCHANGED, 600, onItemChanged)
END_MESSAGE_MAP()

// A button that hears its own clicks before the parent; it keeps them
// when told so.
class CSelfishButton : public CButton {
public:
    explicit CSelfishButton(std::vector<std::string>& log, bool keep) : m_log(log), m_keep(keep) {}

protected:
    afx_msg BOOL onClicked() {
        m_log.push_back("button heard itself");
        return m_keep;
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string>& m_log;
    bool m_keep;
};

BEGIN_MESSAGE_MAP(CSelfishButton, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, onClicked)
END_MESSAGE_MAP()

// A list that looks at its own selection changes first and passes them on.
class CWatchfulList : public CListCtrl {
public:
    explicit CWatchfulList(std::vector<std::string>& log) : m_log(log) {}

protected:
    afx_msg BOOL onOwnChange(NMHDR* header, LRESULT*) {
        const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
        if (change->uNewState & LVIS_SELECTED) m_log.push_back("list: row " + std::to_string(change->iItem));
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string>& m_log;
};

BEGIN_MESSAGE_MAP(CWatchfulList, CListCtrl)
ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, onOwnChange)
END_MESSAGE_MAP()

HWND childOf(HWND parent, UINT id, const wchar_t* cls = L"BUTTON") {
    return CreateWindowExW(0, cls, L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

}  // namespace

TEST(MessageMap, DerivedHandlerRunsAndBaseEntriesStillServe) {
    CZemTestHost host;
    CDerivedProbe probe;
    ASSERT_TRUE(probe.CreateEx(0, nullptr, L"probe", WS_CHILD | WS_VISIBLE, 10, 10, 200, 100, host.hwnd(), nullptr));

    SendMessageW(probe, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(-5, 7));
    EXPECT_EQ(probe.log, (std::vector<std::string>{"derived down"}));
    EXPECT_EQ(probe.flags, static_cast<UINT>(MK_LBUTTON | MK_SHIFT));
    EXPECT_EQ(probe.point, CPoint(-5, 7));

    EXPECT_EQ(SendMessageW(probe, kPing, 2, 3), 5);

    POINT at = {20, 30};
    EXPECT_EQ(CZemTestHost::wheel(probe, -240, at, MK_CONTROL), 1);
    ClientToScreen(probe, &at);
    EXPECT_EQ(probe.delta, -240);
    EXPECT_EQ(probe.flags, static_cast<UINT>(MK_CONTROL));
    EXPECT_EQ(probe.point, CPoint(at));

    // A handler's fault stays inside the window procedure.
    EXPECT_EQ(SendMessageW(probe, kThrow, 0, 0), 0);
    EXPECT_EQ(SendMessageW(probe, kPing, 4, 5), 9);
}

TEST(MessageMap, CommandsAndNotificationsReachHandlersByIdAndRangeAndControlsHearThemselvesFirst) {
    CZemTestHost host;
    CPanel panel;
    ASSERT_TRUE(panel.CreateEx(0, nullptr, L"panel", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, host.hwnd(), nullptr));
    EXPECT_EQ(panel.log, (std::vector<std::string>{"create named"}));
    panel.log.clear();

    for (UINT id : {101u, 110u, 112u, 113u}) SendMessageW(childOf(panel, id), BM_CLICK, 0, 0);
    EXPECT_EQ(panel.log, (std::vector<std::string>{"single", "range 110", "range 112"}));
    EXPECT_TRUE(host.heard().empty());

    // A control's reflected entry runs before the parent's; keeping the
    // notification hides it from the parent.
    panel.log.clear();
    CSelfishButton passes(panel.log, false);
    CSelfishButton keeps(panel.log, true);
    ASSERT_TRUE(passes.SubclassWindow(childOf(panel, 130)));
    ASSERT_TRUE(keeps.SubclassWindow(childOf(panel, 131)));
    passes.Click();
    keeps.Click();
    EXPECT_EQ(panel.log,
              (std::vector<std::string>{"button heard itself", "parent heard 130", "button heard itself"}));

    // Notifications likewise: the list's reflected entry, then the parent's by id.
    panel.log.clear();
    CWatchfulList list(panel.log);
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 100, 280, 180), &panel, 600));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(panel.log, (std::vector<std::string>{"list: row 1", "panel: row 1"}));
}

TEST(MessageMap, WindowsAndObjectsFindEachOther) {
    CZemTestHost host;
    HWND raw = childOf(host.hwnd(), 200, L"EDIT");
    CWnd* temporary = CWnd::FromHandle(raw);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(CWnd::FromHandle(raw), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(raw), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);

    HWND gone = nullptr;
    {
        CDerivedProbe probe;
        ASSERT_TRUE(probe.CreateEx(0, nullptr, L"", WS_CHILD, 0, 0, 10, 10, host.hwnd(), nullptr));
        gone = probe.m_hWnd;
        EXPECT_EQ(CWnd::FromHandle(gone), &probe);
    }
    EXPECT_FALSE(IsWindow(gone)) << "the object's end destroys its window";
    CDerivedProbe outlived;
    ASSERT_TRUE(outlived.CreateEx(0, nullptr, L"", WS_CHILD, 0, 0, 10, 10, host.hwnd(), nullptr));
    HWND window = outlived.m_hWnd;
    DestroyWindow(window);
    EXPECT_EQ(outlived.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    CWnd::DeleteTempMap();
}
