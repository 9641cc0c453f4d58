#include "ZemWallEditImage.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDtaFilePointer.h"
#include "ZemGdxImage.h"

#include <memory>

namespace {

// Reads a value of the wall edit state: *WALL_EDIT* and the name, two string
// levels. False, out untouched, if it isn't there or doesn't convert.
template <class T>
bool readEditState(const wchar_t* name, T& out)
{
    const CZemDataKey key = CZemDataKey().set(5005, L"*WALL_EDIT*", 5005, name, 0);
    const CZemDataItem* node = ZEM::cfg_get(&key);
    return node && node->get(out, nullptr);
}

}  // namespace

bool CZemWallEditImage::image(CZemGDX& gdx)
{
    std::unique_ptr<CZemDtaFilePointer> parameters(
        ZEM::zemDtaOpen(zemDtaMemory, zemDtaRead | zemDtaWrite, nullptr, nullptr));
    readEntry();
    readModes();
    writeParameters(*parameters);
    return m_found && zem_gdx_image(L"WALL", &gdx, m_wall, parameters.get());
}

// The entry number comes from BT; when the wall has entries under SN and BT
// names none of them, the first entry stands in for it.
void CZemWallEditImage::readEntry()
{
    CZemArrayTempl<CZemDataKey> entries;
    if (m_wall) {
        const CZemDataKey sn(L"SN");
        m_wall->dir(entries, &sn);
    }
    m_found = readEditState(L"BT", m_entry);
    const CZemDataKey entry = CZemDataKey().set(5003, m_entry, 0);
    for (int i = 0; i < entries.len(); ++i) {
        if (entries[i] == entry)
            return;
    }
    if (!entries.isEmpty()) {
        m_found = true;
        m_entry = static_cast<int>(static_cast<long>(entries[0]));
    }
}

void CZemWallEditImage::readModes()
{
    readEditState(L"MODE", m_mode);
    readEditState(L"VL", m_vl);
    if (m_wall)
        ZEM::itemGet(m_wall->get(nullptr), L"CORNER\\MODE", m_cornerMode);
}

// The active entry matters to a shell edit, and to a corner edit of a wall
// whose corners follow the shell.
bool CZemWallEditImage::writesActiveEntry() const
{
    return m_mode == L"SHELL" || (m_mode == L"CORNER" && m_cornerMode == L"SHELL");
}

void CZemWallEditImage::writeParameters(CZemDtaFilePointer& parameters) const
{
    ZEM::dtaWrite(&parameters, L"VL", m_vl);
    if (writesActiveEntry())
        ZEM::dtaWrite(&parameters, L"ACT", m_entry);
    ZEM::dtaWrite(&parameters, L"COORD", 1);
}
