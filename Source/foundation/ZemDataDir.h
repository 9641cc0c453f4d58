#pragma once

#include "ZemArrayTempl.h"
#include "ZemDataKey.h"
#include "ZemObj.h"

#include <string>
#include <unordered_map>
#include <vector>

class CZemDataItem;

// The children of a directory node, in stored order, each under a key that
// is unique in the table. The table owns its children.
class CZemDataDir : public CZemObj {
public:
    CZemDataDir() = default;
    CZemDataDir(const CZemDataDir& other);
    CZemDataDir& operator=(const CZemDataDir& other);
    ~CZemDataDir() override;

    int len() const { return static_cast<int>(m_items.size()); }
    // All child keys in stored order. Always true.
    bool getKeyList(CZemArrayTempl<CZemDataKey>& out) const;
    // Removes the node at key (a path reaches below this table).
    void remove(const CZemDataKey* key);
    // Takes item over, always, and stores it at key: a path makes the
    // directories on its way. keepExisting 0 replaces a child of the same
    // key, otherwise an existing child stays and item is deleted. Non-zero
    // on success; 0 (item deleted) for a null, empty or invalid key.
    virtual int insert(const CZemDataKey* key, CZemDataItem* item, int keepExisting);

    // The child at position i in stored order; null outside.
    CZemDataItem* at(int i) const;
    // The node at key below this table; null if absent.
    CZemDataItem* find(const CZemDataKey* key) const;

private:
    CZemDataItem* findLevel(const CZemDataKey& key, int level) const;
    int insertHere(const CZemDataKey& oneLevel, CZemDataItem* item, int keepExisting);
    void clear();

    std::vector<CZemDataItem*> m_items;
    std::unordered_map<std::wstring, CZemDataItem*> m_index;
};
