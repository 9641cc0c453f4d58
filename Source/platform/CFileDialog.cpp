#include "CFileDialog.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CFileDialog, CDialog)

namespace {

// Room for a long path, or for several names with OFN_ALLOWMULTISELECT.
constexpr std::size_t kFileBuffer = 32768;

// "a|b|c|d||" to "a\0b\0c\0d\0\0".
std::wstring platformFilter(LPCWSTR filter) {
    std::wstring out(filter != nullptr ? filter : L"");
    std::replace(out.begin(), out.end(), L'|', L'\0');
    out.append(2, L'\0');
    return out;
}

}  // namespace

CFileDialog::CFileDialog(BOOL openFileDialog, LPCWSTR defaultExt, LPCWSTR fileName, DWORD flags, LPCWSTR filter,
                         CWnd* parent, DWORD size, BOOL)
    : CDialog(static_cast<LPCWSTR>(nullptr), parent),
      m_openFileDialog(openFileDialog),
      m_defaultExt(defaultExt != nullptr ? defaultExt : L""),
      m_filter(platformFilter(filter)),
      m_file(kFileBuffer, L'\0'),
      m_title(kFileBuffer, L'\0') {
    if (fileName != nullptr) m_file.replace(0, std::min(std::wcslen(fileName), kFileBuffer - 1), fileName);
    m_ofn.lStructSize = size != 0 ? size : static_cast<DWORD>(sizeof(OPENFILENAMEW));
    m_ofn.lpstrFile = &m_file[0];
    m_ofn.nMaxFile = static_cast<DWORD>(kFileBuffer);
    m_ofn.lpstrFileTitle = &m_title[0];
    m_ofn.nMaxFileTitle = static_cast<DWORD>(kFileBuffer);
    m_ofn.lpstrDefExt = defaultExt != nullptr ? m_defaultExt.c_str() : nullptr;
    m_ofn.lpstrFilter = filter != nullptr ? m_filter.c_str() : nullptr;
    m_ofn.Flags = flags | OFN_EXPLORER | OFN_ENABLESIZING;
    m_ofn.hInstance = nullptr;
}

INT_PTR CFileDialog::DoModal() {
    if (m_ofn.hwndOwner == nullptr) {
        HWND owner = m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : ::GetActiveWindow();
        m_ofn.hwndOwner = owner != nullptr ? ::GetAncestor(owner, GA_ROOT) : nullptr;
    }
    const BOOL chosen = m_openFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const { return CString(m_ofn.lpstrFile); }

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    const int slash = std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/'));
    return path.Mid(slash + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}
