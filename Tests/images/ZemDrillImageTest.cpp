#include "ZemDtaFilePointer.h"
#include "ZemImageGenerators.h"
#include "ZemSolidMap.h"
#include "Zem_Solid.h"

#include "GeneratorTestSupport.h"

#include <algorithm>
#include <cmath>
#include <memory>

using gentest::asVector;
using gentest::keysOf;

namespace {

// The corners of the box [0,10] x [0,20] x [0,5] and its twelve edges.
const CZemPoint3d kCorners[8] = {{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0},
                                 {0, 0, 5}, {10, 0, 5}, {10, 20, 5}, {0, 20, 5}};
const int kEdges[12][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
                           {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};

double dot(const CZemPoint3d& p, const double (&axis)[3]) { return p.x * axis[0] + p.y * axis[1] + p.z * axis[2]; }

// The isometric view by hand: the viewer looks from (1, -1, 1); X is (1, 1, 0)
// and Y, Z x X, is (-1, 1, 2), each over its length.
const double kX[3] = {1 / std::sqrt(2.0), 1 / std::sqrt(2.0), 0};
const double kY[3] = {-1 / std::sqrt(6.0), 1 / std::sqrt(6.0), 2 / std::sqrt(6.0)};

double projectedLength(const CZemPoint3d& a, const CZemPoint3d& b)
{
    return std::hypot(dot(b, kX) - dot(a, kX), dot(b, kY) - dot(a, kY));
}

// Seen from (1, -1, 1), the corner (0, 20, 0) lies behind the box: its three
// edges are hidden and the other nine are seen whole.
double visibleEdgeLength()
{
    double sum = 0.0;
    for (const auto& e : kEdges) {
        if (e[0] != 3 && e[1] != 3)
            sum += projectedLength(kCorners[e[0]], kCorners[e[1]]);
    }
    return sum;
}

double drawnLength(const CZemGDX& gdx)
{
    double sum = 0.0;
    for (int i = 0; i < gdx.lenGet(); ++i) {
        CZemVertexArray vl;
        gdx.geomGet(vl, i);
        for (int k = 0; k < vl.len(); ++k)
            sum += std::hypot(vl[k].m_end.x - vl[k].m_start.x, vl[k].m_end.y - vl[k].m_start.y);
    }
    return sum;
}

// The key the solid map hands out next.
int nextSolidKey()
{
    int key = 0;
    ZEM::newSolidFromMap(key);
    int probe = key;
    ZEM::removeSolidFromMap(probe);
    return key;
}

class DrillImage : public ::testing::Test {
protected:
    void SetUp() override
    {
        gentest::resetConfiguration();
        CZemDataItem* part = ZEM::cfg_dir_make(L"LAYERS\\TEIL");
        gentest::set(part, L"COLOR", 3);
        m_object.reset(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
        m_parameters.reset(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
        ZEM::dtaWrite(m_object.get(), L"VL", gentest::rectangle(0, 0, 10, 20));
        ZEM::dtaWrite(m_object.get(), L"HEIGHT", 5.0);
    }
    void TearDown() override { gentest::resetConfiguration(); }

    CZemDataItem* objectRoot() { return m_object->get(nullptr); }
    void markerParameters(int coord)
    {
        ZEM::dtaWrite(m_parameters.get(), L"CMODE", 0x1302);
        ZEM::dtaWrite(m_parameters.get(), L"MTX", static_cast<const CZemMatrix3d::Cells&>(m_move));
        ZEM::dtaWrite(m_parameters.get(), L"COORD", coord);
    }

    gentest::RecordingApp m_app;
    CZemGDX m_gdx = gentest::newList();
    std::unique_ptr<CZemDtaFilePointer> m_object;
    std::unique_ptr<CZemDtaFilePointer> m_parameters;
    const CZemMatrix3d m_move = CZemMatrix3d().setToTranslation(CZemVector3d(1, 2, 3));
};

}  // namespace

TEST_F(DrillImage, ViewThreeDrawsTheVisibleEdgesOfTheSolidAndIgnoresTheParameters)
{
    ZEM::dtaWrite(m_object.get(), L"VIEW", 3);
    ZEM::dtaWrite(m_object.get(), L"PART_SOLID", L"teil");
    markerParameters(1);
    ZEM::dtaWrite(m_parameters.get(), L"STACK", gentest::path({5}));
    const int key = nextSolidKey();
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get()));
    EXPECT_EQ(nextSolidKey(), key) << "the solid leaves the map";
    EXPECT_TRUE(m_app.m_calls.empty());
    ASSERT_GT(m_gdx.lenGet(), 0);
    EXPECT_NEAR(drawnLength(m_gdx), visibleEdgeLength(), 1e-6) << "hidden edges are left out";
    CZemPoint3d low(1e9, 1e9, 0), high(-1e9, -1e9, 0), min, max;
    for (const CZemPoint3d& p : kCorners) {
        low.set(std::min(low.x, dot(p, kX)), std::min(low.y, dot(p, kY)), 0);
        high.set(std::max(high.x, dot(p, kX)), std::max(high.y, dot(p, kY)), 0);
    }
    m_gdx.extmaxGet(min, max);
    EXPECT_LT(min.distanceTo(low) + max.distanceTo(high), 1e-9) << "the outline of the view, flat";
    for (int i = 0; i < m_gdx.lenGet(); ++i) {
        CZemArrayTempl<int> stack;
        m_gdx.itemStackGet(stack, i);
        EXPECT_EQ(m_gdx.typeGet(i), GDX_VL) << "no marker";
        EXPECT_EQ(asVector(stack), std::vector<int>{0});
        EXPECT_EQ(m_gdx.flagGet(i), 0u);
        EXPECT_EQ(m_gdx.colorGet(i).colorIndex(), 3) << "the colour of the part's layer";
        EXPECT_EQ(asVector(m_gdx.linetypeGet(i)), std::vector<double>{1.0});
        EXPECT_EQ(m_gdx.thicknGet(i), 0);
        EXPECT_TRUE(m_gdx.mtxGet(i) == CZemMatrix3d::kIdentity);
    }

    const int drawn = m_gdx.lenGet();
    m_gdx.clear();
    m_object->set(nullptr, &CZemDataKey().set(L"PART_SOLID"));
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), nullptr));
    EXPECT_EQ(m_gdx.lenGet(), drawn);
    EXPECT_EQ(m_gdx.colorGet(0).colorIndex(), 7) << "layer 0";
}

