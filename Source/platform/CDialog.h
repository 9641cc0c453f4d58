#pragma once

#include "CWnd.h"

// A dialog from a dialog template in the resources (found through
// AfxFindResourceHandle): modal with its own message loop, in which each
// message is first offered to PreTranslateMessage of the objects on its way
// up to the dialog, or modeless. OK and Cancel end it through OnOK and
// OnCancel.
class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    explicit CDialog(LPCWSTR templateName, CWnd* parent = nullptr);

    // Runs the dialog until EndDialog: IDOK, IDCANCEL or the value given to
    // EndDialog; -1 if the template or the window can't be made. The owner is
    // disabled meanwhile.
    virtual INT_PTR DoModal();
    // A modeless dialog; true once OnInitDialog has run.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr);
    // Ends the modal loop with result; a modeless dialog is hidden.
    void EndDialog(int result);

    // Binds the controls (UpdateData(FALSE)); TRUE lets the platform set
    // the focus.
    virtual BOOL OnInitDialog();
    // Takes the data (UpdateData(TRUE)) and, if that worked, ends with IDOK.
    virtual void OnOK();
    virtual void OnCancel();
    // Keyboard and mouse input for this dialog goes to IsDialogMessageW.
    BOOL PreTranslateMessage(MSG* msg) override;

    LPCWSTR m_lpszTemplateName = nullptr;
    CWnd* m_pParentWnd = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    static INT_PTR CALLBACK StaticDialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    HWND createFromTemplate(HWND parent);
    HWND modalOwner() const;
    void runModalLoop();

    bool m_inModalLoop = false;
    bool m_endModal = false;
    INT_PTR m_nModalResult = -1;
};
