#pragma once

#include <cstddef>
#include <string>

// UTF-8 for the text files of the library. Wide text is UTF-16 where wchar_t
// has 16 bits and code points where it has 32.
namespace ZEM {

// The code point at text[pos], moving pos behind it. A valid surrogate pair
// of 16-bit text is one code point; a lone surrogate stands for itself.
char32_t wideNext(const std::wstring& text, std::size_t& pos);

// Appends a code point as wide characters (a surrogate pair where wchar_t has
// 16 bits; a code point beyond that range there becomes U+FFFD).
void wideAppend(std::wstring& out, char32_t code);

// Appends a Unicode scalar value (not a surrogate, at most 0x10FFFF) as UTF-8.
void utf8Append(std::string& out, char32_t code);

// Wide text as UTF-8; lone surrogates and values beyond Unicode become U+FFFD.
std::string utf8Encode(const std::wstring& text);

// UTF-8 bytes as wide text. A byte that does not begin a valid, shortest
// sequence is read as the Latin-1 character of that byte, so any bytes decode
// and text saved by an editor in Latin-1 keeps its letters. A leading byte
// order mark is skipped.
std::wstring utf8Decode(const char* bytes, std::size_t count);

}  // namespace ZEM
