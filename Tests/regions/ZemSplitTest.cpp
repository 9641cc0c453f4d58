#include "RegionsTestSupport.h"
#include "ZemMatrix3d.h"
#include "ZemSplit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;

// A half circle of radius r about c in the XY plane, as one arc vertex.
CZemVertex halfCircle(double r, const CZemPoint3d& c) {
    return CZemVertex(CZemPoint3d(c.x + r, c.y, c.z), CZemPoint3d(c.x - r, c.y, c.z), 1.0);
}

// The largest distance between a chord's middle and the circle.
double worstSagitta(const CZemVertexArray& chords, const CZemPoint3d& c, double r) {
    double worst = 0.0;
    for (int k = 0; k < chords.len(); ++k) {
        EXPECT_NEAR(chords[k].m_start.distanceTo(c), r, 1e-9);
        const CZemPoint3d mid((chords[k].m_start.x + chords[k].m_end.x) / 2, (chords[k].m_start.y + chords[k].m_end.y) / 2,
                              (chords[k].m_start.z + chords[k].m_end.z) / 2);
        worst = std::max(worst, r - mid.distanceTo(c));
    }
    return worst;
}

}  // namespace

TEST(Split, ArcsShorterThanFourUnitsAreFlattenedFiveTimesFiner) {
    const CZemPoint3d c(1.0, 2.0, 0.0);
    const double shortR = 3.999 / kPi, longR = 4.001 / kPi;
    const CZemVertexArray shortArc = zem_gdx_image_vl_split(CZemVertexArray(halfCircle(shortR, c)));
    const CZemVertexArray longArc = zem_gdx_image_vl_split(CZemVertexArray(halfCircle(longR, c)));
    const double shortWorst = worstSagitta(shortArc, c, shortR);
    const double longWorst = worstSagitta(longArc, c, longR);
    EXPECT_LE(shortWorst, 0.01 + 1e-12);
    EXPECT_GT(longWorst, 0.01) << "a long arc may leave the circle by more than 0.01";
    EXPECT_LE(longWorst, 0.05 + 1e-12);
    EXPECT_NEAR(shortArc[0].m_start.x, c.x + shortR, 1e-12);
    EXPECT_NEAR(shortArc[-1].m_end.x, c.x - shortR, 1e-12);
}

TEST(Split, AnArcInATiltedPlaneStaysOnItsCircleInWorldCoordinates) {
    const CZemVector3d normal = CZemVector3d(0.0, -0.6, 0.8);
    CZemMatrix3d toWorld;
    toWorld.setToPlaneToWorld(normal);
    const CZemPoint3d centreInPlane(2.0, 1.0, 3.0);
    CZemVertexArray vl(halfCircle(5.0, centreInPlane));
    vl.append(CZemVertex(vl[0].m_end, CZemPoint3d(-3.0, -4.0, 3.0), 0.0));
    vl.transformBy(toWorld);
    const CZemPoint3d centre = centreInPlane * toWorld;
    ASSERT_NEAR(vl.normal().dotProduct(normal), 1.0, 1e-12);
    const CZemVertexArray out = zem_gdx_image_vl_split(vl);
    ASSERT_GT(out.len(), 10);
    EXPECT_EQ(out[-1].m_end, vl[1].m_end) << "the straight vertex passes unchanged";
    CZemVertexArray arcPart;
    for (int k = 0; k + 1 < out.len(); ++k) arcPart.append(out[k]);
    EXPECT_LE(worstSagitta(arcPart, centre, 5.0), 0.05 + 1e-9);
    for (int k = 0; k < out.len(); ++k) EXPECT_NEAR((out[k].m_start - centre).dotProduct(normal), 0.0, 1e-9);
}

// Straight vertices come back unchanged whatever the normal; every element
// of a region keeps its place, an empty one included.
TEST(Split, StraightVerticesAndRegionElementsStayInPlace) {
    CZemVertexArray vl = regtest::polygon({{0, 0}, {3, 1}, {2, 5}});
    vl[1].m_start.z = 2.0;
    vl.setNormal(CZemVector3d(0.0, 0.6, 0.8));
    const CZemVertexArray out = zem_gdx_image_vl_split(vl);
    ASSERT_EQ(out.len(), vl.len());
    for (int k = 0; k < vl.len(); ++k) {
        EXPECT_TRUE(out[k].m_start == vl[k].m_start && out[k].m_end == vl[k].m_end && out[k].m_bulge == 0.0) << k;
    }
    EXPECT_EQ(zem_gdx_image_vl_split(CZemVertexArray()).len(), 0);

    CZemArrayTempl<CZemVertexArray> regs;
    regs.append(regtest::rectangle(0, 0, 10, 10));
    regs.append(CZemVertexArray());
    regs.append(CZemVertexArray(halfCircle(2.0, CZemPoint3d(5, 5, 0))));
    const CZemArrayTempl<CZemVertexArray> split = zem_gdx_image_reg_split(regs);
    ASSERT_EQ(split.len(), 3);
    EXPECT_TRUE(split[0].len() == 4 && split[1].len() == 0 && split[2].len() > 4);
    EXPECT_EQ(zem_gdx_image_reg_split(CZemArrayTempl<CZemVertexArray>()).len(), 0);
}
