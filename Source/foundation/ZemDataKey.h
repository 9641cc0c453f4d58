#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"
#include "ZemString.h"

#include <string>

// A path into the data tree: levels that are strings (host code RTSTR 5005 or
// RTDXF0 5020) or whole numbers (RTSHORT 5003, RTLONG 5010 beyond 16 bits).
// String levels match ignoring the case of ASCII letters, and RTSTR matches
// RTDXF0; numbers match numbers of equal value.
class CZemDataKey : public CZemObj {
public:
    typedef short keyType;

    CZemDataKey() = default;
    CZemDataKey(const wchar_t* path);  // NOLINT: a key converts from its text
    ~CZemDataKey() override = default;

    // A text path: string levels between backslashes; empty levels are
    // dropped, a null or empty text gives an empty key.
    CZemDataKey& set(const wchar_t* path);
    // Levels as pairs of code and value, ended by 0: 5005 or 5020 with a
    // const wchar_t*, 5003 with an int, 5010 with a long. Any other code ends
    // the list and makes the key invalid: it then names no node at all.
    CZemDataKey& set(int code, ...);

    CZemDataKey& appendString(const wchar_t* text, keyType code = 5005);
    CZemDataKey& appendNumber(long number);
    // Adds the levels of other behind these.
    CZemDataKey& append(const CZemDataKey& other);

    bool isEmpty() const { return m_levels.isEmpty(); }
    bool isValid() const { return m_valid; }
    int levels() const { return m_levels.len(); }

    // The last level as text (a number in decimals) or as a number (a string
    // through ZEM::atoi); "" and 0 for an empty key.
    operator const wchar_t*() const;
    operator long() const;
    // The last level's host code; 0 for an empty key.
    keyType type() const;

    // One level: its code, text, number, and a key of that level alone.
    keyType levelType(int i) const;
    const wchar_t* levelText(int i) const;
    long levelNumber(int i) const;
    CZemDataKey level(int i) const;
    // A form of level i that is equal exactly for matching levels.
    std::wstring levelMatch(int i) const;
    // All levels as one text path, joined by backslashes.
    CZemString text() const;

    bool operator==(const CZemDataKey& other) const;
    bool operator!=(const CZemDataKey& other) const { return !(*this == other); }

private:
    struct Level {
        keyType code = 0;
        long number = 0;
        CZemString text;
    };

    CZemArrayTempl<Level> m_levels;
    bool m_valid = true;
};
