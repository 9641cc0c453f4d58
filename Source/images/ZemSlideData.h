#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <vector>

// The bytes of one slide and the reader over them: loading from a slide file,
// a slide library or memory, the header, and reads in the slide's byte order.
// Every read is bounds-checked; a read past the end gives the end-of-data value.
class CZemSlideData {
public:
    // A word read at the end of the data: its high byte is an end-of-file record.
    static constexpr unsigned short kEndOfData = 0xFCFC;
    // Test number of a writer that stores words low byte first, and high byte first.
    static constexpr unsigned short kTestLowFirst = 0x1234;
    static constexpr unsigned short kTestHighFirst = 0x3412;

    // Frees the bytes and zeroes the position and the count.
    void clear();
    // Takes a copy of size bytes. Null data holds no slide but keeps size as the
    // count; a negative size holds nothing. True if a slide is held.
    bool assign(const void* data, long size);
    // Reads a whole slide file; false, with nothing held, if it can't be read or is empty.
    bool loadFile(const std::filesystem::path& path);
    // Reads the slide named name (ANSI bytes, any case) out of a slide library.
    bool loadFromLibrary(std::istream& library, const char* name);
    bool loadFromLibrary(const std::filesystem::path& library, const char* name);

    // Rewinds and reads the header: sets m_testNo, m_width and m_height and leaves
    // the position at the first record. False for a level other than 1 or 2.
    bool readHeader();

    // Copies count bytes and advances; -1 (nothing copied) if they aren't all there.
    int getBlk(void* dest, int count);
    // One byte, or 0 at the end of the data.
    unsigned char getByte();
    // One word in the byte order of m_testNo, or kEndOfData at the end of the data.
    unsigned short getUInt16();

    bool hasSlide() const { return m_held; }
    const unsigned char* bytes() const { return m_data.data(); }
    std::uint32_t size() const { return m_size; }
    std::uint32_t pos() const { return m_pos; }
    unsigned short testNo() const { return m_testNo; }
    unsigned short width() const { return m_width; }
    unsigned short height() const { return m_height; }

private:
    bool take(std::vector<unsigned char>&& bytes);
    std::uint32_t remaining() const;

    unsigned short m_testNo = kTestLowFirst;
    unsigned short m_width = 0;
    unsigned short m_height = 0;
    std::vector<unsigned char> m_data;
    bool m_held = false;
    std::uint32_t m_pos = 0;
    std::uint32_t m_size = 0;
};
