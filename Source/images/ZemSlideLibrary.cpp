#include "ZemSlideLibrary.h"

#include <cstring>
#include <istream>

namespace {

constexpr std::streamoff kDirectoryAt = 32;
constexpr int kEntrySize = CZemSlideLibrary::kNameSize + 4;

char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool CZemSlideLibrary::readEntry(std::istream& library, RawEntry& entry)
{
    unsigned char bytes[kEntrySize];
    library.read(reinterpret_cast<char*>(bytes), kEntrySize);
    if (library.gcount() != kEntrySize)
        return false;
    // A name that fills all 32 bytes gets its terminator here.
    std::memcpy(entry.name, bytes, kNameSize);
    entry.name[kNameSize] = '\0';
    const unsigned char* off = bytes + kNameSize;
    entry.offset = static_cast<std::uint32_t>(off[0]) | static_cast<std::uint32_t>(off[1]) << 8 |
                   static_cast<std::uint32_t>(off[2]) << 16 | static_cast<std::uint32_t>(off[3]) << 24;
    return entry.name[0] != '\0';
}

bool CZemSlideLibrary::sameName(const char* a, const char* b)
{
    for (; *a && lowerAscii(*a) == lowerAscii(*b); ++a, ++b) {
    }
    return lowerAscii(*a) == lowerAscii(*b);
}

std::uint64_t CZemSlideLibrary::streamLength(std::istream& library)
{
    library.clear();
    library.seekg(0, std::ios::end);
    const std::streamoff length = library.tellg();
    return length > 0 ? static_cast<std::uint64_t>(length) : 0;
}

std::uint32_t CZemSlideLibrary::slideLength(std::uint32_t offset, std::uint64_t end, std::uint64_t streamLength)
{
    // A slide that runs past the end of the stream is cut there.
    if (end > streamLength)
        end = streamLength;
    return end > offset ? static_cast<std::uint32_t>(end - offset) : 0;
}

bool CZemSlideLibrary::locate(std::istream& library, const char* name, std::uint32_t& offset,
                              std::uint32_t& length)
{
    if (!name || std::strlen(name) >= static_cast<std::size_t>(kNameSize))
        return false;
    const std::uint64_t total = streamLength(library);
    library.clear();
    library.seekg(kDirectoryAt, std::ios::beg);
    RawEntry entry{};
    do {
        if (!readEntry(library, entry))
            return false;
    } while (!sameName(entry.name, name));
    RawEntry next{};
    // The last slide runs to the end of the stream.
    const std::uint64_t end = readEntry(library, next) ? next.offset : total;
    offset = entry.offset;
    length = slideLength(entry.offset, end, total);
    return length > 0;
}

std::vector<CZemSlideLibrary::Entry> CZemSlideLibrary::directory(std::istream& library)
{
    std::vector<Entry> entries;
    const std::uint64_t total = streamLength(library);
    library.clear();
    library.seekg(kDirectoryAt, std::ios::beg);
    RawEntry entry{};
    if (!readEntry(library, entry))
        return entries;
    for (bool more = true; more;) {
        RawEntry next{};
        more = readEntry(library, next);
        const std::uint64_t end = more ? next.offset : total;
        entries.push_back({entry.name, entry.offset, slideLength(entry.offset, end, total)});
        entry = next;
    }
    return entries;
}
