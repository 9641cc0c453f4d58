#include "ZemSupportPath.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemFileSystem.h"
#include "ZemTextUtil.h"

#include <cwchar>

namespace {

// Appends the folders of a configuration key: one string with ';' between
// folders, or a list of strings; blanks around a folder are dropped.
void appendFolders(const wchar_t* key, CZemArrayTempl<CZemString>& out) {
    CZemArrayTempl<CZemString> parts;
    CZemString joined;
    if (ZEM::cfgRead(key, joined)) {
        ZEM::strTok(joined, L";", parts, false);
    } else {
        ZEM::cfgRead(key, parts);
    }
    for (int k = 0; k < parts.len(); ++k) {
        std::wstring folder = static_cast<const wchar_t*>(parts[k]);
        const std::size_t first = folder.find_first_not_of(L" \t");
        if (first == std::wstring::npos) continue;
        folder = folder.substr(first, folder.find_last_not_of(L" \t") - first + 1);
        out.append(CZemString(folder.c_str()));
    }
}

bool hasFolderPart(const wchar_t* name) {
    return std::wcschr(name, L'/') || std::wcschr(name, L'\\') || std::wcschr(name, L':');
}

bool findIn(const CZemArrayTempl<CZemString>& folders, const wchar_t* name, CZemString& path) {
    if (!name || !*name) return false;
    if (hasFolderPart(name) && ZEM::fsIsFile(name)) {
        path = name;
        return true;
    }
    for (int k = 0; k < folders.len(); ++k) {
        const CZemString candidate = ZEM::fsJoin(folders[k], name);
        if (ZEM::fsIsFile(candidate)) {
            path = candidate;
            return true;
        }
    }
    return false;
}

}  // namespace

namespace ZEM {

void supportFolders(CZemArrayTempl<CZemString>& out) {
    out.setLogicalLength(0);
    appendFolders(L"SUPPORT", out);
    if (!cfgLibraryDir().isEmpty()) out.append(cfgLibraryDir());
}

bool fileFind(const wchar_t* name, CZemString& path) {
    CZemArrayTempl<CZemString> folders;
    supportFolders(folders);
    return findIn(folders, name, path);
}

bool help_find(const wchar_t* name, CZemString& path) {
    CZemArrayTempl<CZemString> folders;
    CZemArrayTempl<CZemString> support;
    appendFolders(L"HELP", folders);
    supportFolders(support);
    for (int k = 0; k < support.len(); ++k) folders.append(support[k]);
    return findIn(folders, name, path);
}

}  // namespace ZEM
