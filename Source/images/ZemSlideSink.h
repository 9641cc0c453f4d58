#pragma once

#include <vector>

// Receiver of what a slide decodes to, in the slide's raster units (Y up).
// The slide window draws it into a device context; the display-item
// converter turns it into polyline and region items.
class CZemSlideSink {
public:
    struct Point {
        int x;
        int y;
    };

    virtual ~CZemSlideSink() = default;

    // The header is read: the raster runs from 0 to width and 0 to height.
    virtual void slideSize(int width, int height);
    // The items that follow have the AutoCAD colour index color (0 to 255).
    virtual void newColor(int color) = 0;
    virtual void line(int fromX, int fromY, int toX, int toY) = 0;
    // A filled polygon whose last point repeats the first; the sink may change
    // the points (the decoder refills the array for every fill).
    virtual void polygon(std::vector<Point>& points) = 0;
};
