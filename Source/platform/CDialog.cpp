#include "CDialog.h"

#include "AfxWin.h"
#include "ZemCreateHook.h"
#include "ZemModuleState.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, OnOK)
ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_lpszTemplateName(MAKEINTRESOURCEW(templateId)), m_pParentWnd(parent) {}

CDialog::CDialog(LPCWSTR templateName, CWnd* parent) : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

INT_PTR CALLBACK CDialog::StaticDialogProc(HWND, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG) return FALSE;
    auto* dialog = reinterpret_cast<CDialog*>(lParam);
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        dialog->EndDialog(-1);
        return FALSE;
    }
}

HWND CDialog::createFromTemplate(HWND parent) {
    if (m_hWnd != nullptr || m_lpszTemplateName == nullptr) return nullptr;
    HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    HRSRC found = module != nullptr ? FindResourceW(module, m_lpszTemplateName, RT_DIALOG) : nullptr;
    HGLOBAL loaded = found != nullptr ? LoadResource(module, found) : nullptr;
    const auto* dialogTemplate = loaded != nullptr ? static_cast<LPCDLGTEMPLATEW>(LockResource(loaded)) : nullptr;
    if (dialogTemplate == nullptr) return nullptr;
    zemInitCommonControls();
    HWND hwnd = nullptr;
    {
        CZemCreateHook hook(this);
        hwnd = CreateDialogIndirectParamW(module, dialogTemplate, parent, &CDialog::StaticDialogProc,
                                          reinterpret_cast<LPARAM>(this));
    }
    return hwnd != nullptr && hwnd == m_hWnd ? hwnd : nullptr;
}

// The top-level window above the given parent, else the active window.
HWND CDialog::modalOwner() const {
    HWND parent = m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : nullptr;
    if (parent == nullptr) parent = ::GetActiveWindow();
    return parent != nullptr ? ::GetAncestor(parent, GA_ROOT) : nullptr;
}

INT_PTR CDialog::DoModal() {
    if (m_hWnd != nullptr) return -1;
    HWND owner = modalOwner();
    const bool reenableOwner = owner != nullptr && ::IsWindowEnabled(owner);
    if (reenableOwner) ::EnableWindow(owner, FALSE);
    m_nModalResult = -1;
    m_endModal = false;
    m_inModalLoop = true;
    if (createFromTemplate(owner) != nullptr && !m_endModal) {
        if (!IsWindowVisible()) ShowWindow(SW_SHOWNORMAL);
        runModalLoop();
    }
    m_inModalLoop = false;
    if (reenableOwner) ::EnableWindow(owner, TRUE);
    if (m_hWnd != nullptr) {
        if (owner != nullptr && ::GetActiveWindow() == m_hWnd) ::SetActiveWindow(owner);
        DestroyWindow();
    }
    return m_nModalResult;
}

void CDialog::runModalLoop() {
    MSG msg;
    while (!m_endModal && ::IsWindow(m_hWnd)) {
        const BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
        if (got == -1) break;
        if (got == 0) {
            // The quit request belongs to the host's loop.
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        const bool ours = msg.hwnd != nullptr && (msg.hwnd == m_hWnd || ::IsChild(m_hWnd, msg.hwnd));
        if (ours && WalkPreTranslateTree(m_hWnd, &msg)) continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) { return Create(MAKEINTRESOURCEW(templateId), parent); }

BOOL CDialog::Create(LPCWSTR templateName, CWnd* parent) {
    m_lpszTemplateName = templateName;
    m_pParentWnd = parent;
    return createFromTemplate(parent != nullptr ? parent->m_hWnd : nullptr) != nullptr;
}

void CDialog::EndDialog(int result) {
    m_nModalResult = result;
    if (m_inModalLoop) {
        m_endModal = true;
        // Wakes the loop if the call came from outside a message.
        if (m_hWnd != nullptr) ::PostMessageW(m_hWnd, WM_NULL, 0, 0);
    } else if (m_hWnd != nullptr) {
        ::EndDialog(m_hWnd, result);
    }
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* msg) {
    if (CWnd::PreTranslateMessage(msg)) return TRUE;
    if (m_hWnd == nullptr) return FALSE;
    const bool input = (msg->message >= WM_KEYFIRST && msg->message <= WM_KEYLAST) ||
                       (msg->message >= WM_MOUSEFIRST && msg->message <= WM_MOUSELAST);
    return input && ::IsDialogMessageW(m_hWnd, msg);
}
