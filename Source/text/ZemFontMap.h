#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"
#include "ZemVertexArray.h"

#include <cstdint>

// A map from 16-bit character codes to glyphs (lists of regions, each a list
// of contours), sorted by code. Nodes hold their glyph by value; the map
// stores copies and hands out copies.
class CZemFontMap : public CZemObj {
public:
    CZemFontMap() = default;
    CZemFontMap(const CZemFontMap&) = delete;
    CZemFontMap& operator=(const CZemFontMap&) = delete;
    ~CZemFontMap() override;

    // Assigns the glyph of code, inserting a node at its sorted place if absent.
    void setAt(std::uint16_t code, const CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& glyph);
    // Copies the glyph of code into glyph; false, and glyph untouched, if absent.
    bool lookup(std::uint16_t code, CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& glyph) const;

    int count() const { return static_cast<int>(m_count); }
    int capacity() const { return static_cast<int>(m_capacity); }
    bool isEmpty() const { return m_count == 0; }

private:
    struct Node : CZemObj {
        std::uint16_t code = 0;
        CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> glyph;
    };

    bool search(std::uint16_t code, std::uint32_t& position) const;
    void insertAt(std::uint32_t position, Node* node);

    Node** m_nodes = nullptr;
    std::uint32_t m_count = 0;
    std::uint32_t m_capacity = 0;
};
