#include "CRuntimeClass.h"

#include "CObject.h"

#include <new>

CObject* CRuntimeClass::CreateObject() const {
    if (m_pfnCreateObject == nullptr) return nullptr;
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
    for (const CRuntimeClass* c = this; c != nullptr;) {
        if (c == base) return true;
        c = c->m_pfnGetBaseClass != nullptr ? c->m_pfnGetBaseClass() : nullptr;
    }
    return false;
}
