#pragma once

#include "CDC.h"

class CWnd;

// The device context of a WM_PAINT: BeginPaint at construction, EndPaint
// at the end.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* wnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};
