#include "CDataExchange.h"
#include "CDialog.h"
#include "CEdit.h"
#include "ZemModalScript.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kForm = 9000;
constexpr int kName = 9010;

// An edit that can keep Return to itself, as a multi-line entry would.
class CReturnKeepingEdit : public CEdit {
public:
    bool keep = false;
    int returnsKept = 0;
    BOOL PreTranslateMessage(MSG* msg) override {
        if (!keep || msg->message != WM_KEYDOWN || msg->wParam != VK_RETURN) return FALSE;
        ++returnsKept;
        return TRUE;
    }
};

// The form of template 9000: its name field bound to an object, the text
// taken on OK.
class CFormDialog : public CDialog {
public:
    explicit CFormDialog(CWnd* parent) : CDialog(kForm, parent) {}
    CReturnKeepingEdit m_name;
    CString m_taken;
    int initRuns = 0;
    int keyDownsSeen = 0;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        ++initRuns;
        m_name.SetWindowTextW(L"start");
        return TRUE;
    }
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Control(dx, kName, m_name);
        if (dx->m_bSaveAndValidate) m_name.GetWindowTextW(m_taken);
    }
    BOOL PreTranslateMessage(MSG* msg) override {
        if (msg->message == WM_KEYDOWN) ++keyDownsSeen;
        return CDialog::PreTranslateMessage(msg);
    }
};

}  // namespace

TEST(Dialog, ModalFormEndsWithOneOnOkAndTwoOnCancelAndItsControlsSeeKeysFirst) {
    CZemTestHost host;
    CFormDialog form(CWnd::FromHandle(host.hwnd()));

    CZemModalScript typeAndReturn({CZemModalScript::focusItem(kName), CZemModalScript::setText(kName, L"typed"),
                                   CZemModalScript::run([&](HWND) { EXPECT_FALSE(IsWindowEnabled(host.hwnd())); }),
                                   CZemModalScript::pressKey(VK_RETURN)});
    typeAndReturn.arm();
    EXPECT_EQ(form.DoModal(), 1);
    EXPECT_FALSE(typeAndReturn.timedOut());
    EXPECT_EQ(typeAndReturn.firstCaption(), L"Zem_Mfc 9000");
    EXPECT_EQ(form.m_taken, L"typed");
    EXPECT_GE(form.keyDownsSeen, 1);
    EXPECT_TRUE(IsWindowEnabled(host.hwnd()));
    EXPECT_EQ(form.m_name.m_hWnd, nullptr);

    // The same object runs again; its controls bind afresh.
    form.m_taken.Empty();
    CZemModalScript cancel({CZemModalScript::setText(kName, L"dropped"), CZemModalScript::clickButton(IDCANCEL)});
    cancel.arm();
    EXPECT_EQ(form.DoModal(), 2);
    EXPECT_TRUE(form.m_taken.IsEmpty());
    EXPECT_EQ(form.initRuns, 2);

    CZemModalScript escape({CZemModalScript::focusItem(kName), CZemModalScript::pressKey(VK_ESCAPE)});
    escape.arm();
    EXPECT_EQ(form.DoModal(), 2);

    // Control objects see keys before the dialog does.
    form.m_name.keep = true;
    form.keyDownsSeen = 0;
    CZemModalScript kept({CZemModalScript::pressKeyOn(kName, VK_RETURN),
                          CZemModalScript::run([&](HWND) { form.EndDialog(7); })});
    kept.arm();
    EXPECT_EQ(form.DoModal(), 7);
    EXPECT_EQ(form.m_name.returnsKept, 1);
    EXPECT_EQ(form.keyDownsSeen, 0);
}

// A form whose data exchange names a control the template lacks.
class CBrokenForm : public CDialog {
public:
    CBrokenForm() : CDialog(kForm) {}
    CEdit m_missing;
    void DoDataExchange(CDataExchange* dx) override { DDX_Control(dx, 9999, m_missing); }
};

TEST(Dialog, FailedDataExchangeKeepsTheDialogOpen) {
    CZemTestHost host;
    CBrokenForm form;
    bool openAfterOk = false;
    CZemModalScript script({CZemModalScript::clickButton(IDOK),
                            CZemModalScript::run([&](HWND dialog) { openAfterOk = IsWindowVisible(dialog) != 0; }),
                            CZemModalScript::clickButton(IDCANCEL)});
    script.arm();
    EXPECT_EQ(form.DoModal(), 2);
    EXPECT_TRUE(openAfterOk);
    EXPECT_EQ(form.m_missing.m_hWnd, nullptr);
}

TEST(Dialog, ModelessFormLivesUntilDestroyedAndAMissingTemplateFails) {
    CZemTestHost host;
    CDialog missing(8999u, CWnd::FromHandle(host.hwnd()));
    EXPECT_EQ(missing.DoModal(), -1);
    EXPECT_TRUE(IsWindowEnabled(host.hwnd()));
    EXPECT_FALSE(missing.Create(8999u, nullptr));

    CFormDialog form(nullptr);
    ASSERT_TRUE(form.Create(kForm, CWnd::FromHandle(host.hwnd())));
    EXPECT_EQ(form.initRuns, 1);
    EXPECT_EQ(GetWindow(form, GW_OWNER), host.hwnd());
    EXPECT_TRUE(IsWindowEnabled(host.hwnd()));

    form.EndDialog(IDOK);
    EXPECT_FALSE(form.IsWindowVisible());
    EXPECT_TRUE(form.DestroyWindow());
    EXPECT_EQ(form.m_hWnd, nullptr);
}
