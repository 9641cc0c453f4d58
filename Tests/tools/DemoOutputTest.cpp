#include "ToolsTestSupport.h"
#include "ZemDemoDrawings.h"
#include "ZemGDX.h"

#include <gtest/gtest.h>

using namespace toolstest;

namespace {

const wchar_t kSlideName[] = L"LTPM";

std::wstring slideLibrary() { return (slides() / L"autolisp-cn" / L"xyp1964.slb").wstring(); }

// What the records of a metafile must hold for a list: one blit a shown
// picture, and at least one line for each polyline vertex that isn't a
// single point.
void expectedRecords(const CZemGDX& list, int& blits, int& vertices)
{
    blits = vertices = 0;
    for (int i = 0; i < list.lenGet(); ++i) {
        if (list.flagGet(i) & GDX_HIDE)
            continue;
        CZemVertexArray vl;
        if (list.typeGet(i) == GDX_VL) {
            list.geomGet(vl, i);
            for (int k = 0; k < vl.len(); ++k)
                vertices += vl[k].m_start != vl[k].m_end;
        }
        blits += list.typeGet(i) == GDX_PICTURE;
    }
}

}  // namespace

// Every drawing is a metafile and a picture of its size, and the same lists
// built here give the lines and blits the demo's metafiles hold.
TEST(DemoOutput, EveryDrawingIsAPictureOfItsSizeAndHasTheRecordsOfItsItems)
{
    const std::filesystem::path folder = freshFolder(L"tools-demo");
    const ProgramRun done = run(ZEM_ZEMDEMO_EXE, {folder.wstring(), slideLibrary(), kSlideName});
    ASSERT_EQ(done.exitCode, 0u) << done.output;
    const ZemDemoInputs inputs = {folder.wstring(), slideLibrary(), kSlideName};
    for (const ZemDemoDrawing& drawing : zem_demo_drawings()) {
        const std::string name(drawing.name, drawing.name + wcslen(drawing.name));
        SCOPED_TRACE(name);
        EXPECT_NE(done.output.find(name + ".png"), std::string::npos) << "the demo reports every file it wrote";
        const Picture picture = decodePng(folder / (name + ".png"));
        ASSERT_EQ(picture.width, drawing.width);
        EXPECT_EQ(picture.height, drawing.height);
        EXPECT_GT(picture.inked(), picture.width * picture.height / 200);

        const Metafile emf = readMetafile(folder / (name + ".emf"));
        ASSERT_TRUE(emf.read);
        EXPECT_TRUE(emf.header.rclBounds.right <= drawing.width && emf.header.rclBounds.bottom <= drawing.height)
            << "nothing beyond the clip";
        CZemGDX list;
        std::wstring error;
        ASSERT_TRUE(drawing.build(list, drawing, inputs, error)) << error;
        int blits = 0, vertices = 0;
        expectedRecords(list, blits, vertices);
        EXPECT_EQ(emf.count(EMR_BITBLT), blits);
        EXPECT_EQ(emf.count(EMR_MOVETOEX), emf.count(EMR_LINETO)) << "lines go as pairs";
        EXPECT_GE(emf.count(EMR_LINETO), vertices) << "at least one line a polyline vertex";
    }
}

TEST(DemoRun, WithoutALibraryTheSlideIsLeftOutAndAMissingSlideFails)
{
    const std::filesystem::path folder = freshFolder(L"tools-demo-plain");
    const ProgramRun plain = run(ZEM_ZEMDEMO_EXE, {folder.wstring()});
    EXPECT_EQ(plain.exitCode, 0u) << plain.output;
    EXPECT_TRUE(std::filesystem::exists(folder / L"plan.png") && !std::filesystem::exists(folder / L"slide.emf"));
    EXPECT_NE(plain.output.find("skipped"), std::string::npos) << plain.output;

    const ProgramRun missing = run(ZEM_ZEMDEMO_EXE, {folder.wstring(), slideLibrary(), L"NO-SUCH-SLIDE"});
    EXPECT_EQ(missing.exitCode, 1u) << missing.output;
    EXPECT_NE(missing.output.find("NO-SUCH-SLIDE"), std::string::npos) << missing.output;
    EXPECT_EQ(run(ZEM_ZEMDEMO_EXE, {}).exitCode, 2u) << "usage";
}
