#pragma once

#include "CDC.h"

class CWnd;

// The device context of a window's client area (of the screen for a null
// window), released at the end.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* wnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
