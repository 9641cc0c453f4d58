#pragma once

#include "CObject.h"

#include <windows.h>

// An owned GDI object: deleted by DeleteObject or with the C++ object.
// Ownership moves, it is never shared; a handle the object must not delete
// is taken out by Detach first.
class CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject() = default;
    CGdiObject(CGdiObject&& other) noexcept;
    CGdiObject& operator=(CGdiObject&& other) noexcept;
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    // Takes ownership of object; false if one is held already.
    bool Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObjectW(int size, void* buffer) const;   // GetObjectW
    UINT GetObjectType() const;                     // GetObjectType

    HGDIOBJ m_hObject = nullptr;
};
