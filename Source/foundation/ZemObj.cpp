#include "ZemObj.h"

#include <new>

// Defined out of line on purpose: the allocation always happens inside the
// library that defines the class.
void* CZemObj::operator new(std::size_t size) { return ::operator new(size); }
void* CZemObj::operator new[](std::size_t size) { return ::operator new[](size); }
void CZemObj::operator delete(void* p) noexcept { ::operator delete(p); }
void CZemObj::operator delete[](void* p) noexcept { ::operator delete[](p); }
