// Display list throughput: entry of four-vertex polylines with their
// incremental extents, the full recomputation of the extents, the sort into
// drawing order and a pick, each reported in items per second.
#include "ZemGDX.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace {

CZemVertexArray quad(double x, double y) {
    const CZemPoint3d c[] = {{x, y, 0}, {x + 1, y, 0}, {x + 1, y + 1, 0}, {x, y + 1, 0}};
    CZemVertexArray vl;
    for (int k = 0; k < 4; ++k) vl.append(CZemVertex(c[k], c[(k + 1) % 4], 0.0));
    return vl;
}

CZemArrayTempl<int> stackOf(int k) {
    CZemArrayTempl<int> stack;
    stack.append(k % 1000);
    stack.append(k);
    return stack;
}

// Every seventh item a region and every thirteenth a highlighted one, so
// that sorting has layers to separate.
void fill(CZemGDX& g, int count) {
    const CZemArrayTempl<double> continuous;
    CZemColor color;
    color.setColorIndex(3);
    CZemMatrix3d mtx;
    mtx.setToTranslation(CZemVector3d(0.5, 0.25, 0));
    for (int k = 0; k < count; ++k) {
        const CZemVertexArray vl = quad(k % 1000, k / 1000);
        const unsigned long flags = k % 13 == 0 ? 0x100UL : 0UL;
        if (k % 7 == 0) {
            CZemArrayTempl<CZemVertexArray> regl;
            regl.append(vl);
            g.imageReg(stackOf(k), flags, regl, color, mtx, continuous, 1.0, 1, color);
        } else {
            g.imageVl(stackOf(k), flags, vl, color, mtx, continuous, 1.0, 1);
        }
    }
}

CZemGDX newList() { return CZemGDX(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d()); }

// Entry into a new list, which pays for growing its storage, and into a list
// emptied by clear, whose storage and item slots are reused.
void BM_EntryOfPolylines(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const bool refill = state.range(1) != 0;
    const CZemArrayTempl<double> continuous;
    CZemColor color;
    color.setColorIndex(1);
    const CZemMatrix3d mtx;
    CZemArrayTempl<CZemVertexArray> shapes;
    for (int k = 0; k < 64; ++k) shapes.append(quad(k, -k));
    const CZemArrayTempl<int> stack = stackOf(5);
    CZemGDX* g = new CZemGDX(newList());
    if (refill) {
        for (int k = 0; k < count; ++k) g->imageVl(stack, 0, shapes[k & 63], color, mtx, continuous, 1.0, 1);
    }
    for (auto _ : state) {
        state.PauseTiming();
        if (refill) {
            g->clear();
        } else {
            delete g;
            g = new CZemGDX(newList());
        }
        state.ResumeTiming();
        for (int k = 0; k < count; ++k) g->imageVl(stack, 0, shapes[k & 63], color, mtx, continuous, 1.0, 1);
    }
    delete g;
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_EntryOfPolylines)->ArgNames({"items", "refill"})->Args({1'000'000, 0})->Args({1'000'000, 1})
    ->Unit(benchmark::kMillisecond);

// The floor under entry into a new list: the fresh memory that a million
// entered polylines own, written once and nothing else done. That is the
// item storage, which takes large pages as the list's own does, and the
// three blocks of each item's stack, line type and vertices, at the room the
// arrays give them. On a virtual machine the first touch of a page can cost
// more than everything the entry does with it.
void BM_FreshItemStorage(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const std::size_t blocks[] = {8 * sizeof(int), 8 * sizeof(double), 4 * sizeof(CZemVertex)};
    std::vector<void*> owned(3 * static_cast<std::size_t>(count));
    for (auto _ : state) {
        auto* items = static_cast<char*>(CZemObj::growStorage(nullptr, count * sizeof(CZemDisplayItem)));
        std::memset(items, 1, count * sizeof(CZemDisplayItem));
        for (std::size_t k = 0; k < owned.size(); ++k) {
            owned[k] = CZemObj::growStorage(nullptr, blocks[k % 3]);
            std::memset(owned[k], 1, blocks[k % 3]);
        }
        benchmark::DoNotOptimize(items);
        state.PauseTiming();
        for (void* block : owned) CZemObj::freeStorage(block);
        CZemObj::freeStorage(items);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_FreshItemStorage)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void BM_ProjMtxSet(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    CZemGDX g = newList();
    fill(g, count);
    CZemMatrix3d proj;
    proj.setToRotation(0.3, CZemVector3d(1, 1, 1), CZemPoint3d());
    for (auto _ : state) benchmark::DoNotOptimize(g.projMtxSet(proj));
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_ProjMtxSet)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// Each pass sorts a copy of the list in entry order, where regions and
// highlighted items stand mixed with the rest, or, as at every paint after
// the first, a list already in drawing order; the copies are made and
// destroyed outside the timing.
void BM_DisplListSort(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    CZemGDX g = newList();
    fill(g, count);
    if (state.range(1) != 0) g.displListSort();
    for (auto _ : state) {
        state.PauseTiming();
        CZemGDX* work = new CZemGDX(g);
        state.ResumeTiming();
        benchmark::DoNotOptimize(work->displListSort());
        state.PauseTiming();
        delete work;
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_DisplListSort)->ArgNames({"items", "sorted"})->Args({1'000'000, 0})->Args({1'000'000, 1})
    ->Unit(benchmark::kMillisecond);

// A miss visits every item: the worst case of a pick.
void BM_ImageItemGet(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    CZemGDX g = newList();
    fill(g, count);
    for (auto _ : state) benchmark::DoNotOptimize(g.imageItemGet(CZemPoint3d(-500, -500, 0)));
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(BM_ImageItemGet)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
