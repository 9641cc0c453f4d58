#include "CString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <cwctype>

namespace {

const wchar_t* orEmpty(const wchar_t* text) { return text != nullptr ? text : L""; }

int clampIndex(int index, int length) { return std::max(0, std::min(index, length)); }

// Formats with the Microsoft conventions of the C runtime, where %s in a wide
// format takes a wide string, as the framework's users expect.
std::wstring formatV(const wchar_t* format, va_list args) {
    if (format == nullptr) return std::wstring();
    va_list count;
    va_copy(count, args);
    const int length = _vscwprintf(format, count);
    va_end(count);
    if (length <= 0) return std::wstring();
    std::wstring out(static_cast<std::size_t>(length) + 1, L'\0');
    const int written = _vsnwprintf(&out[0], out.size(), format, args);
    out.resize(written < 0 ? 0 : static_cast<std::size_t>(written));
    return out;
}

}  // namespace

CString::CString(const wchar_t* text) : m_text(orEmpty(text)) {}

CString::CString(const wchar_t* text, int length) {
    if (text != nullptr && length > 0) m_text.assign(text, static_cast<std::size_t>(length));
}

CString::CString(wchar_t ch, int repeat) {
    if (repeat > 0) m_text.assign(static_cast<std::size_t>(repeat), ch);
}

CString& CString::operator=(const wchar_t* text) {
    m_text = orEmpty(text);
    return *this;
}

wchar_t CString::GetAt(int index) const {
    return index >= 0 && index < GetLength() ? m_text[static_cast<std::size_t>(index)] : L'\0';
}

void CString::SetAt(int index, wchar_t ch) {
    if (index >= 0 && index < GetLength()) m_text[static_cast<std::size_t>(index)] = ch;
}

CString& CString::operator+=(const wchar_t* text) {
    m_text += orEmpty(text);
    return *this;
}

CString& CString::operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(wchar_t ch) {
    m_text += ch;
    return *this;
}

CString operator+(const CString& a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const CString& a, const wchar_t* b) {
    CString r(a);
    r += b;
    return r;
}

CString operator+(const wchar_t* a, const CString& b) {
    CString r(a);
    r += b;
    return r;
}

int CString::Compare(const wchar_t* text) const { return std::wcscmp(m_text.c_str(), orEmpty(text)); }

int CString::CompareNoCase(const wchar_t* text) const { return _wcsicmp(m_text.c_str(), orEmpty(text)); }

CString CString::Left(int count) const { return Mid(0, count); }

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Mid(int first, int count) const {
    first = clampIndex(first, GetLength());
    count = clampIndex(count, GetLength() - first);
    return CString(m_text.c_str() + first, count);
}

CString CString::Right(int count) const {
    count = clampIndex(count, GetLength());
    return CString(m_text.c_str() + (GetLength() - count), count);
}

int CString::Find(wchar_t ch, int start) const {
    if (start < 0 || start >= GetLength()) return -1;
    const std::size_t at = m_text.find(ch, static_cast<std::size_t>(start));
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CString::Find(const wchar_t* sub, int start) const {
    if (sub == nullptr || start < 0 || start > GetLength()) return -1;
    const std::size_t at = m_text.find(sub, static_cast<std::size_t>(start));
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CString::ReverseFind(wchar_t ch) const {
    const std::size_t at = m_text.rfind(ch);
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CString::Replace(const wchar_t* pattern, const wchar_t* with) {
    if (pattern == nullptr || *pattern == L'\0') return 0;
    const std::wstring from(pattern);
    const std::wstring to(orEmpty(with));
    int count = 0;
    for (std::size_t at = m_text.find(from); at != std::wstring::npos; at = m_text.find(from, at + to.size())) {
        m_text.replace(at, from.size(), to);
        ++count;
    }
    return count;
}

int CString::Replace(wchar_t from, wchar_t to) {
    int count = 0;
    for (wchar_t& c : m_text) {
        if (c == from) {
            c = to;
            ++count;
        }
    }
    return count;
}

int CString::Remove(wchar_t ch) {
    const std::size_t before = m_text.size();
    m_text.erase(std::remove(m_text.begin(), m_text.end(), ch), m_text.end());
    return static_cast<int>(before - m_text.size());
}

int CString::Insert(int index, const wchar_t* text) {
    m_text.insert(static_cast<std::size_t>(clampIndex(index, GetLength())), orEmpty(text));
    return GetLength();
}

int CString::Delete(int index, int count) {
    if (index >= 0 && index < GetLength() && count > 0) {
        m_text.erase(static_cast<std::size_t>(index), static_cast<std::size_t>(count));
    }
    return GetLength();
}

CString& CString::Trim() { return TrimRight().TrimLeft(); }

CString& CString::TrimLeft() {
    const auto first = std::find_if(m_text.begin(), m_text.end(), [](wchar_t c) { return !std::iswspace(c); });
    m_text.erase(m_text.begin(), first);
    return *this;
}

CString& CString::TrimRight() {
    const auto last = std::find_if(m_text.rbegin(), m_text.rend(), [](wchar_t c) { return !std::iswspace(c); });
    m_text.erase(last.base(), m_text.end());
    return *this;
}

CString& CString::MakeUpper() {
    for (wchar_t& c : m_text) c = static_cast<wchar_t>(std::towupper(c));
    return *this;
}

CString& CString::MakeLower() {
    for (wchar_t& c : m_text) c = static_cast<wchar_t>(std::towlower(c));
    return *this;
}

void CString::Format(const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    m_text = formatV(format, args);
    va_end(args);
}

void CString::AppendFormat(const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    m_text += formatV(format, args);
    va_end(args);
}

wchar_t* CString::GetBuffer(int minLength) {
    if (minLength > GetLength()) m_text.resize(static_cast<std::size_t>(minLength));
    return &m_text[0];
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < 0) newLength = static_cast<int>(std::wcslen(m_text.c_str()));
    m_text.resize(static_cast<std::size_t>(clampIndex(newLength, GetLength())));
}

wchar_t* CString::GetBufferSetLength(int length) {
    m_text.resize(static_cast<std::size_t>(std::max(0, length)));
    return &m_text[0];
}
