#include "ZemDataDir.h"

#include "ZemDataItem.h"

#include <algorithm>

CZemDataDir::CZemDataDir(const CZemDataDir& other) : CZemObj() { *this = other; }

CZemDataDir& CZemDataDir::operator=(const CZemDataDir& other) {
    if (this == &other) return *this;
    std::vector<CZemDataItem*> copies;
    copies.reserve(other.m_items.size());
    for (const CZemDataItem* item : other.m_items) copies.push_back(new CZemDataItem(*item));
    clear();
    m_items.swap(copies);
    for (CZemDataItem* item : m_items) m_index[item->key().levelMatch(0)] = item;
    return *this;
}

CZemDataDir::~CZemDataDir() { clear(); }

void CZemDataDir::clear() {
    for (CZemDataItem* item : m_items) delete item;
    m_items.clear();
    m_index.clear();
}

bool CZemDataDir::getKeyList(CZemArrayTempl<CZemDataKey>& out) const {
    out.setLogicalLength(0);
    for (const CZemDataItem* item : m_items) out.append(item->key());
    return true;
}

CZemDataItem* CZemDataDir::at(int i) const {
    return i >= 0 && i < len() ? m_items[static_cast<std::size_t>(i)] : nullptr;
}

CZemDataItem* CZemDataDir::findLevel(const CZemDataKey& key, int level) const {
    const auto found = m_index.find(key.levelMatch(level));
    return found == m_index.end() ? nullptr : found->second;
}

CZemDataItem* CZemDataDir::find(const CZemDataKey* key) const {
    if (!key || key->isEmpty() || !key->isValid()) return nullptr;
    CZemDataItem* node = findLevel(*key, 0);
    for (int k = 1; node && k < key->levels(); ++k) {
        node = node->isDir() ? node->getDir()->findLevel(*key, k) : nullptr;
    }
    return node;
}

void CZemDataDir::remove(const CZemDataKey* key) {
    if (!key || key->isEmpty() || !key->isValid()) return;
    const CZemDataDir* owner = this;
    for (int k = 0; k + 1 < key->levels(); ++k) {
        const CZemDataItem* node = owner->findLevel(*key, k);
        if (!node || !node->isDir()) return;
        owner = node->getDir();
    }
    CZemDataDir* table = const_cast<CZemDataDir*>(owner);
    const auto found = table->m_index.find(key->levelMatch(-1));
    if (found == table->m_index.end()) return;
    CZemDataItem* item = found->second;
    table->m_index.erase(found);
    table->m_items.erase(std::find(table->m_items.begin(), table->m_items.end(), item));
    delete item;
}

int CZemDataDir::insert(const CZemDataKey* key, CZemDataItem* item, int keepExisting) {
    if (!item) return 0;
    if (!key || key->isEmpty() || !key->isValid()) {
        delete item;
        return 0;
    }
    CZemDataDir* table = this;
    for (int k = 0; k + 1 < key->levels(); ++k) {
        CZemDataItem* node = table->findLevel(*key, k);
        if (!node) {
            node = new CZemDataItem(CZemDataItem::typeDir);
            table->insertHere(key->level(k), node, 0);
        }
        table = node->mkDir();
    }
    return table->insertHere(key->level(-1), item, keepExisting);
}

int CZemDataDir::insertHere(const CZemDataKey& oneLevel, CZemDataItem* item, int keepExisting) {
    const std::wstring match = oneLevel.levelMatch(0);
    const auto found = m_index.find(match);
    item->setKey(oneLevel);
    if (found == m_index.end()) {
        m_items.push_back(item);
        m_index.emplace(match, item);
        return 1;
    }
    CZemDataItem* old = found->second;
    if (old == item) return 1;
    if (keepExisting) {
        delete item;
        return 0;
    }
    *std::find(m_items.begin(), m_items.end(), old) = item;
    found->second = item;
    delete old;
    return 1;
}
