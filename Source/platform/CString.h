#pragma once

#include <string>

// The framework's wide string: a deep-copied value with the framework's
// operations; converts to a null-terminated const wchar_t*.
class CString {
public:
    CString() = default;
    CString(const wchar_t* text);
    CString(const wchar_t* text, int length);
    CString(wchar_t ch, int repeat = 1);
    CString(const CString&) = default;
    CString(CString&&) noexcept = default;
    CString& operator=(const CString&) = default;
    CString& operator=(CString&&) noexcept = default;
    CString& operator=(const wchar_t* text);

    operator const wchar_t*() const { return m_text.c_str(); }
    const wchar_t* GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    // The character at index, or 0 outside the string.
    wchar_t GetAt(int index) const;
    void SetAt(int index, wchar_t ch);
    wchar_t operator[](int index) const { return GetAt(index); }

    CString& operator+=(const wchar_t* text);
    CString& operator+=(const CString& text);
    CString& operator+=(wchar_t ch);
    friend CString operator+(const CString& a, const CString& b);
    friend CString operator+(const CString& a, const wchar_t* b);
    friend CString operator+(const wchar_t* a, const CString& b);

    // <0, 0, >0 as wcscmp; a null text counts as empty.
    int Compare(const wchar_t* text) const;
    int CompareNoCase(const wchar_t* text) const;
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, const wchar_t* b) { return a.Compare(b) == 0; }
    friend bool operator==(const wchar_t* a, const CString& b) { return b.Compare(a) == 0; }
    friend bool operator!=(const CString& a, const CString& b) { return !(a == b); }
    friend bool operator!=(const CString& a, const wchar_t* b) { return !(a == b); }
    friend bool operator!=(const wchar_t* a, const CString& b) { return !(b == a); }
    friend bool operator<(const CString& a, const CString& b) { return a.m_text < b.m_text; }

    // Parts; counts and positions are clamped to the string.
    CString Left(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Right(int count) const;
    // Index of the first occurrence at or after start, or -1.
    int Find(wchar_t ch, int start = 0) const;
    int Find(const wchar_t* sub, int start = 0) const;
    int ReverseFind(wchar_t ch) const;
    // Number of replacements made; an empty or null pattern replaces nothing.
    int Replace(const wchar_t* pattern, const wchar_t* with);
    int Replace(wchar_t from, wchar_t to);
    int Remove(wchar_t ch);
    int Insert(int index, const wchar_t* text);
    int Delete(int index, int count = 1);
    CString& Trim();
    CString& TrimLeft();
    CString& TrimRight();
    CString& MakeUpper();
    CString& MakeLower();

    // printf-style formatting with the platform's wide conventions (%s is a
    // wide string); a bad format leaves the string empty.
    void Format(const wchar_t* format, ...);
    void AppendFormat(const wchar_t* format, ...);

    // A writable buffer of at least minLength characters plus a terminator;
    // ReleaseBuffer(-1) takes the length up to the first null character.
    wchar_t* GetBuffer(int minLength = 0);
    void ReleaseBuffer(int newLength = -1);
    wchar_t* GetBufferSetLength(int length);

private:
    std::wstring m_text;
};
