#include "ZemTextUtil.h"

#include "ZemUtf8.h"

#include <charconv>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <limits>
#include <string>
#include <system_error>
#include <vector>

namespace {

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool isSpace(wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); }

const wchar_t* skipSpace(const wchar_t* text) {
    while (isSpace(*text)) ++text;
    return text;
}

// Any exponent beyond this magnitude overflows or underflows a double anyway;
// capping it keeps the digits handed to the converter few.
constexpr long kExponentCap = 100000;

// An exponent part "E-12" at the start of text; 0 characters if there is none.
std::size_t scanExponent(const wchar_t* text, long& exponent) {
    if (text[0] != L'e' && text[0] != L'E') return 0;
    std::size_t pos = 1;
    bool negative = false;
    if (text[pos] == L'+' || text[pos] == L'-') negative = text[pos++] == L'-';
    if (!isDigit(text[pos])) return 0;
    long magnitude = 0;
    for (; isDigit(text[pos]); ++pos)
        if (magnitude < kExponentCap) magnitude = magnitude * 10 + (text[pos] - L'0');
    exponent = negative ? -magnitude : magnitude;
    return pos;
}

// The decimal magnitude of "ddd.ddd" (digits before the point of its first
// significant digit, negative behind the point): above 0 means at least 1.
long decimalMagnitude(const std::string& number, long exponent) {
    const std::size_t point = number.find('.');
    const std::size_t intDigits = point == std::string::npos ? number.size() : point;
    const std::size_t first = number.find_first_of("123456789");
    if (first == std::string::npos) return LONG_MIN;
    const long lead = first < intDigits ? static_cast<long>(intDigits - first)
                                        : -static_cast<long>(first - intDigits - 1);
    return lead + exponent;
}

// Converts "ddd.ddd" times ten to the exponent, correctly rounded; a result
// outside the double range becomes infinity or zero as the C library does.
double convertReal(std::string number, long exponent, bool negative) {
    if (number.front() == '.') number.insert(number.begin(), '0');
    if (number.back() == '.') number.pop_back();
    const std::string text = (negative ? "-" : "") + number + "e" + std::to_string(exponent);
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = decimalMagnitude(number, exponent) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
        if (negative) value = -value;
    }
    return value;
}

void stderrSink(const wchar_t* text) {
    const std::string bytes = ZEM::utf8Encode(text);
    std::fwrite(bytes.data(), 1, bytes.size(), stderr);
    std::fflush(stderr);
}

ZEM::DumpSink g_dumpSink = nullptr;

// Copies one conversion of fmt starting at its '%' and returns the position
// behind it. A bare %s or %c gets the length modifier l, which means a wide
// argument to every C library's wide print functions.
std::size_t copyConversion(const wchar_t* fmt, std::size_t pos, std::wstring& out) {
    out += fmt[pos++];
    const std::size_t start = pos;
    while (fmt[pos] && std::wcschr(L"-+ #0123456789.*", fmt[pos])) ++pos;
    out.append(fmt + start, pos - start);
    const std::size_t modifiers = pos;
    while (fmt[pos] && std::wcschr(L"hlLqjztIw3264", fmt[pos])) ++pos;
    out.append(fmt + modifiers, pos - modifiers);
    if (!fmt[pos]) return pos;
    if (pos == modifiers && (fmt[pos] == L's' || fmt[pos] == L'c')) out += L'l';
    out += fmt[pos];
    return pos + 1;
}

std::wstring portableFormat(const wchar_t* fmt) {
    std::wstring out;
    for (std::size_t pos = 0; fmt[pos];) {
        if (fmt[pos] == L'%' && fmt[pos + 1] == L'%') {
            out += L"%%";
            pos += 2;
        } else if (fmt[pos] == L'%') {
            pos = copyConversion(fmt, pos, out);
        } else {
            out += fmt[pos++];
        }
    }
    return out;
}

}  // namespace

namespace ZEM {

// The wide print functions do not tell how much room a text needs, and on
// some runtimes a cut text looks like success; only a text that leaves the
// last place of the buffer free is known to be whole. The buffer doubles up to
// a limit, beyond which the format itself is what gets reported.
std::wstring formatText(const wchar_t* fmt, va_list args) {
    if (!fmt) return std::wstring();
    const std::wstring portable = portableFormat(fmt);
    constexpr std::size_t kLimit = std::size_t(1) << 22;
    for (std::size_t size = 256; size <= kLimit; size *= 2) {
        std::vector<wchar_t> buffer(size);
        va_list copy;
        va_copy(copy, args);
        const int written = std::vswprintf(buffer.data(), size, portable.c_str(), copy);
        va_end(copy);
        if (written >= 0 && static_cast<std::size_t>(written) + 1 < size) return std::wstring(buffer.data(), static_cast<std::size_t>(written));
    }
    return fmt;
}


int atoi(const wchar_t* text) {
    if (!text) return 0;
    text = skipSpace(text);
    bool negative = false;
    if (*text == L'+' || *text == L'-') negative = *text++ == L'-';
    long long magnitude = 0;
    const long long limit = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    for (; isDigit(*text); ++text)
        if (magnitude < limit) magnitude = magnitude * 10 + (*text - L'0');
    if (magnitude > limit) magnitude = limit;
    return static_cast<int>(negative ? -magnitude : magnitude);
}

double atof(const wchar_t* text) {
    if (!text) return 0.0;
    double value = 0.0;
    return scanReal(skipSpace(text), value) ? value : 0.0;
}

std::size_t scanReal(const wchar_t* text, double& value) {
    if (!text) return 0;
    std::size_t pos = 0;
    bool negative = false;
    if (text[pos] == L'+' || text[pos] == L'-') negative = text[pos++] == L'-';
    std::string number;
    bool separator = false;
    bool digits = false;
    for (;; ++pos) {
        const wchar_t c = text[pos];
        if (isDigit(c)) {
            number += static_cast<char>(c);
            digits = true;
        } else if ((c == L'.' || c == L',') && !separator) {
            number += '.';
            separator = true;
        } else {
            break;
        }
    }
    if (!digits) return 0;
    long exponent = 0;
    pos += scanExponent(text + pos, exponent);
    value = convertReal(number, exponent, negative);
    return pos;
}

bool strTok(const wchar_t* text, const wchar_t* separators, CZemArrayTempl<CZemString>& out, bool keepEmpty) {
    out.setLogicalLength(0);
    if (!text) return false;
    std::size_t start = 0;
    for (std::size_t pos = 0;; ++pos) {
        const bool end = text[pos] == L'\0';
        if (!end && !(separators && std::wcschr(separators, text[pos]))) continue;
        if (keepEmpty || pos > start) {
            const std::wstring token(text + start, pos - start);
            out.append(CZemString(token.c_str()));
        }
        if (end) break;
        start = pos + 1;
    }
    return out.len() > 0;
}

void dump(const wchar_t* fmt, ...) {
    if (!fmt) return;
    va_list args;
    va_start(args, fmt);
    const std::wstring text = formatText(fmt, args);
    va_end(args);
    (g_dumpSink ? g_dumpSink : stderrSink)(text.c_str());
}

DumpSink setDumpSink(DumpSink sink) {
    const DumpSink previous = g_dumpSink;
    g_dumpSink = sink;
    return previous;
}

}  // namespace ZEM
