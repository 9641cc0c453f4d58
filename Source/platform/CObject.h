#pragma once

#include "CRuntimeClass.h"

#include <cstddef>
#include <new>

// Root of the framework classes: run-time class information and allocation
// that always happens inside this library, whichever module deletes.
class CObject {
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    static const CRuntimeClass classCObject;
    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* cls) const;

    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void operator delete(void* p) noexcept;
    static void operator delete(void* p, const std::nothrow_t&) noexcept;
};
