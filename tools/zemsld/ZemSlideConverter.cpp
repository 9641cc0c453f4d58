#include "ZemSlideConverter.h"

#include "ZemGDX.h"
#include "ZemGdxMap.h"
#include "ZemMetafileBitmap.h"
#include "ZemRefresh.h"
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"
#include "ZemSlideImage.h"
#include "ZemSlideSink.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace {

constexpr char kSlideId[] = "AutoCAD Slide\r\n\x1a";  // 17 bytes with its NUL
constexpr std::size_t kLevelAt = 18;
constexpr std::size_t kHeaderLevel1 = 34;
constexpr std::size_t kHeaderLevel2 = 31;
constexpr int kLongSide = 1024;

// Takes the records and keeps nothing: only where the decoder stops counts.
class NullSink : public CZemSlideSink {
public:
    void newColor(int) override {}
    void line(int, int, int, int) override {}
    void polygon(std::vector<Point>&) override {}
};

}  // namespace

bool CZemSlideConverter::isSlide(const unsigned char* bytes, std::size_t size)
{
    return size >= sizeof kSlideId && std::memcmp(bytes, kSlideId, sizeof kSlideId) == 0;
}

bool CZemSlideConverter::headerComplete(const unsigned char* bytes, std::size_t size)
{
    if (size <= kLevelAt)
        return false;
    const int level = bytes[kLevelAt];
    return (level == 1 && size >= kHeaderLevel1) || (level == 2 && size >= kHeaderLevel2);
}

// The decoder takes the end of the data for an end record. Behind a copy of
// the slide lie words that are colour records in either byte order and at
// either byte boundary: a slide that ends with its end record stops before
// them; one that breaks off reads into them.
bool CZemSlideConverter::recordsComplete(const unsigned char* bytes, std::size_t size)
{
    std::vector<unsigned char> padded(bytes, bytes + size);
    padded.insert(padded.end(), 16, 0xFF);
    CZemSlideData data;
    data.assign(padded.data(), static_cast<long>(padded.size()));
    NullSink sink;
    CZemSlideDecoder(sink).draw(data);
    return data.pos() <= size;
}

// The raster's proportions with the longer side at 1024 pixels.
void CZemSlideConverter::outputSize(const unsigned char* bytes, std::size_t size, int& width, int& height)
{
    CZemSlideData data;
    data.assign(bytes, static_cast<long>(size));
    data.readHeader();
    const double w = data.width(), h = data.height();
    width = kLongSide;
    height = kLongSide * 3 / 4;
    if (w <= 0.0 || h <= 0.0)
        return;
    width = w >= h ? kLongSide : std::max(1, static_cast<int>(std::lround(kLongSide * w / h)));
    height = w >= h ? std::max(1, static_cast<int>(std::lround(kLongSide * h / w))) : kLongSide;
}

CZemSlideConverter::Result CZemSlideConverter::convert(const unsigned char* bytes, std::size_t size,
                                                       const std::wstring& name) const
{
    Result result;
    if (!isSlide(bytes, size) || !headerComplete(bytes, size) || size > 0x7FFFFFFF)
        return result;
    outputSize(bytes, size, result.width, result.height);
    result.emf = m_folder + L"\\" + name + L".emf";
    result.png = m_folder + L"\\" + name + L".png";
    const int key = createGdxInMap(nullptr);
    CZemGDX* gdx = getGdxFromMap(key);
    CZemSlideImage slide;
    if (gdx && slide.assign(bytes, static_cast<long>(size)))
        slide.image(*gdx, 0, nullptr);
    result.items = gdx ? gdx->lenGet() : 0;
    const bool drawn = gdx && refresh(gdx, result.emf.c_str(), result.height, result.width);
    gdxMapRemoveAt(key);
    if (!drawn || !zemMetafileToPng(result.emf.c_str(), result.width, result.height, result.png.c_str())) {
        result.outcome = notWritten;
        return result;
    }
    result.outcome = recordsComplete(bytes, size) ? converted : truncated;
    return result;
}
