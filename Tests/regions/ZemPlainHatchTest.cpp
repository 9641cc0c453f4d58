#include "RegionsTestSupport.h"
#include "ZemHatch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

using regtest::rectangle;
using regtest::regions;

namespace {

const double kPi = 3.14159265358979323846;

CZemArrayTempl<CZemVertexArray> lines(const CZemArrayTempl<CZemVertexArray>& regs, double spacing, double angle,
                                      const wchar_t* name = L"") {
    return zem_gdx_image_reg_hatch(regs, CZemMatrix3d::kIdentity, name, spacing, angle);
}

std::set<long> rowsOf(const CZemArrayTempl<CZemVertexArray>& hatch) {
    std::set<long> rows;
    for (int k = 0; k < hatch.len(); ++k) rows.insert(std::lround(hatch[k][0].m_start.y * 1000.0));
    return rows;
}

}  // namespace

TEST(PlainHatch, EmptyRegionsAndUnusableSpacingsGiveNothing) {
    const CZemArrayTempl<CZemVertexArray> none;
    const auto square = regions({rectangle(0, 0, 10, 10)});
    EXPECT_EQ(lines(none, 0.5, 0.3).len(), 0);
    EXPECT_EQ(lines(none, 0.5, 0.3, L"DOTS").len(), 0);
    EXPECT_EQ(lines(square, 0.0, 0.3).len(), 0);
    EXPECT_EQ(lines(square, -1.0, 0.3, L"DOTS").len(), 0);
    EXPECT_EQ(lines(square, NAN, 0.3).len(), 0);
}

TEST(PlainHatch, LinesCoverARectangleWithAHoleByAreaOverSpacing) {
    const auto regs = regions({rectangle(0.5, 0.25, 40.5, 20.25), rectangle(10.5, 5.25, 20.5, 12.25)});
    for (double angle : {0.0, kPi / 2.0}) {
        const auto hatch = lines(regs, 1.0, angle);
        EXPECT_NEAR(regtest::totalLength(hatch), (40.0 * 20.0 - 10.0 * 7.0) / 1.0, std::hypot(40.0, 20.0)) << angle;
        EXPECT_EQ(regtest::outsidePieces(hatch, regs, 1e-7), "") << angle;
        for (int k = 0; k < hatch.len(); ++k) {
            ASSERT_EQ(hatch[k].len(), 1) << "one element per clipped piece";
            const CZemVector3d dir = hatch[k][0].m_end - hatch[k][0].m_start;
            EXPECT_NEAR(dir.x * std::sin(-angle) - dir.y * std::cos(-angle), 0.0, 1e-9) << "lines run at -angle";
        }
    }
    const auto turned = lines(regs, 0.25, 0.3);
    ASSERT_GT(turned.len(), 0);
    EXPECT_EQ(regtest::outsidePieces(turned, regs, 1e-7), "");
}

TEST(PlainHatch, TheStepCountIsTheWholeUnitsSpannedWhateverTheSpacing) {
    const auto tall = regions({rectangle(0.0, 0.0, 30.0, 100.0)});
    const auto fine = lines(tall, 0.5, 0.0);
    EXPECT_EQ(fine.len(), 100) << "100 steps of 0.5 cover the lower half, the lower edge included";
    EXPECT_EQ(*rowsOf(fine).rbegin(), 49500);
    EXPECT_EQ(rowsOf(lines(tall, 7.0, 0.0)),
              (std::set<long>{0, 7000, 14000, 21000, 28000, 35000, 42000, 49000, 56000, 63000, 70000, 77000, 84000,
                              91000, 98000}));
    EXPECT_EQ(lines(regions({rectangle(3.2, 5.1, 3.9, 5.8)}), 0.1, 0.0).len(), 0) << "within one unit: no steps";
    // Holes clip but do not count: ten units wide give ten steps of 0.25,
    // where the 100 wide band hole would have given a hundred.
    const auto band = regions({rectangle(0.0, 0.0, 10.0, 4.0), rectangle(-50.0, 1.0, 50.0, 2.0)});
    EXPECT_EQ(rowsOf(lines(band, 0.25, 0.0)), (std::set<long>{0, 250, 500, 750, 2250})) << "a hole's edge is out";
}

TEST(PlainHatch, DotsStartAtEachPiecesStartWhateverTheAngle) {
    const auto regs = regions({rectangle(0.0, 0.0, 10.0, 3.0), rectangle(3.3, -1.0, 4.1, 5.0)});
    const auto dots = lines(regs, 1.0, 0.0, L"DOTS");
    const auto turned = lines(regs, 1.0, 1.2, L"DOTS");
    ASSERT_EQ(dots.len(), turned.len());
    std::map<long, std::vector<double>> rows;
    for (int k = 0; k < dots.len(); ++k) {
        EXPECT_EQ(dots[k][0].m_start, turned[k][0].m_start) << "the angle has no effect on dots";
        EXPECT_EQ(dots[k][0].m_start, dots[k][0].m_end) << "a dot, not a dash";
        rows[std::lround(dots[k][0].m_start.y)].push_back(dots[k][0].m_start.x);
    }
    const std::vector<double> expected{0, 1, 2, 3, 4.1, 5.1, 6.1, 7.1, 8.1, 9.1};
    ASSERT_EQ(rows[1].size(), expected.size());
    for (size_t k = 0; k < expected.size(); ++k) EXPECT_NEAR(rows[1][k], expected[k], 1e-9);
    EXPECT_GT(regtest::totalLength(lines(regs, 1.0, 0.0, L"dots")), 10.0) << "only \"DOTS\" exactly makes dots";
}

TEST(PlainHatch, LinesAreBuiltInThePlaneAndTheCallersRegionsStay) {
    CZemMatrix3d plane;
    plane.setCoordSystem(CZemPoint3d(5, 5, 5), CZemVector3d(1, 0, 0), CZemVector3d(0, 0.6, 0.8), CZemVector3d(0, -0.8, 0.6));
    const auto flat = regions({rectangle(0.0, 0.0, 8.0, 6.0)});
    CZemArrayTempl<CZemVertexArray> world = flat;
    world[0].transformBy(plane);
    const CZemVertexArray before = world[0];
    const auto hatch = zem_gdx_image_reg_hatch(world, plane, L"", 1.0, 0.0);
    EXPECT_EQ(world[0][1].m_start, before[1].m_start);
    EXPECT_NEAR(regtest::totalLength(hatch), 7 * 8.0, 1e-9) << "seven lines from the lower to the upper edge";
    const CZemMatrix3d back = plane.inverse();
    for (int k = 0; k < hatch.len(); ++k) EXPECT_NEAR((hatch[k][0].m_start * back).z, 0.0, 1e-9);
}
