#include "ZemPatternLibrary.h"

#include "ZemArrayTempl.h"
#include "ZemDataAccess.h"
#include "ZemFileSystem.h"
#include "ZemSupportPath.h"
#include "ZemTextUtil.h"

#include <cwchar>
#include <system_error>

namespace {

const wchar_t* const kDefaultFiles = L"zem.pat;acadiso.pat;acad.pat";

void configuredFiles(CZemArrayTempl<CZemString>& out) {
    CZemString joined;
    if (ZEM::cfgRead(L"PATTERN_FILES", joined)) {
        ZEM::strTok(joined, L";", out, false);
    } else if (!ZEM::cfgRead(L"PATTERN_FILES", out)) {
        ZEM::strTok(kDefaultFiles, L";", out, false);
    }
}

// A pattern name that can stand as a file name: no folder part, no dots
// leading out of the folder.
bool isPlainName(const wchar_t* name) {
    return *name && !std::wcspbrk(name, L"/\\:*?\"<>|") && std::wcscmp(name, L".") != 0 &&
           std::wcscmp(name, L"..") != 0;
}

}  // namespace

const CZemPatternFile* CZemPatternLibrary::file(const wchar_t* path) {
    std::error_code error;
    const std::filesystem::path native = ZEM::fsPath(path);
    const std::filesystem::file_time_type time = std::filesystem::last_write_time(native, error);
    const std::uintmax_t size = error ? 0 : std::filesystem::file_size(native, error);
    if (error) {
        m_files.erase(path);
        return nullptr;
    }
    std::unique_ptr<Entry>& entry = m_files[path];
    if (entry && entry->time == time && entry->size == size) return &entry->patterns;
    entry.reset(new Entry);
    if (!entry->patterns.load(path)) {
        m_files.erase(path);
        return nullptr;
    }
    entry->time = time;
    entry->size = size;
    return &entry->patterns;
}

bool CZemPatternLibrary::get(const wchar_t* name, Lines& out) {
    out.setLogicalLength(0);
    if (!name || !*name) return false;
    CZemArrayTempl<CZemString> names;
    configuredFiles(names);
    if (isPlainName(name)) names.append(CZemString(name) + L".pat");
    for (int k = 0; k < names.len(); ++k) {
        CZemString path;
        if (!ZEM::fileFind(names[k], path)) continue;
        const CZemPatternFile* patterns = file(path);
        if (patterns && patterns->get(name, out)) return true;
    }
    return false;
}
