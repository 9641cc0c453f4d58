#pragma once

#include <cstddef>

// Root of the value classes. Each object carries a table of virtual
// operations, so it can be destroyed through a CZemObj pointer, and is
// allocated by the class's own operators, so memory taken in one module is
// given back by the same allocator wherever the object dies.
class CZemObj {
public:
    CZemObj() = default;
    CZemObj(const CZemObj&) = default;
    CZemObj& operator=(const CZemObj&) = default;
    virtual ~CZemObj() = default;

    static void* operator new(std::size_t size);
    static void* operator new[](std::size_t size);
    static void operator delete(void* p) noexcept;
    static void operator delete[](void* p) noexcept;

    // Element storage of the arrays, also taken and given back here. It
    // grows in place or moves bitwise (large blocks by remapping their pages
    // rather than copying them), so only bitwise-movable elements may live in
    // it. growStorage throws std::bad_alloc when memory runs out.
    static void* growStorage(void* block, std::size_t bytes);
    static void freeStorage(void* block) noexcept;
};
