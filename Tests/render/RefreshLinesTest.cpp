#include "RenderTestSupport.h"
#include "ZemLineTypeTable.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace rendertest;

namespace {

std::vector<double> values(const CZemArrayTempl<double>& a) { return {a.data(), a.data() + a.len()}; }

// Horizontal dashes from left to right, touching pieces joined into one.
std::vector<Segment> joined(std::vector<Segment> pieces)
{
    std::sort(pieces.begin(), pieces.end(), [](const Segment& a, const Segment& b) { return a.from.x < b.from.x; });
    std::vector<Segment> out;
    for (const Segment& s : pieces) {
        if (!out.empty() && out.back().to.x == s.from.x)
            out.back().to = s.to;
        else
            out.push_back(s);
    }
    return out;
}

}  // namespace

TEST(LineTypeTable, StoredShortFormsBecomeScaledPatternsWithDotsOfFixedLength)
{
    using V = std::vector<double>;
    EXPECT_EQ(values(zem_gdx_linetype_draw(doubles({1.0}), 2.0, 0.21)), V{});
    EXPECT_EQ(values(zem_gdx_linetype_draw(doubles({1.0, 1.0, 1.0}), 1.0, 0.21)), (V{11.0, -5.0, 0.21, -5.0}));
    EXPECT_EQ(values(zem_gdx_linetype_draw(doubles({5.0, -2.0, 0.0}), 3.0, 0.5)), (V{15.0, -6.0, 0.5}));
}

// D turns a quarter about (50, 50): (x, y) -> (100 - y, x); I moves 10 in x.
// The polyline takes D first, the point I first; size -10 mirrors the tick.
TEST(RefreshLines, PolylinesTakeTheViewDirectionBeforeTheirMatrixAndPointsAfter)
{
    CZemGDX list = makeList();
    CZemMatrix3d turn, move;
    turn.setToRotation(3.14159265358979323846 / 2, CZemVector3d::kZAxis, CZemPoint3d(50, 50, 0));
    move.setToTranslation(CZemVector3d(10, 0, 0));
    list.viewDirectionMtxSet(turn);
    list.imageVl(stack(1), 0, polyline({{20, 30, 0}, {20, 60, 0}}), ole(kBlue), move, doubles({1.0}), 1.0, 0);
    list.imagePt(stack(2), 0, CZemPoint3d(20, 30, 0), ole(kBlue), move, -10.0, 4);
    EXPECT_EQ(refreshed(list).segments(), (std::vector<Segment>{{{85, 85}, {55, 85}}, {{75, 75}, {75, 80}}}));
}

// Dash fitting starts and ends each vertex with half a dash and widens the
// gaps so that whole repetitions fit. At 220 pixels a list unit is 2 pixels.
TEST(RefreshLines, DashedLineIsFittedWithHalfDashesAtBothEnds)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{0, 50, 0}, {100, 50, 0}}), doubles({1.0, 1.0, 0.0}));
    const std::vector<Segment> dashes = joined(refreshed(list, L"dashes.emf", 220, 220).segments());
    ASSERT_GE(dashes.size(), 5u);
    EXPECT_NEAR(dashes.front().from.x, 10, 1);
    EXPECT_NEAR(dashes.back().to.x, 210, 1);
    const int gap = dashes[1].from.x - dashes[0].to.x;
    EXPECT_GE(gap, 8);
    for (size_t k = 1; k < dashes.size(); ++k) {
        if (k + 1 < dashes.size()) {
            EXPECT_NEAR(dashes[k].to.x - dashes[k].from.x, 20, 1) << dashes[k];
        }
        EXPECT_NEAR(dashes[k].from.x - dashes[k - 1].to.x, gap, 1) << dashes[k];
    }
}

