#include "ZemGeomTolerance.h"
#include "ZemPoint3dArray.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Point3dArray, FindsPointsWithinTheTolerance) {
    CZemPoint3dArray p;
    p.append(CZemPoint3d(1, 2, 3)).append(CZemPoint3d(4, 5, 6)).append(CZemPoint3d(4, 5, 6));
    EXPECT_EQ(p.indexOf(CZemPoint3d(4, 5, 6)), 1) << "the first of equal points";
    EXPECT_EQ(p.indexOf(CZemPoint3d(1, 2, 3 + 0.5 * ZEM::kDistTol)), 0);
    EXPECT_LT(p.indexOf(CZemPoint3d(1, 2, 3 + 2 * ZEM::kDistTol)), 0);
    EXPECT_LT(p.indexOf(CZemPoint3d(std::nan(""), 2, 3)), 0);
}

TEST(Point3dArray, SortsAlongADirection) {
    CZemPoint3dArray p;
    p.append(CZemPoint3d(3, 0, 0)).append(CZemPoint3d(std::nan(""), 0, 0)).append(CZemPoint3d(-1, 5, 0));
    p.append(CZemPoint3d(2, 1, 0)).append(CZemPoint3d(2, -7, 0));
    p.sort(CZemVector3d(-2, 0, 0));
    EXPECT_EQ(p[0], CZemPoint3d(3, 0, 0));
    EXPECT_EQ(p[1], CZemPoint3d(2, 1, 0)) << "equal places keep their order";
    EXPECT_EQ(p[2], CZemPoint3d(2, -7, 0));
    EXPECT_EQ(p[3], CZemPoint3d(-1, 5, 0));
    EXPECT_TRUE(std::isnan(p[4].x)) << "points that are not finite go last";
}
