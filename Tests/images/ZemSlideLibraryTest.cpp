#include "SlideTestSupport.h"
#include "ZemSlideData.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <sstream>

using slidetest::Slide;
using slidetest::SlideBuilder;
using slidetest::library;

namespace {

std::vector<unsigned char> slideOfColor(int color)
{
    return SlideBuilder().header(2, 100, 100).color(color).end().bytes();
}

}  // namespace

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
