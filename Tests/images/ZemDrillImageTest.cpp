#include "ZemBase.h"
#include "ZemDtaFilePointer.h"
#include "ZemImageGenerators.h"
#include "ZemSolidMap.h"
#include "Zem_Solid.h"

#include "GeneratorTestSupport.h"

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

// The isometric view by hand: the viewer looks from (1, -1, 1); X is (1, 1, 0)
// and Y, Z x X, is (-1, 1, 2), each over its length.
CZemPoint3d projected(const CZemPoint3d& p)
{
    return CZemPoint3d((p.x + p.y) / std::sqrt(2.0), (-p.x + p.y + 2 * p.z) / std::sqrt(6.0), 0);
}

// Seen from (1, -1, 1), the corner (0, 20, 0) lies behind the box: its three
// edges are hidden and the other nine are seen whole.
double visibleEdgeLength()
{
    double sum = 0.0;
    for (const auto& e : kEdges)
        sum += e[0] != 3 && e[1] != 3 ? projected(kCorners[e[0]]).distanceTo(projected(kCorners[e[1]])) : 0.0;
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
        low = ZEM::p_min(low, projected(p));
        high = ZEM::p_max(high, projected(p));
    }
    m_gdx.extmaxGet(min, max);
    EXPECT_LT(min.distanceTo(low) + max.distanceTo(high), 1e-9) << "the outline of the view, flat";
    CZemArrayTempl<int> stack;
    m_gdx.itemStackGet(stack, 0);
    EXPECT_TRUE(m_gdx.typeGet(0) == GDX_VL && asVector(stack) == std::vector<int>{0}) << "no marker";
    EXPECT_TRUE(m_gdx.flagGet(0) == 0u && m_gdx.mtxGet(0) == CZemMatrix3d::kIdentity);
    EXPECT_EQ(m_gdx.colorGet(0).colorIndex(), 3) << "the colour of the part's layer";
    m_gdx.clear();
    m_object->set(nullptr, &CZemDataKey().set(L"PART_SOLID"));
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), nullptr));
    EXPECT_EQ(m_gdx.colorGet(0).colorIndex(), 7) << "layer 0";

    // Without a height there is no prism: refused, and the empty solid stays.
    std::unique_ptr<CZemDtaFilePointer> flat(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
    ZEM::dtaWrite(flat.get(), L"VIEW", 3);
    ZEM::dtaWrite(flat.get(), L"VL", gentest::rectangle(0, 0, 10, 20));
    int left = nextSolidKey();
    m_gdx.clear();
    EXPECT_FALSE(zem_gdx_image_drill(&m_gdx, flat.get(), m_parameters.get()));
    EXPECT_EQ(m_gdx.lenGet(), 0);
    CZem_Solid* solid = nullptr;
    ASSERT_TRUE(ZEM::getSolidFromMap(solid, left) && solid->prismCount() == 0);
    ZEM::removeSolidFromMap(left);
    EXPECT_FALSE(zem_gdx_image_drill(nullptr, m_object.get(), nullptr));
}

// Other views let the application draw; COORD 1 adds a marker behind the
// given group, COORD 2 none.
TEST_F(DrillImage, OtherViewsLetTheApplicationDrawAndCoordOneAddsAMarker)
{
    m_app.m_result = false;
    markerParameters(2);
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get())) << "the answer is not read";
    ASSERT_EQ(m_app.m_calls.size(), 1u);
    EXPECT_TRUE(m_app.m_calls[0].gdx == &m_gdx && m_app.m_calls[0].source == objectRoot());
    EXPECT_EQ(keysOf(m_app.m_calls[0].parameters), (std::vector<std::wstring>{L"CMODE", L"MTX"})) << "no group path";
    ASSERT_EQ(m_gdx.lenGet(), 1) << "the outline, no marker";
    EXPECT_TRUE(m_gdx.mtxGet(0) == m_move && m_gdx.flagGet(0) == 0x1302u) << "the whole flags word";

    m_gdx.clear();
    m_app.m_draw = false;
    markerParameters(1);
    ZEM::dtaWrite(m_parameters.get(), L"STACK", gentest::path({5}));
    ASSERT_TRUE(zem_gdx_image_drill(&m_gdx, m_object.get(), m_parameters.get()));
    ASSERT_EQ(m_gdx.lenGet(), 1);
    CZemArrayTempl<int> stack;
    m_gdx.itemStackGet(stack, 0);
    CZemPoint3d p(9, 9, 9);
    m_gdx.geomGet(p, 0);
    EXPECT_TRUE(m_gdx.typeGet(0) == GDX_PT && p == CZemPoint3d::kOrigin);
    EXPECT_EQ(asVector(stack), (std::vector<int>{5, 2}));
    EXPECT_EQ(m_gdx.flagGet(0), 0x402u) << "the low byte of CMODE, in the base colour mode";
    EXPECT_TRUE(m_gdx.mtxGet(0) == CZemMatrix3d::kIdentity) << "MTX is the application's";
    EXPECT_TRUE(m_gdx.pdSizeGet(0) == 2.0 && m_gdx.pdModeGet(0) == 3u) << "size and style of the list";
}
