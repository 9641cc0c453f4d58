#pragma once

#include "ZemArrayTempl.h"
#include "ZemString.h"
#include "ZemVertexArray.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace regtest {

// A closed axis-parallel rectangle, counter-clockwise.
CZemVertexArray rectangle(double x0, double y0, double x1, double y1);
// A closed polygon through the points, in the order given.
CZemVertexArray polygon(std::initializer_list<std::pair<double, double>> points);
CZemArrayTempl<CZemVertexArray> regions(std::initializer_list<CZemVertexArray> elements);
CZemArrayTempl<double> values(std::initializer_list<double> entries);

// Length of all vertices of all elements (straight vertices only).
double totalLength(const CZemArrayTempl<CZemVertexArray>& lines);
int vertexCount(const CZemArrayTempl<CZemVertexArray>& lines);

// Even-odd point in polygon by ray casting over the straight vertices; points
// within tol of the boundary count as on it.
bool insidePolygon(const CZemVertexArray& contour, double x, double y);
double distanceToBoundary(const CZemVertexArray& contour, double x, double y);

// Checks every vertex of every line: its middle and its ends inside element
// 0 and outside the holes, points within tol of a boundary counting as in. Returns a message for
// the first fault, empty if there is none.
std::string outsidePieces(const CZemArrayTempl<CZemVertexArray>& lines, const CZemArrayTempl<CZemVertexArray>& regs,
                          double tol);

// Draws lines (black) and region outlines (grey) into a picture of the given
// width and writes it as a PNG file; false if the file cannot be written.
bool writePicture(const std::string& path, const CZemArrayTempl<CZemVertexArray>& lines,
                  const CZemArrayTempl<CZemVertexArray>& regs, int width);

}  // namespace regtest
