// Dashes laid along a 10,000-unit line with a 4-entry pattern (dash, gap,
// dot, gap), straight and as a run of arcs.
#include "ZemMeasure.h"

#include <benchmark/benchmark.h>

static void BM_MeasureLine(benchmark::State& state) {
    const bool arcs = state.range(0) != 0;
    CZemVertexArray vl;
    if (arcs) {
        for (int k = 0; k < 100; ++k) vl.append(CZemVertex(CZemPoint3d(100.0 * k, 0, 0), CZemPoint3d(100.0 * (k + 1), 0, 0), 0.3));
    } else {
        vl.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(10000, 0, 0), 0.0));
    }
    CZemArrayTempl<double> pattern;
    pattern.append(2.0);
    pattern.append(-1.0);
    pattern.append(0.0);
    pattern.append(-1.0);
    const CZemLineParm parm(pattern);
    long pieces = 0;
    for (auto _ : state) {
        const CZemArrayTempl<CZemVertexArray> out = ZEM::g_vl_measure(vl, 1.0, parm);
        pieces += out.len();
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(pieces);
}
BENCHMARK(BM_MeasureLine)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
