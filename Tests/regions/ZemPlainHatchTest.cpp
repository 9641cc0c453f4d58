#include "RegionsTestSupport.h"
#include "ZemBase.h"
#include "ZemHatch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

using regtest::rectangle;
using regtest::regions;

namespace {

const double kPi = 3.14159265358979323846;

double highestY(const CZemArrayTempl<CZemVertexArray>& lines) {
    double top = -HUGE_VAL;
    for (int k = 0; k < lines.len(); ++k) {
        for (int v = 0; v < lines[k].len(); ++v) top = std::max({top, lines[k][v].m_start.y, lines[k][v].m_end.y});
    }
    return top;
}

}  // namespace

TEST(PlainHatch, EmptyRegionSetsAndUnusableSpacingsGiveNothing) {
    const CZemArrayTempl<CZemVertexArray> none;
    EXPECT_EQ(zem_gdx_image_reg_hatch(none, CZemMatrix3d::kIdentity, L"", 0.5, 0.3).len(), 0);
    EXPECT_EQ(zem_gdx_image_reg_hatch(none, CZemMatrix3d::kIdentity, L"DOTS", 0.5, 0.3).len(), 0);
    const auto square = regions({rectangle(0, 0, 10, 10)});
    EXPECT_EQ(zem_gdx_image_reg_hatch(square, CZemMatrix3d::kIdentity, L"", 0.0, 0.3).len(), 0);
    EXPECT_EQ(zem_gdx_image_reg_hatch(square, CZemMatrix3d::kIdentity, L"DOTS", -1.0, 0.3).len(), 0);
    EXPECT_EQ(zem_gdx_image_reg_hatch(square, CZemMatrix3d::kIdentity, L"", NAN, 0.3).len(), 0);
}

TEST(PlainHatch, ContinuousLinesCoverARectangleWithAHoleByAreaOverSpacing) {
    const auto regs = regions({rectangle(0.5, 0.25, 40.5, 20.25), rectangle(10.5, 5.25, 20.5, 12.25)});
    const double spacing = 1.0;
    for (double angle : {0.0, 0.3, kPi / 4.0, -1.1}) {
        const auto lines = zem_gdx_image_reg_hatch(regs, CZemMatrix3d::kIdentity, L"ANSI31", spacing, angle);
        ASSERT_GT(lines.len(), 0) << angle;
        const double area = 40.0 * 20.0 - 10.0 * 7.0;
        const double longest = std::hypot(40.0, 20.0);
        EXPECT_NEAR(regtest::totalLength(lines), area / spacing, longest) << "angle " << angle;
        EXPECT_EQ(regtest::outsidePieces(lines, regs, 1e-7), "") << "angle " << angle;
        for (int k = 0; k < lines.len(); ++k) {
            ASSERT_EQ(lines[k].len(), 1) << "one element per clipped piece";
            const CZemVector3d dir = lines[k][0].m_end - lines[k][0].m_start;
            EXPECT_NEAR(std::fabs(dir.x * std::sin(-angle) - dir.y * std::cos(-angle)), 0.0, 1e-9)
                << "lines run at minus the angle";
        }
    }
}

TEST(PlainHatch, TheStepCountIsTheWholeUnitsSpannedNotDividedBySpacing) {
    const auto tall = regions({rectangle(0.0, 0.0, 30.0, 100.0)});
    const auto lines = zem_gdx_image_reg_hatch(tall, CZemMatrix3d::kIdentity, L"", 0.5, 0.0);
    EXPECT_NEAR(highestY(lines), 49.5, 1e-9) << "100 lines of spacing 0.5 reach half way up";
    EXPECT_EQ(lines.len(), 100) << "the line along the lower edge lies on the contour, which counts as inside";

    const auto coarse = zem_gdx_image_reg_hatch(tall, CZemMatrix3d::kIdentity, L"", 7.0, 0.0);
    std::set<long> rows;
    for (int k = 0; k < coarse.len(); ++k) rows.insert(std::lround(coarse[k][0].m_start.y));
    EXPECT_EQ(rows, (std::set<long>{0, 7, 14, 21, 28, 35, 42, 49, 56, 63, 70, 77, 84, 91, 98}));

    const auto small = regions({rectangle(3.2, 5.1, 3.9, 5.8)});
    EXPECT_EQ(zem_gdx_image_reg_hatch(small, CZemMatrix3d::kIdentity, L"", 0.1, 0.0).len(), 0)
        << "a region within one whole unit has no steps";
}

