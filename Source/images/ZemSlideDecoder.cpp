#include "ZemSlideDecoder.h"

#include "ZemSlideData.h"

#include <cstdint>
#include <limits>

namespace {

constexpr int kEndOfFile = 0xFC;
constexpr int kLastVector = 0x7F;
constexpr int kOffsetVector = 0xFB;
constexpr int kSolidFill = 0xFD;
constexpr int kCommonEndpoint = 0xFE;
constexpr int kNewColor = 0xFF;

int highByte(unsigned short word) { return word >> 8; }
int lowByte(unsigned short word) { return word & 0xFF; }
int signedWord(unsigned short word) { return word >= 0x8000 ? word - 0x10000 : word; }
int signedByte(int byte) { return byte >= 0x80 ? byte - 0x100 : byte; }

// Offsets pile up on the last point; a hostile stream of them saturates
// instead of overflowing.
int offsetBy(int base, int delta)
{
    const std::int64_t sum = static_cast<std::int64_t>(base) + delta;
    if (sum > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (sum < std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(sum);
}

}  // namespace

CZemSlideDecoder::CZemSlideDecoder(CZemSlideSink& sink) : m_sink(sink) {}

bool CZemSlideDecoder::draw(CZemSlideData& data)
{
    if (!data.hasSlide() || !data.readHeader())
        return false;
    m_sink.slideSize(data.width(), data.height());
    m_lastX = 0;
    m_lastY = 0;
    unsigned short word = 0;
    do {
        word = record(data, data.getUInt16());
    } while (highByte(word) != kEndOfFile);
    return true;
}

// Returns the record word that the end test looks at: for a fill the one last
// read inside it, and the end-of-data word for the records that stop.
unsigned short CZemSlideDecoder::record(CZemSlideData& data, unsigned short word)
{
    const int high = highByte(word);
    if (high <= kLastVector) {
        vector(data, word);
        return word;
    }
    switch (high) {
    case kOffsetVector:
        offsetVector(data, signedByte(lowByte(word)));
        return word;
    case kSolidFill:
        if (lowByte(word) == 0)
            return solidFill(data);
        break;
    case kCommonEndpoint:
        commonEndpoint(data, signedByte(lowByte(word)));
        return word;
    case kNewColor:
        m_sink.newColor(lowByte(word));
        return word;
    default:
        break;
    }
    // The end-of-file record, and an unknown one, which ends the slide the same way.
    return CZemSlideData::kEndOfData;
}

// The record word is the from point's X.
void CZemSlideDecoder::vector(CZemSlideData& data, unsigned short word)
{
    const int fromX = signedWord(word);
    const int fromY = signedWord(data.getUInt16());
    const Point to = readPoint(data);
    m_lastX = fromX;
    m_lastY = fromY;
    m_sink.line(fromX, fromY, to.x, to.y);
}

// Both ends are offsets from the last point, which then moves to the from end.
void CZemSlideDecoder::offsetVector(CZemSlideData& data, int dx0)
{
    const int dy0 = signedByte(data.getByte());
    const int dx1 = signedByte(data.getByte());
    const int dy1 = signedByte(data.getByte());
    const int fromX = offsetBy(m_lastX, dx0);
    const int fromY = offsetBy(m_lastY, dy0);
    m_sink.line(fromX, fromY, offsetBy(m_lastX, dx1), offsetBy(m_lastY, dy1));
    m_lastX = fromX;
    m_lastY = fromY;
}

void CZemSlideDecoder::commonEndpoint(CZemSlideData& data, int dx)
{
    const int dy = signedByte(data.getByte());
    const int toX = offsetBy(m_lastX, dx);
    const int toY = offsetBy(m_lastY, dy);
    m_sink.line(m_lastX, m_lastY, toX, toY);
    m_lastX = toX;
    m_lastY = toY;
}

// A fill is a start record (vertex count, one word more), the first vertex,
// further vertices up to the count, and an end record. Vertex records carry a
// record word, X and Y. Writers differ: some end the list early with a record
// of negative Y, whose point is dropped; with a full list the end record
// follows and is skipped.
unsigned short CZemSlideDecoder::solidFill(CZemSlideData& data)
{
    const unsigned count = data.getUInt16();
    data.getUInt16();
    m_points.clear();
    unsigned short word = data.getUInt16();
    m_points.push_back(readPoint(data));
    bool endOfFill = false;
    for (unsigned i = 1; i < count && !endOfFill; ++i) {
        word = data.getUInt16();
        const Point vertex = readPoint(data);
        endOfFill = vertex.y < 0;
        if (!endOfFill)
            m_points.push_back(vertex);
    }
    if (!endOfFill) {
        word = data.getUInt16();
        data.getUInt16();
        data.getUInt16();
    }
    m_points.push_back(m_points.front());
    m_sink.polygon(m_points);
    return word;
}

CZemSlideSink::Point CZemSlideDecoder::readPoint(CZemSlideData& data)
{
    const int x = signedWord(data.getUInt16());
    const int y = signedWord(data.getUInt16());
    return {x, y};
}
