#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"
#include "ZemString.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

// The hatch patterns of one file in the host drawing system's pattern format:
// a header line "*NAME, description", then one pattern line a line family,
// "angle, x, y, dx, dy [, dash ...]" (degrees, then lengths; a dash > 0 is
// drawn, < 0 a gap, 0 a dot). Text from ';' on is a comment; blank lines,
// blanks and tabs around fields, CR LF line ends and a missing last line end
// are fine. Numbers are strictly decimal: sign, digits with one point,
// exponent, finite. A pattern with a malformed line, or with no line, is
// skipped with a ZEM::dump message naming the file and line; the others stay.
// Names match ignoring the case of ASCII letters; of two patterns of one name
// the first counts. Texts are UTF-8, other bytes read as Latin-1.
class CZemPatternFile : public CZemObj {
public:
    typedef CZemArrayTempl<CZemArrayTempl<double>> Lines;

    // Replaces the content by the patterns in bytes; source names the file in
    // messages. Returns the number of patterns kept.
    int parse(const char* bytes, std::size_t count, const wchar_t* source);
    // Reads and parses a file of at most 16 MB; false, and empty, with a
    // message, if it cannot be read.
    bool load(const wchar_t* path);

    int len() const { return static_cast<int>(m_patterns.size()); }
    // Name, description and lines of pattern i in file order; i must be below len().
    const CZemString& name(int i) const { return m_patterns[static_cast<std::size_t>(i)].name; }
    const CZemString& description(int i) const { return m_patterns[static_cast<std::size_t>(i)].description; }
    const Lines& lines(int i) const { return m_patterns[static_cast<std::size_t>(i)].lines; }

    // The position of a pattern; -1 if the file has none of that name.
    int find(const wchar_t* name) const;
    // The lines of a pattern into out (replaced); false, out untouched, if absent.
    bool get(const wchar_t* name, Lines& out) const;

private:
    struct Pattern {
        CZemString name;
        CZemString description;
        Lines lines;
    };

    void clear();
    void keep(Pattern& pattern, const wchar_t* source, int headerLine);

    std::vector<Pattern> m_patterns;
    std::unordered_map<std::wstring, int> m_index;
};
