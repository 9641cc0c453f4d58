#pragma once

#include "ZemObj.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

// The array of the system: doubling growth from 8, elements moved bitwise on
// reallocation, negative indices counted from the end, a writing index that
// extends the array and a reading index that yields one shared default
// element per instantiation.
//
// kFirstRoom is the room made for an empty array before doubling. The
// system's arrays keep 8; the vertex and point lists, of which a drawing
// holds very many short ones, start from 1, so that their storage stays
// within twice what they hold.
//
// Elements are moved by their bytes, never by copy or move constructors:
// growing hands the storage to the C library's reallocation, and shifting
// and reordering swap bytes. An element type qualifies when an object stays
// valid at another address: it holds no pointer into itself and registers
// its address nowhere. The system's element types qualify: numbers, and
// value classes whose members are numbers, heap pointers owned by the object
// (strings, nested arrays) and table pointers, none of which refer back into
// the object.
template <class T, std::uint32_t kFirstRoom = 8>
class CZemArrayTempl : public CZemObj {
public:
    CZemArrayTempl() = default;
    CZemArrayTempl(const CZemArrayTempl& other) : CZemObj() { *this = other; }
    ~CZemArrayTempl() override;

    CZemArrayTempl& operator=(const CZemArrayTempl& other);

    int len() const { return static_cast<int>(m_logLen); }
    bool isEmpty() const { return m_logLen == 0; }
    int physicalLength() const { return static_cast<int>(m_physLen); }

    // Makes room for n elements; the logical length stays.
    void reserve(int n);
    // Sets the logical length; elements behind it stay constructed and keep
    // their content. Returns the new length.
    int setLogicalLength(int n);

    // Writing index: -1 is the last element; an index at or behind the end
    // extends the array. On an empty array a negative index yields the
    // instantiation's scratch element and the array stays empty.
    T& operator[](int i);
    // Reading index: negative as above; an index at or behind the end yields
    // the instantiation's shared default element.
    const T& operator[](int i) const;

    CZemArrayTempl& append(const T& x);
    // Inserts x at i (a negative i resolves as in the writing index); an i
    // behind the end first extends the array to i elements.
    CZemArrayTempl& insertAt(int i, const T& x);
    // Removes element i; an index outside the array is ignored.
    CZemArrayTempl& removeAt(int i);

    // Ascending order (bubble sort with early exit).
    CZemArrayTempl& sort();
    // Reversed order, in place.
    CZemArrayTempl& revert();

    const T* data() const { return m_data; }

    // The shared elements of this instantiation, made on first use.
    static T& scratchElement();
    static const T& defaultElement();

private:
    static_assert(alignof(T) <= alignof(std::max_align_t), "storage comes from the C library");

    static void swapBytes(T& a, T& b);
    CZemArrayTempl& placeAt(int i, int newLen, const T& x);
    int resolveNegative(int i) const;

    std::uint32_t m_physLen = 0;
    std::uint32_t m_logLen = 0;
    T* m_data = nullptr;
};

// The shared elements are never destroyed, so that they outlive every static
// array that may still hand them out while the process ends.
template <class T, std::uint32_t kFirstRoom>
T& CZemArrayTempl<T, kFirstRoom>::scratchElement() {
    static T* scratch = new T();
    return *scratch;
}

