#include "ZemDrawingWriter.h"

#include "ZemBase.h"
#include "ZemFont.h"
#include "ZemVector3d.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <vector>

CZemDrawingWriter::Pen CZemDrawingWriter::pen(unsigned long color, unsigned long thickness,
                                              std::initializer_list<double> linetype, double ltscale)
{
    Pen out;
    out.color = color;
    out.thickness = thickness;
    for (double entry : linetype)
        out.linetype.append(entry);
    out.ltscale = ltscale;
    return out;
}

CZemColor CZemDrawingWriter::color(unsigned long bgr)
{
    CZemColor out;
    out.setOleColor(bgr);
    return out;
}

CZemVertexArray CZemDrawingWriter::rectangle(double x0, double y0, double x1, double y1)
{
    CZemPoint3dArray corners;
    corners.append(CZemPoint3d(x0, y0, 0.0))
        .append(CZemPoint3d(x1, y0, 0.0))
        .append(CZemPoint3d(x1, y1, 0.0))
        .append(CZemPoint3d(x0, y1, 0.0));
    CZemVertexArray out;
    out.fromPoints(corners, true);
    return out;
}

// Two half circles, each a bulge of 1.
CZemVertexArray CZemDrawingWriter::circle(const CZemPoint3d& center, double radius)
{
    const CZemPoint3d east = center + CZemVector3d(radius, 0.0, 0.0);
    const CZemPoint3d west = center + CZemVector3d(-radius, 0.0, 0.0);
    CZemVertexArray out;
    out.append(CZemVertex(east, west, 1.0)).append(CZemVertex(west, east, 1.0));
    return out;
}

CZemArrayTempl<int> CZemDrawingWriter::groupStack() const
{
    CZemArrayTempl<int> out;
    out.append(m_group);
    return out;
}

CZemArrayTempl<int> CZemDrawingWriter::next()
{
    CZemArrayTempl<int> out = groupStack();
    out.append(++m_count);
    return out;
}

void CZemDrawingWriter::line(const Pen& pen, std::initializer_list<CZemPoint3d> points, bool closed)
{
    CZemPoint3dArray array;
    for (const CZemPoint3d& p : points)
        array.append(p);
    CZemVertexArray vl;
    vl.fromPoints(array, closed);
    vertices(pen, vl);
}

void CZemDrawingWriter::vertices(const Pen& pen, const CZemVertexArray& vl)
{
    m_gdx.imageVl(next(), 0, vl, color(pen.color), CZemMatrix3d::kIdentity, pen.linetype, pen.ltscale,
                  pen.thickness);
}

void CZemDrawingWriter::rect(const Pen& pen, double x0, double y0, double x1, double y1)
{
    vertices(pen, rectangle(x0, y0, x1, y1));
}

void CZemDrawingWriter::circle(const Pen& pen, const CZemPoint3d& center, double radius)
{
    vertices(pen, circle(center, radius));
}

void CZemDrawingWriter::arc(const Pen& pen, const CZemPoint3d& a, const CZemPoint3d& b, double bulge)
{
    vertices(pen, CZemVertexArray(CZemVertex(a, b, bulge)));
}

void CZemDrawingWriter::region(unsigned long flags, const CZemArrayTempl<CZemVertexArray>& rings, const Pen& edge,
                               unsigned long fill, const CZemHatchProp& hatch)
{
    m_gdx.imageReg(next(), flags, rings, color(edge.color), CZemMatrix3d::kIdentity, edge.linetype, edge.ltscale,
                   edge.thickness, color(fill), hatch);
}

void CZemDrawingWriter::marker(const CZemPoint3d& at, unsigned long mode, double size, unsigned long color)
{
    m_gdx.imagePt(next(), 0, at, CZemDrawingWriter::color(color), CZemMatrix3d::kIdentity, size, mode);
}

namespace {

// Room a space takes between two words, in cell heights.
constexpr double kSpace = 0.6;

// The advance of a word as the list lays it out (each glyph's width and half
// a cell height behind it) and the top of its glyphs.
void measure(const std::wstring& word, double& advance, double& top)
{
    advance = 0.0;
    top = 0.0;
    for (wchar_t c : word) {
        const CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> glyph = get_ascii_from_map(c);
        CZemPoint3d lo, hi;
        for (int r = 0; r < glyph.len(); ++r) {
            CZemPoint3d rlo, rhi;
            if (!glyph[r][0].extents(rlo, rhi))
                continue;
            lo = r == 0 ? rlo : ZEM::p_min(lo, rlo);
            hi = r == 0 ? rhi : ZEM::p_max(hi, rhi);
        }
        if (glyph.isEmpty())
            continue;
        advance += std::fabs(hi.x - lo.x) + 0.5;
        top = std::max(top, hi.y);
    }
}

// The move of a line of width w and height h for an alignment word; as the
// list aligns a single text item.
CZemVector3d alignment(const std::wstring& align, double w, double h)
{
    const double x = align == L"TC" || align == L"CC" || align == L"BC" ? -w / 2.0
                     : align == L"TR" || align == L"CR" || align == L"BR" ? -w
                                                                          : 0.0;
    const bool known = align == L"TL" || align == L"TC" || align == L"TR" || align == L"CL" || align == L"CC" ||
                       align == L"CR" || align == L"BC" || align == L"BR";
    const double y = align[0] == L'T' ? -h : align[0] == L'C' ? -h / 2.0 : 0.0;
    return known ? CZemVector3d(x, y, 0.0) : CZemVector3d(0.0, 0.0, 0.0);
}

}  // namespace

void CZemDrawingWriter::text(const wchar_t* text, const CZemPoint3d& at, double height, double angle,
                             const wchar_t* align, unsigned long color)
{
    CZemMatrix3d place;
    place.setToSRM(CZemPoint3d(height, height, 1.0), angle, at - CZemPoint3d::kOrigin);
    std::vector<std::wstring> words;
    std::wstringstream split(text);
    for (std::wstring w; split >> w;)
        words.push_back(w);
    if (words.size() < 2) {
        word(text, place, align, CZemPoint3d::kOrigin, color);
        return;
    }
    std::vector<double> advances;
    double width = -0.3, top = 0.0;
    for (const std::wstring& w : words) {
        double advance = 0.0, wordTop = 0.0;
        measure(w, advance, wordTop);
        advances.push_back(advance);
        width += advance + (advances.size() > 1 ? kSpace : 0.0);
        top = std::max(top, wordTop);
    }
    CZemPoint3d point = CZemPoint3d::kOrigin + alignment(align ? align : L"", width, top);
    for (size_t k = 0; k < words.size(); ++k) {
        word(words[k], place, L"BL", point, color);
        point += CZemVector3d(advances[k] + kSpace, 0.0, 0.0);
    }
}

void CZemDrawingWriter::word(const std::wstring& word, const CZemMatrix3d& place, const wchar_t* align,
                             const CZemPoint3d& point, unsigned long color)
{
    m_gdx.imageTxt(next(), GDX_FILL | GDX_EDGE, word.c_str(), CZemDrawingWriter::color(color), place, align, point);
}
