#include "CRect.h"

#include <algorithm>

void CRect::OffsetRect(int dx, int dy) {
    left += dx;
    right += dx;
    top += dy;
    bottom += dy;
}

void CRect::InflateRect(int dx, int dy) {
    left -= dx;
    right += dx;
    top -= dy;
    bottom += dy;
}

void CRect::NormalizeRect() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
}

bool CRect::IntersectRect(const RECT& a, const RECT& b) {
    *this = CRect(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                  std::min(a.bottom, b.bottom));
    if (!IsRectEmpty()) return true;
    SetRectEmpty();
    return false;
}

bool CRect::UnionRect(const RECT& a, const RECT& b) {
    const CRect ra(a);
    const CRect rb(b);
    if (ra.IsRectEmpty()) {
        *this = rb;
    } else if (rb.IsRectEmpty()) {
        *this = ra;
    } else {
        *this = CRect(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                      std::max(a.bottom, b.bottom));
    }
    if (!IsRectEmpty()) return true;
    SetRectEmpty();
    return false;
}

bool CRect::operator==(const RECT& other) const {
    return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
}
