#include "ZemFontMap.h"

CZemFontMap::~CZemFontMap() {
    for (std::uint32_t k = 0; k < m_count; ++k) delete m_nodes[k];
    delete[] m_nodes;
}

// Binary search by powers of two. The probe starts at the largest power of
// two not above the count, less one, and moves by halving steps; a probe
// behind the end counts as a code above. When the step reaches 0 the code is
// absent, and the last direction tells where it would go.
bool CZemFontMap::search(std::uint16_t code, std::uint32_t& position) const {
    position = 0;
    if (m_count == 0) return false;
    std::uint32_t step = 1;
    while (step <= m_count / 2) step *= 2;
    std::int64_t probe = static_cast<std::int64_t>(step) - 1;
    for (;;) {
        const bool inside = probe < static_cast<std::int64_t>(m_count);
        if (inside && m_nodes[probe]->code == code) {
            position = static_cast<std::uint32_t>(probe);
            return true;
        }
        const bool up = inside && m_nodes[probe]->code < code;
        step /= 2;
        if (step == 0) {
            position = static_cast<std::uint32_t>(up ? probe + 1 : probe);
            return false;
        }
        probe += up ? static_cast<std::int64_t>(step) : -static_cast<std::int64_t>(step);
    }
}

void CZemFontMap::insertAt(std::uint32_t position, Node* node) {
    if (m_count == m_capacity) {
        const std::uint32_t capacity = m_capacity == 0 ? 16 : m_capacity * 2;
        Node** nodes = new Node*[capacity];
        for (std::uint32_t k = 0; k < m_count; ++k) nodes[k] = m_nodes[k];
        delete[] m_nodes;
        m_nodes = nodes;
        m_capacity = capacity;
    }
    for (std::uint32_t k = m_count; k > position; --k) m_nodes[k] = m_nodes[k - 1];
    m_nodes[position] = node;
    ++m_count;
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
