#include "ZemGdxImageReg.h"

#include <cstring>
#include <new>

namespace {

constexpr std::uint32_t kFirstCapacity = 16;

std::uint32_t largestPowerOfTwoUpTo(std::uint32_t n)
{
    std::uint32_t power = 1;
    while (power <= n / 2)
        power *= 2;
    return power;
}

}  // namespace

CZemGdxImageReg::~CZemGdxImageReg()
{
    for (std::uint32_t i = 0; i < m_count; ++i)
        delete m_entries[i];
    delete[] m_entries;
}

// A search over the sorted names in steps of falling powers of two: below is
// the number of names known to sort before name. An index at or behind the
// count sorts after every name.
std::uint32_t CZemGdxImageReg::search(const wchar_t* name, bool& found) const
{
    std::uint32_t below = 0;
    if (m_count > 0) {
        for (std::uint32_t step = largestPowerOfTwoUpTo(m_count); step > 0; step /= 2) {
            const std::uint32_t probe = below + step - 1;
            if (probe < m_count && m_entries[probe]->name < name)
                below += step;
        }
    }
    found = below < m_count && m_entries[below]->name == name;
    return below;
}

bool CZemGdxImageReg::grow()
{
    if (m_count < m_capacity)
        return true;
    const std::uint32_t capacity = m_capacity == 0 ? kFirstCapacity : m_capacity * 2;
    if (capacity <= m_capacity)
        return false;
    Entry** entries = new (std::nothrow) Entry*[capacity];
    if (!entries)
        return false;
    if (m_count > 0)
        std::memcpy(entries, m_entries, m_count * sizeof(Entry*));
    delete[] m_entries;
    m_entries = entries;
    m_capacity = capacity;
    return true;
}

void CZemGdxImageReg::insertAt(std::uint32_t index, const wchar_t* name, ZemGdxImageFcn fcn)
{
    if (!grow())
        return;
    Entry* entry = new (std::nothrow) Entry{CZemString(name), fcn};
    if (!entry)
        return;
    std::memmove(m_entries + index + 1, m_entries + index, (m_count - index) * sizeof(Entry*));
    m_entries[index] = entry;
    ++m_count;
}

void CZemGdxImageReg::removeAt(std::uint32_t index)
{
    delete m_entries[index];
    std::memmove(m_entries + index, m_entries + index + 1, (m_count - index - 1) * sizeof(Entry*));
    --m_count;
}

void CZemGdxImageReg::set(const wchar_t* name, ZemGdxImageFcn fcn)
{
    if (!name)
        return;
    bool found = false;
    const std::uint32_t index = search(name, found);
    if (found && fcn)
        m_entries[index]->fcn = fcn;
    else if (found)
        removeAt(index);
    else if (fcn)
        insertAt(index, name, fcn);
}

ZemGdxImageFcn CZemGdxImageReg::find(const wchar_t* name) const
{
    if (!name)
        return nullptr;
    bool found = false;
    const std::uint32_t index = search(name, found);
    return found ? m_entries[index]->fcn : nullptr;
}
