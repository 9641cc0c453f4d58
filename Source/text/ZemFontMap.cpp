#include "ZemFontMap.h"

#include "ZemSortedNodes.h"

CZemFontMap::~CZemFontMap() {
    for (std::uint32_t k = 0; k < m_count; ++k) delete m_nodes[k];
    delete[] m_nodes;
}

bool CZemFontMap::search(std::uint16_t code, std::uint32_t& position) const {
    return ZEM::sortedSearch(m_nodes, m_count, &Node::code, code, position);
}

void CZemFontMap::insertAt(std::uint32_t position, Node* node) {
    ZEM::sortedInsert(m_nodes, m_count, m_capacity, position, node);
}

void CZemFontMap::setAt(std::uint16_t code, const CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& glyph) {
    std::uint32_t position;
    if (search(code, position)) {
        m_nodes[position]->glyph = glyph;
        return;
    }
    Node* node = new Node;
    node->code = code;
    node->glyph = glyph;
    insertAt(position, node);
}

bool CZemFontMap::lookup(std::uint16_t code, CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& glyph) const {
    std::uint32_t position;
    if (!search(code, position)) return false;
    glyph = m_nodes[position]->glyph;
    return true;
}