TEST(PlainHatch, HolesClipButDoNotCountForTheSteps) {
    // Ten units wide and four high: ten steps of 0.25 reach y = 2.25. A band
    // hole 100 units wide would give a hundred steps if it counted.
    const auto withHole = regions({rectangle(0.0, 0.0, 10.0, 4.0), rectangle(-50.0, 1.0, 50.0, 2.0)});
    const auto lines = zem_gdx_image_reg_hatch(withHole, CZemMatrix3d::kIdentity, L"", 0.25, 0.0);
    EXPECT_NEAR(highestY(lines), 2.25, 1e-9);
    EXPECT_EQ(regtest::outsidePieces(lines, withHole, 1e-7), "");
    for (int k = 0; k < lines.len(); ++k) {
        const double y = lines[k][0].m_start.y;
        EXPECT_TRUE(y <= 1.0 || y >= 2.0) << "no line inside the hole, found one at " << y;
    }
}

TEST(PlainHatch, TheCallersRegionsStayAsTheyWere) {
    CZemArrayTempl<CZemVertexArray> regs = regions({rectangle(0, 0, 5, 5)});
    regs[0].revert();
    const CZemPoint3d first = regs[0][0].m_start;
    CZemMatrix3d lift;
    lift.setToTranslation(CZemVector3d(0.0, 0.0, 3.0));
    zem_gdx_image_reg_hatch(regs, lift, L"", 0.5, 0.2);
    EXPECT_EQ(regs[0][0].m_start, first);
}

TEST(PlainHatch, DotsLieInRowsFromEachPiecesStartWhateverTheAngle) {
    const auto regs = regions({rectangle(0.0, 0.0, 10.0, 3.0), rectangle(3.3, -1.0, 4.1, 5.0)});
    const auto dots = zem_gdx_image_reg_hatch(regs, CZemMatrix3d::kIdentity, L"DOTS", 1.0, 0.0);
    const auto turned = zem_gdx_image_reg_hatch(regs, CZemMatrix3d::kIdentity, L"DOTS", 1.0, 1.2);
    ASSERT_EQ(dots.len(), turned.len());
    std::map<long, std::vector<double>> rows;
    for (int k = 0; k < dots.len(); ++k) {
        EXPECT_EQ(dots[k][0].m_start, turned[k][0].m_start) << "the angle has no effect on dots";
        EXPECT_LE(dots[k][0].m_start.distanceTo(dots[k][0].m_end), 1e-9) << "a dot, not a dash";
        rows[std::lround(dots[k][0].m_start.y * 1000.0)].push_back(dots[k][0].m_start.x);
    }
    // Rows at 1 and 2 (the edges give no pieces); the right piece starts its
    // own dots at the hole's edge.
    const std::vector<double> expected{0, 1, 2, 3, 4.1, 5.1, 6.1, 7.1, 8.1, 9.1};
    for (long y : {1000L, 2000L}) {
        ASSERT_EQ(rows[y].size(), expected.size()) << "row " << y;
        for (size_t k = 0; k < expected.size(); ++k) EXPECT_NEAR(rows[y][k], expected[k], 1e-9);
    }
    const auto lower = zem_gdx_image_reg_hatch(regs, CZemMatrix3d::kIdentity, L"dots", 1.0, 0.0);
    ASSERT_GT(lower.len(), 0);
    EXPECT_GT(regtest::totalLength(lower), 10.0) << "the name is matched exactly: lines, not dots";
}

TEST(PlainHatch, LinesAreBuiltInThePlaneAndCarriedBack) {
    CZemMatrix3d plane;
    plane.setCoordSystem(CZemPoint3d(5, 5, 5), CZemVector3d(1, 0, 0), CZemVector3d(0, 0.6, 0.8),
                         CZemVector3d(0, -0.8, 0.6));
    CZemArrayTempl<CZemVertexArray> flat = regions({rectangle(0.0, 0.0, 8.0, 6.0)});
    CZemArrayTempl<CZemVertexArray> world = flat;
    world[0].transformBy(plane);
    const auto lines = zem_gdx_image_reg_hatch(world, plane, L"", 1.0, 0.0);
    ASSERT_GT(lines.len(), 0);
    const CZemMatrix3d back = plane.inverse();
    CZemArrayTempl<CZemVertexArray> inPlane = lines;
    for (int k = 0; k < inPlane.len(); ++k) inPlane[k].transformBy(back);
    for (int k = 0; k < inPlane.len(); ++k) EXPECT_NEAR(inPlane[k][0].m_start.z, 0.0, 1e-9);
    EXPECT_EQ(regtest::outsidePieces(inPlane, flat, 1e-7), "");
    EXPECT_NEAR(regtest::totalLength(lines), 7 * 8.0, 1e-9) << "seven lines from the lower to the upper edge";
}
