#include "ZemSlideData.h"

#include "ZemSlideLibrary.h"

#include <cstring>
#include <fstream>
#include <istream>
#include <limits>
#include <utility>

namespace {

// Header layout: identification (17), type (1), level (1), width (2), height (2).
constexpr int kHeadSize = 23;
constexpr int kLevelAt = 18;
constexpr int kWidthAt = 19;
constexpr int kHeightAt = 21;
// Level 2 goes on with aspect (4), hardware fill (2) and the test number (2);
// level 1 with aspect as a double (8), hardware fill and filler (3).
constexpr int kRestLevel2 = 8;
constexpr int kTestNoAt = 6;
constexpr int kRestLevel1 = 11;

constexpr std::uint32_t kMaxSize = std::numeric_limits<std::uint32_t>::max();

unsigned short lowFirst(const unsigned char* p) { return static_cast<unsigned short>(p[0] | p[1] << 8); }
unsigned short highFirst(const unsigned char* p) { return static_cast<unsigned short>(p[0] << 8 | p[1]); }

}  // namespace

void CZemSlideData::clear()
{
    m_data.clear();
    m_data.shrink_to_fit();
    m_held = false;
    m_pos = 0;
    m_size = 0;
}

bool CZemSlideData::take(std::vector<unsigned char>&& bytes)
{
    clear();
    if (bytes.empty() || bytes.size() > kMaxSize)
        return false;
    m_data = std::move(bytes);
    m_size = static_cast<std::uint32_t>(m_data.size());
    m_held = true;
    return true;
}

bool CZemSlideData::assign(const void* data, long size)
{
    const bool fits = size >= 0 && static_cast<unsigned long>(size) <= kMaxSize;
    if (!fits || !data) {
        clear();
        // Null data holds no bytes, but the count stands; the reads see an empty buffer.
        if (fits)
            m_size = static_cast<std::uint32_t>(size);
        return false;
    }
    // Copied before the old bytes go, so data may point into them.
    const auto* first = static_cast<const unsigned char*>(data);
    std::vector<unsigned char> bytes(first, first + size);
    clear();
    m_data = std::move(bytes);
    m_size = static_cast<std::uint32_t>(size);
    m_held = true;
    return true;
}

bool CZemSlideData::loadFile(const std::filesystem::path& path)
{
    clear();
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    in.seekg(0, std::ios::end);
    const std::streamoff length = in.tellg();
    if (length <= 0 || static_cast<std::uint64_t>(length) > kMaxSize)
        return false;
    in.seekg(0, std::ios::beg);
    std::vector<unsigned char> bytes(static_cast<std::size_t>(length));
    in.read(reinterpret_cast<char*>(bytes.data()), length);
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return take(std::move(bytes));
}

bool CZemSlideData::loadFromLibrary(std::istream& library, const char* name)
{
    clear();
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    if (!CZemSlideLibrary::locate(library, name, offset, length))
        return false;
    library.clear();
    library.seekg(offset, std::ios::beg);
    std::vector<unsigned char> bytes(length);
    library.read(reinterpret_cast<char*>(bytes.data()), length);
    bytes.resize(static_cast<std::size_t>(library.gcount()));
    return take(std::move(bytes));
}

bool CZemSlideData::loadFromLibrary(const std::filesystem::path& library, const char* name)
{
    clear();
    std::ifstream in(library, std::ios::binary);
    return in && loadFromLibrary(in, name);
}

bool CZemSlideData::readHeader()
{
    m_pos = 0;
    // A level-1 header carries no test number: its words count as low byte first.
    m_testNo = kTestLowFirst;
    unsigned char head[kHeadSize] = {};
    getBlk(head, kHeadSize);
    const int level = head[kLevelAt];
    if (level != 1 && level != 2)
        return false;
    unsigned char rest[kRestLevel1] = {};
    if (getBlk(rest, level == 2 ? kRestLevel2 : kRestLevel1) < 0)
        m_pos = m_size;  // a cut header: the records end at once
    else if (level == 2)
        m_testNo = lowFirst(rest + kTestNoAt);
    const bool low = m_testNo == kTestLowFirst;
    m_width = low ? lowFirst(head + kWidthAt) : highFirst(head + kWidthAt);
    m_height = low ? lowFirst(head + kHeightAt) : highFirst(head + kHeightAt);
    return true;
}

std::uint32_t CZemSlideData::remaining() const
{
    const std::size_t size = m_data.size();
    return m_pos < size ? static_cast<std::uint32_t>(size - m_pos) : 0;
}

int CZemSlideData::getBlk(void* dest, int count)
{
    if (count < 0 || static_cast<std::uint32_t>(count) > remaining())
        return -1;
    if (count > 0)
        std::memcpy(dest, m_data.data() + m_pos, static_cast<std::size_t>(count));
    m_pos += static_cast<std::uint32_t>(count);
    return count;
}

unsigned char CZemSlideData::getByte()
{
    if (remaining() < 1)
        return 0;
    return m_data[m_pos++];
}

unsigned short CZemSlideData::getUInt16()
{
    if (remaining() < 2)
        return kEndOfData;
    const unsigned char* p = m_data.data() + m_pos;
    m_pos += 2;
    return m_testNo == kTestHighFirst ? highFirst(p) : lowFirst(p);
}
