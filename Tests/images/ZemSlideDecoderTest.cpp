#include "SlideTestSupport.h"
#include "ZemSlideData.h"
#include "ZemSlideDecoder.h"

#include <gtest/gtest.h>

using slidetest::RecordingSink;
using slidetest::SlideBuilder;
using Line = RecordingSink::Line;
using Polygon = RecordingSink::Polygon;

namespace {

bool decode(const SlideBuilder& slide, RecordingSink& sink)
{
    CZemSlideData data;
    data.assign(slide.bytes().data(), static_cast<long>(slide.bytes().size()));
    return CZemSlideDecoder(sink).draw(data);
}

}  // namespace

TEST(ZemSlideDecoder, EveryVectorKindInBothByteOrders)
{
    for (bool highFirst : {false, true}) {
        SlideBuilder slide(highFirst);
        slide.header(2, 1000, 800).color(3).vector(100, 200, 300, -40);
        slide.offsetVector(1, 2, 3, -4);  // from the last from point (100, 200)
        slide.offsetVector(-128, 127, 0, 0);  // from (101, 202)
        slide.commonEndpoint(5, -5);  // from the last point (-27, 329)
        slide.commonEndpoint(-1, 1);
        slide.color(255).end().vector(1, 1, 2, 2);
        RecordingSink sink;
        ASSERT_TRUE(decode(slide, sink));
        EXPECT_TRUE(sink.width == 1000 && sink.height == 800);
        EXPECT_EQ(sink.colors, (std::vector<int>{3, 255}));
        const std::vector<Line> expected = {{100, 200, 300, -40}, {101, 202, 103, 196}, {-27, 329, 101, 202},
                                            {-27, 329, -22, 324}, {-22, 324, -23, 325}};
        EXPECT_EQ(sink.lines, expected) << (highFirst ? "high byte first" : "low byte first");
    }
}

TEST(ZemSlideDecoder, SolidFillsOfBothWriters)
{
    SlideBuilder slide;
    slide.header(2, 100, 100);
    // A full vertex list, then the end record, which is skipped.
    slide.fillRecord(3, -1).fillRecord(10, 10).fillRecord(20, 10).fillRecord(20, 20).fillRecord(0, -9);
    // A list ended early by a record of negative Y, whose point is dropped.
    slide.fillRecord(4, -2).fillRecord(1, 2).fillRecord(3, 4).fillRecord(5, 6).fillRecord(5, -6);
    // One vertex makes a two-point polygon.
    slide.fillRecord(1, -1).fillRecord(7, 8).fillRecord(0, -1);
    slide.vector(1, 2, 3, 4).end();
    RecordingSink sink;
    ASSERT_TRUE(decode(slide, sink));
    const std::vector<Polygon> expected = {{{10, 10}, {20, 10}, {20, 20}, {10, 10}},
                                           {{1, 2}, {3, 4}, {5, 6}, {1, 2}},
                                           {{7, 8}, {7, 8}}};
    EXPECT_EQ(sink.polygons, expected);
    EXPECT_EQ(sink.lines, (std::vector<Line>{{1, 2, 3, 4}})) << "the record after the fills is read";
}

TEST(ZemSlideDecoder, RecordsThatStopTheDecoding)
{
    for (int stopper : {0x8000, 0xFA00, 0xFD01, 0xFC00}) {
        SlideBuilder slide;
        slide.header(2, 10, 10).vector(1, 1, 2, 2).word(stopper).vector(3, 3, 4, 4).end();
        RecordingSink sink;
        EXPECT_TRUE(decode(slide, sink));
        EXPECT_EQ(sink.lines.size(), 1u) << std::hex << stopper;
    }
    // The end record closing a full fill list is the end test's word.
    SlideBuilder fill;
    fill.header(2, 10, 10).fillRecord(1, -1).fillRecord(5, 5).word(0xFC00).word(0).word(0).color(1);
    RecordingSink sink;
    EXPECT_TRUE(decode(fill, sink));
    EXPECT_TRUE(sink.polygons.size() == 1u && sink.colors.empty());
}

TEST(ZemSlideDecoder, NothingIsReportedWithoutAReadableHeader)
{
    SlideBuilder slide;
    slide.header(3, 10, 10).color(1).end();
    RecordingSink sink;
    EXPECT_FALSE(decode(slide, sink));
    EXPECT_TRUE(sink.width == -1 && sink.colors.empty());
}
