#include "ZemGdxMap.h"

namespace {

CZemGdxMap g_gdxMap;

}  // namespace

CZemGdxMap::~CZemGdxMap() {
    for (std::uint32_t k = 0; k < m_count; ++k) delete m_nodes[k];
    delete[] m_nodes;
}

// Binary search by powers of two. The probe starts at the largest power of
// two not above the count, less one, and moves by halving steps; a probe
// behind the end counts as a key above. When the step reaches 0 the key is
// absent, and the last direction tells where it would go.
bool CZemGdxMap::search(int key, std::uint32_t& position) const {
    position = 0;
    if (m_count == 0) return false;
    std::uint32_t step = 1;
    while (step <= m_count / 2) step *= 2;
    std::int64_t probe = static_cast<std::int64_t>(step) - 1;
    for (;;) {
        const bool inside = probe >= 0 && probe < static_cast<std::int64_t>(m_count);
        if (inside && m_nodes[probe]->key == key) {
            position = static_cast<std::uint32_t>(probe);
            return true;
        }
        const bool up = inside && m_nodes[probe]->key < key;
        step /= 2;
        if (step == 0) {
            position = static_cast<std::uint32_t>(up ? probe + 1 : probe);
            return false;
        }
        probe += up ? static_cast<std::int64_t>(step) : -static_cast<std::int64_t>(step);
    }
}

void CZemGdxMap::insertAt(std::uint32_t position, Node* node) {
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

CZemGDX* CZemGdxMap::find(int key) const {
    std::uint32_t position;
    return search(key, position) ? &m_nodes[position]->gdx : nullptr;
}

void CZemGdxMap::setAt(int key, const CZemGDX& gdx) {
    std::uint32_t position;
    if (search(key, position)) {
        m_nodes[position]->gdx = gdx;
        return;
    }
    insertAt(position, new Node{key, gdx});
}

bool CZemGdxMap::removeAt(int key) {
    std::uint32_t position;
    if (!search(key, position)) return false;
    delete m_nodes[position];
    for (std::uint32_t k = position; k + 1 < m_count; ++k) m_nodes[k] = m_nodes[k + 1];
    --m_count;
    return true;
}

// A plain count upward: keys of removed lists are given out again.
int CZemGdxMap::keyNew() const {
    int key = 1;
    while (find(key)) ++key;
    return key;
}

int gdxMapKeyNew() { return g_gdxMap.keyNew(); }

void gdxMapSetAt(int key, CZemGDX& gdx) { g_gdxMap.setAt(key, gdx); }

CZemGDX* getGdxFromMap(int key) { return g_gdxMap.find(key); }

bool gdxMapRemoveAt(int key) { return g_gdxMap.removeAt(key); }
