#include "ZemNumberText.h"

#include "ZemBase.h"
#include "ZemTextUtil.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace {

constexpr std::size_t kMaxChars = 59;
constexpr int kMaxDecimals = 16;
constexpr int kMaxFractionBits = 8;
constexpr double kInchesPerFoot = 12.0;

// The exact decimal expansion of a finite non-negative double: the digits of
// the integer part, then those of the fraction; point counts the former.
struct DecimalDigits {
    std::string digits;
    std::size_t point = 0;
};

// Every double has a finite decimal expansion of at most 309 integer and 1074
// fraction digits, so rounding on these digits is rounding on the exact value.
DecimalDigits exactDigits(double a) {
    char buffer[1400];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, a, std::chars_format::fixed, 1074);
    DecimalDigits d;
    const std::string text(buffer, result.ec == std::errc() ? result.ptr : buffer);
    const std::size_t dot = text.find('.');
    if (dot == std::string::npos) {
        d.digits = "0";
        d.point = 1;
        return d;
    }
    d.digits = text.substr(0, dot) + text.substr(dot + 1);
    d.point = dot;
    return d;
}

// Keeps the first keep digits, rounding half away from zero; a carry out of
// the first digit puts a new 1 in front.
void roundDigits(DecimalDigits& d, std::size_t keep) {
    if (keep >= d.digits.size()) {
        d.digits.append(keep - d.digits.size(), '0');
        return;
    }
    const bool up = d.digits[keep] >= '5';
    d.digits.resize(keep);
    if (!up) return;
    std::size_t k = keep;
    while (k > 0 && d.digits[k - 1] == '9') d.digits[--k] = '0';
    if (k == 0) {
        d.digits.insert(d.digits.begin(), '1');
        ++d.point;
    } else {
        ++d.digits[k - 1];
    }
}

std::string fixedText(double a, int decimals) {
    DecimalDigits d = exactDigits(a);
    roundDigits(d, d.point + static_cast<std::size_t>(decimals));
    std::string text = d.digits.substr(0, d.point);
    if (decimals > 0) text += '.' + d.digits.substr(d.point);
    return text;
}

// Drops trailing zeros behind a decimal point, and the point if nothing follows.
void trimZeros(std::string& text) {
    if (text.find('.') == std::string::npos) return;
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
}

std::string exponentText(long exponent) {
    std::string digits = std::to_string(exponent < 0 ? -exponent : exponent);
    if (digits.size() < 2) digits.insert(digits.begin(), '0');
    return std::string("E") + (exponent < 0 ? '-' : '+') + digits;
}

std::string scientificText(double a, int decimals, bool option) {
    DecimalDigits d = exactDigits(a);
    std::size_t first = d.digits.find_first_not_of('0');
    long exponent = 0;
    if (first == std::string::npos) {
        d.digits = std::string(static_cast<std::size_t>(decimals) + 1, '0');
        first = 0;
    } else {
        roundDigits(d, first + static_cast<std::size_t>(decimals) + 1);
        // A carry such as 9.99 -> 10.0 moves the first significant digit forward.
        first = d.digits.find_first_not_of('0');
        exponent = static_cast<long>(d.point) - static_cast<long>(first) - 1;
    }
    std::string mantissa(1, d.digits[first]);
    if (decimals > 0) mantissa += '.' + d.digits.substr(first + 1, static_cast<std::size_t>(decimals));
    if (option) trimZeros(mantissa);
    return mantissa + exponentText(exponent);
}

std::string decimalText(double a, int decimals, bool option) {
    std::string text = fixedText(a, decimals);
    if (option) trimZeros(text);
    return text;
}

// Feet and the inches left over; fmod is exact, so the split adds no error.
void splitFeet(double a, double& feet, double& inches) {
    inches = std::fmod(a, kInchesPerFoot);
    feet = (a - inches) / kInchesPerFoot;
}

std::string feetAndInches(double feet, const std::string& inches, bool option) {
    if (option && feet == 0.0) return inches + '"';
    return fixedText(feet, 0) + "'-" + inches + '"';
}

std::string engineeringText(double a, int decimals, bool option) {
    double feet = 0.0;
    double rest = 0.0;
    splitFeet(a, feet, rest);
    std::string inches = fixedText(rest, decimals);
    // Inches that round up to a whole foot carry over into the feet.
    if (inches.compare(0, 2, "12") == 0 && (inches.size() == 2 || inches[2] == '.')) {
        feet += 1.0;
        inches = fixedText(0.0, decimals);
    }
    if (option) trimZeros(inches);
    return feetAndInches(feet, inches, option);
}

// A non-negative value as whole units and a reduced fraction of the finest
// denominator 2^bits.
struct MixedNumber {
    double whole = 0.0;
    long long numerator = 0;
    long long denominator = 1;
};

MixedNumber mixedOf(double a, int bits) {
    MixedNumber m;
    m.whole = std::floor(a);
    m.denominator = 1LL << bits;
    m.numerator = std::llround((a - m.whole) * static_cast<double>(m.denominator));
    if (m.numerator == m.denominator) {
        m.whole += 1.0;
        m.numerator = 0;
    }
    while (m.denominator > 1 && m.numerator % 2 == 0) {
        m.numerator /= 2;
        m.denominator /= 2;
    }
    return m;
}

