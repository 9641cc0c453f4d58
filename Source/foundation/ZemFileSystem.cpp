#include "ZemFileSystem.h"

#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <fstream>
#include <system_error>
#include <type_traits>

namespace {

// The native form of a file name is wide text on some systems and bytes, taken
// as UTF-8, on others; the branch not taken is never compiled.
template <class Native>
std::filesystem::path pathOf(const std::wstring& text) {
    if constexpr (std::is_same_v<Native, wchar_t>) {
        return std::filesystem::path(text);
    } else {
        return std::filesystem::u8path(ZEM::utf8Encode(text));
    }
}

template <class NativeString>
CZemString textOf(const NativeString& native) {
    if constexpr (std::is_same_v<typename NativeString::value_type, wchar_t>) {
        return CZemString(native.c_str());
    } else {
        return CZemString(ZEM::utf8Decode(native.data(), native.size()).c_str());
    }
}

}  // namespace

namespace ZEM {

std::filesystem::path fsPath(const wchar_t* name) {
    return pathOf<std::filesystem::path::value_type>(name ? name : L"");
}

CZemString fsText(const std::filesystem::path& path) { return textOf(path.native()); }

bool fsIsFile(const wchar_t* name) {
    if (!name || !*name) return false;
    std::error_code error;
    return std::filesystem::is_regular_file(fsPath(name), error);
}

bool fsReadAll(const wchar_t* name, std::string& bytes, std::size_t maxBytes) {
    if (!fsIsFile(name)) {
        dump(L"%s: no such file\n", name ? name : L"");
        return false;
    }
    std::ifstream in(fsPath(name), std::ios::binary);
    if (!in) {
        dump(L"%s: cannot open the file\n", name);
        return false;
    }
    std::string content;
    char buffer[65536];
    while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
        content.append(buffer, static_cast<std::size_t>(in.gcount()));
        if (content.size() > maxBytes) {
            dump(L"%s: the file is larger than %lu bytes\n", name, static_cast<unsigned long>(maxBytes));
            return false;
        }
    }
    if (in.bad()) {
        dump(L"%s: cannot read the file\n", name);
        return false;
    }
    bytes.swap(content);
    return true;
}

CZemString fsJoin(const wchar_t* folder, const wchar_t* name) {
    if (!folder || !*folder) return CZemString(name);
    return fsText(fsPath(folder) / fsPath(name));
}

}  // namespace ZEM
