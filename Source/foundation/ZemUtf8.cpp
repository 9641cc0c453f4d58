#include "ZemUtf8.h"

namespace {

constexpr bool kWide16 = sizeof(wchar_t) == 2;

bool isSurrogate(char32_t c) { return c >= 0xD800 && c < 0xE000; }

// The length of the valid sequence at bytes[pos] and its code point; 0 if the
// byte starts none (truncated, overlong, surrogate or beyond U+10FFFF).
std::size_t utf8Sequence(const unsigned char* bytes, std::size_t count, std::size_t pos, char32_t& code) {
    const unsigned char lead = bytes[pos];
    std::size_t length = 0;
    char32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, code = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, code = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, code = lead & 0x07, minimum = 0x10000;
    } else {
        return 0;
    }
    if (count - pos < length) return 0;
    for (std::size_t k = 1; k < length; ++k) {
        const unsigned char b = bytes[pos + k];
        if ((b & 0xC0) != 0x80) return 0;
        code = (code << 6) | (b & 0x3F);
    }
    if (code < minimum || code > 0x10FFFF || isSurrogate(code)) return 0;
    return length;
}

}  // namespace

namespace ZEM {

char32_t wideNext(const std::wstring& text, std::size_t& pos) {
    char32_t code = static_cast<char32_t>(text[pos++]);
    if (kWide16 && code >= 0xD800 && code < 0xDC00 && pos < text.size()) {
        const char32_t low = static_cast<char32_t>(text[pos]);
        if (low >= 0xDC00 && low < 0xE000) {
            ++pos;
            code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    return code;
}

void wideAppend(std::wstring& out, char32_t code) {
    if (kWide16 && code >= 0x10000) {
        if (code > 0x10FFFF) {
            out += static_cast<wchar_t>(0xFFFD);
            return;
        }
        code -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (code >> 10));
        out += static_cast<wchar_t>(0xDC00 + (code & 0x3FF));
        return;
    }
    out += static_cast<wchar_t>(code);
}

void utf8Append(std::string& out, char32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

std::string utf8Encode(const std::wstring& text) {
    std::string out;
    for (std::size_t pos = 0; pos < text.size();) {
        char32_t code = wideNext(text, pos);
        if (isSurrogate(code) || code > 0x10FFFF) code = 0xFFFD;
        utf8Append(out, code);
    }
    return out;
}

std::wstring utf8Decode(const char* bytes, std::size_t count) {
    const unsigned char* data = reinterpret_cast<const unsigned char*>(bytes);
    std::wstring out;
    std::size_t pos = 0;
    if (count >= 3 && data[0] == 0xEF && data[1] == 0xBB && data[2] == 0xBF) pos = 3;
    while (pos < count) {
        char32_t code = data[pos];
        const std::size_t length = code < 0x80 ? 1 : utf8Sequence(data, count, pos, code);
        if (length == 0) {
            code = data[pos];
            pos += 1;
        } else {
            pos += length;
        }
        wideAppend(out, code);
    }
    return out;
}

}  // namespace ZEM
