#include "ZemSlideImage.h"

#include "ZemDataAccess.h"
#include "ZemGDX.h"
#include "ZemPolyline.h"
#include "ZemSlideDecoder.h"

#include <filesystem>
#include <exception>

namespace {

// Code page 1252 from 0x80 to 0x9F; the five bytes the page leaves undefined
// stand for the control characters of the same value, as the platform maps them.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char toCp1252(unsigned long c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (int i = 0; i < 32; ++i) {
        if (kHighControls[i] == c)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

bool isHighSurrogate(unsigned long c) { return c >= 0xD800 && c <= 0xDBFF; }
bool isLowSurrogate(unsigned long c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

std::string CZemSlideImage::cp1252(const wchar_t* text)
{
    std::string bytes;
    for (const wchar_t* p = text; p && *p; ++p) {
        const auto c = static_cast<unsigned long>(*p);
        // A pair of surrogates is one character outside the page.
        if (isHighSurrogate(c) && isLowSurrogate(static_cast<unsigned long>(p[1])))
            ++p;
        bytes += toCp1252(c);
    }
    return bytes;
}

bool CZemSlideImage::load(const wchar_t* name, const wchar_t* lib)
{
    m_slide.clear();
    if (!name || !lib)
        return false;
    // A path the file system can't spell finds no library.
    std::filesystem::path path;
    try {
        path = std::filesystem::path(lib);
    } catch (const std::exception&) {
        return false;
    }
    return m_slide.loadFromLibrary(path, cp1252(name).c_str());
}

bool CZemSlideImage::assign(const void* data, long size) { return m_slide.assign(data, size); }

bool CZemSlideImage::image(CZemGDX& gdx, unsigned long flags, const CZemDataItem* item)
{
    if (!m_slide.hasSlide())
        return false;
    m_gdx = &gdx;
    m_flags = flags;
    m_color = CZemColor();
    m_pattern.setLogicalLength(0);
    m_pattern.append(1.0);
    readParameters(item);
    const bool decoded = CZemSlideDecoder(*this).draw(m_slide);
    m_gdx = nullptr;
    return decoded && counter() > 1;
}

// The stack is the path of the item plus the running number of the slide's
// items, which starts at 1.
void CZemSlideImage::readParameters(const CZemDataItem* item)
{
    m_stack.setLogicalLength(0);
    if (!ZEM::itemGet(item, L"STACK", m_stack)) {
        m_stack.setLogicalLength(0);
        int single = 0;
        if (ZEM::itemGet(item, L"STACK", single))
            m_stack.append(single);
    }
    m_stack.append(1);
    m_mtx = CZemMatrix3d::kIdentity;
    double(*cells)[4] = m_mtx;
    ZEM::itemGet(item, L"MTX", cells);
}

void CZemSlideImage::newColor(int color) { m_color.setColorIndex(color); }

void CZemSlideImage::line(int fromX, int fromY, int toX, int toY)
{
    const CZemVertex vertex(CZemPoint3d(fromX, fromY, 0.0), CZemPoint3d(toX, toY, 0.0), 0.0);
    m_vl.setLogicalLength(0);
    m_vl.append(vertex);
    m_gdx->imageVl(m_stack, m_flags, m_vl, m_color, m_mtx, m_pattern, 1.0, 0);
    ++counter();
}

// The polygon repeats its first point at the end; as a closed polyline it
// runs counter-clockwise, the outer contour of a region of its own.
void CZemSlideImage::polygon(std::vector<Point>& points)
{
    m_points.setLogicalLength(0);
    for (const Point& p : points)
        m_points.append(CZemPoint3d(p.x, p.y, 0.0));
    m_vl.fromPoints(m_points, true);
    if (!ZEM::g_vl_orient(m_vl, CZemVector3d::kZAxis))
        m_vl.revert();
    CZemArrayTempl<CZemVertexArray> regions;
    regions.append(m_vl);
    m_gdx->imageReg(m_stack, m_flags | GDX_FILL, regions, m_color, m_mtx, m_pattern, 1.0, 0, m_color);
    m_flags &= ~static_cast<unsigned long>(GDX_FILL);
    ++counter();
}
