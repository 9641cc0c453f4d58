#pragma once

#include "CGdiObject.h"

// An owned region.
class CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }

    BOOL CreateRectRgn(int left, int top, int right, int bottom);       // CreateRectRgn
    BOOL CreateRectRgnIndirect(LPCRECT rect);                            // CreateRectRgnIndirect
    BOOL CreateEllipticRgn(int left, int top, int right, int bottom);   // CreateEllipticRgn
    BOOL CreatePolygonRgn(const POINT* points, int count, int fillMode); // CreatePolygonRgn
    // Sets this region, which must exist, to a combined with b; the
    // region's complexity, or ERROR.
    int CombineRgn(const CRgn* a, const CRgn* b, int mode);             // CombineRgn
    int CopyRgn(const CRgn* source);
    BOOL PtInRegion(int x, int y) const;                                 // PtInRegion
    int GetRgnBox(LPRECT rect) const;                                    // GetRgnBox
};
