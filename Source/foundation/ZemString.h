#pragma once

#include "ZemObj.h"

#include <cstddef>

// A wide string handled by value. It never reads as a null pointer: an empty
// string gives an empty text. The content ends at the first 0 character, so a
// buffer from GetBuffer that a caller fills is the content at once.
class CZemString : public CZemObj {
public:
    CZemString() = default;
    CZemString(const wchar_t* text);  // NOLINT: converts like a text
    CZemString(const CZemString& other);
    ~CZemString() override;

    CZemString& operator=(const wchar_t* text);
    CZemString& operator=(const CZemString& other);

    operator const wchar_t*() const;

    int len() const;
    bool isEmpty() const;

    // The character at i; -1 is the last one. An index behind the text pads
    // the text with spaces up to it. Writing 0 cuts the text there.
    wchar_t& operator[](int i);

    // A writable buffer for at least n characters and the ending 0; n of 0
    // keeps the present size. What is written there is the content.
    wchar_t* GetBuffer(std::size_t n);

    bool operator==(const wchar_t* text) const;
    bool operator==(const CZemString& other) const;
    bool operator!=(const wchar_t* text) const;
    bool operator<(const wchar_t* text) const;
    bool operator>(const wchar_t* text) const;

    CZemString operator+(const CZemString& other) const;
    CZemString& operator+=(const CZemString& other);
    CZemString& operator+=(const wchar_t* text);

    // Formats like swprintf; %s and %c take wide arguments on every platform.
    CZemString& format(const wchar_t* fmt, ...);

    CZemString& replace(wchar_t from, wchar_t to);
    CZemString& replace(const wchar_t* from, const wchar_t* to);
    int find(wchar_t c) const;
    CZemString mid(std::size_t start, std::size_t count) const;
    CZemString right(std::size_t n) const;
    CZemString& downcase();

    // An ASCII form for the registry: printable ASCII stands as it is, a
    // backslash as "\\", every other character as "\uXXXX" (four hex digits)
    // or, above U+FFFF, "\UXXXXXX" (six). unEscapeWideChar reverses it and
    // keeps a malformed escape as plain text.
    CZemString& escapeWideChar();
    CZemString& unEscapeWideChar();

private:
    void assign(const wchar_t* text, std::size_t count);
    void ensureCapacity(std::size_t chars);

    wchar_t* m_data = nullptr;
    std::size_t m_capacity = 0;  // characters, the ending 0 included
};

CZemString operator+(const wchar_t* left, const CZemString& right);
