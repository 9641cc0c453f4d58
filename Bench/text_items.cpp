// Text items: imageTxt of 100,000 strings of 10 characters from the font,
// in characters per second. Every entry lays its string out and recomputes
// the extents of the whole list twice, so the list is emptied whenever it
// holds the given number of items: with 1 the figure is the layout, with 100
// the passes over the list weigh in.
#include "ZemGDX.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int kStrings = 100000;
constexpr int kLength = 10;

// Printable ASCII (33 to 126, all in the font), picked by a fixed generator.
std::vector<std::wstring> strings() {
    std::vector<std::wstring> out(kStrings);
    unsigned int state = 12345u;
    for (std::wstring& s : out) {
        for (int k = 0; k < kLength; ++k) {
            state = state * 1103515245u + 12345u;
            s += static_cast<wchar_t>(33 + (state >> 16) % 94);
        }
    }
    return out;
}

void BM_ImageTxt(benchmark::State& state) {
    const std::vector<std::wstring> texts = strings();
    const int perList = static_cast<int>(state.range(0));
    CZemGDX g(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d());
    CZemArrayTempl<int> stack;
    stack.append(1);
    CZemMatrix3d mtx;
    mtx.setToSRM(CZemPoint3d(2.5, 2.5, 1.0), 0.3, CZemVector3d(10, 20, 0));
    const CZemColor color = CZemColor().setColorIndex(3);
    for (auto _ : state) {
        for (int k = 0; k < kStrings; ++k) {
            if (g.lenGet() == perList) g.clear();
            g.imageTxt(stack, 0, texts[k].c_str(), color, mtx, L"CC", CZemPoint3d(0, k % 100, 0));
        }
        benchmark::DoNotOptimize(g.lenGet());
    }
    state.SetItemsProcessed(state.iterations() * kStrings * kLength);
}
BENCHMARK(BM_ImageTxt)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
