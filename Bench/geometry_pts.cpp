// Flattening of arcs into points: 100 arcs of radius 20 to 80 and sweeps up
// to 300 degrees, to the tolerances the renderers and the splitting use.
#include "ZemVertexArray.h"

#include <benchmark/benchmark.h>

#include <cmath>

static void BM_PtsOfArcs(benchmark::State& state) {
    const double tolerance = static_cast<double>(state.range(0)) / 1000.0;
    CZemVertexArray arcs;
    for (int k = 0; k < 100; ++k) {
        const double chord = 20.0 + 0.6 * k;
        const double bulge = std::tan((0.2 + 0.05 * k) / 4.0 * 1.8);
        arcs.append(CZemVertex(CZemPoint3d(k, 0, 0), CZemPoint3d(k + chord, chord / 3, 0), bulge));
    }
    long points = 0;
    for (auto _ : state) {
        const CZemPoint3dArray p = arcs.pts(true, tolerance);
        points += p.len();
        benchmark::DoNotOptimize(p.items().data());
    }
    state.SetItemsProcessed(points);
}
BENCHMARK(BM_PtsOfArcs)->Arg(500)->Arg(50)->Arg(10)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
