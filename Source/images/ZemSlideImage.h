#pragma once

#include "ZemArrayTempl.h"
#include "ZemColor.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3dArray.h"
#include "ZemSlideData.h"
#include "ZemSlideSink.h"
#include "ZemVertexArray.h"

#include <string>

class CZemDataItem;
class CZemGDX;

// Turns one slide into display items: every vector a polyline item, every
// solid fill a filled region item, in the slide's raster coordinates (Y up,
// Z 0), numbered 1, 2, 3, ... under a stack path. Lives for one conversion.
class CZemSlideImage : private CZemSlideSink {
public:
    // Reads the slide name out of the slide library at path lib. The name is
    // matched by its code page 1252 bytes without regard to case. False, with
    // no slide held, if either is null or the slide isn't found.
    bool load(const wchar_t* name, const wchar_t* lib);
    // Takes a copy of size bytes as the slide; false if that holds none.
    bool assign(const void* data, long size);

    // Enters the held slide into gdx with flags, under the stack path "STACK"
    // (an array of int or one int) of item and with its matrix "MTX"; item may
    // be null. GDX_FILL is cleared from the flags of everything after the first
    // fill. False, with nothing entered, without a slide or for a header of an
    // unknown level; otherwise true if at least one item was made.
    bool image(CZemGDX& gdx, unsigned long flags, const CZemDataItem* item);

    // A wide name as the bytes of code page 1252; a character outside the
    // page becomes '?'.
    static std::string cp1252(const wchar_t* text);

private:
    void newColor(int color) override;
    void line(int fromX, int fromY, int toX, int toY) override;
    void polygon(std::vector<Point>& points) override;

    void readParameters(const CZemDataItem* item);
    int& counter() { return m_stack[m_stack.len() - 1]; }

    CZemSlideData m_slide;
    CZemGDX* m_gdx = nullptr;
    unsigned long m_flags = 0;
    CZemArrayTempl<int> m_stack;
    CZemColor m_color;
    CZemMatrix3d m_mtx;
    CZemArrayTempl<double> m_pattern;
    CZemVertexArray m_vl;
    CZemPoint3dArray m_points;
};
