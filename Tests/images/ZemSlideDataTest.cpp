#include "SlideTestSupport.h"
#include "ZemSlideData.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <sstream>

using slidetest::Slide;
using slidetest::SlideBuilder;
using slidetest::library;

namespace {

CZemSlideData held(const std::vector<unsigned char>& bytes)
{
    CZemSlideData data;
    data.assign(bytes.data(), static_cast<long>(bytes.size()));
    return data;
}

std::vector<unsigned char> slideOfColor(int color) { return SlideBuilder().header(2, 100, 100).color(color).end().bytes(); }

}  // namespace

TEST(ZemSlideData, ReadsStopAtTheEndOfTheData)
{
    CZemSlideData data = held({0x34, 0x12, 0xAB});
    EXPECT_EQ(data.getUInt16(), 0x1234);
    EXPECT_EQ(data.getUInt16(), CZemSlideData::kEndOfData) << "one byte left is no word";
    unsigned char block[2] = {7, 7};
    EXPECT_EQ(data.getBlk(block, 2), -1);
    EXPECT_EQ(block[0], 7) << "a block that doesn't fit is not copied";
    EXPECT_EQ(data.getByte(), 0xAB);
    EXPECT_EQ(data.getByte(), 0);
    EXPECT_EQ(data.pos(), 3u);
    ASSERT_TRUE(data.assign(data.bytes() + 1, 2)) << "its own bytes";
    EXPECT_EQ(data.getUInt16(), 0xAB12);

    // No bytes: the count stands, but nothing is held and nothing is read.
    EXPECT_FALSE(data.assign(nullptr, 40));
    EXPECT_TRUE(!data.hasSlide() && data.size() == 40u);
    EXPECT_EQ(data.getUInt16(), CZemSlideData::kEndOfData);
}

TEST(ZemSlideData, TheTestNumberSetsTheByteOrder)
{
    // A writer that stores high byte first has the test number 0x3412 (both
    // orders are decoded in the decoder's tests).
    CZemSlideData high = held(SlideBuilder(true).header(2, 0x0102, 0x0304).bytes());
    ASSERT_TRUE(high.readHeader());
    EXPECT_TRUE(high.testNo() == 0x3412 && high.pos() == 31u);
    // Any other test number: sizes high byte first, records low byte first.
    std::vector<unsigned char> odd = SlideBuilder(false).header(2, 0x0102, 0x0304).word(0xFF05).bytes();
    odd[29] = 0x78;
    odd[30] = 0x56;
    CZemSlideData other = held(odd);
    ASSERT_TRUE(other.readHeader());
    EXPECT_TRUE(other.width() == 0x0201 && other.height() == 0x0403);
    EXPECT_EQ(other.getUInt16(), 0xFF05);
}

TEST(ZemSlideData, HeaderLevels)
{
    CZemSlideData old = held(SlideBuilder(false).header(1, 640, 480).word(0xFF01).bytes());
    ASSERT_TRUE(old.readHeader());
    EXPECT_EQ(old.pos(), 34u) << "a level-1 header is 34 bytes";
    EXPECT_TRUE(old.width() == 640 && old.height() == 480);
    EXPECT_EQ(old.getUInt16(), 0xFF01) << "level 1 reads low byte first";

    std::vector<unsigned char> bytes = SlideBuilder(false).header(2, 10, 10).end().bytes();
    for (int level : {0, 3}) {
        bytes[18] = static_cast<unsigned char>(level);
        EXPECT_FALSE(held(bytes).readHeader()) << "level " << level;
    }
    EXPECT_FALSE(held(std::vector<unsigned char>(bytes.begin(), bytes.begin() + 22)).readHeader())
        << "shorter than the common header part";

    // A header cut after the level leaves no records to read.
    bytes[18] = 2;
    CZemSlideData cut = held(std::vector<unsigned char>(bytes.begin(), bytes.begin() + 27));
    ASSERT_TRUE(cut.readHeader());
    EXPECT_EQ(cut.width(), 10);
    EXPECT_EQ(cut.getUInt16(), CZemSlideData::kEndOfData);
}

TEST(ZemSlideLibrary, FindsSlidesByNameInAnyCase)
{
    const std::vector<Slide> slides = {{"DOOR", slideOfColor(1)}, {"Window_2", slideOfColor(2)}};
    std::istringstream in(library(slides));
    CZemSlideData data;
    ASSERT_TRUE(data.loadFromLibrary(in, "window_2"));
    EXPECT_EQ(std::vector<unsigned char>(data.bytes(), data.bytes() + data.size()), slides[1].bytes)
        << "the last slide runs to the end of the file";
    ASSERT_TRUE(data.loadFromLibrary(in, "door"));
    EXPECT_EQ(data.size(), slides[0].bytes.size()) << "a slide runs up to the next entry's offset";
    EXPECT_FALSE(data.loadFromLibrary(in, "WINDOW"));
    EXPECT_FALSE(data.hasSlide()) << "a failed lookup leaves nothing held";
    EXPECT_FALSE(data.loadFromLibrary(in, nullptr));
    EXPECT_FALSE(data.loadFromLibrary(in, std::string(32, 'D').c_str())) << "names have fewer than 32 bytes";
}

TEST(ZemSlideLibrary, DamagedDirectoriesGiveDefinedResults)
{
    const std::vector<Slide> slides = {{"A", slideOfColor(1)}, {"B", slideOfColor(2)}};
    // No empty entry: the directory runs into the first slide's bytes, whose
    // identification reads as a name; the real entries stay usable.
    std::istringstream open(library(slides, false));
    CZemSlideData data;
    EXPECT_TRUE(data.loadFromLibrary(open, "a"));
    EXPECT_FALSE(data.loadFromLibrary(open, "C"));

    // Offsets beyond the end of the file: nothing to read.
    std::istringstream beyond(library(slides, true, 100000));
    EXPECT_FALSE(data.loadFromLibrary(beyond, "B"));
    EXPECT_TRUE(CZemSlideLibrary::directory(beyond)[1].length == 0);

    // A file cut inside the directory or just after the identification.
    const std::string whole = library(slides);
    for (std::size_t cut : {std::size_t(31), std::size_t(32 + 35), std::size_t(32 + 36 + 20)}) {
        std::istringstream in(whole.substr(0, cut));
        EXPECT_FALSE(data.loadFromLibrary(in, "B")) << "cut at " << cut;
    }
    // A library cut inside its last slide hands out what is there.
    std::istringstream cut(whole.substr(0, whole.size() - 3));
    ASSERT_TRUE(data.loadFromLibrary(cut, "B"));
    EXPECT_EQ(data.size(), slides[1].bytes.size() - 3);
}
