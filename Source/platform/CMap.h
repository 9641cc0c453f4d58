#pragma once

#include "CObject.h"

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

struct ZemMapPosition;
// An iteration position in a framework collection; null at the end.
using POSITION = ZemMapPosition*;

// Bucket of a key in the framework's hash maps: integers and pointers by
// their value shifted right by 4, strings by the multiply-by-33 sum, floating
// point numbers by their bit pattern with both zeros alike.
template <class ARG_KEY>
unsigned int HashKey(ARG_KEY key) {
    using Key = std::decay_t<ARG_KEY>;
    if constexpr (std::is_floating_point_v<Key>) {
        const double d = key == 0 ? 0.0 : static_cast<double>(key);
        std::uint64_t bits = 0;
        std::memcpy(&bits, &d, sizeof bits);
        return static_cast<unsigned int>((bits ^ (bits >> 32)) >> 4);
    } else if constexpr (std::is_convertible_v<Key, const wchar_t*>) {
        unsigned int hash = 0;
        for (const wchar_t* p = key; p != nullptr && *p != L'\0'; ++p) {
            hash = (hash << 5) + hash + static_cast<unsigned int>(*p);
        }
        return hash;
    } else if constexpr (std::is_pointer_v<Key>) {
        return static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(key) >> 4);
    } else {
        return static_cast<unsigned int>(static_cast<std::uintptr_t>(key) >> 4);
    }
}

// The framework's hash map: chained buckets (17 unless InitHashTable says
// otherwise); iteration walks the buckets in order, newest entry first in
// each. Keys compare with ==.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
public:
    // Entries are allocated one by one; the block size is taken for the
    // framework's signature only.
    explicit CMap(std::intptr_t = 10) {}
    CMap(const CMap&) = delete;
    CMap& operator=(const CMap&) = delete;
    ~CMap() override { RemoveAll(); }

    std::intptr_t GetCount() const { return m_count; }
    std::intptr_t GetSize() const { return m_count; }
    bool IsEmpty() const { return m_count == 0; }
    unsigned int GetHashTableSize() const { return m_hashSize; }

    // Sets the number of buckets; only an empty map changes it.
    void InitHashTable(unsigned int size, bool = true) {
        if (m_count == 0 && size > 0) {
            m_buckets.clear();
            m_hashSize = size;
        }
    }

    bool Lookup(ARG_KEY key, VALUE& value) const {
        const Assoc* a = find(key);
        if (a == nullptr) return false;
        value = a->value;
        return true;
    }

    VALUE& operator[](ARG_KEY key) {
        Assoc* a = find(key);
        if (a != nullptr) return a->value;
        if (m_buckets.empty()) m_buckets.assign(m_hashSize, nullptr);
        Assoc*& head = m_buckets[HashKey<ARG_KEY>(key) % m_hashSize];
        head = new Assoc{head, KEY(key), VALUE()};
        ++m_count;
        return head->value;
    }

    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }

    bool RemoveKey(ARG_KEY key) {
        if (m_buckets.empty()) return false;
        for (Assoc** link = &m_buckets[HashKey<ARG_KEY>(key) % m_hashSize]; *link != nullptr; link = &(*link)->next) {
            if ((*link)->key == key) {
                Assoc* gone = *link;
                *link = gone->next;
                delete gone;
                --m_count;
                return true;
            }
        }
        return false;
    }

    void RemoveAll() {
        for (Assoc* head : m_buckets) {
            while (head != nullptr) {
                Assoc* next = head->next;
                delete head;
                head = next;
            }
        }
        m_buckets.clear();
        m_count = 0;
    }

    POSITION GetStartPosition() const { return toPosition(next(nullptr)); }

    // Gives the entry at pos and moves pos on; pos must come from this map.
    void GetNextAssoc(POSITION& pos, KEY& key, VALUE& value) const {
        const Assoc* a = reinterpret_cast<const Assoc*>(pos);
        if (a == nullptr) return;
        key = a->key;
        value = a->value;
        pos = toPosition(next(a));
    }

private:
    struct Assoc {
        Assoc* next;
        KEY key;
        VALUE value;
    };

    Assoc* find(ARG_KEY key) const {
        if (m_buckets.empty()) return nullptr;
        for (Assoc* a = m_buckets[HashKey<ARG_KEY>(key) % m_hashSize]; a != nullptr; a = a->next) {
            if (a->key == key) return a;
        }
        return nullptr;
    }

    // The entry after a in iteration order; the first one for null.
    const Assoc* next(const Assoc* a) const {
        std::size_t bucket = 0;
        if (a != nullptr) {
            if (a->next != nullptr) return a->next;
            bucket = HashKey<ARG_KEY>(a->key) % m_hashSize + 1;
        }
        for (; bucket < m_buckets.size(); ++bucket) {
            if (m_buckets[bucket] != nullptr) return m_buckets[bucket];
        }
        return nullptr;
    }

    static POSITION toPosition(const Assoc* a) { return reinterpret_cast<POSITION>(const_cast<Assoc*>(a)); }

    std::vector<Assoc*> m_buckets;
    unsigned int m_hashSize = 17;
    std::intptr_t m_count = 0;
};
