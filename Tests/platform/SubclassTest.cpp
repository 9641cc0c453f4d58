#include "CEdit.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>

namespace {

constexpr int kFirst = 1;
constexpr int kSecond = 2;

// An edit that checks its entry when it loses the focus: it rewrites the
// text, and only then lets the edit tell its parent.
class CCheckedEdit : public CEdit {
public:
    explicit CCheckedEdit(const CZemTestHost& host) : m_host(host) {}
    int checks = 0;
    std::size_t heardBeforeCheck = 0;

protected:
    void PreSubclassWindow() override { ModifyStyle(0, ES_UPPERCASE); }
    afx_msg void OnKillFocus(CWnd*) {
        ++checks;
        heardBeforeCheck = m_host.heard().size();
        SetWindowTextW(L"CHECKED");
        Default();
    }
    DECLARE_MESSAGE_MAP()

private:
    const CZemTestHost& m_host;
};

BEGIN_MESSAGE_MAP(CCheckedEdit, CEdit)
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

// The index of the first EN_KILLFOCUS from id heard at or after start.
std::size_t killFocusAt(const CZemTestHost& host, UINT id, std::size_t start = 0) {
    for (std::size_t i = start; i < host.heard().size(); ++i) {
        if (host.heard()[i].id == id && host.heard()[i].code == EN_KILLFOCUS) return i;
    }
    return host.heard().size();
}

}  // namespace

TEST(Subclass, EditChecksItsEntryBeforeTheParentHearsKillFocusAndTakesOneObjectAtATime) {
    CZemTestHost host;
    HWND first = host.addControl(L"EDIT", WS_BORDER | WS_TABSTOP, kFirst, {10, 10, 200, 34});
    HWND second = host.addControl(L"EDIT", WS_BORDER | WS_TABSTOP, kSecond, {10, 50, 200, 74});
    CCheckedEdit edit(host);
    ASSERT_TRUE(edit.SubclassDlgItem(kFirst, CWnd::FromHandle(host.hwnd())));
    EXPECT_NE(edit.GetStyle() & ES_UPPERCASE, 0u);

    CZemTestHost::focus(first);
    CZemTestHost::type(first, L"12,5");
    host.clearHeard();
    CZemTestHost::focus(second);

    EXPECT_EQ(edit.checks, 1);
    const std::size_t heard = killFocusAt(host, kFirst);
    ASSERT_LT(heard, host.heard().size()) << "the parent never heard EN_KILLFOCUS";
    EXPECT_GE(heard, edit.heardBeforeCheck);
    EXPECT_EQ(host.heard()[heard].text, L"CHECKED");

    // Let go: the edit's own behaviour stays, the object hears nothing more.
    EXPECT_EQ(edit.UnsubclassWindow(), first);
    CZemTestHost::focus(first);
    host.clearHeard();
    CZemTestHost::focus(second);
    EXPECT_EQ(edit.checks, 1);
    EXPECT_LT(killFocusAt(host, kFirst), host.heard().size());

    // A window takes one object at a time.
    CCheckedEdit one(host);
    CCheckedEdit two(host);
    ASSERT_TRUE(one.SubclassWindow(first));
    EXPECT_FALSE(two.SubclassWindow(first));
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_FALSE(one.SubclassDlgItem(kSecond, CWnd::FromHandle(host.hwnd())));
}
