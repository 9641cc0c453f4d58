// A slide of 1,000,000 vectors turned into display items: full vectors,
// offset vectors and common-endpoint vectors in turn, with a colour record
// every thousand vectors, as a large slide of an older writer holds them.
#include "ZemGDX.h"
#include "ZemSlideImage.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int kVectors = 1000000;

class Bytes {
public:
    Bytes& word(int value)
    {
        m_bytes.push_back(static_cast<unsigned char>(value & 0xFF));
        m_bytes.push_back(static_cast<unsigned char>((value >> 8) & 0xFF));
        return *this;
    }
    Bytes& byte(int value) { return m_bytes.push_back(static_cast<unsigned char>(value & 0xFF)), *this; }
    const std::vector<unsigned char>& bytes() const { return m_bytes; }

private:
    std::vector<unsigned char> m_bytes;
};

std::vector<unsigned char> largeSlide()
{
    Bytes slide;
    const char id[] = "AutoCAD Slide\r\n\x1a";
    for (int i = 0; i < 17; ++i)
        slide.byte(id[i]);
    slide.byte(0x56).byte(2).word(4000).word(3000).word(0x9680).word(0x0098).word(2).word(0x1234);
    for (int i = 0; i < kVectors; ++i) {
        if (i % 1000 == 0)
            slide.word(0xFF00 | (i / 1000 % 255 + 1));
        const int x = i % 4000;
        const int y = i / 4000 % 3000;
        switch (i % 3) {
        case 0:
            slide.word(x).word(y).word(3999 - x).word(2999 - y);
            break;
        case 1:
            slide.word(0xFB00 | 5).byte(-3).byte(7).byte(9);
            break;
        default:
            slide.word(0xFE00 | (-4 & 0xFF)).byte(6);
            break;
        }
    }
    slide.word(0xFC00);
    return slide.bytes();
}

void BM_SlideToItems(benchmark::State& state)
{
    const std::vector<unsigned char> bytes = largeSlide();
    CZemSlideImage slide;
    slide.assign(bytes.data(), static_cast<long>(bytes.size()));
    CZemGDX gdx(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d());
    for (auto _ : state) {
        gdx.clear();
        if (!slide.image(gdx, 0, nullptr) || gdx.lenGet() != kVectors)
            state.SkipWithError("the slide doesn't become its vectors");
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kVectors);
    state.SetLabel("items/s = vectors/s");
}

}  // namespace

BENCHMARK(BM_SlideToItems)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
