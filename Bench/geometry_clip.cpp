// Clipping of straight lines by a region: an outer contour of 1,000 vertices
// (straight edges and arcs) with 10 round holes, as hatching sweeps it.
#include "ZemClip.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

const double kPi = 3.141592653589793;

CZemArrayTempl<CZemVertexArray> wavyRegion() {
    CZemArrayTempl<CZemVertexArray> region;
    CZemVertexArray outer;
    const int n = 1000;
    auto corner = [](int k) {
        const double a = 2 * kPi * k / n;
        const double r = 100 + 6 * std::sin(25 * a);
        return CZemPoint3d(r * std::cos(a), r * std::sin(a), 0);
    };
    for (int k = 0; k < n; ++k) outer.append(CZemVertex(corner(k), corner((k + 1) % n), k % 2 ? 0.2 : 0.0));
    region.append(outer);
    for (int h = 0; h < 10; ++h) {
        const double a = 2 * kPi * h / 10, cx = 55 * std::cos(a), cy = 55 * std::sin(a);
        CZemVertexArray hole(CZemVertex(CZemPoint3d(cx + 8, cy, 0), CZemPoint3d(cx - 8, cy, 0), 1.0));
        hole.append(CZemVertex(CZemPoint3d(cx - 8, cy, 0), CZemPoint3d(cx + 8, cy, 0), 1.0));
        region.append(hole);
    }
    return region;
}

}  // namespace

static void BM_PunchRegLines(benchmark::State& state) {
    const CZemArrayTempl<CZemVertexArray> region = wavyRegion();
    long lines = 0, pieces = 0;
    for (auto _ : state) {
        const double y = -104.0 + 208.0 * (lines % 200) / 199.0;
        const CZemVertexArray line(CZemVertex(CZemPoint3d(-120, y, 0), CZemPoint3d(120, y + 3, 0), 0.0));
        const CZemArrayTempl<CZemVertexArray> out = ZEM::g_vl_punch_reg(line, region, true);
        pieces += out.len();
        ++lines;
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(lines);
    state.counters["pieces_per_line"] = static_cast<double>(pieces) / static_cast<double>(lines);
}
BENCHMARK(BM_PunchRegLines)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
