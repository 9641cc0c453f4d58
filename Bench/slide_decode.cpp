// Decoding of the largest real slide of the test data (a slide file or a slide
// of a library), into a sink that only counts, and into one that also maps
// every point to a window as the slide control does.
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"
#include "ZemSlideFit.h"
#include "ZemSlideLibrary.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace {

class CountingSink : public CZemSlideSink {
public:
    void newColor(int color) override { m_sum += color; }
    void line(int x0, int y0, int x1, int y1) override { m_sum += x0 + y0 + x1 + y1; }
    void polygon(std::vector<Point>& points) override { m_sum += static_cast<long>(points.size()); }
    long m_sum = 0;
};

class FittingSink : public CountingSink {
public:
    void slideSize(int width, int height) override { m_fit.SetCoordSystem(800, 600, width, height); }
    void line(int x0, int y0, int x1, int y1) override
    {
        m_fit.trans(x0, y0);
        m_fit.trans(x1, y1);
        CountingSink::line(x0, y0, x1, y1);
    }
    void polygon(std::vector<Point>& points) override
    {
        for (Point& p : points)
            m_fit.trans(p.x, p.y);
        CountingSink::polygon(points);
    }
    CZemSlideFit m_fit;
};

// Every slide file and every slide of every library under the test data.
CZemSlideData largestSlide()
{
    CZemSlideData largest;
    CZemSlideData candidate;
    const std::filesystem::path root = std::filesystem::path(ZEM_TESTDATA_DIR) / "slides";
    for (const auto& file : std::filesystem::recursive_directory_iterator(root)) {
        std::string ext = file.path().extension().string();
        for (char& c : ext)
            c = static_cast<char>(c | 0x20);
        if (ext == ".sld" && candidate.loadFile(file.path()) && candidate.size() > largest.size())
            largest = candidate;
        if (ext != ".slb")
            continue;
        std::ifstream in(file.path(), std::ios::binary);
        for (const CZemSlideLibrary::Entry& entry : CZemSlideLibrary::directory(in)) {
            if (entry.length > largest.size() && candidate.loadFromLibrary(in, entry.name.c_str()))
                largest = candidate;
        }
    }
    return largest;
}

template <class Sink>
void decodeLargest(benchmark::State& state)
{
    CZemSlideData data = largestSlide();
    Sink sink;
    CZemSlideDecoder decoder(sink);
    for (auto _ : state) {
        if (!decoder.draw(data))
            state.SkipWithError("the largest slide doesn't decode");
        benchmark::DoNotOptimize(sink.m_sum);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * data.size());
    state.SetLabel(std::to_string(data.size()) + " bytes");
}

}  // namespace

static void BM_SlideDecode(benchmark::State& state) { decodeLargest<CountingSink>(state); }
BENCHMARK(BM_SlideDecode);

static void BM_SlideDecodeFitted(benchmark::State& state) { decodeLargest<FittingSink>(state); }
BENCHMARK(BM_SlideDecodeFitted);

BENCHMARK_MAIN();
