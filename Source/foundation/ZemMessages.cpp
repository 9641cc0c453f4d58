#include "ZemMessages.h"

#include "ZemArrayTempl.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemFileSystem.h"
#include "ZemSupportPath.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <map>
#include <string>
#include <unordered_map>

namespace {

// Message files are small; a larger one is refused.
constexpr std::size_t kMaxFileBytes = std::size_t(16) << 20;

typedef std::unordered_map<std::wstring, std::wstring> Catalogue;

std::map<std::wstring, Catalogue>& catalogues() {
    static std::map<std::wstring, Catalogue> store;
    return store;
}

CZemString& currentLanguage() {
    static CZemString language;
    return language;
}

std::wstring upperAscii(const wchar_t* text) {
    std::wstring out = text ? text : L"";
    for (wchar_t& c : out)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    return out;
}

std::wstring trim(const std::wstring& text) {
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring::npos) return std::wstring();
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

// The text of a message line with its escapes resolved.
std::wstring unescape(const std::wstring& text) {
    std::wstring out;
    for (std::size_t k = 0; k < text.size(); ++k) {
        const wchar_t next = k + 1 < text.size() ? text[k + 1] : 0;
        const wchar_t* simple = next ? std::wcschr(L"ntrs\\", next) : nullptr;
        if (text[k] != L'\\' || (!simple && next != L'u')) {
            out += text[k];
        } else if (simple) {
            out += L"\n\t\r \\"[simple - L"ntrs\\"];
            ++k;
        } else {
            unsigned long code = 0;
            std::size_t digits = 0;
            for (; digits < 4 && k + 2 + digits < text.size() && hexDigit(text[k + 2 + digits]) >= 0; ++digits)
                code = code * 16 + static_cast<unsigned long>(hexDigit(text[k + 2 + digits]));
            if (digits < 4 || code == 0) {
                out += text[k];
                continue;
            }
            out += static_cast<wchar_t>(code);
            k += 5;
        }
    }
    return out;
}

void readMessageLine(const std::wstring& line, const CZemString& file, int number, Catalogue& catalogue) {
    const std::wstring text = trim(line);
    if (text.empty() || text[0] == L'#' || text[0] == L';') return;
    const std::size_t equal = text.find(L'=');
    const std::wstring key = equal == std::wstring::npos ? std::wstring() : trim(text.substr(0, equal));
    if (key.empty()) {
        ZEM::dump(L"%s:%d: not a message line; passed over\n", static_cast<const wchar_t*>(file), number);
        return;
    }
    catalogue.emplace(key, unescape(trim(text.substr(equal + 1))));
}

void readMessageFile(const CZemString& file, Catalogue& catalogue) {
    std::string bytes;
    if (!ZEM::fsReadAll(file, bytes, kMaxFileBytes)) return;
    const std::wstring text = ZEM::utf8Decode(bytes.data(), bytes.size());
    std::size_t start = 0;
    for (int number = 1; start <= text.size(); ++number) {
        std::size_t end = text.find(L'\n', start);
        if (end == std::wstring::npos) end = text.size();
        std::wstring line = text.substr(start, end - start);
        if (!line.empty() && line.back() == L'\r') line.pop_back();
        readMessageLine(line, file, number, catalogue);
        start = end + 1;
    }
}

Catalogue& catalogueOf(const wchar_t* prefix, const wchar_t* language) {
    const std::wstring lang = upperAscii(language && *language ? language : ZEM::msgLangSet(nullptr));
    const std::wstring name = std::wstring(prefix ? prefix : L"") + lang;
    auto found = catalogues().find(name);
    if (found != catalogues().end()) return found->second;
    Catalogue& catalogue = catalogues()[name];
    CZemArrayTempl<CZemString> folders;
    ZEM::supportFolders(folders);
    const std::wstring fileName = name + L".msg";
    for (int k = 0; k < folders.len(); ++k) {
        const CZemString file = ZEM::fsJoin(folders[k], fileName.c_str());
        if (ZEM::fsIsFile(file)) readMessageFile(file, catalogue);
    }
    return catalogue;
}

}  // namespace

namespace ZEM {

const wchar_t* msgLangSet(const wchar_t* language) {
    CZemString& current = currentLanguage();
    if (language && *language) {
        current = upperAscii(language).c_str();
    } else if (current.isEmpty()) {
        CZemString configured;
        current = cfgRead(L"LANGUAGE", configured) && !configured.isEmpty() ? upperAscii(configured).c_str() : L"DEU";
    }
    return current;
}

bool msgFind(const wchar_t* prefix, const wchar_t* key, const wchar_t* language, CZemString& out) {
    if (!key) return false;
    const Catalogue& catalogue = catalogueOf(prefix, language);
    const auto found = catalogue.find(key);
    if (found == catalogue.end()) return false;
    out = found->second.c_str();
    return true;
}

void msgSet(const wchar_t* prefix, const wchar_t* key, const wchar_t* language, const wchar_t* text) {
    if (!key || !*key) return;
    catalogueOf(prefix, language)[key] = text ? text : L"";
}

void msgReload() {
    catalogues().clear();
    currentLanguage() = L"";
}

}  // namespace ZEM

CZemString zem_msg_get(const wchar_t* prefix, const wchar_t* key, const wchar_t* text, const wchar_t* language) {
    CZemString message(text);
    ZEM::msgFind(prefix, key, language, message);
    return message;
}