// "12 1/2", "12", and "1/2" or "0 1/2" for no whole units.
std::string mixedText(const MixedNumber& m, bool zeroWhole) {
    const std::string whole = fixedText(m.whole, 0);
    if (m.numerator == 0) return whole;
    const std::string fraction = std::to_string(m.numerator) + '/' + std::to_string(m.denominator);
    if (m.whole == 0.0 && !zeroWhole) return fraction;
    return whole + ' ' + fraction;
}

std::string architecturalText(double a, int bits, bool option) {
    double feet = 0.0;
    double rest = 0.0;
    splitFeet(a, feet, rest);
    MixedNumber inches = mixedOf(rest, bits);
    if (inches.whole == kInchesPerFoot) {
        feet += 1.0;
        inches.whole = 0.0;
    }
    return feetAndInches(feet, mixedText(inches, !(option && feet == 0.0)), option);
}

bool hasNonZeroDigit(const std::string& text) {
    return text.find_first_of("123456789") != std::string::npos;
}

}  // namespace

bool zemRtoS(wchar_t* out, double value, Zem::lFormat format, int precision, bool option) {
    if (!out || !std::isfinite(value)) return false;
    const double a = std::fabs(value);
    const int decimals = std::clamp(precision, 0, kMaxDecimals);
    const int bits = std::clamp(precision, 0, kMaxFractionBits);
    std::string text;
    switch (format) {
    case Zem::formatScientific: text = scientificText(a, decimals, option); break;
    case Zem::formatDecimal: text = decimalText(a, decimals, option); break;
    case Zem::formatEngineering: text = engineeringText(a, decimals, option); break;
    case Zem::formatArchitectural: text = architecturalText(a, bits, option); break;
    case Zem::formatFractional: text = mixedText(mixedOf(a, bits), false); break;
    default: return false;
    }
    // A value that rounds to zero is written without its sign.
    if (std::signbit(value) && hasNonZeroDigit(text)) text.insert(text.begin(), '-');
    if (text.size() > kMaxChars) return false;
    std::copy(text.begin(), text.end(), out);
    out[text.size()] = L'\0';
    return true;
}

namespace {

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool isBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == 0xA0; }
bool isSpace(wchar_t c) { return isBlank(c) || (c >= L'\n' && c <= L'\r'); }

// Reads an unsigned number at p: digits only when integral is set, else a
// plain number with separator and exponent. p moves behind it on success.
bool readUnsigned(const wchar_t*& p, double& value, bool integral) {
    if (!isDigit(*p) && *p != L'.' && *p != L',') return false;
    double read = 0.0;
    const std::size_t count = ZEM::scanReal(p, read);
    if (count == 0) return false;
    if (integral && !std::all_of(p, p + count, isDigit)) return false;
    p += count;
    value = read;
    return true;
}

// "n/d" at p, with p at the numerator; false (p unmoved) for anything else.
bool readFraction(const wchar_t*& p, double& value) {
    const wchar_t* q = p;
    double numerator = 0.0;
    double denominator = 0.0;
    if (!readUnsigned(q, numerator, true) || *q++ != L'/') return false;
    if (!readUnsigned(q, denominator, true) || denominator == 0.0) return false;
    p = q;
    value = numerator / denominator;
    return true;
}

// A plain number, a fraction "1/2", or whole units and a fraction apart by
// blanks or a dash: "12 1/2", "12-1/2".
bool readQuantity(const wchar_t*& p, double& value) {
    const wchar_t* start = p;
    if (readFraction(p, value)) return true;
    if (!readUnsigned(p, value, false)) return false;
    if (!std::all_of(start, p, isDigit)) return true;
    const wchar_t* q = p;
    while (isBlank(*q)) ++q;
    if (*q == L'-') ++q;
    while (isBlank(*q)) ++q;
    double fraction = 0.0;
    if (q != p && readFraction(q, fraction)) {
        value += fraction;
        p = q;
    }
    return true;
}

// The inches after a feet mark: nothing, or an optional dash and a quantity
// with an optional inch mark.
bool readInchesAfterFeet(const wchar_t*& p, double& inches) {
    while (isBlank(*p)) ++p;
    const bool dash = *p == L'-';
    if (dash) ++p;
    while (isBlank(*p)) ++p;
    if (!*p || isSpace(*p)) return !dash;
    if (!readQuantity(p, inches)) return false;
    if (*p == L'"') ++p;
    return true;
}

bool readNumberText(const wchar_t* p, double& value) {
    while (isSpace(*p)) ++p;
    bool negative = false;
    if (*p == L'+' || *p == L'-') negative = *p++ == L'-';
    double first = 0.0;
    if (!readQuantity(p, first)) return false;
    double magnitude = first;
    if (*p == L'\'') {
        double inches = 0.0;
        ++p;
        if (!readInchesAfterFeet(p, inches)) return false;
        magnitude = first * kInchesPerFoot + inches;
    } else if (*p == L'"') {
        ++p;
    }
    while (isSpace(*p)) ++p;
    if (*p) return false;
    value = negative ? -magnitude : magnitude;
    return std::isfinite(value);
}

}  // namespace

double zemAtoF(const wchar_t* text) {
    double value = 0.0;
    if (!text || !readNumberText(text, value)) return ZEM::nan();
    return value;
}
