#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"

// Base of the non-template arrays (vertex lists, point lists): a logical
// length that callers shrink to 0 to reuse an array and grow by one to add.
class CZemArray : public CZemObj {
public:
    virtual int len() const = 0;
    virtual int setLogicalLength(int n) = 0;
};

// The shared body of the non-template arrays: a CZemArrayTempl with its
// indexing rules (negative indices from the end, a writing index that
// extends, a reading index that yields a shared default element), growing
// from one element.
template <class T>
class CZemArrayOf : public CZemArray {
public:
    using Items = CZemArrayTempl<T, 1>;

    int len() const final { return m_items.len(); }
    int setLogicalLength(int n) final { return m_items.setLogicalLength(n); }
    bool isEmpty() const { return m_items.len() == 0; }
    // Makes room for n elements; the length stays.
    void reserve(int n) { m_items.reserve(n); }

    T& operator[](int i) { return m_items[i]; }
    const T& operator[](int i) const { return m_items[i]; }

    void insertAt(int i, const T& x) { m_items.insertAt(i, x); }
    void removeAt(int i) { m_items.removeAt(i); }

    const Items& items() const { return m_items; }

protected:
    void appendItem(const T& x) { m_items.append(x); }
    void revertItems() { m_items.revert(); }

    Items m_items;
};
