#pragma once

#include "CDialog.h"

#include <commdlg.h>
#include <string>

// The platform's file open or save dialog. The filter is written as
// "text|pattern|text|pattern||".
class CFileDialog : public CDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    explicit CFileDialog(BOOL openFileDialog, LPCWSTR defaultExt = nullptr, LPCWSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCWSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);

    // GetOpenFileNameW or GetSaveFileNameW: IDOK or IDCANCEL. Without an
    // owner in m_ofn the parent's top-level window, or the active one, owns it.
    INT_PTR DoModal() override;
    OPENFILENAMEW& GetOFN() { return m_ofn; }
    const OPENFILENAMEW& GetOFN() const { return m_ofn; }
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;

    OPENFILENAMEW m_ofn = {};

private:
    BOOL m_openFileDialog;
    std::wstring m_defaultExt;
    std::wstring m_filter;
    std::wstring m_file;
    std::wstring m_title;
};