TEST_F(DrillImage, ViewThreeWithoutABodyFailsAndLeavesItsSolid)
{
    std::unique_ptr<CZemDtaFilePointer> flat(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
    ZEM::dtaWrite(flat.get(), L"VIEW", 3);
    ZEM::dtaWrite(flat.get(), L"VL", gentest::rectangle(0, 0, 10, 20));
    int key = nextSolidKey();
    EXPECT_FALSE(zem_gdx_image_drill(&m_gdx, flat.get(), m_parameters.get())) << "no height, no prism";
    EXPECT_EQ(m_gdx.lenGet(), 0);
    CZem_Solid* left = nullptr;
    ASSERT_TRUE(ZEM::getSolidFromMap(left, key));
    EXPECT_EQ(left->prismCount(), 0);
    ZEM::removeSolidFromMap(key);
    EXPECT_FALSE(zem_gdx_image_drill(nullptr, m_object.get(), nullptr));
}

TEST_F(DrillImage, OtherViewsLetTheApplicationDrawWithFlagsAndMatrix)
{
    m_app.m_result = false;
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), nullptr)) << "the application's answer is not read";
    markerParameters(2);
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get()));
    ASSERT_EQ(m_app.m_calls.size(), 2u);
    for (const gentest::RecordingApp::Call& call : m_app.m_calls) {
        EXPECT_EQ(call.gdx, &m_gdx);
        EXPECT_EQ(call.source, objectRoot());
        EXPECT_EQ(keysOf(call.parameters), (std::vector<std::wstring>{L"CMODE", L"MTX"})) << "no group path";
    }
    CZemMatrix3d mtx;
    EXPECT_EQ(gentest::intAt(m_app.m_calls[0].parameters, L"CMODE"), 0);
    ASSERT_TRUE(ZEM::itemGet(&m_app.m_calls[0].parameters, L"MTX", static_cast<CZemMatrix3d::Cells&>(mtx)));
    EXPECT_TRUE(mtx == CZemMatrix3d::kIdentity);
    EXPECT_EQ(gentest::intAt(m_app.m_calls[1].parameters, L"CMODE"), 0x1302) << "the whole flags word";
    ASSERT_TRUE(ZEM::itemGet(&m_app.m_calls[1].parameters, L"MTX", static_cast<CZemMatrix3d::Cells&>(mtx)));
    EXPECT_TRUE(mtx == m_move);

    ASSERT_EQ(m_gdx.lenGet(), 2) << "the outline twice, and with COORD 2 no marker";
    EXPECT_TRUE(m_gdx.mtxGet(1) == m_move);
    EXPECT_EQ(m_gdx.flagGet(1), 0x1302u);
    CZemVertexArray vl;
    CZemPoint3d min, max;
    m_gdx.geomGet(vl, 1);
    ASSERT_TRUE(vl.extents(min, max));
    EXPECT_EQ(min, CZemPoint3d(0, 0, 0));
    EXPECT_EQ(max, CZemPoint3d(10, 20, 0));
}

TEST_F(DrillImage, CoordOneAddsAMarkerBehindTheGivenGroup)
{
    m_app.m_draw = false;
    markerParameters(1);
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get()));
    ZEM::dtaWrite(m_parameters.get(), L"STACK", gentest::path({5}));
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get()));
    ASSERT_EQ(m_gdx.lenGet(), 2);
    const std::vector<int> stacks[2] = {{2}, {5, 2}};
    for (int i = 0; i < 2; ++i) {
        CZemArrayTempl<int> stack;
        CZemPoint3d p(9, 9, 9);
        m_gdx.itemStackGet(stack, i);
        m_gdx.geomGet(p, i);
        EXPECT_EQ(m_gdx.typeGet(i), GDX_PT);
        EXPECT_EQ(asVector(stack), stacks[i]);
        EXPECT_EQ(p, CZemPoint3d::kOrigin);
        EXPECT_EQ(m_gdx.flagGet(i), 0x402u) << "the low byte of CMODE, in the base colour mode";
        EXPECT_EQ(zem_gdx_cmode(m_gdx.flagGet(i)), GDX_CM_BASE);
        EXPECT_EQ(m_gdx.colorGet(i).colorIndex(), 7);
        EXPECT_TRUE(m_gdx.mtxGet(i) == CZemMatrix3d::kIdentity) << "MTX is the application's";
        EXPECT_EQ(m_gdx.pdSizeGet(i), 2.0) << "size and style of the list";
        EXPECT_EQ(m_gdx.pdModeGet(i), 3u);
    }
}
