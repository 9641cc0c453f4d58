#pragma once

#include "CGdiObject.h"

// An owned pen.
class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    // An empty object if the platform refuses the pen.
    CPen(int style, int width, COLORREF color);

    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int style, int width, COLORREF color);   // CreatePen
};
