#include "CDialog.h"
#include "CWinApp.h"
#include "ZemModalScript.h"
#include "ZemModuleStateGuard.h"

#include <gtest/gtest.h>

namespace {

// Template 9001 is in both modules under different captions; 9000 only in
// the library.
LPCWSTR kBoth = MAKEINTRESOURCEW(9001);
LPCWSTR kLibraryOnly = MAKEINTRESOURCEW(9000);
LPCWSTR kNowhere = MAKEINTRESOURCEW(8999);

HINSTANCE library() { return GetModuleHandleW(L"Zem_Mfc.dll"); }
HINSTANCE host() { return GetModuleHandleW(nullptr); }

// Opens template 9001 the way an exported dialog function of the library
// does: under the library's module state.
INT_PTR openLibraryDialog() {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CDialog dialog(9001u);
    return dialog.DoModal();
}

}  // namespace

TEST(ModuleState, TheLibrarysApplicationAndResourceChainUnderTheGuardAndWithout) {
    ASSERT_NE(library(), nullptr);
    EXPECT_EQ(AfxGetApp(), nullptr) << "the host has no application object of the framework";
    EXPECT_EQ(AfxGetInstanceHandle(), host());
    EXPECT_EQ(AfxFindResourceHandle(kBoth, RT_DIALOG), host());
    EXPECT_EQ(AfxFindResourceHandle(kLibraryOnly, RT_DIALOG), library()) << "the library's resources joined the chain";
    EXPECT_EQ(AfxFindResourceHandle(kNowhere, RT_DIALOG), host());

    // The guard searches the library first and restores the caller's state.
    AFX_MODULE_STATE* callers = AfxGetModuleState();
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        ASSERT_NE(AfxGetApp(), nullptr);
        EXPECT_EQ(AfxGetApp()->m_hInstance, library());
        EXPECT_EQ(AfxFindResourceHandle(kBoth, RT_DIALOG), library());
        EXPECT_EQ(AfxFindResourceHandle(kNowhere, RT_DIALOG), library());
        {
            AFX_MANAGE_STATE(callers);
            EXPECT_EQ(AfxFindResourceHandle(kBoth, RT_DIALOG), host());
        }
        EXPECT_EQ(AfxFindResourceHandle(kBoth, RT_DIALOG), library());
    }
    EXPECT_EQ(AfxGetModuleState(), callers);
    EXPECT_EQ(AfxFindResourceHandle(kBoth, RT_DIALOG), host());
}

TEST(ModuleState, DialogOpenedUnderTheGuardComesFromTheLibrary) {
    CZemModalScript underGuard({CZemModalScript::clickButton(IDOK)});
    underGuard.arm();
    EXPECT_EQ(openLibraryDialog(), IDOK);
    EXPECT_EQ(underGuard.firstCaption(), L"Zem_Mfc 9001");

    CZemModalScript fromHost({CZemModalScript::clickButton(IDOK)});
    fromHost.arm();
    CDialog hostDialog(9001u);
    EXPECT_EQ(hostDialog.DoModal(), IDOK);
    EXPECT_EQ(fromHost.firstCaption(), L"Host 9001");
}
