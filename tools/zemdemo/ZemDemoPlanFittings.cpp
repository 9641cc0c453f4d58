#include "ZemDemoPlan.h"

#include "ZemDemoPlanData.h"

using namespace zemdemo;

namespace {

const CZemDrawingWriter::Pen& fitting()
{
    static const CZemDrawingWriter::Pen pen = CZemDrawingWriter::pen(kFitting, 1);
    return pen;
}

}  // namespace

// The cellar stair along the hall's outer wall: treads, the walking line
// with its arrow down, and the break line where the cut passes.
void CZemDemoPlan::stair()
{
    m_out.group(groupFittings);
    const double x0 = kOuter, x1 = 1365, y0 = 1100, y1 = 3385;
    m_out.rect(fitting(), x0, y0, x1, y1);
    for (int k = 1; k < 9; ++k) {
        const double y = y0 + k * (y1 - y0) / 9.0;
        m_out.line(fitting(), {{x0, y, 0}, {x1, y, 0}});
    }
    const double mid = (x0 + x1) / 2.0;
    m_out.line(fitting(), {{mid, 3300, 0}, {mid, 1200, 0}});
    m_out.line(fitting(), {{mid - 90, 1380, 0}, {mid, 1200, 0}, {mid + 90, 1380, 0}});
    m_out.line(CZemDrawingWriter::pen(kInk, 1), {{x0, 2050, 0}, {700, 2150, 0}, {780, 1980, 0}, {x1, 2250, 0}});
    m_out.text(L"DOWN", CZemPoint3d(mid + 130, 2600, 0.0), 160.0, kPi / 2.0, L"TC", kInk);
}

void CZemDemoPlan::roundedRect(const Pen& pen, double x0, double y0, double x1, double y1, double radius)
{
    const double r = radius;
    CZemVertexArray vl;
    vl.append(CZemVertex({x0 + r, y0, 0}, {x1 - r, y0, 0}, 0.0))
        .append(CZemVertex({x1 - r, y0, 0}, {x1, y0 + r, 0}, kQuarterBulge))
        .append(CZemVertex({x1, y0 + r, 0}, {x1, y1 - r, 0}, 0.0))
        .append(CZemVertex({x1, y1 - r, 0}, {x1 - r, y1, 0}, kQuarterBulge))
        .append(CZemVertex({x1 - r, y1, 0}, {x0 + r, y1, 0}, 0.0))
        .append(CZemVertex({x0 + r, y1, 0}, {x0, y1 - r, 0}, kQuarterBulge))
        .append(CZemVertex({x0, y1 - r, 0}, {x0, y0 + r, 0}, 0.0))
        .append(CZemVertex({x0, y0 + r, 0}, {x0 + r, y0, 0}, kQuarterBulge));
    m_out.vertices(pen, vl);
}

// Tub against the shaft wall, basin by the door, the WC beside the bearing
// wall, and the floor drain.
void CZemDemoPlan::bath()
{
    m_out.rect(fitting(), 2915, 2635, 4500, 3385);
    roundedRect(fitting(), 3000, 2720, 4415, 3300, 200);
    m_out.rect(fitting(), 2915, 1700, 3415, 2300);
    m_out.circle(fitting(), CZemPoint3d(3180, 2000, 0), 180);
    m_out.rect(fitting(), 4800, 1800, 5000, 2300);
    CZemVertexArray bowl;
    bowl.append(CZemVertex({4800, 1880, 0}, {4560, 1880, 0}, 0.0))
        .append(CZemVertex({4560, 1880, 0}, {4560, 2220, 0}, -1.0))
        .append(CZemVertex({4560, 2220, 0}, {4800, 2220, 0}, 0.0));
    m_out.vertices(fitting(), bowl);
    m_out.marker(CZemPoint3d(3800, 1300, 0), 0, 0.0, kFitting);
}

// The worktop under the window with sink and hob, the wall cupboards above
// it drawn hidden, and the dining table with its chairs.
void CZemDemoPlan::kitchen()
{
    const double top = kDepth - kOuter;
    m_out.rect(fitting(), 5360, top - 600, 9400, top);
    m_out.rect(fitting(), 6900, top - 500, 7300, top - 100);
    m_out.rect(fitting(), 7350, top - 500, 7750, top - 100);
    m_out.rect(fitting(), 8500, top - 550, 9100, top - 50);
    for (double x : {8650.0, 8950.0}) {
        for (double y : {top - 400, top - 200})
            m_out.circle(fitting(), CZemPoint3d(x, y, 0), 100);
    }
    m_out.rect(CZemDrawingWriter::pen(kFitting, 1, {1.0, 1.0, 0.0}, 10.0), 9400, top - 350, kWidth - kOuter, top);
    m_out.rect(fitting(), 9300, 5800, 10700, 6700);
    for (double x : {9550.0, 10050.0}) {
        m_out.rect(fitting(), x, 5450, x + 400, 5750);
        m_out.rect(fitting(), x, 6750, x + 400, 7050);
    }
}

// A double bed with pillows and bedside tables, and the wardrobe.
void CZemDemoPlan::bedroom()
{
    m_out.rect(fitting(), 7500, 2885, 9300, 4885);
    m_out.rect(fitting(), 7600, 4435, 8330, 4785);
    m_out.rect(fitting(), 8470, 4435, 9200, 4785);
    m_out.line(fitting(), {{7500, 4235, 0}, {9300, 4235, 0}});
    m_out.rect(fitting(), 7000, 4385, 7450, 4835);
    m_out.rect(fitting(), 9350, 4385, 9800, 4835);
    m_out.rect(fitting(), 5240, 465, 5840, 3000);
    m_out.line(CZemDrawingWriter::pen(kFitting, 1, {1.0, 1.0, 0.0}, 8.0), {{5540, 515, 0}, {5540, 2950, 0}});
}

// A sofa along the outer wall, its table, and the sideboard.
void CZemDemoPlan::living()
{
    m_out.rect(fitting(), kOuter, 6700, 1265, 8500);
    m_out.line(fitting(), {{565, 6900, 0}, {565, 8300, 0}});
    m_out.line(fitting(), {{kOuter, 6900, 0}, {1265, 6900, 0}});
    m_out.line(fitting(), {{kOuter, 8300, 0}, {1265, 8300, 0}});
    roundedRect(fitting(), 1700, 7200, 2400, 8000, 120);
    m_out.rect(fitting(), 4550, 7250, 5000, 8100);
}

// Ceiling lights, a circle with its cross, one in each room.
void CZemDemoPlan::lights()
{
    m_out.group(groupLights);
    const CZemPoint3d rooms[] = {{3100, 7000, 0}, {8400, 7100, 0}, {8400, 2400, 0}, {2080, 1900, 0}, {4150, 1400, 0}};
    for (const CZemPoint3d& at : rooms)
        m_out.marker(at, 32 | 3, 300.0, kLight);
}
