#include "CObject.h"

const CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), nullptr, nullptr};

const CRuntimeClass* CObject::GetThisClass() { return &classCObject; }

const CRuntimeClass* CObject::GetRuntimeClass() const { return &classCObject; }

bool CObject::IsKindOf(const CRuntimeClass* cls) const {
    return cls != nullptr && GetRuntimeClass()->IsDerivedFrom(cls);
}

void* CObject::operator new(std::size_t size) { return ::operator new(size); }

void* CObject::operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return ::operator new(size, std::nothrow);
}

void CObject::operator delete(void* p) noexcept { ::operator delete(p); }

void CObject::operator delete(void* p, const std::nothrow_t&) noexcept { ::operator delete(p); }
