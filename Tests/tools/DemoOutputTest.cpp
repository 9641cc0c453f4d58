#include "ToolsTestSupport.h"
#include "ZemDemoDrawings.h"
#include "ZemGDX.h"
#include "ZemViewMatrix.h"

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

class DemoOutput : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_folder = new std::filesystem::path(freshFolder(L"tools-demo"));
        s_run = new ProgramRun(run(ZEM_ZEMDEMO_EXE, {s_folder->wstring(), slideLibrary(), kSlideName}));
    }
    static void TearDownTestSuite()
    {
        delete s_run;
        delete s_folder;
    }

    static std::filesystem::path* s_folder;
    static ProgramRun* s_run;
};

std::filesystem::path* DemoOutput::s_folder = nullptr;
ProgramRun* DemoOutput::s_run = nullptr;

}  // namespace

TEST_F(DemoOutput, EveryDrawingIsAMetafileAndAPictureOfItsSize)
{
    ASSERT_EQ(s_run->exitCode, 0u) << s_run->output;
    for (const ZemDemoDrawing& drawing : zem_demo_drawings()) {
        const std::filesystem::path base = *s_folder / drawing.name;
        const Metafile emf = readMetafile(base.wstring() + L".emf");
        ASSERT_TRUE(emf.read) << base;
        EXPECT_EQ(emf.header.iType, static_cast<DWORD>(EMR_HEADER));
        EXPECT_EQ(emf.header.dSignature, static_cast<DWORD>(ENHMETA_SIGNATURE));
        EXPECT_EQ(static_cast<long long>(emf.header.nBytes), emf.fileBytes) << base;
        EXPECT_EQ(static_cast<int>(emf.header.nRecords), emf.total()) << base;
        EXPECT_EQ(emf.count(EMR_EOF), 1) << base;
        EXPECT_LE(emf.header.rclBounds.right, drawing.width) << "nothing beyond the clip";
        EXPECT_LE(emf.header.rclBounds.bottom, drawing.height);
        int width = 0, height = 0;
        ASSERT_TRUE(pngSize(base.wstring() + L".png", width, height)) << base;
        EXPECT_EQ(width, drawing.width);
        EXPECT_EQ(height, drawing.height);
        const Picture picture = decodePng(base.wstring() + L".png");
        ASSERT_EQ(picture.width, drawing.width) << "the platform decodes it";
        EXPECT_GT(picture.inked(0, 0, width - 1, height - 1), width * height / 200) << base << " shows a drawing";
        // The demo reports every file it wrote.
        EXPECT_NE(s_run->output.find(std::string(drawing.name, drawing.name + wcslen(drawing.name)) + ".png"),
                  std::string::npos);
    }
}

// The same lists built here give the records the demo's metafiles hold.
TEST_F(DemoOutput, RecordCountsFollowTheItemsOfEachList)
{
    ASSERT_EQ(s_run->exitCode, 0u) << s_run->output;
    const ZemDemoInputs inputs = {s_folder->wstring(), slideLibrary(), kSlideName};
    for (const ZemDemoDrawing& drawing : zem_demo_drawings()) {
        CZemGDX list;
        std::wstring error;
        ASSERT_TRUE(drawing.build(list, drawing, inputs, error)) << error;
        const Expected e = expectedRecords(list);
        const Metafile emf = readMetafile(s_folder->wstring() + L"\\" + drawing.name + L".emf");
        SCOPED_TRACE(testing::Message() << "drawing " << std::string(drawing.name, drawing.name + wcslen(drawing.name))
                                        << " of " << list.lenGet() << " items");
        EXPECT_EQ(emf.count(EMR_CREATEPEN), e.pens);
        EXPECT_EQ(emf.count(EMR_POLYGON) + emf.count(EMR_POLYGON16), e.polygons);
        EXPECT_EQ(emf.count(EMR_ELLIPSE), e.ellipses);
        EXPECT_EQ(emf.count(EMR_RECTANGLE), e.rectangles);
        EXPECT_EQ(emf.count(EMR_BITBLT), e.blits);
        EXPECT_EQ(emf.count(EMR_MOVETOEX), emf.count(EMR_LINETO)) << "lines go as pairs";
        EXPECT_GE(emf.count(EMR_LINETO), e.vertices) << "at least one line a polyline vertex";
    }
}

// The sheet's border, fitted by the view the metafile output uses, lies in
// the picture where the drawing put it: the picture is not stretched.
TEST_F(DemoOutput, ThePlanPictureKeepsTheMetafilesPixels)
{
    ASSERT_EQ(s_run->exitCode, 0u) << s_run->output;
    const ZemDemoDrawing& plan = zem_demo_drawings()[0];
    CZemGDX list;
    std::wstring error;
    const ZemDemoInputs inputs = {s_folder->wstring(), L"", L""};
    ASSERT_TRUE(plan.build(list, plan, inputs, error));
    CZemPoint3d lo, hi;
    list.extMaxViewGet(lo, hi);
    const CZemMatrix3d view = getViewMtx(lo, hi, plan.height, plan.width, 0.05);
    const CZemPoint3d corner0 = lo * view, corner1 = hi * view;
    const Picture picture = decodePng(s_folder->wstring() + L"\\plan.png");
    ASSERT_EQ(picture.width, plan.width);
    const int left = static_cast<int>(corner0.x), right = static_cast<int>(corner1.x);
    const int top = static_cast<int>(corner1.y), bottom = static_cast<int>(corner0.y);
    const int midX = (left + right) / 2, midY = (top + bottom) / 2;
    EXPECT_GT(picture.inked(midX - 20, top - 1, midX + 20, top + 1), 35) << "top edge at y " << top;
    EXPECT_GT(picture.inked(midX - 20, bottom - 1, midX + 20, bottom + 1), 35) << "bottom edge at y " << bottom;
    EXPECT_GT(picture.inked(left - 1, midY - 20, left + 1, midY + 20), 35) << "left edge at x " << left;
    EXPECT_GT(picture.inked(right - 1, midY - 20, right + 1, midY + 20), 35) << "right edge at x " << right;
    EXPECT_EQ(picture.inked(0, 0, picture.width - 1, top - 4), 0) << "the margin above is blank";
    EXPECT_EQ(picture.inked(0, 0, left - 4, picture.height - 1), 0) << "the margin at the left is blank";
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
