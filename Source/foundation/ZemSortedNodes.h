#pragma once

#include <cstdint>

// The sorted node arrays of the process-wide maps (display list registry,
// font map): an array of node pointers ordered by key, searched by powers of
// two and grown by doubling from 16.
namespace ZEM {

// Binary search by powers of two over nodes[0..count) ordered by their field.
// The probe starts at the largest power of two not above the count, less one,
// and moves by halving steps; a probe behind the end counts as a key above.
// When the step reaches 0 the key is absent, and the last direction tells
// where it would go.
// True with position at the hit, or false with position at the place where
// the key belongs.
template <class Node, class Key>
bool sortedSearch(Node* const* nodes, std::uint32_t count, Key Node::*field, Key key, std::uint32_t& position) {
    position = 0;
    if (count == 0) return false;
    std::uint32_t step = 1;
    while (step <= count / 2) step *= 2;
    std::int64_t probe = static_cast<std::int64_t>(step) - 1;
    for (;;) {
        const bool inside = probe >= 0 && probe < static_cast<std::int64_t>(count);
        if (inside && nodes[probe]->*field == key) {
            position = static_cast<std::uint32_t>(probe);
            return true;
        }
        const bool up = inside && nodes[probe]->*field < key;
        step /= 2;
        if (step == 0) {
            position = static_cast<std::uint32_t>(up ? probe + 1 : probe);
            return false;
        }
        probe += up ? static_cast<std::int64_t>(step) : -static_cast<std::int64_t>(step);
    }
}

// Puts node at position, growing the array by doubling from 16.
template <class Node>
void sortedInsert(Node**& nodes, std::uint32_t& count, std::uint32_t& capacity, std::uint32_t position, Node* node) {
    if (count == capacity) {
        const std::uint32_t grown = capacity == 0 ? 16 : capacity * 2;
        Node** bigger = new Node*[grown];
        for (std::uint32_t k = 0; k < count; ++k) bigger[k] = nodes[k];
        delete[] nodes;
        nodes = bigger;
        capacity = grown;
    }
    for (std::uint32_t k = count; k > position; --k) nodes[k] = nodes[k - 1];
    nodes[position] = node;
    ++count;
}

}  // namespace ZEM
