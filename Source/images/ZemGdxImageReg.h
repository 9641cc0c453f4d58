#pragma once

#include "ZemObj.h"
#include "ZemString.h"

#include <cstdint>

class CZemGDX;
class CZemDtaFilePointer;

// An image function fills a display list from a stored object, steered by
// parameters, and reports success.
using ZemGdxImageFcn = bool (*)(CZemGDX* gdx, CZemDtaFilePointer* object, CZemDtaFilePointer* parameters);

// A table from names to image functions, kept in ascending order of the
// name (case sensitive), each name once.
class CZemGdxImageReg : public CZemObj {
public:
    CZemGdxImageReg() = default;
    CZemGdxImageReg(const CZemGdxImageReg&) = delete;
    CZemGdxImageReg& operator=(const CZemGdxImageReg&) = delete;
    ~CZemGdxImageReg() override;

    // Stores fcn under name, replacing an earlier one; a null fcn removes the
    // name. A null name does nothing.
    void set(const wchar_t* name, ZemGdxImageFcn fcn);
    // The function of name; null for a null name or a name not in the table.
    ZemGdxImageFcn find(const wchar_t* name) const;

    std::uint32_t count() const { return m_count; }
    std::uint32_t capacity() const { return m_capacity; }
    // The name at index i of the sorted table; i must be below count().
    const CZemString& nameAt(std::uint32_t i) const { return m_entries[i]->name; }

private:
    struct Entry {
        CZemString name;
        ZemGdxImageFcn fcn;
    };

    // The index of name, or the index at which it would have to be inserted.
    std::uint32_t search(const wchar_t* name, bool& found) const;
    bool grow();
    void insertAt(std::uint32_t index, const wchar_t* name, ZemGdxImageFcn fcn);
    void removeAt(std::uint32_t index);

    Entry** m_entries = nullptr;
    std::uint32_t m_count = 0;
    std::uint32_t m_capacity = 0;
};
