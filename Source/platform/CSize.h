#pragma once

#include <windows.h>

// An extent in device units, usable wherever a SIZE is.
class CSize : public SIZE {
public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int width, int height) : SIZE{width, height} {}
    constexpr CSize(SIZE size) : SIZE(size) {}

    bool operator==(SIZE other) const { return cx == other.cx && cy == other.cy; }
    bool operator!=(SIZE other) const { return !(*this == other); }
    CSize operator+(SIZE other) const { return CSize(cx + other.cx, cy + other.cy); }
    CSize operator-(SIZE other) const { return CSize(cx - other.cx, cy - other.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    CSize& operator+=(SIZE other) {
        cx += other.cx;
        cy += other.cy;
        return *this;
    }
    CSize& operator-=(SIZE other) {
        cx -= other.cx;
        cy -= other.cy;
        return *this;
    }
};
