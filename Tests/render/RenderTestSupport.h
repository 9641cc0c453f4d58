#pragma once

#include "ZemApp.h"
#include "ZemGDX.h"

#include <windows.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace rendertest {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

struct Record {
    DWORD type;
    std::vector<unsigned char> bytes;
    template <class T>
    const T& as() const { return *reinterpret_cast<const T*>(bytes.data()); }
};

// A MoveTo and the LineTo right after it.
struct Segment {
    POINT from, to;
    bool operator==(const Segment& o) const
    {
        return from.x == o.from.x && from.y == o.from.y && to.x == o.to.x && to.y == o.to.y;
    }
};
std::ostream& operator<<(std::ostream& out, const Segment& s);

// The records of a metafile, read back by the platform's enumeration.
struct Emf {
    explicit Emf(HENHMETAFILE metafile);
    std::vector<const Record*> ofType(DWORD type) const;
    int count(DWORD type) const { return static_cast<int>(ofType(type).size()); }
    std::vector<Segment> segments() const;
    std::vector<LOGPEN> pens() const;
    std::vector<Record> records;
};

// White background, identity projection and the view extents fixed to
// (0, 0) - (100, 100): refreshed at 110 by 110, a list point (x, y) lies at
// device (x + 5, 105 - y).
CZemGDX makeList();
inline CZemArrayTempl<int> stack(int element) { return CZemArrayTempl<int>().append(element); }
inline CZemColor ole(COLORREF color) { return CZemColor().setOleColor(color); }
CZemArrayTempl<double> doubles(std::initializer_list<double> values);
CZemVertexArray polyline(std::initializer_list<CZemPoint3d> points);
// Counter-clockwise, lower left corner (x, y).
CZemVertexArray square(double x, double y, double side);
CZemArrayTempl<CZemVertexArray> rings(std::initializer_list<CZemVertexArray> contours);
void addLine(CZemGDX& list, const CZemVertexArray& vl, const CZemArrayTempl<double>& linetype = doubles({1.0}),
             double ltscale = 1.0, unsigned long thickn = 0, unsigned long flags = 0, COLORREF color = kBlue);

// A file in this build's output folder of the render tests.
std::wstring outPath(const wchar_t* name);
// refresh of the list into outPath(name), read back.
Emf refreshed(CZemGDX& list, const wchar_t* name = L"drawing.emf", int height = 110, int width = 110);
// A bottom-up 24-bit bitmap file of one colour in the output folder.
std::wstring writeBmp(const wchar_t* name, int side, COLORREF color);

// Hatch patterns of the test's own, installed as the application object
// while it lives.
class PatternApp : public CZemApp {
public:
    PatternApp();
    ~PatternApp() override;
    void add(const wchar_t* name, std::initializer_list<double> line);

    Zem::lFormat numberFormat() const override { return Zem::formatDecimal; }
    unsigned long backgroundColor() const override { return kWhite; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return false; }
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override;
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return 0; }

private:
    CZemApp* m_before;
    std::map<std::wstring, CZemArrayTempl<double>> m_patterns;
};

// A white 32-bit memory bitmap in a device context.
class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // The list as refresh fits it, drawn by the painter onto the bitmap.
    void paint(CZemGDX& list);
    COLORREF pixel(int x, int y) const;
    int count(COLORREF color) const;
    // A PNG in the output folder, for a person to look at.
    bool save(const wchar_t* name) const;

private:
    int m_width, m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
    const unsigned* m_bits = nullptr;
};

}  // namespace rendertest
