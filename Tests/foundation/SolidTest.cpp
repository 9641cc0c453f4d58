#include "ZemOutline.h"
#include "ZemSolidMap.h"
#include "Zem_Solid.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = std::acos(-1.0);

typedef CZemArrayTempl<CZemVertexArrayEx> Pieces;
const CZemArrayTempl<CZemVertexArray> kNoHoles;

// The fixed isometric view of the drill image: X along (1, 1, 0), the
// viewer along (1, -1, 1), Y = Z x X = (-1, 1, 2) / sqrt 6.
struct Isometric {
    CZemMatrix3d frame;
    Isometric() {
        frame.setCoordSystem(CZemPoint3d::kOrigin, CZemVector3d(1, 1, 0) * (1 / std::sqrt(2.0)),
                             CZemVector3d(-1, 1, 2) * (1 / std::sqrt(6.0)), CZemVector3d(1, -1, 1) * (1 / std::sqrt(3.0)));
    }
    static CZemPoint3d screen(double x, double y, double z) {
        return CZemPoint3d((x + y) / std::sqrt(2.0), (-x + y + 2 * z) / std::sqrt(6.0), 0.0);
    }
};

CZemVertexArray form(int id, double x, double y, double a, double b = 0) {
    CZemArrayTempl<double> parameters;
    parameters.append(a).append(b);
    return ZEM::g_outline(id, CZemVector3d(x, y, 0), parameters);
}

double totalLength(const Pieces& pieces) {
    double sum = 0.0;
    for (int i = 0; i < pieces.len(); ++i) sum += pieces[i][0].m_start.distanceTo(pieces[i][0].m_end);
    return sum;
}

// Pieces on the screen from the model point p to q, either way.
int between(const Pieces& pieces, const double (&p)[3], const double (&q)[3]) {
    const CZemPoint3d a = Isometric::screen(p[0], p[1], p[2]), b = Isometric::screen(q[0], q[1], q[2]);
    int count = 0;
    for (int i = 0; i < pieces.len(); ++i) {
        const CZemVertex& v = pieces[i][0];
        count += (v.m_start.distanceTo(a) < 1e-9 && v.m_end.distanceTo(b) < 1e-9) ||
                 (v.m_start.distanceTo(b) < 1e-9 && v.m_end.distanceTo(a) < 1e-9);
    }
    return count;
}

int upright(const Pieces& pieces) {
    int count = 0;
    for (int i = 0; i < pieces.len(); ++i) count += std::fabs(pieces[i].m_direction.z) > 0.999;
    return count;
}

void project(CZem_Solid& solid, Pieces& visible, Pieces& hidden) {
    solid.prepare();
    solid.hiddenLineSet(1);
    ASSERT_TRUE(solid.project(Isometric().frame, 0, visible, hidden, 1));
}

}  // namespace

