#pragma once

#include "CGdiObject.h"

// An owned brush.
class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    // A solid brush; an empty object if the platform refuses it.
    explicit CBrush(COLORREF color);

    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF color);                 // CreateSolidBrush
    BOOL CreateHatchBrush(int hatch, COLORREF color);      // CreateHatchBrush
    BOOL CreateBrushIndirect(const LOGBRUSH* logBrush);    // CreateBrushIndirect
};
