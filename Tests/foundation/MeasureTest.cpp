#include "GeometryShapes.h"
#include "ZemMeasure.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace shapes;

namespace {

CZemLineParm pattern(std::initializer_list<double> entries) {
    CZemArrayTempl<double> p;
    for (const double e : entries) p.append(e);
    return CZemLineParm(p);
}

}  // namespace

TEST(Measure, DashesAndDotsFollowThePattern) {
    // Dash 1, gap 0.5 over 10 units: six whole repetitions end at 9, and
    // the seventh dash runs from 9 to the end.
    const CZemArrayTempl<CZemVertexArray> d = ZEM::g_vl_measure(line(0, 0, 10, 0), 1.0, pattern({1.0, -0.5}));
    ASSERT_EQ(d.len(), 7);
    for (int k = 0; k < 7; ++k) EXPECT_TRUE(std::fabs(d[k][0].m_start.x - 1.5 * k) + std::fabs(lengthOf(d[k]) - 1) < 1e-12);
    // At factor -2 over 7 units: dashes of 2 from 0 and 3, and one cut to 1.
    EXPECT_NEAR(lengthOf(ZEM::g_vl_measure(line(0, 0, 7, 0), -2.0, pattern({1.0, -0.5}))[2]), 1.0, 1e-12);
    // A fitted pattern that fills the line exactly gives no sliver at the end.
    const CZemArrayTempl<CZemVertexArray> fitted = ZEM::g_vl_measure(line(0, 0, 4, 0), 1.0, pattern({0.5, -1.0, 0.5}));
    ASSERT_EQ(fitted.len(), 4);
    EXPECT_NEAR(fitted[2][0].m_start.x, 2.0, 1e-12);
    EXPECT_NEAR(fitted[3][-1].m_end.x, 4.0, 1e-12);
    const CZemArrayTempl<CZemVertexArray> dots = ZEM::g_vl_measure(line(0, 0, 10, 0), 1.0, CZemLineParm(0.0, -2.0));
    ASSERT_EQ(dots.len(), 6) << "dots at every step up to the end";
    for (int k = 0; k < 6; ++k)
        EXPECT_TRUE(dots[k][0].m_start == dots[k][0].m_end && std::fabs(dots[k][0].m_start.x - 2.0 * k) < 1e-12) << k;
}

TEST(Measure, DashSumsMatchThePatternOnArcsAndCorners) {
    CZemVertexArray vl(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(3, 0, 0), 0.0));
    vl.append(CZemVertex(CZemPoint3d(3, 0, 0), CZemPoint3d(3, 4, 0), 1.0));  // half circle of radius 2
    vl.append(CZemVertex(CZemPoint3d(3, 4, 0), CZemPoint3d(0, 4, 0), 0.0));
    const double total = 6 + 2 * kPi;
    for (const double dash : {0.7, 1.3, 2.9}) {
        const double gap = 0.45, dot = 0.0;
        const CZemArrayTempl<CZemVertexArray> d = ZEM::g_vl_measure(vl, 1.0, pattern({dash, -gap, dot, -gap}));
        // Per repetition of dash + 2 gaps: one dash and one dot; the last
        // repetition may be cut short.
        const double period = dash + 2 * gap;
        const int whole = static_cast<int>(total / period);
        const double rest = total - whole * period;
        const double dashSum = whole * dash + std::min(rest, dash);
        const int dots = whole + (rest >= dash + gap ? 1 : 0);
        double sum = 0.0;
        int dotCount = 0;
        for (int k = 0; k < d.len(); ++k) {
            const double len = lengthOf(d[k]);
            sum += len;
            dotCount += len == 0.0;
            EXPECT_TRUE(d[k].isContinuous());
            for (int j = 0; j < d[k].len(); ++j) {
                EXPECT_TRUE(vl[0].isPoint(d[k][j].mid()) || vl[1].isPoint(d[k][j].mid()) || vl[2].isPoint(d[k][j].mid()));
            }
        }
        EXPECT_NEAR(sum, dashSum, 1e-9) << dash;
        EXPECT_EQ(dotCount, dots) << dash;
    }
    // A dash over a corner follows both sides of it.
    const CZemArrayTempl<CZemVertexArray> corner = ZEM::g_vl_measure(vl, 1.0, pattern({4.0, -100.0}));
    ASSERT_EQ(corner.len(), 1);
    ASSERT_EQ(corner[0].len(), 2);
    EXPECT_NEAR(corner[0][1].m_bulge, std::tan(0.5 / 4), 1e-12) << "one unit of a radius 2 arc";
}

TEST(Measure, PatternsThatLayNothingLeaveTheLineSolid) {
    const CZemVertexArray vl = line(0, 0, 10, 0);
    for (const CZemLineParm& p : {CZemLineParm(), pattern({0.0}), pattern({0.0, 0.0}), pattern({1.0, std::nan("")}),
                                  pattern({1e-7, -1e-7})}) {
        const CZemArrayTempl<CZemVertexArray> d = ZEM::g_vl_measure(vl, 1.0, p);
        ASSERT_EQ(d.len(), 1);
        EXPECT_NEAR(lengthOf(d[0]), 10, 1e-12);
    }
    EXPECT_EQ(ZEM::g_vl_measure(vl, 0.0, pattern({1.0, -1.0})).len(), 1);
    EXPECT_EQ(ZEM::g_vl_measure(vl, 1.0, pattern({-1.0, -2.0})).len(), 0) << "only gaps";
    EXPECT_EQ(ZEM::g_vl_measure(CZemVertexArray(), 1.0, pattern({1.0, -1.0})).len(), 0);
}
