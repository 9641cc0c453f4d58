// Growth of the array template: appends of plain numbers and of vertex lists,
// whose bitwise moves on reallocation copy no nested storage.
#include "ZemArrayTempl.h"
#include "ZemVertexArray.h"

#include <benchmark/benchmark.h>

static void BM_AppendInts(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        CZemArrayTempl<int> a;
        for (int k = 0; k < count; ++k) a.append(k);
        benchmark::DoNotOptimize(a.data());
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_AppendInts)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

static void BM_AppendVertexArrays(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    CZemVertexArray square;
    const CZemPoint3d corners[] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    for (int k = 0; k < 4; ++k) square.append(CZemVertex(corners[k], corners[(k + 1) % 4], 0.0));
    for (auto _ : state) {
        CZemArrayTempl<CZemVertexArray> a;
        for (int k = 0; k < count; ++k) a.append(square);
        benchmark::DoNotOptimize(a.data());
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_AppendVertexArrays)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
