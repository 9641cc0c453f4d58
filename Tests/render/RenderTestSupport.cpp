#include "RenderTestSupport.h"

#include "CRgn.h"
#include "ZemGdxPainter.h"
#include "ZemPngFile.h"
#include "ZemRefresh.h"

#include <gtest/gtest.h>

#include <fstream>

namespace rendertest {

std::ostream& operator<<(std::ostream& out, const Segment& s)
{
    return out << "(" << s.from.x << "," << s.from.y << ")-(" << s.to.x << "," << s.to.y << ")";
}

namespace {

int CALLBACK collect(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(record);
    reinterpret_cast<std::vector<Record>*>(data)->push_back({record->iType, {bytes, bytes + record->nSize}});
    return 1;
}

}  // namespace

Emf::Emf(HENHMETAFILE metafile)
{
    if (metafile != nullptr) EnumEnhMetaFile(nullptr, metafile, collect, &records, nullptr);
}

std::vector<const Record*> Emf::ofType(DWORD type) const
{
    std::vector<const Record*> out;
    for (const Record& r : records) {
        if (r.type == type) out.push_back(&r);
    }
    return out;
}

std::vector<Segment> Emf::segments() const
{
    std::vector<Segment> out;
    for (size_t k = 1; k < records.size(); ++k) {
        if (records[k].type != EMR_LINETO) continue;
        EXPECT_EQ(records[k - 1].type, static_cast<DWORD>(EMR_MOVETOEX)) << "each line is a pair of its own";
        const POINTL& a = records[k - 1].as<EMRMOVETOEX>().ptl;
        const POINTL& b = records[k].as<EMRLINETO>().ptl;
        out.push_back({{a.x, a.y}, {b.x, b.y}});
    }
    return out;
}

std::vector<LOGPEN> Emf::pens() const
{
    std::vector<LOGPEN> out;
    for (const Record* r : ofType(EMR_CREATEPEN)) out.push_back(r->as<EMRCREATEPEN>().lopn);
    return out;
}

CZemGDX makeList()
{
    return CZemGDX(ole(kWhite), CZemMatrix3d::kIdentity, 0.0, 0, CZemPoint3d(0, 0, 0), CZemPoint3d(100, 100, 0));
}

CZemArrayTempl<double> doubles(std::initializer_list<double> values)
{
    CZemArrayTempl<double> out;
    for (double v : values) out.append(v);
    return out;
}

CZemVertexArray polyline(std::initializer_list<CZemPoint3d> points)
{
    CZemVertexArray out;
    for (auto p = points.begin(); p + 1 < points.end(); ++p) out.append(CZemVertex(p[0], p[1], 0.0));
    return out;
}

CZemVertexArray square(double x, double y, double side)
{
    return polyline({{x, y, 0}, {x + side, y, 0}, {x + side, y + side, 0}, {x, y + side, 0}, {x, y, 0}});
}

CZemArrayTempl<CZemVertexArray> rings(std::initializer_list<CZemVertexArray> contours)
{
    CZemArrayTempl<CZemVertexArray> out;
    for (const CZemVertexArray& c : contours) out.append(c);
    return out;
}

void addLine(CZemGDX& list, const CZemVertexArray& vl, const CZemArrayTempl<double>& linetype, double ltscale,
             unsigned long thickn, unsigned long flags, COLORREF color)
{
    list.imageVl(stack(1), flags, vl, ole(color), CZemMatrix3d::kIdentity, linetype, ltscale, thickn);
}

std::wstring outPath(const wchar_t* name)
{
    const std::wstring folder = L"" ZEM_BUILD_DIR "/Tests/render_out";
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"/" + name;
}

Emf refreshed(CZemGDX& list, const wchar_t* name, int height, int width)
{
    const std::wstring path = outPath(name);
    DeleteFileW(path.c_str());
    EXPECT_TRUE(refresh(&list, path.c_str(), height, width));
    const HENHMETAFILE metafile = GetEnhMetaFileW(path.c_str());
    Emf out(metafile);
    DeleteEnhMetaFile(metafile);
    return out;
}

std::wstring writeBmp(const wchar_t* name, int side, COLORREF color)
{
    const int stride = (side * 3 + 3) & ~3;
    BITMAPFILEHEADER file = {0x4D42, 0, 0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
    const BITMAPINFOHEADER info = {sizeof(BITMAPINFOHEADER), side, side, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    file.bfSize = file.bfOffBits + stride * side;
    std::string row(stride, '\0');
    for (int x = 0; x < side * 3; ++x) row[x] = static_cast<char>(color >> (8 * (2 - x % 3)));
    const std::wstring path = outPath(name);
    std::ofstream out(path.c_str(), std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file).write(reinterpret_cast<const char*>(&info), sizeof info);
    for (int y = 0; y < side; ++y) out.write(row.data(), stride);
    return path;
}

PatternApp::PatternApp() : m_before(zemAppSet(this)) {}
PatternApp::~PatternApp() { zemAppSet(m_before); }
void PatternApp::add(const wchar_t* name, std::initializer_list<double> line) { m_patterns[name] = doubles(line); }

bool PatternApp::hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines)
{
    const auto found = m_patterns.find(name);
    if (found == m_patterns.end()) return false;
    lines.setLogicalLength(0);
    lines.append(found->second);
    return true;
}

Canvas::Canvas(int width, int height) : m_width(width), m_height(height), m_dc(CreateCompatibleDC(nullptr))
{
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_bits = static_cast<const unsigned*>(bits);
    m_before = SelectObject(m_dc, m_bitmap);
    const RECT all = {0, 0, width, height};
    FillRect(m_dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
}

Canvas::~Canvas()
{
    SelectObject(m_dc, m_before);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
}

void Canvas::paint(CZemGDX& list)
{
    refreshed(list, L"painted.emf", m_height, m_width);
    CDC dc;
    dc.Attach(m_dc);
    CRgn clip;
    clip.CreateRectRgn(0, 0, m_width, m_height);
    CZemGdxPainter(dc, list, list.viewMtxGet(), list.viewDirectionMtxGet(), clip, m_width, m_height).drawItems();
    dc.SelectClipRgn(nullptr);
    dc.Detach();
}

// The section holds 0x00RRGGBB.
COLORREF Canvas::pixel(int x, int y) const
{
    GdiFlush();
    const unsigned v = m_bits[y * m_width + x];
    return RGB((v >> 16) & 0xFF, (v >> 8) & 0xFF, v & 0xFF);
}

int Canvas::count(COLORREF color) const
{
    int n = 0;
    for (int k = 0; k < m_width * m_height; ++k) n += pixel(k % m_width, k / m_width) == color;
    return n;
}

bool Canvas::save(const wchar_t* name) const
{
    GdiFlush();
    SelectObject(m_dc, m_before);
    const bool written = zemWritePng(m_bitmap, outPath(name).c_str());
    SelectObject(m_dc, m_bitmap);
    return written;
}

}  // namespace rendertest
