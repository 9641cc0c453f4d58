#include "ZemDataKey.h"

#include "ZemResbuf.h"
#include "ZemTextUtil.h"

#include <cstdarg>
#include <cwchar>

namespace {

wchar_t foldAscii(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

}  // namespace

CZemDataKey::CZemDataKey(const wchar_t* path) { set(path); }

CZemDataKey& CZemDataKey::set(const wchar_t* path) {
    m_levels.setLogicalLength(0);
    m_valid = true;
    if (!path) return *this;
    const wchar_t* start = path;
    for (const wchar_t* p = path;; ++p) {
        if (*p != L'\\' && *p != L'\0') continue;
        if (p > start) appendString(std::wstring(start, static_cast<std::size_t>(p - start)).c_str());
        if (*p == L'\0') break;
        start = p + 1;
    }
    return *this;
}

CZemDataKey& CZemDataKey::set(int code, ...) {
    m_levels.setLogicalLength(0);
    m_valid = true;
    va_list args;
    va_start(args, code);
    for (; code != 0; code = va_arg(args, int)) {
        if (code == ZEM::RTSTR || code == ZEM::RTDXF0) {
            appendString(va_arg(args, const wchar_t*), static_cast<keyType>(code));
        } else if (code == ZEM::RTSHORT) {
            appendNumber(va_arg(args, int));
        } else if (code == ZEM::RTLONG) {
            appendNumber(va_arg(args, long));
        } else {
            ZEM::dump(L"CZemDataKey::set: unknown level code %d; the key names nothing\n", code);
            m_levels.setLogicalLength(0);
            m_valid = false;
            break;
        }
    }
    va_end(args);
    return *this;
}

CZemDataKey& CZemDataKey::appendString(const wchar_t* text, keyType code) {
    Level level;
    level.code = code == ZEM::RTDXF0 ? ZEM::RTDXF0 : ZEM::RTSTR;
    level.text = text;
    level.number = ZEM::atoi(text);
    m_levels.append(level);
    return *this;
}

CZemDataKey& CZemDataKey::appendNumber(long number) {
    Level level;
    level.code = number >= -32768 && number <= 32767 ? ZEM::RTSHORT : ZEM::RTLONG;
    level.number = number;
    level.text.format(L"%ld", number);
    m_levels.append(level);
    return *this;
}

CZemDataKey& CZemDataKey::append(const CZemDataKey& other) {
    const CZemDataKey copy(other);  // other may be this key
    for (int k = 0; k < copy.levels(); ++k) m_levels.append(copy.m_levels[k]);
    m_valid = m_valid && copy.m_valid;
    return *this;
}

CZemDataKey::operator const wchar_t*() const { return isEmpty() ? L"" : levelText(-1); }

CZemDataKey::operator long() const { return isEmpty() ? 0 : levelNumber(-1); }

CZemDataKey::keyType CZemDataKey::type() const { return isEmpty() ? 0 : levelType(-1); }

CZemDataKey::keyType CZemDataKey::levelType(int i) const { return m_levels[i].code; }

const wchar_t* CZemDataKey::levelText(int i) const { return m_levels[i].text; }

long CZemDataKey::levelNumber(int i) const { return m_levels[i].number; }

CZemDataKey CZemDataKey::level(int i) const {
    CZemDataKey one;
    if (i < levels() && i >= -levels()) one.m_levels.append(m_levels[i]);
    return one;
}

std::wstring CZemDataKey::levelMatch(int i) const {
    const Level& level = m_levels[i];
    if (level.code != ZEM::RTSTR && level.code != ZEM::RTDXF0) return L"N" + std::to_wstring(level.number);
    std::wstring match = L"S";
    for (const wchar_t* p = level.text; *p; ++p) match += foldAscii(*p);
    return match;
}

CZemString CZemDataKey::text() const {
    CZemString path;
    for (int k = 0; k < levels(); ++k) {
        if (k > 0) path += L"\\";
        path += m_levels[k].text;
    }
    return path;
}

bool CZemDataKey::operator==(const CZemDataKey& other) const {
    if (m_valid != other.m_valid || levels() != other.levels()) return false;
    for (int k = 0; k < levels(); ++k) {
        if (levelMatch(k) != other.levelMatch(k)) return false;
    }
    return true;
}
