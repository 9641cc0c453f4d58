#include "ZemOutline.h"
#include "ZemSolidMap.h"
#include "Zem_Solid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

typedef CZemArrayTempl<CZemVertexArrayEx> Pieces;

// The fixed isometric view of the drill image: X along (1, 1, 0), the
// viewer along (1, -1, 1), Y = Z x X.
struct Isometric {
    double x[3], y[3], z[3];
    CZemMatrix3d frame;
    Isometric() {
        const double r2 = std::sqrt(2.0), r3 = std::sqrt(3.0), r6 = std::sqrt(6.0);
        const double xs[3] = {1 / r2, 1 / r2, 0}, ys[3] = {-1 / r6, 1 / r6, 2 / r6}, zs[3] = {1 / r3, -1 / r3, 1 / r3};
        for (int k = 0; k < 3; ++k) x[k] = xs[k], y[k] = ys[k], z[k] = zs[k];
        frame.setCoordSystem(CZemPoint3d::kOrigin, CZemVector3d(1, 1, 0) * (1 / r2), CZemVector3d(-1, 1, 2) * (1 / r6),
                             CZemVector3d(1, -1, 1) * (1 / r3));
    }
    // Where a point of the model lands on the screen.
    CZemPoint3d screen(double px, double py, double pz) const {
        return CZemPoint3d(px * x[0] + py * x[1] + pz * x[2], px * y[0] + py * y[1] + pz * y[2], 0.0);
    }
};

CZemVertexArray rectangle(double x0, double y0, double x1, double y1) {
    CZemArrayTempl<double> size;
    size.append(x1 - x0);
    size.append(y1 - y0);
    return ZEM::g_outline(1, CZemVector3d(x0, y0, 0), size);
}

CZemVertexArray circle(double cx, double cy, double diameter) {
    CZemArrayTempl<double> size;
    size.append(diameter);
    return ZEM::g_outline(2, CZemVector3d(cx, cy, 0), size);
}

double length(const CZemVertex& v) { return v.m_start.distanceTo(v.m_end); }

double totalLength(const Pieces& pieces) {
    double sum = 0.0;
    for (int i = 0; i < pieces.len(); ++i)
        for (int k = 0; k < pieces[i].len(); ++k) sum += length(pieces[i][k]);
    return sum;
}

// The number of pieces running from a to b (either way) on the screen.
int piecesBetween(const Pieces& pieces, const CZemPoint3d& a, const CZemPoint3d& b) {
    int count = 0;
    for (int i = 0; i < pieces.len(); ++i) {
        const CZemVertex& v = pieces[i][0];
        if ((v.m_start.distanceTo(a) < 1e-9 && v.m_end.distanceTo(b) < 1e-9) ||
            (v.m_start.distanceTo(b) < 1e-9 && v.m_end.distanceTo(a) < 1e-9))
            ++count;
    }
    return count;
}

int upright(const Pieces& pieces) {
    int count = 0;
    for (int i = 0; i < pieces.len(); ++i) count += std::fabs(pieces[i].m_direction.z) > 0.999;
    return count;
}

bool project(CZem_Solid& solid, const Isometric& view, Pieces& visible, Pieces& hidden) {
    solid.prepare();
    solid.hiddenLineSet(1);
    return solid.project(view.frame, 0, visible, hidden, 1);
}

}  // namespace

