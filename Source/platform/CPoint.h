#pragma once

#include "CSize.h"

#include <windows.h>

// A point in device units, usable wherever a POINT is. Built from the LPARAM
// of a mouse message it takes the two signed 16-bit halves.
class CPoint : public POINT {
public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int px, int py) : POINT{px, py} {}
    constexpr CPoint(POINT point) : POINT(point) {}
    explicit CPoint(LPARAM packed)
        : POINT{static_cast<short>(LOWORD(static_cast<DWORD>(packed))),
                static_cast<short>(HIWORD(static_cast<DWORD>(packed)))} {}

    void Offset(int dx, int dy) {
        x += dx;
        y += dy;
    }
    void SetPoint(int px, int py) {
        x = px;
        y = py;
    }
    bool operator==(POINT other) const { return x == other.x && y == other.y; }
    bool operator!=(POINT other) const { return !(*this == other); }
    CPoint operator+(SIZE offset) const { return CPoint(x + offset.cx, y + offset.cy); }
    CPoint operator-(SIZE offset) const { return CPoint(x - offset.cx, y - offset.cy); }
    CSize operator-(POINT other) const { return CSize(x - other.x, y - other.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CPoint& operator+=(SIZE offset) {
        x += offset.cx;
        y += offset.cy;
        return *this;
    }
    CPoint& operator-=(SIZE offset) {
        x -= offset.cx;
        y -= offset.cy;
        return *this;
    }
};
