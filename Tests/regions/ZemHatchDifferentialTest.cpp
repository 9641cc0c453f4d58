#include "RegionsTestSupport.h"
#include "ZemPatternHatcher.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>
#include <vector>

namespace {

// A star-shaped polygon about (cx, cy) with its corners on a grid, so that
// hatch lines at multiples of the grid run through corners and along edges.
CZemVertexArray gridStar(std::mt19937& random, double cx, double cy, double radius, int corners) {
    std::uniform_real_distribution<double> reach(0.4 * radius, radius);
    std::vector<CZemPoint3d> p;
    for (int k = 0; k < corners; ++k) {
        const double a = 6.283185307179586 * k / corners, r = reach(random);
        p.emplace_back(std::round(2.0 * (cx + r * std::cos(a))) / 2.0, std::round(2.0 * (cy + r * std::sin(a))) / 2.0, 0.0);
    }
    CZemVertexArray out;
    for (size_t k = 0; k < p.size(); ++k) {
        if (p[k] != p[(k + 1) % p.size()]) out.append(CZemVertex(p[k], p[(k + 1) % p.size()], 0.0));
    }
    return out;
}

std::string difference(const CZemArrayTempl<CZemVertexArray>& fast, const CZemArrayTempl<CZemVertexArray>& exact) {
    std::ostringstream text;
    if (fast.len() != exact.len()) text << fast.len() << " lines against " << exact.len();
    for (int k = 0; k < exact.len() && text.str().empty(); ++k) {
        if (fast[k].len() != exact[k].len()) text << "line " << k << ": " << fast[k].len() << " pieces against " << exact[k].len();
        if ((fast[k].normal() - exact[k].normal()).abs() > 1e-12) text << "line " << k << ": normals differ";
        for (int v = 0; v < exact[k].len() && text.str().empty(); ++v) {
            const double d = std::max(fast[k][v].m_start.distanceTo(exact[k][v].m_start),
                                      fast[k][v].m_end.distanceTo(exact[k][v].m_end));
            if (d > 1e-8) text << "line " << k << " piece " << v << " differs by " << d;
        }
    }
    return text.str();
}

}  // namespace

// The sweep over straight edges, which lays dashes only over the spans, and
// the exact rules over whole prototypes give the same lines on random regions
// (in the world plane and in a tilted one), many of whose corners lie on
// hatch lines.
TEST(HatchDifferential, FastSweepMatchesTheExactRulesOnWholePrototypes) {
    std::mt19937 random(2024);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const CZemArrayTempl<double> lines[] = {
        regtest::values({0.0, 0.0, 0.0, 0.0, 0.5}),
        regtest::values({45.0, 0.0, 0.0, 0.0, 0.70710678118654757}),
        regtest::values({90.0, 0.25, 0.0, 0.5, 1.0, 0.75, -0.25}),
        regtest::values({0.0, 0.0, 0.0, 0.25, 0.5, 1.0, -0.5, 0.0, -0.5}),
        regtest::values({30.0, 0.3, 0.1, -0.4, 0.6, 0.4, -0.9}),
    };
    long long compared = 0, pieces = 0, measured = 0, measuredWhole = 0;
    for (int round = 0; round < 30; ++round) {
        auto regs = regtest::regions({gridStar(random, 10.0, 10.0, 9.0, 5 + round % 7),
                                      gridStar(random, 10.0 + 4.0 * unit(random), 10.0, 2.5, 4 + round % 3)});
        if (round % 3 == 0) regs.append(regtest::rectangle(2.0, 9.5, 6.0, 11.0));
        CZemMatrix3d mtx;
        if (round % 3 == 2) {
            mtx.setCoordSystem(CZemPoint3d(5, -3, 2), CZemVector3d(0.8, 0, 0.6), CZemVector3d(0, 1, 0),
                               CZemVector3d(-0.6, 0, 0.8));
            for (int k = 0; k < regs.len(); ++k) regs[k].transformBy(mtx);
        }
        const auto pattern = regtest::pattern({lines[round % 5]});
        const CZemHatchProp prop(round % 5 == 0 ? L"GRAVEL" : L"P", round % 4 == 1 ? 0.5235987755982988 : 0.0,
                                 round % 2 ? 1.0 : 0.5);
        CZemPatternHatcher fast(regs, mtx, prop), exact(regs, mtx, prop, CZemHatchFamily::Measure::whole);
        const auto fastLines = fast.hatch(pattern), exactLines = exact.hatch(pattern);
        EXPECT_EQ(difference(fastLines, exactLines), "") << "round " << round;
        compared += exactLines.len();
        for (int k = 0; k < fastLines.len(); ++k) pieces += fastLines[k].len();
        measured += fast.measuredDashes();
        measuredWhole += exact.measuredDashes();
    }
    EXPECT_GT(compared, 300);
    // The prototypes are not measured beyond the dashes that can meet the region.
    EXPECT_LT(measured, 2 * pieces);
    EXPECT_LT(20 * measured, measuredWhole);
}