TEST(Solid, BoxShowsNineEdgesAndHidesTheThreeAtItsBackCorner) {
    const Isometric view;
    CZem_Solid box;
    ASSERT_TRUE(box.addPrism(rectangle(0, 0, 4, 2), CZemArrayTempl<CZemVertexArray>(), 0, 1));
    Pieces visible, hidden;
    ASSERT_TRUE(project(box, view, visible, hidden));
    // Faces +x, -y and +z face the viewer; the corner (0, 2, 0) joins the three others.
    const double corners[8][3] = {{0, 0, 0}, {4, 0, 0}, {4, 2, 0}, {0, 2, 0}, {0, 0, 1}, {4, 0, 1}, {4, 2, 1}, {0, 2, 1}};
    const int edges[12][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6}, {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
    ASSERT_EQ(9, visible.len());
    ASSERT_EQ(3, hidden.len());
    for (const auto& edge : edges) {
        const double* p = corners[edge[0]];
        const double* q = corners[edge[1]];
        const bool atBackCorner = (p[0] == 0 && p[1] == 2 && p[2] == 0) || (q[0] == 0 && q[1] == 2 && q[2] == 0);
        const CZemPoint3d a = view.screen(p[0], p[1], p[2]), b = view.screen(q[0], q[1], q[2]);
        EXPECT_EQ(atBackCorner ? 0 : 1, piecesBetween(visible, a, b)) << edge[0] << "-" << edge[1];
        EXPECT_EQ(atBackCorner ? 1 : 0, piecesBetween(hidden, a, b)) << edge[0] << "-" << edge[1];
    }

    box.hiddenLineSet(0);
    ASSERT_TRUE(box.project(view.frame, 0, visible, hidden, 1));
    EXPECT_EQ(12, visible.len()) << "without hidden lines every edge is visible";
    EXPECT_EQ(0, hidden.len());
    ASSERT_TRUE(box.project(view.frame, 1, visible, hidden, 0));
    ASSERT_EQ(24, visible.len()) << "0 appends";
    double nearest = -HUGE_VAL, farthest = HUGE_VAL;
    for (int i = 12; i < 24; ++i) {
        for (const CZemPoint3d& p : {visible[i][0].m_start, visible[i][0].m_end}) {
            nearest = std::max(nearest, p.z);
            farthest = std::min(farthest, p.z);
        }
    }
    EXPECT_NEAR(5 / std::sqrt(3.0), nearest, 1e-12) << "depth 1 keeps z: the corner (4, 0, 1)";
    EXPECT_NEAR(-2 / std::sqrt(3.0), farthest, 1e-12) << "the corner (0, 2, 0)";
}

TEST(Solid, PlateWithASquareHoleShowsTheHoleFloorPartly) {
    const Isometric view;
    CZem_Solid plate;
    CZemArrayTempl<CZemVertexArray> holes;
    holes.append(rectangle(4, 2, 6, 4));
    ASSERT_TRUE(plate.addPrism(rectangle(0, 0, 10, 6), holes, 0, 1));
    Pieces visible, hidden;
    ASSERT_TRUE(project(plate, view, visible, hidden));
    // A sight line from the hole's bottom edge at x = 4 leaves through the
    // opening (one up, one along +x and one along -y) only where y >= 3.
    EXPECT_EQ(1, piecesBetween(visible, view.screen(4, 3, 0), view.screen(4, 4, 0)));
    EXPECT_EQ(1, piecesBetween(hidden, view.screen(4, 2, 0), view.screen(4, 3, 0)));
    EXPECT_EQ(1, piecesBetween(visible, view.screen(4, 4, 0), view.screen(5, 4, 0)));
    EXPECT_EQ(1, piecesBetween(hidden, view.screen(5, 4, 0), view.screen(6, 4, 0)));
    // Nothing hides the top face's edges; every edge is drawn once, whole.
    EXPECT_EQ(1, piecesBetween(visible, view.screen(4, 2, 1), view.screen(6, 2, 1)));
    EXPECT_EQ(1, piecesBetween(visible, view.screen(0, 6, 1), view.screen(10, 6, 1)));
    double all = 0.0;
    const double box[4][2] = {{0, 0}, {10, 0}, {10, 6}, {0, 6}}, hole[4][2] = {{4, 2}, {6, 2}, {6, 4}, {4, 4}};
    for (const auto* ring : {box, hole}) {
        for (int k = 0; k < 4; ++k) {
            const double* p = ring[k];
            const double* q = ring[(k + 1) % 4];
            for (double z : {0.0, 1.0}) all += view.screen(p[0], p[1], z).distanceTo(view.screen(q[0], q[1], z));
            all += view.screen(p[0], p[1], 0).distanceTo(view.screen(p[0], p[1], 1));
        }
    }
    EXPECT_NEAR(all, totalLength(visible) + totalLength(hidden), 1e-9);
}

TEST(Solid, RoundWallsShowOnlyTheirOutlineEdges) {
    const Isometric view;
    CZem_Solid cylinder;
    ASSERT_TRUE(cylinder.addPrism(circle(0, 0, 2), CZemArrayTempl<CZemVertexArray>(), 0, 2));
    Pieces visible, hidden;
    ASSERT_TRUE(project(cylinder, view, visible, hidden));
    EXPECT_EQ(2, upright(visible)) << "the two outline lines of the mantle";
    EXPECT_EQ(0, upright(hidden));
    // The bottom circle shows its front half: what is hidden is half its
    // drawn length, give or take one chord.
    double bottom = 0.0, chord = 0.0;
    for (int k = 0; k < 36; ++k) {
        const double a = k * M_PI / 18, b = (k + 1) * M_PI / 18;
        const double step = view.screen(std::cos(a), std::sin(a), 0).distanceTo(view.screen(std::cos(b), std::sin(b), 0));
        bottom += step;
        chord = std::max(chord, step);
    }
    EXPECT_NEAR(bottom / 2, totalLength(hidden), chord);
    EXPECT_NEAR(2 * bottom + 2 * 2 * view.y[2], totalLength(visible) + totalLength(hidden), 1e-9)
        << "top and bottom circles and the two outline lines";

    CZem_Solid ring;
    CZemArrayTempl<CZemVertexArray> holes;
    holes.append(circle(0, 0, 2));
    ASSERT_TRUE(ring.addPrism(rectangle(-3, -3, 3, 3), holes, 0, 1));
    ASSERT_TRUE(project(ring, view, visible, hidden));
    EXPECT_EQ(4, upright(visible) + upright(hidden) - 2) << "4 corners and the bore's 2 outline lines, whole";
}

TEST(Solid, RefusesOutlinesThatMakeNoBody) {
    CZem_Solid solid;
    const CZemArrayTempl<CZemVertexArray> none;
    CZemVertexArray open = rectangle(0, 0, 1, 1);
    open.removeAt(3);
    CZemArrayTempl<CZemVertexArray> openHoles;
    openHoles.append(open);
    CZemVertexArray flat;
    flat.append(CZemVertex(CZemPoint3d(0, 0, 0), CZemPoint3d(1, 0, 0), 0)).append(CZemVertex(CZemPoint3d(1, 0, 0), CZemPoint3d(0, 0, 0), 0));
    EXPECT_FALSE(solid.addPrism(open, none, 0, 1));
    EXPECT_FALSE(solid.addPrism(flat, none, 0, 1));
    EXPECT_FALSE(solid.addPrism(CZemVertexArray(), none, 0, 1));
    EXPECT_FALSE(solid.addPrism(rectangle(0, 0, 1, 1), none, 1, 1));
    EXPECT_FALSE(solid.addPrism(rectangle(0, 0, 1, 1), none, 0, NAN));
    EXPECT_FALSE(solid.addPrism(rectangle(0, 0, 1, 1), openHoles, 0, 1));
    EXPECT_EQ(0, solid.prismCount());
    Pieces visible, hidden;
    EXPECT_FALSE(solid.prepare());
    EXPECT_FALSE(solid.project(CZemMatrix3d::kIdentity, 0, visible, hidden, 1));
    EXPECT_TRUE(solid.addPrism(rectangle(0, 0, 1, 1), none, 1, 0)) << "heights in any order";
    EXPECT_TRUE(solid.project(CZemMatrix3d::kIdentity, 0, visible, hidden, 1)) << "prepares itself";
    EXPECT_EQ(8, visible.len() + hidden.len()) << "seen from above the upright edges are points";
}

TEST(Solid, MapHandsOutKeysAndTakesThemBack) {
    int first = 0, second = 0;
    ASSERT_TRUE(ZEM::newSolidFromMap(first));
    ASSERT_TRUE(ZEM::newSolidFromMap(second));
    EXPECT_NE(first, second);
    CZem_Solid* solid = nullptr;
    ASSERT_TRUE(ZEM::getSolidFromMap(solid, first));
    ASSERT_NE(nullptr, solid);
    EXPECT_EQ(0, solid->prismCount());
    const int removed = first;
    EXPECT_TRUE(ZEM::removeSolidFromMap(first));
    EXPECT_EQ(0, first);
    EXPECT_FALSE(ZEM::removeSolidFromMap(first));
    CZem_Solid* untouched = solid;
    EXPECT_FALSE(ZEM::getSolidFromMap(untouched, removed));
    EXPECT_EQ(solid, untouched);
    int again = 0;
    ASSERT_TRUE(ZEM::newSolidFromMap(again));
    EXPECT_EQ(removed, again) << "the smallest free key comes back";
    EXPECT_TRUE(ZEM::removeSolidFromMap(again));
    EXPECT_TRUE(ZEM::removeSolidFromMap(second));
}
