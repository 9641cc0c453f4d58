#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

// The directory of a slide library: 32 bytes of identification, then entries of
// a 32-byte NUL-padded name and the slide's offset (4 bytes, low byte first),
// ended by an entry with an empty name or by the end of the stream.
class CZemSlideLibrary {
public:
    static constexpr int kNameSize = 32;

    struct Entry {
        std::string name;
        std::uint32_t offset;
        std::uint32_t length;  // up to the next entry's offset or the end of the stream
    };

    // The byte range of the first slide named name, compared without regard to
    // ASCII case. False if the name is null, empty, 32 bytes or longer, not in
    // the directory, or its range holds no byte of the stream.
    static bool locate(std::istream& library, const char* name, std::uint32_t& offset, std::uint32_t& length);
    // Every entry before the end of the directory, in file order.
    static std::vector<Entry> directory(std::istream& library);

private:
    struct RawEntry {
        char name[kNameSize + 1];
        std::uint32_t offset;
    };

    static bool readEntry(std::istream& library, RawEntry& entry);
    static bool sameName(const char* a, const char* b);
    static std::uint64_t streamLength(std::istream& library);
    static std::uint32_t slideLength(std::uint32_t offset, std::uint64_t end, std::uint64_t streamLength);
};
