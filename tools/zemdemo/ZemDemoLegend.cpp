#include "ZemDemoLegend.h"

#include "ZemDemoPlanData.h"
#include "ZemGDX.h"
#include "ZemPatternFile.h"
#include "ZemSupportPath.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

using namespace zemdemo;

namespace {

constexpr int kColumns = 4;
constexpr double kSwatchWidth = 2500.0;
constexpr double kSwatchHeight = 1250.0;
constexpr double kRight = 12300.0;  // left edge of the column beside the swatches

// The scale of a swatch's pattern: 20, or more where a step is so fine that
// a swatch of this size would hold 80 steps or more; a pattern that fine is
// drawn solid instead of hatched.
double swatchScale(const CZemPatternFile::Lines& lines, double diagonal)
{
    double scale = 20.0;
    for (int k = 0; k < lines.len(); ++k) {
        for (int column = 3; column <= 4 && column < lines[k].len(); ++column) {
            const double step = std::fabs(lines[k][column]);
            if (step > 0.0)
                scale = std::max(scale, diagonal / step / 80.0);
        }
    }
    return scale;
}

}  // namespace

bool CZemDemoLegend::build(std::wstring& error)
{
    const CZemDrawingWriter::Pen frame = CZemDrawingWriter::pen(kInk, 2);
    m_out.group(1);
    m_out.rect(frame, 0, 0, 17500, 11000);
    m_out.text(L"PATTERNS, POINTS, LINES AND TEXT", CZemPoint3d(300, 10750, 0), 300, 0.0, L"TL", kInk);
    if (!patterns(error))
        return false;
    points();
    lineTypes();
    alignments();
    turnedTexts();
    return true;
}

// The swatches follow the pattern file's order, four to a row.
bool CZemDemoLegend::patterns(std::wstring& error)
{
    CZemString path;
    CZemPatternFile file;
    if (!ZEM::fileFind(L"zem.pat", path) || !file.load(path)) {
        error = L"the pattern file zem.pat is not on the support path";
        return false;
    }
    if (file.len() == 0) {
        error = L"the pattern file " + std::wstring(static_cast<const wchar_t*>(path)) + L" holds no pattern";
        return false;
    }
    m_out.group(2);
    const CZemDrawingWriter::Pen edge = CZemDrawingWriter::pen(kInk, 1);
    const double rowStep = (9800.0 - 600.0) / ((file.len() + kColumns - 1) / kColumns);
    for (int i = 0; i < file.len(); ++i) {
        const double x0 = 300.0 + (i % kColumns) * 2950.0;
        const double y1 = 9900.0 - (i / kColumns) * rowStep;
        const double y0 = y1 - (rowStep < 1800.0 ? rowStep - 550.0 : kSwatchHeight);
        CZemArrayTempl<CZemVertexArray> rings;
        rings.append(CZemDrawingWriter::rectangle(x0, y0, x0 + kSwatchWidth, y1));
        rings.append(CZemDrawingWriter::circle(CZemPoint3d(x0 + kSwatchWidth / 2.0, (y0 + y1) / 2.0, 0), 250.0));
        const double scale = swatchScale(file.lines(i), std::hypot(kSwatchWidth, y1 - y0));
        m_out.region(GDX_HATCH | GDX_EDGE, rings, edge, kBrick, CZemHatchProp(file.name(i), 0.0, scale));
        m_out.text(file.name(i), CZemPoint3d(x0 + kSwatchWidth / 2.0, y0 - 100.0, 0), 200, 0.0, L"TC", kInk);
    }
    return true;
}

// Style words: 0 dot, 2 plus, 3 cross, 4 tick, 8 filled square; 32 adds a
// circle and 64 a square frame.
void CZemDemoLegend::points()
{
    m_out.group(3);
    m_out.text(L"POINT STYLES", CZemPoint3d(kRight, 10300, 0), 250, 0.0, L"TL", kInk);
    const unsigned long modes[] = {0, 2, 3, 4, 8, 32 | 0, 32 | 2, 32 | 3, 64 | 2, 32 | 64 | 4};
    for (int i = 0; i < 10; ++i) {
        const CZemPoint3d at(kRight + 400.0 + (i % 5) * 1000.0, 9350.0 - (i / 5) * 1100.0, 0.0);
        m_out.marker(at, modes[i], 450.0, kDimension);
        wchar_t label[8];
        std::swprintf(label, 8, L"%lu", modes[i]);
        m_out.text(label, at + CZemVector3d(0, -380, 0), 170, 0.0, L"TC", kInk);
    }
}

