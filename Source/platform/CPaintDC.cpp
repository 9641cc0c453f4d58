#include "CPaintDC.h"

#include "CWnd.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* wnd) : m_hWnd(wnd != nullptr ? wnd->m_hWnd : nullptr) {
    if (m_hWnd != nullptr) Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC() {
    if (m_hWnd != nullptr) ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
