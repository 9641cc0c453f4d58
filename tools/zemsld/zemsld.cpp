// zemsld: converts a slide file, or every slide of a slide library, into an
// enhanced metafile and a PNG picture each, drawn as the library draws
// slides. A library's slides are named <library>-<number>-<name>.
//
//   zemsld <slide-or-library> <output-folder>
//
// Exit codes: 0 every slide converted; 1 bad usage; 2 the input can't be
// read or is neither a slide nor a slide library; 3 some slides break off or
// lie outside the library (what could be read is written); 4 an output file
// can't be written.
#include "ZemSlideConverter.h"
#include "ZemSlideLibrary.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace {

enum ExitCode { exitDone = 0, exitUsage = 1, exitUnreadable = 2, exitDamaged = 3, exitNotWritten = 4 };

constexpr char kLibraryId[] = "AutoCAD Slide Library 1.0\r\n\x1a";
constexpr std::uintmax_t kLargestInput = 256u << 20;

bool readAll(const std::filesystem::path& path, std::string& bytes)
{
    std::error_code failed;
    const std::uintmax_t size = std::filesystem::file_size(path, failed);
    if (failed || size > kLargestInput)
        return false;
    std::ifstream in(path, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return in.good() || in.eof();
}

// Library names are bytes of an unknown code page: letters, digits, '-' and
// '_' of ASCII are kept for the file name, the rest left out.
std::wstring fileName(const std::wstring& library, int number, const std::string& name)
{
    std::wstring out = library + L"-" + std::to_wstring(number);
    std::wstring kept;
    for (unsigned char c : name) {
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_')
            kept += static_cast<wchar_t>(c);
    }
    return kept.empty() ? out : out + L"-" + kept;
}

// Reports one slide; the exit code it calls for. A slide that can't be read
// at all is the input's failure alone, or one damaged slide of a library.
int report(const CZemSlideConverter::Result& result, const std::wstring& name, int unreadableCode)
{
    switch (result.outcome) {
    case CZemSlideConverter::unreadable:
        fwprintf(stderr, L"zemsld: %ls is not a readable slide\n", name.c_str());
        return unreadableCode;
    case CZemSlideConverter::notWritten:
        fwprintf(stderr, L"zemsld: %ls: can't write %ls\n", name.c_str(), result.emf.c_str());
        return exitNotWritten;
    case CZemSlideConverter::truncated:
        fwprintf(stderr, L"zemsld: %ls breaks off before its end record; drawn as far as it goes\n", name.c_str());
        break;
    case CZemSlideConverter::converted:
        break;
    }
    wprintf(L"%ls: %d items, %d x %d\n  %ls\n  %ls\n", name.c_str(), result.items, result.width, result.height,
            result.emf.c_str(), result.png.c_str());
    return result.outcome == CZemSlideConverter::truncated ? exitDamaged : exitDone;
}

int convertLibrary(const std::string& bytes, const std::wstring& stem, const CZemSlideConverter& converter)
{
    std::istringstream stream(bytes);
    const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(stream);
    if (entries.empty()) {
        fwprintf(stderr, L"zemsld: the library %ls lists no slide\n", stem.c_str());
        return exitUnreadable;
    }
    int worst = exitDone, number = 0;
    for (const CZemSlideLibrary::Entry& entry : entries) {
        const std::wstring name = fileName(stem, ++number, entry.name);
        if (entry.offset >= bytes.size()) {
            fwprintf(stderr, L"zemsld: %ls lies beyond the end of the library\n", name.c_str());
            worst = std::max<int>(worst, exitDamaged);
            continue;
        }
        const auto* start = reinterpret_cast<const unsigned char*>(bytes.data()) + entry.offset;
        const std::size_t length = std::min<std::size_t>(entry.length, bytes.size() - entry.offset);
        worst = std::max(worst, report(converter.convert(start, length, name), name, exitDamaged));
    }
    return worst;
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 3) {
        fwprintf(stderr, L"usage: zemsld <slide-or-library> <output-folder>\n");
        return exitUsage;
    }
    const std::filesystem::path input(argv[1]);
    std::string bytes;
    if (!readAll(input, bytes)) {
        fwprintf(stderr, L"zemsld: can't read %ls\n", argv[1]);
        return exitUnreadable;
    }
    std::wstring folder = argv[2];
    std::replace(folder.begin(), folder.end(), L'/', L'\\');
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (!std::filesystem::is_directory(folder, failed)) {
        fwprintf(stderr, L"zemsld: can't make the folder %ls\n", folder.c_str());
        return exitNotWritten;
    }
    const CZemSlideConverter converter(folder);
    const std::wstring stem = input.stem().wstring();
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    if (bytes.size() >= sizeof kLibraryId && std::memcmp(data, kLibraryId, sizeof kLibraryId) == 0)
        return convertLibrary(bytes, stem, converter);
    if (CZemSlideConverter::isSlide(data, bytes.size())) {
        return report(converter.convert(data, bytes.size(), stem), stem, exitUnreadable);
    }
    fwprintf(stderr, L"zemsld: %ls is neither a slide nor a slide library\n", argv[1]);
    return exitUnreadable;
}
