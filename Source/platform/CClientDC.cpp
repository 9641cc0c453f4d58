#include "CClientDC.h"

#include "CWnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* wnd) : m_hWnd(wnd != nullptr ? wnd->m_hWnd : nullptr) { Attach(::GetDC(m_hWnd)); }

CClientDC::~CClientDC() {
    if (m_hDC != nullptr) ::ReleaseDC(m_hWnd, Detach());
}
