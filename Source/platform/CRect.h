#pragma once

#include "CPoint.h"
#include "CSize.h"

#include <windows.h>

// A rectangle in device units, usable wherever a RECT is; right and bottom
// lie outside it, as in the platform.
class CRect : public RECT {
public:
    constexpr CRect() : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& rect) : RECT(rect) {}
    CRect(POINT topLeft, SIZE size) : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    operator RECT*() { return this; }
    operator const RECT*() const { return this; }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    bool IsRectEmpty() const { return Width() <= 0 || Height() <= 0; }
    bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    bool PtInRect(POINT p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }

    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRectEmpty() { *this = CRect(); }
    void OffsetRect(int dx, int dy);
    void OffsetRect(POINT offset) { OffsetRect(offset.x, offset.y); }
    void InflateRect(int dx, int dy);
    void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    void NormalizeRect();
    // False, and an empty rectangle, if a and b do not overlap.
    bool IntersectRect(const RECT& a, const RECT& b);
    bool UnionRect(const RECT& a, const RECT& b);

    bool operator==(const RECT& other) const;
    bool operator!=(const RECT& other) const { return !(*this == other); }
};