TEST(RefreshLines, ShortPiecesAreOnePixelDotsUnlessThePolylineIsOneRun)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{0, 50, 0}, {100, 50, 0}}), doubles({0.0, 0.0, 1.0}), 2.0, 5);
    const Emf dotted = refreshed(list);
    const std::vector<Segment> dots = dotted.segments();
    ASSERT_GE(dots.size(), 10u);
    for (size_t k = 0; k < dots.size(); ++k) {
        EXPECT_EQ(dots[k], (Segment{dots[k].from, {dots[k].from.x + 1, dots[k].from.y}}));
        if (k > 0) {
            EXPECT_NEAR(dots[k].from.x - dots[k - 1].from.x, 8.5, 1.0) << "a dot and a gap of 8";
        }
    }
    EXPECT_EQ(dotted.count(EMR_POLYLINE) + dotted.count(EMR_POLYLINE16), 0);

    CZemGDX runs = makeList();
    addLine(runs, polyline({{10, 10, 0}, {10.1, 10, 0}, {50, 10, 0}}));
    CZemVertexArray pieces;
    pieces.append(CZemVertex({10, 20, 0}, {10.1, 20, 0}, 0)).append(CZemVertex({20, 20, 0}, {50, 20, 0}, 0));
    addLine(runs, pieces);
    EXPECT_EQ(refreshed(runs).segments(), (std::vector<Segment>{{{15, 95}, {15, 95}}, {{15, 95}, {55, 95}},
                                                                {{15, 85}, {16, 85}}, {{25, 85}, {55, 85}}}));
}

TEST(RefreshLines, ColourModesPickThePenAndWhiteLinesComeOutBlack)
{
    CZemGDX list = makeList();
    const COLORREF inverse = RGB(255, 255, 127);
    list.backColorSet(ole(RGB(0, 0, 128)));
    list.ColorTabSet(GDX_CM_AXIS, ole(kRed));
    const CZemVertexArray vl = polyline({{0, 0, 0}, {10, 10, 0}});
    addLine(list, vl, doubles({1.0}), 1.0, 3, 0, kWhite);
    list.imageVl(stack(1), 0, vl, CZemColor().setColorIndex(-1), CZemMatrix3d::kIdentity, doubles({1.0}), 1.0, 0);
    addLine(list, vl, doubles({1.0}), 1.0, 0, GDX_CM_AXIS << 8);
    addLine(list, vl, doubles({1.0}), 1.0, 0, GDX_CM_CONTRAST << 8);
    addLine(list, vl, doubles({1.0}), 1.0, 7, GDX_HIDE);

    std::vector<std::pair<COLORREF, LONG>> pens;
    for (const LOGPEN& pen : refreshed(list).pens()) pens.emplace_back(pen.lopnColor, pen.lopnWidth.x);
    EXPECT_EQ(pens, (std::vector<std::pair<COLORREF, LONG>>{{kBlack, 3}, {inverse, 0}, {kRed, 0}, {inverse, 0}}))
        << "a hidden item makes no pen";
}

// A point at (50, 50) lies at device (55, 55); size 10 at scale 1 gives
// r = 5. The records hold a box with its last pixel.
TEST(RefreshPoints, EachStyleDrawsItsFramesAndFigure)
{
    const struct {
        unsigned long mode;
        int ellipses, rectangles;
        std::vector<POINT> spokes;
    } cases[] = {
        {0, 1, 0, {}},
        {2, 0, 0, {{55, 50}, {55, 60}, {60, 55}, {50, 55}}},
        {32 | 4, 1, 0, {{55, 50}}},
        {64 | 1, 0, 1, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "mode " << c.mode);
        CZemGDX list = makeList();
        list.imagePt(stack(1), 0, CZemPoint3d(50, 50, 0), ole(kBlue), CZemMatrix3d::kIdentity, 10.0, c.mode);
        const Emf emf = refreshed(list);
        EXPECT_TRUE(emf.count(EMR_ELLIPSE) == c.ellipses && emf.count(EMR_RECTANGLE) == c.rectangles);
        std::vector<Segment> expected;
        for (const POINT& end : c.spokes) expected.push_back({{55, 55}, end});
        EXPECT_EQ(emf.segments(), expected);
        const int r = c.mode == 0 ? 1 : 5;
        for (const Record* shape : emf.ofType(c.ellipses ? EMR_ELLIPSE : EMR_RECTANGLE)) {
            const RECTL& box = shape->as<EMRRECTANGLE>().rclBox;
            EXPECT_EQ(std::vector<LONG>({box.left, box.top, box.right, box.bottom}),
                      std::vector<LONG>({55 - r, 55 - r, 55 + r - 1, 55 + r - 1}));
        }
        EXPECT_EQ(emf.pens().back().lopnWidth.x, 1);
    }

    CZemGDX zoomed = makeList();
    zoomed.imagePt(stack(1), 0, CZemPoint3d(50, 50, 0), ole(kBlue), CZemMatrix3d::kIdentity, 10.0, 4);
    EXPECT_EQ(refreshed(zoomed, L"zoomed.emf", 220, 220).segments(), (std::vector<Segment>{{{110, 110}, {110, 100}}}))
        << "a positive size follows the view";
}
