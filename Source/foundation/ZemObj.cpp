#include "ZemObj.h"

#include <cstdint>
#include <cstdlib>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace {

// Blocks from this size on always get pages of their own from the C
// library, whatever its dynamic threshold has grown to.
const std::size_t kLargeBlock = std::size_t{32} << 20;

// Asks for large pages over the whole block. A long display list is walked
// in orders the processor cannot predict (sorting, picking), and every fresh
// small page costs a fault of its own. The advice covers the block's whole
// mapping, so that the next growth can still remap it in one piece.
void adviseLargePages(void* block, std::size_t bytes) {
#ifdef __linux__
    const std::uintptr_t page = 0xFFF;
    const std::uintptr_t lo = reinterpret_cast<std::uintptr_t>(block) & ~page;
    const std::uintptr_t hi = (reinterpret_cast<std::uintptr_t>(block) + bytes + page) & ~page;
    madvise(reinterpret_cast<void*>(lo), hi - lo, MADV_HUGEPAGE);
#else
    (void)block;
    (void)bytes;
#endif
}

}  // namespace

// Defined out of line on purpose: the allocation always happens inside the
// library that defines the class.
void* CZemObj::operator new(std::size_t size) { return ::operator new(size); }
void* CZemObj::operator new[](std::size_t size) { return ::operator new[](size); }
void CZemObj::operator delete(void* p) noexcept { ::operator delete(p); }
void CZemObj::operator delete[](void* p) noexcept { ::operator delete[](p); }

void* CZemObj::growStorage(void* block, std::size_t bytes) {
    void* grown = std::realloc(block, bytes);
    if (!grown) throw std::bad_alloc();
    if (bytes >= kLargeBlock) adviseLargePages(grown, bytes);
    return grown;
}

void CZemObj::freeStorage(void* block) noexcept { std::free(block); }
