#include "ZemLabel.h"

#include "ZemMessages.h"

#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::wstring, std::wstring>> Entries;

bool isCodeChar(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9') || c == L'_' ||
           c == L'-';
}

bool validCode(const std::wstring& code) {
    if (code.empty()) return false;
    for (wchar_t c : code)
        if (!isCodeChar(c)) return false;
    return true;
}

std::wstring upperAscii(const std::wstring& text) {
    std::wstring out = text;
    for (wchar_t& c : out)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    return out;
}

// Splits a label that begins with a backslash into its entries. At a single
// backslash an entry begins; its code runs to '=', its text to the next
// single backslash, "\\" in it being one backslash.
Entries parseLabel(const std::wstring& label) {
    Entries entries;
    std::size_t pos = 0;
    while (pos < label.size()) {
        ++pos;  // the backslash that begins the entry
        const std::size_t equal = label.find(L'=', pos);
        std::size_t end = pos;
        std::wstring text;
        while (end < label.size() && !(label[end] == L'\\' && (end + 1 >= label.size() || label[end + 1] != L'\\'))) {
            if (label[end] == L'\\') ++end;
            if (equal != std::wstring::npos && end > equal) text += label[end];
            ++end;
        }
        if (equal != std::wstring::npos && equal < end) {
            const std::wstring code = label.substr(pos, equal - pos);
            if (validCode(code)) entries.emplace_back(code, text);
        }
        pos = end;
    }
    return entries;
}

std::wstring formatLabel(const Entries& entries) {
    std::wstring label;
    for (const auto& entry : entries) {
        label += L'\\';
        label += entry.first;
        label += L'=';
        for (wchar_t c : entry.second) {
            if (c == L'\\') label += L'\\';
            label += c;
        }
    }
    return label;
}

std::wstring languageOf(const wchar_t* language) {
    return upperAscii(language && *language ? language : ZEM::msgLangSet(nullptr));
}

}  // namespace

namespace ZEM {

bool label_get(CZemString& out, const wchar_t* label, const wchar_t* language, bool anyLanguage) {
    if (!label || !*label) return false;
    if (label[0] != L'\\') {
        out = label;
        return true;
    }
    const Entries entries = parseLabel(label);
    const std::wstring code = languageOf(language);
    for (const auto& entry : entries) {
        if (upperAscii(entry.first) == code && !entry.second.empty()) {
            out = entry.second.c_str();
            return true;
        }
    }
    if (!anyLanguage) return false;
    for (const auto& entry : entries) {
        if (!entry.second.empty()) {
            out = entry.second.c_str();
            return true;
        }
    }
    return false;
}

const wchar_t* label_set(CZemString& label, const wchar_t* text, const wchar_t* language) {
    const std::wstring code = languageOf(language);
    if (!validCode(code)) return label;
    const std::wstring present = static_cast<const wchar_t*>(label);
    Entries entries;
    if (!present.empty() && present[0] == L'\\') {
        entries = parseLabel(present);
    } else if (!present.empty()) {
        entries.emplace_back(languageOf(nullptr), present);
    }
    bool placed = false;
    for (auto it = entries.begin(); it != entries.end();) {
        if (upperAscii(it->first) != code) {
            ++it;
        } else if (text && *text && !placed) {
            it->second = text;
            placed = true;
            ++it;
        } else {
            it = entries.erase(it);
        }
    }
    if (text && *text && !placed) entries.emplace_back(code, text);
    label = formatLabel(entries).c_str();
    return label;
}

CZemString label_set(const wchar_t* label, const wchar_t* text, const wchar_t* language) {
    CZemString result(label);
    label_set(result, text, language);
    return result;
}

}  // namespace ZEM
