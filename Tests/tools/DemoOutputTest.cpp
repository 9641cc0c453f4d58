#include "ToolsTestSupport.h"
#include "ZemDemoDrawings.h"
#include "ZemGDX.h"

#include <gtest/gtest.h>

using namespace toolstest;

namespace {

const wchar_t kSlideName[] = L"LTPM";

std::wstring slideLibrary() { return (slides() / L"autolisp-cn" / L"xyp1964.slb").wstring(); }

// Records each item leaves in a metafile, by the drawing rules: a pen for
// every shown item; for a point one more, a filled square, or a circle or a
// frame and a dot; for a region a pen for fill or hatch and one for the
// outline; for a text one polygon a glyph and an outline pen a glyph; for a
// picture one blit. A polyline draws at least one line for each vertex that
// isn't a single point.
struct Expected {
    int pens = 0, polygons = 0, ellipses = 0, rectangles = 0, blits = 0, vertices = 0;
};

void expectPoint(const CZemGDX& list, int i, Expected& e)
{
    const unsigned long mode = list.pdModeGet(i);
    ++e.pens;
    if (mode & 8) {
        ++e.rectangles;
        return;
    }
    e.ellipses += ((mode & 32) != 0) + ((mode & 7) == 0);
    e.rectangles += (mode & 64) != 0;
}

Expected expectedRecords(const CZemGDX& list)
{
    Expected e;
    for (int i = 0; i < list.lenGet(); ++i) {
        const unsigned long flags = list.flagGet(i);
        if (flags & GDX_HIDE)
            continue;
        ++e.pens;
        CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> glyphs;
        CZemVertexArray vl;
        switch (list.typeGet(i)) {
        case GDX_VL:
            list.geomGet(vl, i);
            for (int k = 0; k < vl.len(); ++k)
                e.vertices += vl[k].m_start != vl[k].m_end;
            break;
        case GDX_PT: expectPoint(list, i, e); break;
        case GDX_REG: e.pens += ((flags & (GDX_FILL | GDX_HATCH)) != 0) + ((flags & GDX_EDGE) != 0); break;
        case GDX_TXT:
            list.geomGet(glyphs, i);
            e.polygons += flags & GDX_FILL ? glyphs.len() : 0;
            e.pens += flags & GDX_EDGE ? glyphs.len() : 0;
            break;
        case GDX_PICTURE: ++e.blits; break;
        default: break;
        }
    }
    return e;
}

}  // namespace

// Every drawing is a metafile and a picture of its size, and the same lists
// built here give the records the demo's metafiles hold.
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
        EXPECT_GT(picture.inked(0, 0, picture.width - 1, picture.height - 1), picture.width * picture.height / 200);

        const Metafile emf = readMetafile(folder / (name + ".emf"));
        ASSERT_TRUE(emf.read);
        EXPECT_LE(emf.header.rclBounds.right, drawing.width) << "nothing beyond the clip";
        EXPECT_LE(emf.header.rclBounds.bottom, drawing.height);
        CZemGDX list;
        std::wstring error;
        ASSERT_TRUE(drawing.build(list, drawing, inputs, error)) << error;
        const Expected e = expectedRecords(list);
        EXPECT_EQ(emf.count(EMR_CREATEPEN), e.pens);
        EXPECT_EQ(emf.count(EMR_POLYGON) + emf.count(EMR_POLYGON16), e.polygons);
        EXPECT_EQ(emf.count(EMR_ELLIPSE), e.ellipses);
        EXPECT_EQ(emf.count(EMR_RECTANGLE), e.rectangles);
        EXPECT_EQ(emf.count(EMR_BITBLT), e.blits);
        EXPECT_EQ(emf.count(EMR_MOVETOEX), emf.count(EMR_LINETO)) << "lines go as pairs";
        EXPECT_GE(emf.count(EMR_LINETO), e.vertices) << "at least one line a polyline vertex";
    }
}

TEST(DemoRun, WithoutALibraryTheSlideIsLeftOutAndAMissingSlideFails)
{
    const std::filesystem::path folder = freshFolder(L"tools-demo-plain");
    const ProgramRun plain = run(ZEM_ZEMDEMO_EXE, {folder.wstring()});
    EXPECT_EQ(plain.exitCode, 0u) << plain.output;
    EXPECT_TRUE(std::filesystem::exists(folder / L"plan.png"));
    EXPECT_FALSE(std::filesystem::exists(folder / L"slide.emf"));
    EXPECT_NE(plain.output.find("skipped"), std::string::npos) << plain.output;

    const ProgramRun missing = run(ZEM_ZEMDEMO_EXE, {folder.wstring(), slideLibrary(), L"NO-SUCH-SLIDE"});
    EXPECT_EQ(missing.exitCode, 1u) << missing.output;
    EXPECT_NE(missing.output.find("NO-SUCH-SLIDE"), std::string::npos) << missing.output;
    EXPECT_EQ(run(ZEM_ZEMDEMO_EXE, {}).exitCode, 2u) << "usage";
}
