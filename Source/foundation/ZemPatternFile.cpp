#include "ZemPatternFile.h"

#include "ZemFileSystem.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace {

// Pattern files are small; a larger one is refused.
constexpr std::size_t kMaxFileBytes = std::size_t(16) << 20;

// A pattern line needs the angle, the base point and the offset.
constexpr int kMinFields = 5;

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return std::string_view();
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view beforeComment(std::string_view text) {
    return trimBlanks(text.substr(0, text.find(';')));
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view text, std::size_t k, std::size_t& digits) {
    while (k < text.size() && isDigit(text[k])) {
        ++k;
        ++digits;
    }
    return k;
}

// The whole field as a decimal number: optional sign, digits with at most
// one point and at least one digit, optional exponent. The grammar is checked
// here, as the converter would also take "inf", "nan" and hexadecimal forms.
bool parseNumber(std::string_view field, double& out) {
    std::size_t k = 0;
    std::size_t digits = 0;
    if (k < field.size() && (field[k] == '+' || field[k] == '-')) ++k;
    k = skipDigits(field, k, digits);
    if (k < field.size() && field[k] == '.') k = skipDigits(field, k + 1, digits);
    if (digits == 0) return false;
    if (k < field.size() && (field[k] == 'e' || field[k] == 'E')) {
        std::size_t exponentDigits = 0;
        if (++k < field.size() && (field[k] == '+' || field[k] == '-')) ++k;
        k = skipDigits(field, k, exponentDigits);
        if (exponentDigits == 0) return false;
    }
    if (k != field.size()) return false;
    const char* begin = field.data() + (field[0] == '+' ? 1 : 0);
    const char* end = field.data() + field.size();
    double value = 0.0;
    const std::from_chars_result read = std::from_chars(begin, end, value);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return false;
    out = value;
    return true;
}

// The numbers of a pattern line. One comma behind the last field is
// tolerated; any other empty field is an error. False with the reason.
bool parseLine(std::string_view text, CZemArrayTempl<double>& out, const wchar_t*& reason) {
    out.setLogicalLength(0);
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t comma = text.find(',', start);
        if (comma == std::string_view::npos) comma = text.size();
        const std::string_view field = trimBlanks(text.substr(start, comma - start));
        const bool last = comma >= text.size();
        if (field.empty() && last && out.len() >= kMinFields) break;
        double value = 0.0;
        if (field.empty() || !parseNumber(field, value)) {
            reason = field.empty() ? L"an empty field" : L"a field that is no decimal number";
            return false;
        }
        out.append(value);
        start = comma + 1;
    }
    if (out.len() < kMinFields) {
        reason = L"fewer than five numbers (angle, x, y, dx, dy)";
        return false;
    }
    return true;
}

std::wstring matchKey(const wchar_t* name) {
    std::wstring key = name ? name : L"";
    for (wchar_t& c : key)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    return key;
}

std::wstring decode(std::string_view text) { return ZEM::utf8Decode(text.data(), text.size()); }

// The next line of rest without its line end, moving rest behind it.
std::string_view nextLine(std::string_view& rest) {
    std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

}  // namespace

void CZemPatternFile::clear() {
    m_patterns.clear();
    m_index.clear();
}

void CZemPatternFile::keep(Pattern& pattern, const wchar_t* source, int headerLine) {
    if (pattern.lines.isEmpty()) {
        ZEM::dump(L"%s:%d: pattern %s has no pattern lines; skipped\n", source, headerLine,
                  static_cast<const wchar_t*>(pattern.name));
        return;
    }
    const std::wstring key = matchKey(pattern.name);
    if (m_index.count(key)) {
        ZEM::dump(L"%s:%d: pattern %s is defined before; this one is passed over\n", source, headerLine,
                  static_cast<const wchar_t*>(pattern.name));
        return;
    }
    m_index.emplace(key, len());
    m_patterns.push_back(pattern);
}

int CZemPatternFile::parse(const char* bytes, std::size_t count, const wchar_t* source) {
    clear();
    if (!source) source = L"";
    std::string_view rest = bytes ? std::string_view(bytes, count) : std::string_view();
    if (rest.substr(0, 3) == "\xEF\xBB\xBF") rest.remove_prefix(3);

    Pattern current;
    bool open = false;    // a header was read
    bool broken = false;  // the open pattern is skipped
    int headerLine = 0;
    for (int number = 1; !rest.empty(); ++number) {
        const std::string_view text = beforeComment(nextLine(rest));
        if (text.empty()) continue;
        if (text[0] == '*') {
            if (open && !broken) keep(current, source, headerLine);
            const std::string_view header = text.substr(1);
            const std::size_t comma = header.find(',');
            current = Pattern();
            current.name = decode(trimBlanks(header.substr(0, comma))).c_str();
            if (comma != std::string_view::npos) current.description = decode(trimBlanks(header.substr(comma + 1))).c_str();
            open = true;
            headerLine = number;
            broken = current.name.isEmpty();
            if (broken) ZEM::dump(L"%s:%d: a pattern header without a name; the pattern is skipped\n", source, number);
            continue;
        }
        if (!open) {
            ZEM::dump(L"%s:%d: a pattern line before the first header; passed over\n", source, number);
            continue;
        }
        if (broken) continue;
        const wchar_t* reason = L"";
        CZemArrayTempl<double> numbers;
        if (parseLine(text, numbers, reason)) {
            current.lines.append(numbers);
        } else {
            ZEM::dump(L"%s:%d: pattern %s: %s; the pattern is skipped\n", source, number,
                      static_cast<const wchar_t*>(current.name), reason);
            broken = true;
        }
    }
    if (open && !broken) keep(current, source, headerLine);
    return len();
}

bool CZemPatternFile::load(const wchar_t* path) {
    clear();
    std::string bytes;
    if (!ZEM::fsReadAll(path, bytes, kMaxFileBytes)) return false;
    parse(bytes.data(), bytes.size(), path);
    return true;
}

int CZemPatternFile::find(const wchar_t* name) const {
    const auto found = m_index.find(matchKey(name));
    return found == m_index.end() ? -1 : found->second;
}

bool CZemPatternFile::get(const wchar_t* name, Lines& out) const {
    const int i = find(name);
    if (i < 0) return false;
    out = lines(i);
    return true;
}
