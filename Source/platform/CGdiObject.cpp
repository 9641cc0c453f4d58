#include "CGdiObject.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)

CGdiObject::CGdiObject(CGdiObject&& other) noexcept : CObject(), m_hObject(other.Detach()) {}

CGdiObject& CGdiObject::operator=(CGdiObject&& other) noexcept {
    if (this != &other) {
        DeleteObject();
        m_hObject = other.Detach();
    }
    return *this;
}

CGdiObject::~CGdiObject() { DeleteObject(); }

bool CGdiObject::Attach(HGDIOBJ object) {
    if (m_hObject != nullptr || object == nullptr) return false;
    m_hObject = object;
    return true;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ object = m_hObject;
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject() {
    if (m_hObject == nullptr) return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObjectW(int size, void* buffer) const { return ::GetObjectW(m_hObject, size, buffer); }

UINT CGdiObject::GetObjectType() const { return static_cast<UINT>(::GetObjectType(m_hObject)); }
