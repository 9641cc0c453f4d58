#include "CRgn.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

BOOL CRgn::CreateRectRgn(int left, int top, int right, int bottom) {
    return Attach(::CreateRectRgn(left, top, right, bottom));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }

BOOL CRgn::CreateEllipticRgn(int left, int top, int right, int bottom) {
    return Attach(::CreateEllipticRgn(left, top, right, bottom));
}

BOOL CRgn::CreatePolygonRgn(const POINT* points, int count, int fillMode) {
    if (points == nullptr || count < 2) return FALSE;
    return Attach(::CreatePolygonRgn(points, count, fillMode));
}

int CRgn::CombineRgn(const CRgn* a, const CRgn* b, int mode) {
    if (m_hObject == nullptr || a == nullptr) return ERROR;
    return ::CombineRgn(*this, *a, b != nullptr ? static_cast<HRGN>(*b) : nullptr, mode);
}

int CRgn::CopyRgn(const CRgn* source) { return CombineRgn(source, nullptr, RGN_COPY); }

BOOL CRgn::PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }

int CRgn::GetRgnBox(LPRECT rect) const { return ::GetRgnBox(*this, rect); }
