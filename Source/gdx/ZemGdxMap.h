#pragma once

#include "ZemGDX.h"
#include "ZemObj.h"

#include <cstdint>

class CZemDataItem;

// A map from integer keys to display lists, sorted by key. Each list lives in
// a node of its own, so its address stays valid until its key is removed.
class CZemGdxMap : public CZemObj {
public:
    CZemGdxMap() = default;
    CZemGdxMap(const CZemGdxMap&) = delete;
    CZemGdxMap& operator=(const CZemGdxMap&) = delete;
    ~CZemGdxMap() override;

    // The list of the key; null if absent.
    CZemGDX* find(int key) const;
    // Assigns gdx to the key's list, making the node if the key is new.
    void setAt(int key, const CZemGDX& gdx);
    // False if the key is absent.
    bool removeAt(int key);
    // The smallest key from 1 upward that is not in the map.
    int keyNew() const;
    int count() const { return static_cast<int>(m_count); }

private:
    struct Node {
        int key;
        CZemGDX gdx;
    };

    bool search(int key, std::uint32_t& position) const;
    void insertAt(std::uint32_t position, Node* node);

    Node** m_nodes = nullptr;
    std::uint32_t m_count = 0;
    std::uint32_t m_capacity = 0;
};

// The registry of display lists: one map for the process.
int gdxMapKeyNew();
// Stores a copy of gdx under the key; the caller keeps gdx.
void gdxMapSetAt(int key, CZemGDX& gdx);
CZemGDX* getGdxFromMap(int key);
bool gdxMapRemoveAt(int key);
// Makes a list from stored settings (a directory with the optional keys
// PDSIZE and PDMODE as int, EXTVIEW two corners, MTX the projection, COLOR,
// RGB and TBL the background) and the configuration colours, and stores it
// under a new key; the key, or -1 if it cannot be stored. Point size and
// style missing from the settings come from the configuration, else 0. A
// null or non-directory argument reads no settings.
int createGdxInMap(CZemDataItem* settings);
