// zemrenderbench: times the drawing of a large display list (100,000
// polylines, 1,000 hatched regions, 1,000 texts) at 1920 by 1080 pixels:
// refresh into an enhanced metafile, with the metafile's size in bytes, and
// the paint of a display list control of that size. Prints the median of
// the runs in seconds.
//
//   zemrenderbench [output-folder] [runs]
#include "ZemApp.h"
#include "ZemDplistImage.h"
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
constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

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

// Six letters of 60 units, laid out in the stroke font.
void addTexts(CZemGDX& list, Sequence& seq)
{
    for (int k = 0; k < kTexts; ++k) {
        CZemMatrix3d placement;
        placement.setToSRM(CZemPoint3d(60.0, 60.0, 1.0), 0.0, CZemVector3d(seq.next(kSide), seq.next(kSide), 0));
        list.imageTxt(stackOf(k), GDX_FILL, L"ZemGdx", colorOf(0x000080), placement, L"", CZemPoint3d());
    }
}

double seconds(const LARGE_INTEGER& from, const LARGE_INTEGER& to)
{
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// The list drawn into a metafile file, runs times; the seconds of each run.
std::vector<double> timeRefresh(CZemGDX& list, const std::wstring& path, int runs)
{
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        LARGE_INTEGER from, to;
        QueryPerformanceCounter(&from);
        refresh(&list, path.c_str(), kHeight, kWidth);
        QueryPerformanceCounter(&to);
        times.push_back(seconds(from, to));
        std::printf("refresh run %d: %.3f s\n", run + 1, times.back());
    }
    return times;
}

// The list shown fitted in a control of the output's size, repainted whole
// runs times; the seconds of each paint.
std::vector<double> timePaint(CZemGDX& list, int runs)
{
    std::vector<double> times;
    CZemDplistImage control;
    if (!control.CreateEx(0, nullptr, L"zemrenderbench", WS_POPUP | WS_VISIBLE, 0, 0, kWidth, kHeight, nullptr,
                          nullptr))
        return times;
    control.set_dpList(&list);
    control.zoomExtents();
    for (int run = 0; run < runs; ++run) {
        control.Invalidate();
        LARGE_INTEGER from, to;
        QueryPerformanceCounter(&from);
        control.UpdateWindow();
        QueryPerformanceCounter(&to);
        times.push_back(seconds(from, to));
        std::printf("paint run %d: %.3f s\n", run + 1, times.back());
    }
    return times;
}

double median(std::vector<double> times)
{
    if (times.empty()) return 0.0;
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
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
    // Texts first: each one entered recomputes the extents over the items
    // before it.
    addTexts(list, seq);
    addPolylines(list, seq);
    addRegions(list, seq);

    const std::wstring path = folder + L"\\zemrenderbench.emf";
    const double refreshed = median(timeRefresh(list, path, runs));
    WIN32_FILE_ATTRIBUTE_DATA info = {};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &info);
    const unsigned long long bytes = (static_cast<unsigned long long>(info.nFileSizeHigh) << 32) | info.nFileSizeLow;
    const std::vector<double> paints = timePaint(list, runs);
    std::printf("refresh of %d polylines, %d hatched regions, %d texts into %d x %d: median %.3f s of %d runs, "
                "%llu metafile bytes\n",
                kPolylines, kRegions, kTexts, kWidth, kHeight, refreshed, runs, bytes);
    if (paints.empty())
        std::printf("paint: the control's window could not be made\n");
    else
        std::printf("paint of the same list into a %d x %d control: median %.3f s of %d runs\n", kWidth, kHeight,
                    median(paints), runs);
    zemAppSet(nullptr);
    return 0;
}
