#pragma once

class CObject;

// The run-time description of a framework class: its name, its base and, for
// dynamic classes, a factory; IsKindOf and CreateObject work from it.
struct CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize;
    CObject* (*m_pfnCreateObject)();
    const CRuntimeClass* (*m_pfnGetBaseClass)();

    // A new object of the class, or null if the class is not dynamic or
    // memory ran out.
    CObject* CreateObject() const;
    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                            \
public:                                                        \
    static const CRuntimeClass class##class_name;              \
    static const CRuntimeClass* GetThisClass();                \
    const CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name)       \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, pfnNew)                          \
    const CRuntimeClass class_name::class##class_name = {                                     \
        #class_name, static_cast<int>(sizeof(class_name)), pfnNew,                            \
        &base_class_name::GetThisClass};                                                      \
    const CRuntimeClass* class_name::GetThisClass() { return &class_name::class##class_name; } \
    const CRuntimeClass* class_name::GetRuntimeClass() const { return &class_name::class##class_name; }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                  \
    CObject* class_name::CreateObject() { return new class_name; }        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)
