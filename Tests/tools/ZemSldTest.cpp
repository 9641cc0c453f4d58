#include "ToolsTestSupport.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

using namespace toolstest;

namespace {

// The raster size in a slide's header (words low byte first in every sample
// file), and the picture zemsld makes of it: the longer side 1024 pixels.
void pictureSize(const std::vector<unsigned char>& slide, int& width, int& height)
{
    const double w = slide[19] | slide[20] << 8, h = slide[21] | slide[22] << 8;
    width = w >= h ? 1024 : static_cast<int>(std::lround(1024 * w / h));
    height = w >= h ? static_cast<int>(std::lround(1024 * h / w)) : 1024;
}

int filesEndingIn(const std::filesystem::path& folder, const wchar_t* ending)
{
    int n = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        n += file.path().extension() == ending;
    return n;
}

// The full vectors of a slide that has no other records than full vectors,
// colours and its end, counted straight from its bytes; and those of them
// whose ends differ.
int fullVectors(const std::vector<unsigned char>& slide, int& lines)
{
    int vectors = 0;
    lines = 0;
    for (size_t at = 31; at + 1 < slide.size();) {
        const unsigned char high = slide[at + 1];
        if (high == 0xFC)
            break;
        if (high == 0xFF) {
            at += 2;
            continue;
        }
        EXPECT_LE(high, 0x7F) << "record at " << at;
        ++vectors;
        lines += slide[at] != slide[at + 4] || slide[at + 1] != slide[at + 5] || slide[at + 2] != slide[at + 6] ||
                 slide[at + 3] != slide[at + 7];
        at += 8;
    }
    return vectors;
}

}  // namespace

TEST(ZemSld, EverySampleSlideFileBecomesAMetafileAndAPictureOfItsProportions)
{
    int files = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(slides())) {
        std::wstring ext = file.path().extension().wstring();
        if (ext != L".sld" && ext != L".SLD")
            continue;
        ++files;
        const std::filesystem::path folder = freshFolder(L"tools-sld");
        const ProgramRun done = run(ZEM_ZEMSLD_EXE, {file.path().wstring(), folder.wstring()});
        ASSERT_EQ(done.exitCode, 0u) << file.path() << done.output;
        const std::filesystem::path stem = folder / file.path().stem();
        EXPECT_TRUE(readMetafile(stem.wstring() + L".emf").read) << file.path();
        int width = 0, height = 0;
        pictureSize(readBytes(file.path()), width, height);
        const Picture picture = decodePng(stem.wstring() + L".png");
        EXPECT_TRUE(picture.width == width && picture.height == height) << file.path();
    }
    EXPECT_EQ(files, 21);
}

// One pen for every vector of a slide of full vectors, and one line pair for
// every vector that isn't a single point (a vector item of one vertex is one
// run, so a point of it is no dot and draws nothing).
TEST(ZemSld, AVectorSlideDrawsOneLineAndOnePenAVector)
{
    const std::filesystem::path input = slides() / L"dos-era" / L"ab30-02c.sld";
    const std::filesystem::path folder = freshFolder(L"tools-sld");
    ASSERT_EQ(run(ZEM_ZEMSLD_EXE, {input.wstring(), folder.wstring()}).exitCode, 0u);
    int lines = 0;
    const int vectors = fullVectors(readBytes(input), lines);
    const Metafile emf = readMetafile(folder / L"ab30-02c.emf");
    EXPECT_GT(vectors, 100);
    EXPECT_LT(lines, vectors) << "the sample has vectors of no length";
    EXPECT_TRUE(emf.count(EMR_MOVETOEX) == lines && emf.count(EMR_LINETO) == lines);
    EXPECT_EQ(emf.count(EMR_CREATEPEN), vectors);
}

// A copy cut in its records is drawn as far as it goes and reported; one cut
// in its header, or a file of other bytes, is unreadable.
TEST(ZemSld, TruncatedAndForeignInputGetTheirOwnExitCodes)
{
    const std::filesystem::path folder = freshFolder(L"tools-sld-cut");
    const std::vector<unsigned char> whole = readBytes(slides() / L"dos-era" / L"PPC.SLD");
    ASSERT_GT(whole.size(), 1000u);
    const std::filesystem::path half = folder / L"half.sld", head = folder / L"head.sld", text = folder / L"text.sld";
    writeBytes(half, whole.data(), whole.size() / 2);
    writeBytes(head, whole.data(), 25);
    writeBytes(text, reinterpret_cast<const unsigned char*>("AutoCAD? no, a note.\r\n"), 22);
    const std::filesystem::path out = folder / L"out";

    const ProgramRun cut = run(ZEM_ZEMSLD_EXE, {half.wstring(), out.wstring()});
    EXPECT_EQ(cut.exitCode, 3u) << cut.output;
    EXPECT_NE(cut.output.find("breaks off"), std::string::npos) << cut.output;
    const Metafile drawn = readMetafile(out / L"half.emf");
    ASSERT_EQ(run(ZEM_ZEMSLD_EXE, {(slides() / L"dos-era" / L"PPC.SLD").wstring(), out.wstring()}).exitCode, 0u);
    const Metafile full = readMetafile(out / L"PPC.emf");
    const int lines = drawn.count(EMR_LINETO), all = full.count(EMR_LINETO);
    EXPECT_TRUE(lines > all / 4 && lines < all) << "the first half is drawn, and not more";

    EXPECT_EQ(run(ZEM_ZEMSLD_EXE, {head.wstring(), out.wstring()}).exitCode, 2u);
    EXPECT_FALSE(std::filesystem::exists(out / L"head.emf"));
    EXPECT_EQ(run(ZEM_ZEMSLD_EXE, {text.wstring(), out.wstring()}).exitCode, 2u);
    EXPECT_EQ(run(ZEM_ZEMSLD_EXE, {(folder / L"absent.sld").wstring(), out.wstring()}).exitCode, 2u);
    EXPECT_EQ(run(ZEM_ZEMSLD_EXE, {half.wstring()}).exitCode, 1u) << "usage";
}

// Every slide of a library is converted; a library cut inside its slides
// keeps the slides before the cut.
TEST(ZemSld, ALibraryWholeAndTruncated)
{
    const std::filesystem::path folder = freshFolder(L"tools-slb-cut");
    const std::filesystem::path source = slides() / L"autolisp-cn" / L"LISP.SLB";
    const std::vector<unsigned char> whole = readBytes(source);
    std::ifstream stream(source, std::ios::binary);
    const std::vector<CZemSlideLibrary::Entry> entries = CZemSlideLibrary::directory(stream);
    ASSERT_EQ(entries.size(), 22u);
    const ProgramRun all = run(ZEM_ZEMSLD_EXE, {source.wstring(), (folder / L"all").wstring()});
    EXPECT_EQ(all.exitCode, 0u) << all.output;
    EXPECT_TRUE(filesEndingIn(folder / L"all", L".emf") == 22 && filesEndingIn(folder / L"all", L".png") == 22);
    // Cut in the middle of the tenth slide.
    const size_t cut = entries[9].offset + entries[9].length / 2;
    const std::filesystem::path copy = folder / L"cut.slb";
    writeBytes(copy, whole.data(), cut);
    const ProgramRun done = run(ZEM_ZEMSLD_EXE, {copy.wstring(), (folder / L"out").wstring()});
    EXPECT_EQ(done.exitCode, 3u) << done.output;
    EXPECT_EQ(filesEndingIn(folder / L"out", L".png"), 10) << "nine whole slides and the cut one";
    EXPECT_NE(done.output.find("beyond the end"), std::string::npos) << done.output;
}
