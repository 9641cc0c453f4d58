#include "ZemDemoPlan.h"

#include "ZemDemoPlanData.h"
#include "ZemGDX.h"
#include "ZemRectUnion.h"

#include <cmath>
#include <cwchar>

using namespace zemdemo;

namespace {

// Openings through the outer walls: the door first, then the windows.
constexpr Box kOuterOpenings[] = {
    {1500, 0, 2510, kOuter},           {3300, 0, 4285, kOuter},           {6500, 0, 8510, kOuter},
    {1200, kDepth - kOuter, 3460, kDepth}, {6500, kDepth - kOuter, 8010, kDepth}, {9500, kDepth - kOuter, 10760, kDepth},
    {0, 5200, kOuter, 6460},           {kWidth - kOuter, 1500, kWidth, 3010}, {kWidth - kOuter, 6300, kWidth, 7560}};

constexpr Box kInnerWalls[] = {
    {5000, kOuter, 5240, kDepth - kOuter},   // bearing wall
    {kOuter, 3385, 5000, 3500},              // hall and bath to living
    {2800, kOuter, 2915, 3385},              // hall to bath
    {5240, 4885, kWidth - kOuter, 5000},     // bedroom to kitchen
    {4880, 8155, 5360, kDepth - kOuter},     // chimney
    {4500, 2770, 5000, 3385}};               // installation shaft
constexpr Box kInnerOpenings[] = {
    {1600, 3385, 2485, 3500}, {2800, 800, 2915, 1560}, {5000, 6000, 5240, 7010}, {5000, 3800, 5240, 4685},
    {5020, 8295, 5220, 8495},   // flue
    {4615, 2885, 4885, 3270}};  // shaft

constexpr Box kColumn = {2550, 5800, 2850, 6100};

struct Room {
    const wchar_t* name;
    Box floor;
    double labelX, labelY;
};

constexpr Room kRooms[] = {
    {L"LIVING", {kOuter, 3500, 5000, kDepth - kOuter}, 3300, 4700},
    {L"KITCHEN", {5240, 5000, kWidth - kOuter, kDepth - kOuter}, 7400, 6100},
    {L"BEDROOM", {5240, kOuter, kWidth - kOuter, 4885}, 8400, 1800},
    {L"HALL", {kOuter, kOuter, 2800, 3385}, 2080, 2500},
    {L"BATH", {2915, kOuter, 5000, 3385}, 3950, 1900}};

void enterRegions(CZemDrawingWriter& out, const CZemRectUnion& parts, unsigned long flags,
                  const CZemDrawingWriter::Pen& edge, unsigned long fill, const CZemHatchProp& hatch)
{
    const CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> regions = parts.regions();
    for (int k = 0; k < regions.len(); ++k)
        out.region(flags, regions[k], edge, fill, hatch);
}

}  // namespace

CZemDemoPlan::CZemDemoPlan(CZemGDX& gdx, int width, int height)
    : m_gdx(gdx), m_out(gdx), m_width(width), m_height(height)
{
}

bool CZemDemoPlan::build(const std::wstring& slideLibrary, const std::wstring& slideName,
                         const std::wstring& picturePath, std::wstring& error)
{
    floors();
    walls();
    windows();
    doors();
    stair();
    bath();
    kitchen();
    bedroom();
    living();
    lights();
    roomLabels();
    axes();
    dimensions();
    sheet();
    if (!slideLibrary.empty() && !detail(slideLibrary, slideName, error))
        return false;
    return picturePath.empty() || picture(picturePath, error);
}

// Each wall piece between openings is a region of its own, as a wall
// program enters them; the hatch lines of neighbouring pieces line up, as
// every piece is hatched from the same base point.
void CZemDemoPlan::walls()
{
    const Pen edge = CZemDrawingWriter::pen(kInk, 2);
    CZemRectUnion outer;
    outer.add(0, 0, kWidth, kOuter).add(0, kDepth - kOuter, kWidth, kDepth);
    outer.add(0, 0, kOuter, kDepth).add(kWidth - kOuter, 0, kWidth, kDepth);
    for (const Box& b : kOuterOpenings)
        outer.cut(b.x0, b.y0, b.x1, b.y1);
    m_out.group(groupOuterWalls);
    enterRegions(m_out, outer, GDX_HATCH | GDX_EDGE, edge, kBrick, CZemHatchProp(L"ANSI31", 0.0, 20.0));

    CZemRectUnion inner;
    for (const Box& b : kInnerWalls)
        inner.add(b.x0, b.y0, b.x1, b.y1);
    for (const Box& b : kInnerOpenings)
        inner.cut(b.x0, b.y0, b.x1, b.y1);
    m_out.group(groupInnerWalls);
    enterRegions(m_out, inner, GDX_HATCH | GDX_EDGE, edge, kMasonry, CZemHatchProp(L"ANSI37", 0.0, 20.0));
    CZemArrayTempl<CZemVertexArray> column;
    column.append(CZemDrawingWriter::rectangle(kColumn.x0, kColumn.y0, kColumn.x1, kColumn.y1));
    m_out.region(GDX_FILL | GDX_EDGE, column, edge, kConcrete, CZemHatchProp());
}