TEST(Solid, BoxShowsNineEdgesAndHidesTheThreeAtItsBackCorner) {
    CZem_Solid box;
    ASSERT_TRUE(box.addPrism(form(1, 0, 0, 4, 2), kNoHoles, 0, 1));
    Pieces visible, hidden;
    project(box, visible, hidden);
    const double c[8][3] = {{0, 0, 0}, {4, 0, 0}, {4, 2, 0}, {0, 2, 0}, {0, 0, 1}, {4, 0, 1}, {4, 2, 1}, {0, 2, 1}};
    const int edges[12][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6}, {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
    ASSERT_TRUE(visible.len() == 9 && hidden.len() == 3);
    for (const auto& e : edges) {
        // Faces +x, -y and +z face the viewer; corner 3, (0, 2, 0), joins the three others.
        const bool back = e[0] == 3 || e[1] == 3;
        EXPECT_EQ(back ? 0 : 1, between(visible, c[e[0]], c[e[1]])) << e[0] << "-" << e[1];
        EXPECT_EQ(back ? 1 : 0, between(hidden, c[e[0]], c[e[1]])) << e[0] << "-" << e[1];
    }
    box.hiddenLineSet(0);
    ASSERT_TRUE(box.project(Isometric().frame, 1, visible, hidden, 0));
    EXPECT_EQ(9 + 12, visible.len()) << "appended, every edge visible";
    double nearest = -HUGE_VAL;
    for (int i = 9; i < visible.len(); ++i) nearest = std::max(nearest, visible[i][0].m_start.z);
    EXPECT_NEAR(5 / std::sqrt(3.0), nearest, 1e-12) << "depth 1 keeps z: the corner (4, 0, 1) is nearest";
}

TEST(Solid, RoundWallsShowOnlyTheirOutlineEdges) {
    CZem_Solid cylinder;
    ASSERT_TRUE(cylinder.addPrism(form(2, 0, 0, 2), kNoHoles, 0, 2));
    Pieces visible, hidden;
    project(cylinder, visible, hidden);
    EXPECT_TRUE(upright(visible) == 2 && upright(hidden) == 0) << "the two outline lines of the mantle";
    // The bottom circle hides its back half, give or take a chord of 10 degrees.
    double bottom = 0.0;
    for (int k = 0; k < 36; ++k)
        bottom += Isometric::screen(std::cos(k * kPi / 18), std::sin(k * kPi / 18), 0)
                      .distanceTo(Isometric::screen(std::cos((k + 1) * kPi / 18), std::sin((k + 1) * kPi / 18), 0));
    EXPECT_NEAR(bottom / 2, totalLength(hidden), bottom / 36);
    EXPECT_NEAR(2 * bottom + 2 * 4 / std::sqrt(6.0), totalLength(visible) + totalLength(hidden), 1e-9);

    CZem_Solid ring;
    CZemArrayTempl<CZemVertexArray> holes;
    ASSERT_TRUE(ring.addPrism(form(1, -3, -3, 6, 6), holes.append(form(2, 0, 0, 2)), 0, 1));
    project(ring, visible, hidden);
    // Three corners in front; the back corner and the bore's two outline lines behind the plate.
    EXPECT_TRUE(upright(visible) == 3 && upright(hidden) == 3);
}

TEST(Solid, RefusesWhatMakesNoBodyAndLivesInTheMapByKey) {
    CZem_Solid solid;
    CZemVertexArray open = form(1, 0, 0, 1, 1);
    CZemArrayTempl<CZemVertexArray> openHoles;
    open.removeAt(3);
    EXPECT_FALSE(solid.addPrism(open, kNoHoles, 0, 1) || solid.addPrism(form(1, 0, 0, 1, 0), kNoHoles, 0, 1));
    EXPECT_FALSE(solid.addPrism(form(1, 0, 0, 1, 1), kNoHoles, 1, 1) || solid.addPrism(form(1, 0, 0, 1, 1), kNoHoles, 0, NAN));
    EXPECT_FALSE(solid.addPrism(form(1, 0, 0, 1, 1), openHoles.append(open), 0, 1));
    Pieces visible, hidden;
    EXPECT_FALSE(solid.project(CZemMatrix3d::kIdentity, 0, visible, hidden, 1));
    EXPECT_TRUE(solid.addPrism(form(1, 0, 0, 1, 1), kNoHoles, 1, 0)) << "heights in any order";
    EXPECT_TRUE(solid.project(CZemMatrix3d::kIdentity, 0, visible, hidden, 1)) << "prepares itself";
    EXPECT_EQ(8, visible.len() + hidden.len()) << "seen from above the upright edges are points";

    int first = 0, second = 0;
    CZem_Solid* held = nullptr;
    ASSERT_TRUE(ZEM::newSolidFromMap(first) && ZEM::newSolidFromMap(second) && ZEM::getSolidFromMap(held, first));
    const int key = first;
    EXPECT_TRUE(ZEM::removeSolidFromMap(first) && first == 0);
    EXPECT_FALSE(ZEM::removeSolidFromMap(first) || ZEM::getSolidFromMap(held, key));
    ASSERT_TRUE(ZEM::newSolidFromMap(first));
    EXPECT_EQ(key, first) << "the smallest free key comes back";
    EXPECT_TRUE(ZEM::removeSolidFromMap(first) && ZEM::removeSolidFromMap(second));
}