// Each line type on a polyline with a corner and an arc, so the dashes are
// fitted to every vertex on its own.
void CZemDemoLegend::lineTypes()
{
    m_out.group(4);
    m_out.text(L"LINE TYPES", CZemPoint3d(kRight, 7550, 0), 250, 0.0, L"TL", kInk);
    struct Sample {
        const wchar_t* name;
        CZemDrawingWriter::Pen pen;
    };
    const Sample samples[] = {
        {L"continuous", CZemDrawingWriter::pen(kInk, 2)},
        {L"dashed 1,1,0", CZemDrawingWriter::pen(kInk, 1, {1.0, 1.0, 0.0}, 12.0)},
        {L"dash dot 1,1,1", CZemDrawingWriter::pen(kAxis, 1, {1.0, 1.0, 1.0}, 12.0)},
        {L"dotted 0,0,1", CZemDrawingWriter::pen(kInk, 1, {0.0, 0.0, 1.0}, 20.0)},
        {L"dash dot dot", CZemDrawingWriter::pen(kDimension, 1, {200.0, -60.0, 0.0, -60.0, 0.0, -60.0}, 1.0)}};
    for (int i = 0; i < 5; ++i) {
        const double y = 6900.0 - i * 550.0;
        CZemVertexArray vl;
        vl.append(CZemVertex({kRight, y, 0}, {kRight + 1800, y, 0}, 0.0))
            .append(CZemVertex({kRight + 1800, y, 0}, {kRight + 3000, y, 0}, 0.4))
            .append(CZemVertex({kRight + 3000, y, 0}, {kRight + 3400, y + 250, 0}, 0.0));
        m_out.vertices(samples[i].pen, vl);
        m_out.text(samples[i].name, CZemPoint3d(kRight + 3550, y, 0), 150, 0.0, L"CL", kInk);
    }
}

// Each alignment word written at its own insertion point, marked by a plus.
void CZemDemoLegend::alignments()
{
    m_out.group(5);
    m_out.text(L"ALIGNMENT", CZemPoint3d(kRight, 4200, 0), 250, 0.0, L"TL", kInk);
    const wchar_t* words[3][3] = {{L"TL", L"TC", L"TR"}, {L"CL", L"CC", L"CR"}, {L"BL", L"BC", L"BR"}};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const CZemPoint3d at(kRight + 700.0 + column * 1600.0, 3500.0 - row * 600.0, 0.0);
            m_out.marker(at, 2, 200.0, kAxis);
            m_out.text(words[row][column], at, 260, 0.0, words[row][column], kInk);
        }
    }
}

// Texts turned about one point, and the font's characters beyond ASCII.
void CZemDemoLegend::turnedTexts()
{
    m_out.group(6);
    const CZemPoint3d centre(kRight + 200.0, 200.0, 0.0);
    m_out.marker(centre, 32 | 0, 150.0, kAxis);
    for (int degrees = 0; degrees <= 90; degrees += 30) {
        wchar_t text[24];
        std::swprintf(text, 24, L"turned %d", degrees);
        const double angle = degrees * kPi / 180.0;
        m_out.text(text, centre + CZemVector3d(450.0 * std::cos(angle), 450.0 * std::sin(angle), 0.0), 160, angle,
                   L"CL", kInk);
    }
    m_out.text(L"Gr\u00FC\u00DFe \u00C4\u00D6\u00DC \u00E4\u00F6\u00FC \u00B1 \u00B2 \u00B3 \u00BC \u00BD \u00BE",
               CZemPoint3d(300, 350, 0), 320, 0.0, L"BL", kInk);
}
