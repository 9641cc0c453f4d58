#pragma once

#include "ZemModuleState.h"

// Makes a module state current for the guard's scope and restores the
// former one at its end; every exported dialog function opens with
// AFX_MANAGE_STATE(AfxGetStaticModuleState()) so that its resources are
// looked up in this library first.
class CZemModuleStateGuard {
public:
    explicit CZemModuleStateGuard(AFX_MODULE_STATE* state);
    ~CZemModuleStateGuard();
    CZemModuleStateGuard(const CZemModuleStateGuard&) = delete;
    CZemModuleStateGuard& operator=(const CZemModuleStateGuard&) = delete;

private:
    AFX_MODULE_STATE* m_former;
};

#define AFX_MANAGE_STATE(state) CZemModuleStateGuard zemModuleStateGuard(state)
