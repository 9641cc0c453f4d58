// zemrenderbench: times refresh of a large display list (100,000 polylines,
// 1,000 hatched regions, 1,000 texts) into an enhanced metafile and prints
// the median of the runs in seconds and the metafile's size in bytes.
//
//   zemrenderbench [output-folder] [runs]
#include "ZemApp.h"
#include "ZemFont.h"
#include "ZemGDX.h"
#include "ZemRefresh.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

namespace {

constexpr int kPolylines = 100000;
constexpr int kRegions = 1000;
constexpr int kTexts = 1000;
constexpr double kSide = 10000.0;

// Hatch patterns of the run's own, so the figures don't depend on the
// pattern files found on the support path.
class BenchApp : public CZemApp {
public:
    Zem::lFormat numberFormat() const override { return Zem::formatDecimal; }
    unsigned long backgroundColor() const override { return 0xFFFFFF; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return false; }
    bool hatchPattern(const wchar_t*, CZemArrayTempl<CZemArrayTempl<double>>& lines) override
    {
        CZemArrayTempl<double> line;
        for (double v : {45.0, 0.0, 0.0, 0.0, 3.175}) line.append(v);
        lines.setLogicalLength(0);
        lines.append(line);
        return true;
    }
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return 0; }
};

// A fixed sequence, so every run draws the same list.
class Sequence {
public:
    double next(double range)
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(m_state >> 11) / 9007199254740992.0 * range;
    }

private:
    unsigned long long m_state = 42;
};

CZemArrayTempl<int> stackOf(int element)
{
    CZemArrayTempl<int> out;
    out.append(element);
    return out;
}

CZemColor colorOf(unsigned long bgr)
{
    CZemColor out;
    out.setOleColor(bgr);
    return out;
}

void addPolylines(CZemGDX& list, Sequence& seq)
{
    CZemArrayTempl<double> solid, dashed;
    solid.append(1.0);
    for (double v : {1.0, 1.0, 0.0}) dashed.append(v);
    for (int k = 0; k < kPolylines; ++k) {
        CZemVertexArray vl;
        CZemPoint3d at(seq.next(kSide), seq.next(kSide), 0.0);
        for (int v = 0; v < 3; ++v) {
            const CZemPoint3d to(at.x + seq.next(200.0) - 100.0, at.y + seq.next(200.0) - 100.0, 0.0);
            vl.append(CZemVertex(at, to, v == 1 ? 0.3 : 0.0));
            at = to;
        }
        list.imageVl(stackOf(k), 0, vl, colorOf(0x800000), CZemMatrix3d::kIdentity, k % 5 ? solid : dashed, 1.0, 0);
    }
}

CZemVertexArray square(double x, double y, double side)
{
    CZemVertexArray out;
    const CZemPoint3d p[4] = {{x, y, 0}, {x + side, y, 0}, {x + side, y + side, 0}, {x, y + side, 0}};
    for (int k = 0; k < 4; ++k) out.append(CZemVertex(p[k], p[(k + 1) % 4], 0.0));
    return out;
}

void addRegions(CZemGDX& list, Sequence& seq)
{
    CZemArrayTempl<double> solid;
    solid.append(1.0);
    for (int k = 0; k < kRegions; ++k) {
        const double x = seq.next(kSide - 300.0), y = seq.next(kSide - 300.0);
        CZemArrayTempl<CZemVertexArray> rings;
        rings.append(square(x, y, 300.0)).append(square(x + 100.0, y + 100.0, 100.0));
        list.imageReg(stackOf(k), GDX_HATCH | GDX_EDGE, rings, colorOf(0x008000), CZemMatrix3d::kIdentity, solid,
                      1.0, 1, colorOf(0x0080FF), CZemHatchProp(L"ANSI31", 0.0, 10.0));
    }
}

// Six letters of 60 units, laid side by side as the parts of one text item.
void addTexts(CZemGDX& list, Sequence& seq)
{
    CZemArrayTempl<CZemDisplayItem> items;
    const wchar_t* word = L"ZemGdx";
    for (int k = 0; k < kTexts; ++k) {
        CZemDisplayItem text;
        text.m_type = GDX_TXT;
        text.m_flags = GDX_FILL;
        text.m_color = colorOf(0x000080);
        text.m_mtx.setToSRM(CZemPoint3d(60.0, 60.0, 1.0), 0.0, CZemVector3d(seq.next(kSide), seq.next(kSide), 0));
        for (int c = 0; c < 6; ++c) {
            CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> glyph = get_ascii_from_map(word[c]);
            CZemMatrix3d shift;
            shift.setToTranslation(CZemVector3d(c * 0.8, 0.0, 0.0));
            for (int g = 0; g < glyph.len(); ++g) {
                for (int r = 0; r < glyph[g].len(); ++r) glyph[g][r].transformBy(shift);
                text.m_txtRegl.append(glyph[g]);
            }
        }
        items.append(text);
    }
    list.addDisplayList(items);
}

double seconds(const LARGE_INTEGER& from, const LARGE_INTEGER& to)
{
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    const std::wstring folder = argc > 1 ? argv[1] : L".";
    const int runs = argc > 2 ? std::max(1, _wtoi(argv[2])) : 3;
    BenchApp app;
    zemAppSet(&app);
    CZemGDX list(colorOf(0xFFFFFF), CZemMatrix3d::kIdentity, 0.0, 0, CZemPoint3d(0, 0, 0),
                 CZemPoint3d(kSide, kSide, 0));
    Sequence seq;
    addPolylines(list, seq);
    addRegions(list, seq);
    addTexts(list, seq);

    const std::wstring path = folder + L"\\zemrenderbench.emf";
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        LARGE_INTEGER from, to;
        QueryPerformanceCounter(&from);
        refresh(&list, path.c_str(), 1080, 1920);
        QueryPerformanceCounter(&to);
        times.push_back(seconds(from, to));
        std::printf("run %d: %.3f s\n", run + 1, times.back());
    }
    std::sort(times.begin(), times.end());
    WIN32_FILE_ATTRIBUTE_DATA info = {};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &info);
    const unsigned long long bytes = (static_cast<unsigned long long>(info.nFileSizeHigh) << 32) | info.nFileSizeLow;
    std::printf("refresh of %d polylines, %d hatched regions, %d texts into 1920 x 1080: median %.3f s of %d runs, "
                "%llu metafile bytes\n",
                kPolylines, kRegions, kTexts, times[times.size() / 2], runs, bytes);
    zemAppSet(nullptr);
    return 0;
}
