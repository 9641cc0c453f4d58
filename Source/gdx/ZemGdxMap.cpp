#include "ZemGdxMap.h"

#include "ZemSortedNodes.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemDataKey.h"
#include "ZemPoint3dArray.h"
#include "ZemTextUtil.h"

namespace {

CZemGdxMap g_gdxMap;

// An int from the settings, else from the configuration; unchanged if both
// lack it.
void readInt(const CZemDataItem* settings, const wchar_t* key, const wchar_t* configPath, int& out) {
    const CZemDataKey settingsKey(key);
    if (settings && settings->get(out, &settingsKey)) return;
    if (const CZemDataItem* node = ZEM::cfg_get(configPath)) node->get(out, nullptr);
}

// A configuration node that reads as an int is a colour index; anything
// else is read as a colour, and an absent node leaves the default colour.
CZemColor configColor(const wchar_t* path) {
    CZemColor color;
    CZemDataItem* node = ZEM::cfg_get(path);
    int index = 0;
    if (node && node->get(index, nullptr)) {
        color.setColorIndex(index);
    } else {
        ZEM::color_from_cfg(color, node);
    }
    return color;
}

// A stored COLOR overrides the configured background; RGB and TBL only count
// beside it.
void readBackground(const CZemDataItem* settings, CZemColor& back, CZemGDX& gdx) {
    const CZemDataKey colorKey(L"COLOR"), rgbKey(L"RGB"), bookKey(L"TBL");
    int index = 0;
    if (!settings || !settings->get(index, &colorKey)) return;
    back.setColorIndex(index);
    CZemString text;
    if (settings->get(text, &rgbKey)) back.setColor(static_cast<unsigned long>(ZEM::atoi(text)));
    if (settings->get(text, &bookKey)) back.setNames(text, text);
    gdx.backColorSet(back);
}

}  // namespace

CZemGdxMap::~CZemGdxMap() {
    for (std::uint32_t k = 0; k < m_count; ++k) delete m_nodes[k];
    delete[] m_nodes;
}

bool CZemGdxMap::search(int key, std::uint32_t& position) const {
    return ZEM::sortedSearch(m_nodes, m_count, &Node::key, key, position);
}

void CZemGdxMap::insertAt(std::uint32_t position, Node* node) {
    ZEM::sortedInsert(m_nodes, m_count, m_capacity, position, node);
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

int createGdxInMap(CZemDataItem* settings) {
    const CZemDataItem* stored = settings && settings->isDir() ? settings : nullptr;
    CZemColor back;
    back.setColorIndex(0);
    int size = 0, style = 0;
    readInt(stored, L"PDSIZE", L"KAL_MENU\\COLOR\\PDSIZE", size);
    readInt(stored, L"PDMODE", L"KAL_MENU\\COLOR\\PDMODE", style);
    CZemPoint3dArray view;
    CZemMatrix3d proj;
    if (stored) {
        const CZemDataKey viewKey(L"EXTVIEW"), matrixKey(L"MTX");
        stored->get(view, &viewKey);
        ZEM::dataItemGet(stored, &matrixKey, static_cast<CZemMatrix3d::Cells&>(proj));
    }
    // Writing element 1 first gives a list without view extents two origins.
    const CZemPoint3d viewMax = view[1];
    const CZemPoint3d viewMin = view[0];

    const int key = gdxMapKeyNew();
    CZemGDX made(back, proj, size, static_cast<unsigned long>(style), viewMin, viewMax);
    gdxMapSetAt(key, made);
    CZemGDX* gdx = getGdxFromMap(key);
    if (!gdx) return -1;
    for (int mode = 1; mode <= 5; ++mode) {
        gdx->ColorTabSet(static_cast<GDX_CMODE>(mode), configColor(kZemGdxColorKeys[mode - 1]));
    }
    gdx->backColorSet(configColor(kZemGdxColorKeys[5]));
    readBackground(stored, back, *gdx);
    return key;
}
