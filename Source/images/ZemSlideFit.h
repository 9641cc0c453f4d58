#pragma once

// Maps a slide's raster to a window: one scale for both axes, the picture
// centred, Y turned downward.
class CZemSlideFit {
public:
    // Fits a raster whose highest dots are width and height into a rectangle of
    // rectWidth by rectHeight pixels.
    void SetCoordSystem(int rectWidth, int rectHeight, int width, int height);
    // A raster point to window pixels, in place; results beyond int are clamped.
    void trans(int& x, int& y) const;

    double scale() const { return m_scale; }
    int offX() const { return m_offX; }
    int offY() const { return m_offY; }

private:
    int m_height = 0;
    int m_offX = 0;
    int m_offY = 0;
    double m_scale = 0.0;
};
