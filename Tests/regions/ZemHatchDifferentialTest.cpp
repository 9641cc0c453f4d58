#include "RegionsTestSupport.h"
#include "ZemPatternHatcher.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <vector>

using regtest::rectangle;
using regtest::regions;

namespace {

// A star-shaped polygon about (cx, cy) with corners on a grid of `grid`, so
// that hatch lines at multiples of the grid run through corners.
CZemVertexArray gridStar(std::mt19937& random, double cx, double cy, double radius, double grid, int corners) {
    std::uniform_real_distribution<double> reach(0.4 * radius, radius);
    const double kTwoPi = 6.283185307179586;
    std::vector<std::pair<double, double>> points;
    for (int k = 0; k < corners; ++k) {
        const double a = kTwoPi * k / corners, r = reach(random);
        points.emplace_back(std::round((cx + r * std::cos(a)) / grid) * grid, std::round((cy + r * std::sin(a)) / grid) * grid);
    }
    CZemVertexArray out;
    for (size_t k = 0; k < points.size(); ++k) {
        const auto& a = points[k];
        const auto& b = points[(k + 1) % points.size()];
        if (a == b) continue;
        out.append(CZemVertex(CZemPoint3d(a.first, a.second, 0), CZemPoint3d(b.first, b.second, 0), 0.0));
    }
    return out;
}

std::string compare(const CZemArrayTempl<CZemVertexArray>& fast, const CZemArrayTempl<CZemVertexArray>& exact) {
    std::ostringstream text;
    if (fast.len() != exact.len()) {
        text << fast.len() << " lines against " << exact.len();
        return text.str();
    }
    for (int k = 0; k < exact.len(); ++k) {
        if (fast[k].len() != exact[k].len()) {
            text << "line " << k << ": " << fast[k].len() << " pieces against " << exact[k].len();
            return text.str();
        }
        for (int v = 0; v < exact[k].len(); ++v) {
            const double d = std::max(fast[k][v].m_start.distanceTo(exact[k][v].m_start),
                                      fast[k][v].m_end.distanceTo(exact[k][v].m_end));
            if (d > 1e-8) {
                text << "line " << k << " piece " << v << " differs by " << d;
                return text.str();
            }
        }
        if ((fast[k].normal() - exact[k].normal()).abs() > 1e-12) {
            text << "line " << k << ": normals differ";
            return text.str();
        }
    }
    return text.str();
}

}  // namespace

// The sweep over straight edges and the exact rules over whole prototypes
// give the same lines, on random regions whose corners lie on the hatch
// lines' grid, so that many lines pass through corners and along edges.
TEST(HatchDifferential, FastSweepMatchesTheExactRulesOnRandomRegions) {
    std::mt19937 random(2024);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const std::vector<std::vector<double>> lines = {
        {0.0, 0.0, 0.0, 0.0, 0.5},
        {45.0, 0.0, 0.0, 0.0, 0.70710678118654757},
        {90.0, 0.25, 0.0, 0.5, 1.0, 0.75, -0.25},
        {0.0, 0.0, 0.0, 0.25, 0.5, 1.0, -0.5, 0.0, -0.5},
        {30.0, 0.3, 0.1, -0.4, 0.6, 0.4, -0.9},
    };
    int compared = 0;
    for (int round = 0; round < 30; ++round) {
        CZemArrayTempl<CZemVertexArray> regs;
        regs.append(gridStar(random, 10.0, 10.0, 9.0, 0.5, 5 + round % 7));
        regs.append(gridStar(random, 10.0 + 4.0 * unit(random), 10.0, 2.5, 0.5, 4 + round % 3));
        if (round % 3 == 0) regs.append(rectangle(2.0, 9.5, 6.0, 11.0));
        const std::vector<double>& chosen = lines[static_cast<size_t>(round) % lines.size()];
        CZemArrayTempl<double> line;
        for (double v : chosen) line.append(v);
        CZemArrayTempl<CZemArrayTempl<double>> pattern;
        pattern.append(line);
        const double rotation = round % 4 == 1 ? 0.5235987755982988 : 0.0;
        const CZemHatchProp prop(round % 5 == 0 ? L"GRAVEL" : L"P", rotation, round % 2 ? 1.0 : 0.5);
        // Every third region lies in a tilted plane that mtx carries it to.
        CZemMatrix3d mtx;
        if (round % 3 == 2) {
            mtx.setCoordSystem(CZemPoint3d(5, -3, 2), CZemVector3d(0.8, 0, 0.6), CZemVector3d(0, 1, 0),
                               CZemVector3d(-0.6, 0, 0.8));
            for (int k = 0; k < regs.len(); ++k) regs[k].transformBy(mtx);
        }
        const auto fast = CZemPatternHatcher(regs, mtx, prop).hatch(pattern);
        const auto exact = CZemPatternHatcher(regs, mtx, prop, CZemHatchFamily::Measure::whole).hatch(pattern);
        EXPECT_EQ(compare(fast, exact), "") << "round " << round;
        compared += exact.len();
    }
    EXPECT_GT(compared, 300);
}
