#pragma once

#include "ZemObj.h"

class CZemDataItem;

// Walks the direct children of one directory node in stored order:
// for (it.start(); !it.done(); it.next()) use it.item(). A null or value
// node has no children. Removing children while walking is not supported.
class CZemDataIterator : public CZemObj {
public:
    explicit CZemDataIterator(const CZemDataItem* dir);

    void start() { m_pos = 0; }
    void next() { ++m_pos; }
    bool done() const;
    // The current child; null when done.
    CZemDataItem* item() const;
    CZemDataItem* operator->() const { return item(); }
    operator CZemDataItem*() const { return item(); }

private:
    const CZemDataItem* m_dir;
    int m_pos = 0;
};
