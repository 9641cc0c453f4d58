// Outside bytes as a slide and as a slide library: the decoder runs over the
// bytes as they are, then over every slide the library directory names, with
// each point mapped to a window as the slide control does; the bytes as a
// slide also become display items.
#include "ZemGDX.h"
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"
#include "ZemSlideFit.h"
#include "ZemSlideImage.h"
#include "ZemSlideLibrary.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace {

class FittingSink : public CZemSlideSink {
public:
    void slideSize(int width, int height) override { m_fit.SetCoordSystem(640, 480, width, height); }
    void newColor(int color) override { m_sum += color; }
    void line(int x0, int y0, int x1, int y1) override
    {
        m_fit.trans(x0, y0);
        m_fit.trans(x1, y1);
        m_sum += static_cast<unsigned>(x0 ^ y0 ^ x1 ^ y1);
    }
    void polygon(std::vector<Point>& points) override
    {
        for (Point& p : points)
            m_fit.trans(p.x, p.y);
        m_sum += static_cast<unsigned>(points.size());
    }

    CZemSlideFit m_fit;
    unsigned m_sum = 0;
};

// Libraries in the wild hold a few dozen slides; more only repeats the work.
constexpr std::size_t kMaxSlides = 16;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FittingSink sink;
    CZemSlideDecoder decoder(sink);
    CZemSlideData data;
    data.assign(bytes, static_cast<long>(size));
    decoder.draw(data);

    CZemSlideImage image;
    image.assign(bytes, static_cast<long>(size));
    CZemGDX gdx(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d());
    image.image(gdx, GDX_FILL, nullptr);

    std::istringstream library(std::string(reinterpret_cast<const char*>(bytes), size));
    const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(library);
    for (std::size_t i = 0; i < entries.size() && i < kMaxSlides; ++i) {
        if (data.loadFromLibrary(library, entries[i].name.c_str()))
            decoder.draw(data);
    }
    return 0;
}
