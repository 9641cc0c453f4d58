#pragma once

#include "ZemApp.h"
#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace regtest {

// A closed polygon through the points, and an axis-parallel rectangle, both
// counter-clockwise as given.
CZemVertexArray polygon(std::initializer_list<std::pair<double, double>> points);
CZemVertexArray rectangle(double x0, double y0, double x1, double y1);
CZemArrayTempl<CZemVertexArray> regions(std::initializer_list<CZemVertexArray> elements);
CZemArrayTempl<double> values(std::initializer_list<double> entries);
CZemArrayTempl<CZemArrayTempl<double>> pattern(std::initializer_list<CZemArrayTempl<double>> lines);

// Length of all (straight) vertices of all elements.
double totalLength(const CZemArrayTempl<CZemVertexArray>& lines);

// By an even-odd ray count of our own: each vertex's middle and ends lie in
// element 0 and in no further element, points within tol of a boundary
// counting as in. A message for the first fault, empty if none.
std::string outsidePieces(const CZemArrayTempl<CZemVertexArray>& lines, const CZemArrayTempl<CZemVertexArray>& regs,
                          double tol);

// Lines (black) and region outlines (grey) drawn into a PNG picture of the
// given width; false if the file cannot be written.
bool writePicture(const std::string& path, const CZemArrayTempl<CZemVertexArray>& lines,
                  const CZemArrayTempl<CZemVertexArray>& regs, int width);

// An application object with the hatch patterns the test sets, installed
// for its lifetime.
class TestApp : public CZemApp {
public:
    TestApp() : m_previous(zemAppSet(this)) {}
    ~TestApp() override { zemAppSet(m_previous); }
    void setPattern(const wchar_t* name, const CZemArrayTempl<CZemArrayTempl<double>>& lines) { m_patterns[name] = lines; }

    Zem::lFormat numberFormat() const override { return Zem::formatDecimal; }
    unsigned long backgroundColor() const override { return 0; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return false; }
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override;
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return 0; }

private:
    CZemApp* m_previous;
    std::map<std::wstring, CZemArrayTempl<CZemArrayTempl<double>>> m_patterns;
};

}  // namespace regtest
