#pragma once

#include "ZemDrawingWriter.h"

#include <string>

class CZemGDX;

// The ground floor plan of a small house on a drawing sheet, in millimetres:
// walls hatched by material with their openings, floor finishes, doors,
// windows, fittings, axes, dimension chains, lights, room labels, a title
// block with a picture, and a detail taken from a slide library.
class CZemDemoPlan {
public:
    // The sheet is drawn for an output of width by height pixels, which
    // places the title block's picture. Without a library there is no detail.
    CZemDemoPlan(CZemGDX& gdx, int width, int height);

    // Fills the list; false, with the reason, if the detail's slide can't be
    // entered or the picture can't be placed.
    bool build(const std::wstring& slideLibrary, const std::wstring& slideName, const std::wstring& picture,
               std::wstring& error);

private:
    using Pen = CZemDrawingWriter::Pen;

    // ZemDemoPlan.cpp: the building.
    void walls();
    void floors();
    void windows();
    void doors();
    void door(double hx, double hy, double ux, double uy, double vx, double vy, double width);
    void roomLabels();
    // ZemDemoPlanFittings.cpp: what stands in the rooms.
    void stair();
    void bath();
    void kitchen();
    void bedroom();
    void living();
    void lights();
    void roundedRect(const Pen& pen, double x0, double y0, double x1, double y1, double radius);
    // ZemDemoPlanSheet.cpp: axes, dimensions and the sheet around the plan.
    void axes();
    void dimensions();
    void chain(const double* stops, int count, bool vertical, double lineAt);
    void sheet();
    void northArrow(double x, double y);
    bool detail(const std::wstring& library, const std::wstring& name, std::wstring& error);
    bool picture(const std::wstring& file, std::wstring& error);

    CZemGDX& m_gdx;
    CZemDrawingWriter m_out;
    int m_width;
    int m_height;
};
