#pragma once

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace toolstest {

// A folder of this build's tree for the files a test makes, emptied first.
std::filesystem::path freshFolder(const wchar_t* name);
// The shared sample slides.
std::filesystem::path slides();

struct ProgramRun {
    DWORD exitCode = 0xFFFFFFFF;
    std::string output;  // stdout and stderr together
};
// Runs a program of this build with the arguments, waiting at most two minutes.
ProgramRun run(const char* program, const std::vector<std::wstring>& arguments);

// The record counts of a metafile file by record type, and its header; empty
// and false if the platform can't read it as an enhanced metafile.
struct Metafile {
    bool read = false;
    ENHMETAHEADER header = {};
    std::map<DWORD, int> counts;
    int count(DWORD type) const { return counts.count(type) ? counts.at(type) : 0; }
};
Metafile readMetafile(const std::filesystem::path& file);

// A PNG file's pixels row by row as 0x00RRGGBB; empty if it can't be decoded.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<unsigned> pixels;
    int inked() const { return static_cast<int>(pixels.size() - std::count(pixels.begin(), pixels.end(), 0xFFFFFFu)); }
};
Picture decodePng(const std::filesystem::path& file);

std::vector<unsigned char> readBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, const unsigned char* bytes, size_t count);

}  // namespace toolstest
