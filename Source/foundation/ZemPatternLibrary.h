#pragma once

#include "ZemObj.h"
#include "ZemPatternFile.h"
#include "ZemString.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

// The hatch patterns of the pattern files on the support path (ZEM::fileFind).
// Configuration key PATTERN_FILES names the files searched, in order: one
// string with ';' between names or a list of strings; without it
// "zem.pat;acadiso.pat;acad.pat". A name found in none of them is looked for
// in a file of its own, NAME.pat, as the host keeps user patterns. Each file
// is parsed once and again only when its size or time changes.
class CZemPatternLibrary : public CZemObj {
public:
    typedef CZemPatternFile::Lines Lines;

    CZemPatternLibrary() = default;
    CZemPatternLibrary(const CZemPatternLibrary&) = delete;
    CZemPatternLibrary& operator=(const CZemPatternLibrary&) = delete;

    // The lines of a pattern into out (replaced); false, out empty, if no
    // file has it.
    bool get(const wchar_t* name, Lines& out);
    // The parsed file at a full path, read if it is new or has changed; null
    // if it cannot be read.
    const CZemPatternFile* file(const wchar_t* path);
    // Forgets every file read.
    void clear() { m_files.clear(); }

private:
    struct Entry {
        CZemPatternFile patterns;
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
    };

    std::map<std::wstring, std::unique_ptr<Entry>> m_files;
};