// Boards in the living room around the column, tiles in the kitchen beside
// the chimney and in the bath beside the shaft.
void CZemDemoPlan::floors()
{
    const Pen none = CZemDrawingWriter::pen(kInk, 1);
    m_out.group(groupFloors);
    CZemRectUnion living, kitchen, bath;
    living.add(kRooms[0].floor.x0, kRooms[0].floor.y0, kRooms[0].floor.x1, kRooms[0].floor.y1);
    living.cut(kColumn.x0, kColumn.y0, kColumn.x1, kColumn.y1);
    enterRegions(m_out, living, GDX_HATCH, none, kBoards, CZemHatchProp(L"LINE", 0.0, 40.0));
    kitchen.add(kRooms[1].floor.x0, kRooms[1].floor.y0, kRooms[1].floor.x1, kRooms[1].floor.y1);
    kitchen.cut(kInnerWalls[4].x0, kInnerWalls[4].y0, kInnerWalls[4].x1, kInnerWalls[4].y1);
    enterRegions(m_out, kitchen, GDX_HATCH, none, kTiles, CZemHatchProp(L"NET", kPi / 4.0, 50.0));
    bath.add(kRooms[4].floor.x0, kRooms[4].floor.y0, kRooms[4].floor.x1, kRooms[4].floor.y1);
    bath.cut(kInnerWalls[5].x0, kInnerWalls[5].y0, kInnerWalls[5].x1, kInnerWalls[5].y1);
    enterRegions(m_out, bath, GDX_HATCH, none, kBathTiles, CZemHatchProp(L"NET", 0.0, 35.0));
}

// A window in plan: the two wall faces carried across the opening and the
// frame with its glass between them.
void CZemDemoPlan::windows()
{
    const Pen face = CZemDrawingWriter::pen(kInk, 1);
    const Pen glass = CZemDrawingWriter::pen(kInk, 2);
    m_out.group(groupWindows);
    for (int k = 1; k < static_cast<int>(sizeof kOuterOpenings / sizeof kOuterOpenings[0]); ++k) {
        const Box& b = kOuterOpenings[k];
        if (b.x1 - b.x0 > b.y1 - b.y0) {
            const double mid = (b.y0 + b.y1) / 2.0;
            m_out.line(face, {{b.x0, b.y0, 0}, {b.x1, b.y0, 0}});
            m_out.line(face, {{b.x0, b.y1, 0}, {b.x1, b.y1, 0}});
            m_out.rect(glass, b.x0, mid - 40.0, b.x1, mid + 40.0);
        } else {
            const double mid = (b.x0 + b.x1) / 2.0;
            m_out.line(face, {{b.x0, b.y0, 0}, {b.x0, b.y1, 0}});
            m_out.line(face, {{b.x1, b.y0, 0}, {b.x1, b.y1, 0}});
            m_out.rect(glass, mid - 40.0, b.y0, mid + 40.0, b.y1);
        }
    }
}

void CZemDemoPlan::doors()
{
    m_out.group(groupDoors);
    door(2510, kOuter, -1, 0, 0, 1, 1010);  // entrance, into the hall
    door(1600, 3500, 1, 0, 0, 1, 885);      // hall to living
    door(2915, 800, 0, 1, 1, 0, 760);       // hall to bath
    door(5240, 7010, 0, -1, 1, 0, 1010);    // living to kitchen
    door(5240, 3800, 0, 1, 1, 0, 885);      // living to bedroom
}

// The leaf stands open from the hinge along v; its swing runs back to the
// far jamb along u, a quarter circle turning the way from v to u.
void CZemDemoPlan::door(double hx, double hy, double ux, double uy, double vx, double vy, double width)
{
    const Pen leaf = CZemDrawingWriter::pen(kInk, 2);
    const Pen swing = CZemDrawingWriter::pen(kInk, 1);
    const CZemPoint3d hinge(hx, hy, 0.0);
    const CZemPoint3d open(hx + vx * width, hy + vy * width, 0.0);
    const CZemPoint3d shut(hx + ux * width, hy + uy * width, 0.0);
    const double turn = vx * uy - vy * ux;
    m_out.line(leaf, {hinge, open});
    m_out.arc(swing, open, shut, turn > 0 ? kQuarterBulge : -kQuarterBulge);
}

// Name and floor area of each room, and the floor level in the hall.
void CZemDemoPlan::roomLabels()
{
    m_out.group(groupLabels);
    for (const Room& room : kRooms) {
        const double area = (room.floor.x1 - room.floor.x0) * (room.floor.y1 - room.floor.y0) / 1.0e6;
        wchar_t text[32];
        std::swprintf(text, 32, L"%.2f m\u00B2", area);
        m_out.text(room.name, CZemPoint3d(room.labelX, room.labelY, 0.0), 300.0, 0.0, L"BC", kInk);
        m_out.text(text, CZemPoint3d(room.labelX, room.labelY - 80.0, 0.0), 180.0, 0.0, L"TC", kInk);
    }
    m_out.marker(CZemPoint3d(1550, 3000, 0), 8, 90.0, kInk);
    m_out.text(L"\u00B10.00", CZemPoint3d(1650, 3000, 0.0), 180.0, 0.0, L"CL", kInk);
}