template <class T, std::uint32_t kFirstRoom>
const T& CZemArrayTempl<T, kFirstRoom>::defaultElement() {
    static const T* deflt = new T();
    return *deflt;
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>::~CZemArrayTempl() {
    for (std::uint32_t k = 0; k < m_physLen; ++k) m_data[k].~T();
    freeStorage(m_data);
}

template <class T, std::uint32_t kFirstRoom>
void CZemArrayTempl<T, kFirstRoom>::swapBytes(T& a, T& b) {
    alignas(T) unsigned char buffer[sizeof(T)];
    std::memcpy(buffer, static_cast<void*>(&a), sizeof(T));
    std::memcpy(static_cast<void*>(&a), static_cast<const void*>(&b), sizeof(T));
    std::memcpy(static_cast<void*>(&b), buffer, sizeof(T));
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::operator=(const CZemArrayTempl& other) {
    if (this == &other) return *this;
    reserve(other.len());
    m_logLen = other.m_logLen;
    for (std::uint32_t k = 0; k < m_logLen; ++k) m_data[k] = other.m_data[k];
    return *this;
}

template <class T, std::uint32_t kFirstRoom>
void CZemArrayTempl<T, kFirstRoom>::reserve(int n) {
    if (n <= 0 || static_cast<std::uint32_t>(n) <= m_physLen) return;
    std::uint32_t capacity = m_physLen == 0 ? kFirstRoom : m_physLen;
    while (capacity < static_cast<std::uint32_t>(n)) capacity *= 2;
    m_data = static_cast<T*>(growStorage(static_cast<void*>(m_data), std::size_t{capacity} * sizeof(T)));
    // Every slot, used or not, holds a constructed element.
    for (std::uint32_t k = m_physLen; k < capacity; ++k) ::new (static_cast<void*>(m_data + k)) T();
    m_physLen = capacity;
}

template <class T, std::uint32_t kFirstRoom>
int CZemArrayTempl<T, kFirstRoom>::setLogicalLength(int n) {
    if (n < 0) n = 0;
    reserve(n);
    m_logLen = static_cast<std::uint32_t>(n);
    return n;
}

template <class T, std::uint32_t kFirstRoom>
int CZemArrayTempl<T, kFirstRoom>::resolveNegative(int i) const {
    const long long n = m_logLen;
    if (n <= 1) return 0;
    const long long k = (n + i) % n;
    return static_cast<int>(k < 0 ? k + n : k);
}

template <class T, std::uint32_t kFirstRoom>
T& CZemArrayTempl<T, kFirstRoom>::operator[](int i) {
    if (i < 0) {
        if (m_logLen == 0) return scratchElement();
        i = resolveNegative(i);
    }
    if (static_cast<std::uint32_t>(i) >= m_logLen) setLogicalLength(i + 1);
    return m_data[i];
}

template <class T, std::uint32_t kFirstRoom>
const T& CZemArrayTempl<T, kFirstRoom>::operator[](int i) const {
    if (i < 0) i = resolveNegative(i);
    if (static_cast<std::uint32_t>(i) >= m_logLen) return defaultElement();
    return m_data[i];
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::append(const T& x) {
    return insertAt(len(), x);
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::insertAt(int i, const T& x) {
    if (i < 0) i = m_logLen == 0 ? 0 : resolveNegative(i);
    const int newLen = (i > len() ? i : len()) + 1;
    // x may be an element of this array: moved by the shifting, or freed
    // with the old storage when the array grows.
    const bool own = m_data && &x >= m_data && &x < m_data + m_physLen;
    if (!own && static_cast<std::uint32_t>(newLen) <= m_physLen) return placeAt(i, newLen, x);
    return placeAt(i, newLen, T(x));
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::placeAt(int i, int newLen, const T& x) {
    setLogicalLength(newLen);
    for (int k = newLen - 1; k > i; --k) swapBytes(m_data[k], m_data[k - 1]);
    m_data[i] = x;
    return *this;
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::removeAt(int i) {
    if (static_cast<std::uint32_t>(i) >= m_logLen) return *this;
    for (std::uint32_t k = static_cast<std::uint32_t>(i); k + 1 < m_logLen; ++k) {
        swapBytes(m_data[k], m_data[k + 1]);
    }
    --m_logLen;
    return *this;
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::sort() {
    if (m_logLen < 2) return *this;
    for (std::uint32_t end = m_logLen; end > 1; --end) {
        bool swapped = false;
        for (std::uint32_t k = 0; k + 1 < end; ++k) {
            if (m_data[k + 1] < m_data[k]) {
                swapBytes(m_data[k], m_data[k + 1]);
                swapped = true;
            }
        }
        if (!swapped) break;
    }
    return *this;
}

template <class T, std::uint32_t kFirstRoom>
CZemArrayTempl<T, kFirstRoom>& CZemArrayTempl<T, kFirstRoom>::revert() {
    if (m_logLen < 2) return *this;
    for (std::uint32_t lo = 0, hi = m_logLen - 1; lo < hi; ++lo, --hi) {
        swapBytes(m_data[lo], m_data[hi]);
    }
    return *this;
}
