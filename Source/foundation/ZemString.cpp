#include "ZemString.h"

#include "ZemTextUtil.h"

#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <string>

namespace {

const wchar_t kEmpty[] = L"";

const wchar_t* orEmpty(const wchar_t* text) { return text ? text : kEmpty; }

int hexValue(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

// Reads `digits` hex digits at text; -1 if any is missing.
long readHex(const wchar_t* text, int digits) {
    long value = 0;
    for (int k = 0; k < digits; ++k) {
        const int d = hexValue(text[k]);
        if (d < 0) return -1;
        value = value * 16 + d;
    }
    return value;
}

}  // namespace

CZemString::CZemString(const wchar_t* text) { *this = text; }

CZemString::CZemString(const CZemString& other) : CZemObj() { *this = other; }

CZemString::~CZemString() { delete[] m_data; }

CZemString& CZemString::operator=(const wchar_t* text) {
    text = orEmpty(text);
    if (text == m_data) return *this;
    if (m_data && text > m_data && text < m_data + m_capacity) {
        const std::wstring copy(text);  // a tail of this very string
        assign(copy.c_str(), copy.size());
        return *this;
    }
    assign(text, std::wcslen(text));
    return *this;
}

CZemString& CZemString::operator=(const CZemString& other) {
    if (this != &other) assign(other, static_cast<std::size_t>(other.len()));
    return *this;
}

void CZemString::assign(const wchar_t* text, std::size_t count) {
    if (count == 0 && !m_data) return;  // an empty string needs no buffer
    ensureCapacity(count + 1);
    std::wmemcpy(m_data, text, count);
    m_data[count] = 0;
}

void CZemString::ensureCapacity(std::size_t chars) {
    if (chars <= m_capacity) return;
    wchar_t* storage = new wchar_t[chars];
    if (m_data) {
        std::wmemcpy(storage, m_data, m_capacity);
    } else {
        storage[0] = 0;
    }
    delete[] m_data;
    m_data = storage;
    m_capacity = chars;
}

CZemString::operator const wchar_t*() const { return orEmpty(m_data); }

int CZemString::len() const { return m_data ? static_cast<int>(std::wcslen(m_data)) : 0; }

bool CZemString::isEmpty() const { return !m_data || m_data[0] == 0; }

wchar_t& CZemString::operator[](int i) {
    const int n = len();
    if (i < 0) i = n + i < 0 ? 0 : n + i;
    if (i >= n) {
        ensureCapacity(static_cast<std::size_t>(i) + 2);
        for (int k = n; k <= i; ++k) m_data[k] = L' ';
        m_data[i + 1] = 0;
    }
    return m_data[i];
}

wchar_t* CZemString::GetBuffer(std::size_t n) {
    ensureCapacity(n + 1);
    return m_data;
}

bool CZemString::operator==(const wchar_t* text) const {
    return std::wcscmp(*this, orEmpty(text)) == 0;
}

bool CZemString::operator==(const CZemString& other) const { return *this == static_cast<const wchar_t*>(other); }

bool CZemString::operator!=(const wchar_t* text) const { return !(*this == text); }

bool CZemString::operator<(const wchar_t* text) const { return std::wcscmp(*this, orEmpty(text)) < 0; }

bool CZemString::operator>(const wchar_t* text) const { return std::wcscmp(*this, orEmpty(text)) > 0; }

CZemString CZemString::operator+(const CZemString& other) const {
    CZemString sum(*this);
    return sum += other;
}

CZemString& CZemString::operator+=(const CZemString& other) { return *this += static_cast<const wchar_t*>(other); }

CZemString& CZemString::operator+=(const wchar_t* text) {
    const std::wstring tail(orEmpty(text));  // text may be this very string
    const std::size_t n = static_cast<std::size_t>(len());
    ensureCapacity(n + tail.size() + 1);
    std::wmemcpy(m_data + n, tail.c_str(), tail.size() + 1);
    return *this;
}

CZemString operator+(const wchar_t* left, const CZemString& right) {
    CZemString sum(left);
    return sum += right;
}

CZemString& CZemString::format(const wchar_t* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const std::wstring text = ZEM::formatText(fmt, args);
    va_end(args);
    return *this = text.c_str();
}

CZemString& CZemString::replace(wchar_t from, wchar_t to) {
    if (from == 0) return *this;
    for (int k = 0, n = len(); k < n; ++k) {
        if (m_data[k] == from) m_data[k] = to;
    }
    return *this;
}

CZemString& CZemString::replace(const wchar_t* from, const wchar_t* to) {
    const std::wstring pattern(orEmpty(from)), with(orEmpty(to));
    if (pattern.empty()) return *this;
    std::wstring text(*this);
    for (std::size_t at = text.find(pattern); at != std::wstring::npos;
         at = text.find(pattern, at + with.size())) {
        text.replace(at, pattern.size(), with);
    }
    return *this = text.c_str();
}

int CZemString::find(wchar_t c) const {
    const wchar_t* hit = std::wcschr(*this, c);
    return hit && c != 0 ? static_cast<int>(hit - m_data) : -1;
}

CZemString CZemString::mid(std::size_t start, std::size_t count) const {
    const std::wstring text(*this);
    if (start >= text.size()) return CZemString();
    return CZemString(text.substr(start, count).c_str());
}

CZemString CZemString::right(std::size_t n) const {
    const std::size_t size = static_cast<std::size_t>(len());
    return n >= size ? *this : mid(size - n, n);
}

CZemString& CZemString::downcase() {
    for (int k = 0, n = len(); k < n; ++k) m_data[k] = static_cast<wchar_t>(std::towlower(m_data[k]));
    return *this;
}

CZemString& CZemString::escapeWideChar() {
    std::wstring out;
    for (const wchar_t* p = *this; *p; ++p) {
        const unsigned long c = static_cast<unsigned long>(*p);
        if (c == L'\\') {
            out += L"\\\\";
        } else if (c >= 0x20 && c < 0x7F) {
            out += *p;
        } else {
            wchar_t code[16];
            std::swprintf(code, 16, c > 0xFFFF ? L"\\U%06lX" : L"\\u%04lX", c);
            out += code;
        }
    }
    return *this = out.c_str();
}

CZemString& CZemString::unEscapeWideChar() {
    std::wstring out;
    for (const wchar_t* p = *this; *p; ++p) {
        if (*p == L'\\' && p[1] == L'\\') {
            out += L'\\';
            ++p;
            continue;
        }
        const int digits = *p != L'\\' ? 0 : p[1] == L'u' ? 4 : p[1] == L'U' ? 6 : 0;
        const long value = digits ? readHex(p + 2, digits) : -1;
        if (value <= 0) {
            out += *p;
            continue;
        }
        out += static_cast<wchar_t>(value);
        p += 1 + digits;
    }
    return *this = out.c_str();
}
