#pragma once

#include "ZemGdxPainter.h"

// Draws a display list onto a screen image: a colour that would vanish on
// the device's background colour is inverted, dots are single pixels, solid
// fills are polygons, outlines are one pixel wide and pictures are bitmap
// files blitted at their stored size.
class CZemScreenPainter : public CZemGdxPainter {
public:
    CZemScreenPainter(CDC& dc, const CZemGDX& gdx, const CZemMatrix3d& device, const CZemMatrix3d& direction,
                      const CRgn& clip, int width, int height);

protected:
    COLORREF lineColor(int i) override;
    COLORREF penColor(COLORREF color) const override;
    bool isJoined(const CZemVertexArray& vl) const override;
    void dot(const CZemPoint3d& p) override;
    void pointSquare(double x, double y, int r, int size) override;
    int pointFrameLow(int size, int r) const override;
    bool hatchLegible(const CZemArrayTempl<CZemVertexArray>& rings, const CZemHatchProp& hatch,
                      const CZemMatrix3d& item) const override;
    void fillRings(int i, const CZemArrayTempl<CZemVertexArray>& rings, const CZemMatrix3d& w,
                   COLORREF color) override;
    int outlineWidth(int i) const override;
    CZemArrayTempl<CZemVertexArray> glyphRings(const CZemArrayTempl<CZemVertexArray>& glyph) const override;
    void drawPicture(int i, unsigned long flags) override;

private:
    COLORREF penInPlaceColor() const;
};
