#include "ZemModuleStateGuard.h"

CZemModuleStateGuard::CZemModuleStateGuard(AFX_MODULE_STATE* state) : m_former(AfxSetModuleState(state)) {}

CZemModuleStateGuard::~CZemModuleStateGuard() { AfxSetModuleState(m_former); }
