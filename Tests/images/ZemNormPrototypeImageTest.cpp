#include "ZemImageGenerators.h"
#include "ZemObjGen.h"

#include "GeneratorTestSupport.h"

#include <memory>
#include <string>

using gentest::intAt;
using gentest::keysOf;
using gentest::path;
using gentest::stackAt;

namespace {

class NormPrototypeImage : public ::testing::Test {
protected:
    void SetUp() override { gentest::resetConfiguration(); }
    void TearDown() override { gentest::resetConfiguration(); }

    // A part NORM\<name> of the object library: its plan as a plain polyline,
    // 6 high from -2, with its kind words and optionally coordinate points.
    static std::wstring part(const wchar_t* name, const CZemVertexArray& plan,
                             std::initializer_list<const wchar_t*> kind, bool coordPoints = false)
    {
        const std::wstring key = std::wstring(L"NORM\\") + name;
        CZemDataItem* item = ZEM::cfg_dir_make((L"OBJECTS\\" + key).c_str());
        gentest::set(item, L"GEN", plan);
        gentest::set(item, L"HEIGHT", 6.0);
        gentest::set(item, L"ELEV", -2.0);
        CZemArrayTempl<CZemString> words;
        for (const wchar_t* word : kind)
            words.append(CZemString(word));
        gentest::set(item, L"STACK", words);
        if (coordPoints) {
            gentest::set(item, L"SCORDP\\A", CZemPoint3d(0, 0, 0));
            gentest::set(item, L"SCORDP\\B", CZemPoint3d(5, 0, 0));
        }
        return key;
    }

    // The bounds of group q, drawn by the library's drawer of stored objects.
    void expectBounds(const CZemArrayTempl<int>& q, double x0, double y0, double x1, double y1)
    {
        CZemVertexArray all;
        const CZemArrayTempl<int> items = m_gdx.StackToItemNr(q);
        for (int k = 0; k < items.len(); ++k) {
            CZemVertexArray vl;
            m_gdx.geomGet(vl, items[k]);
            all += vl.getTransformedCopy(m_gdx.mtxGet(items[k]));
        }
        CZemPoint3d min, max;
        ASSERT_TRUE(all.extents(min, max)) << "nothing in the group";
        EXPECT_LT(min.distanceTo(CZemPoint3d(x0, y0, min.z)) + max.distanceTo(CZemPoint3d(x1, y1, max.z)), 1e-9)
            << min.x << ", " << min.y << " to " << max.x << ", " << max.y;
    }

    gentest::RecordingApp m_app;
    CZemGDX m_gdx = gentest::newList();
};

}  // namespace

TEST_F(NormPrototypeImage, LongPieceGetsItsSecondViewAbove)
{
    const std::wstring key = part(L"LONG", gentest::rectangle(0, 0, 40, 10), {L"PIECE", L"FLAT"}, true);
    CZemDataItem parameters(CZemDataItem::typeDir);
    gentest::set(&parameters, L"MAIN", 1);
    gentest::set(&parameters, L"COLOR", 5);
    gentest::set(&parameters, L"STACK", path({3}));
    ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), &parameters));
    EXPECT_EQ(m_gdx.backColorGet().colorIndex(), -15);

    ASSERT_EQ(m_app.m_calls.size(), 2u);
    const CZemDataItem& part0 = m_app.m_calls[0].sourceCopy;
    EXPECT_TRUE(intAt(part0, L"VIEW") == 0 && intAt(m_app.m_calls[1].sourceCopy, L"VIEW") == 1);
    CZemVertexArray generated;
    EXPECT_TRUE(ZEM::itemGet(&part0, L"VL", generated)) << "the part is generated before it is drawn";
    const CZemDataItem& p0 = m_app.m_calls[0].parameters;
    EXPECT_EQ(keysOf(p0), (std::vector<std::wstring>{L"MAIN", L"COLOR", L"STACK", L"VIEW", L"VIEW_CLAMP", L"DEPEND"}));
    EXPECT_EQ(stackAt(p0, L"STACK"), (std::vector<int>{3, 0}));

    // The plan stays where it is; the side view, [0,10] x [-2,4] as drawn, is
    // moved to end at the plan's right edge and to stand a quarter of its
    // depth below zero (2) above the plan's top edge.
    expectBounds(path({3, 0}), 0, 0, 40, 10);
    expectBounds(path({3, 1}), 30, 10.5, 40, 16.5);
    EXPECT_EQ(m_gdx.colorGet(0).colorIndex(), 5) << "the caller's other parameters reach the drawing";

    std::unique_ptr<CZemDataItem> stored(zem_obj_key_to_gen(key.c_str()));
    EXPECT_EQ(keysOf(*stored), (std::vector<std::wstring>{L"GEN", L"HEIGHT", L"ELEV", L"STACK", L"SCORDP"}))
        << "the library keeps its part as it was";
}

// Group paths from parameters: none, one int, or a value that is no directory.
TEST_F(NormPrototypeImage, GroupPathFromTheParameters)
{
    const std::wstring key = part(L"SHORT", gentest::rectangle(0, 0, 20, 10), {L"PIECE"});
    CZemDataItem single(CZemDataItem::typeDir);
    gentest::set(&single, L"STACK", 4);
    CZemDataItem value;
    gentest::set(&value, nullptr, path({9}));
    ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), nullptr));
    ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), &single));
    ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), &value));
    ASSERT_EQ(m_app.m_calls.size(), 6u);
    EXPECT_EQ(keysOf(m_app.m_calls[0].parameters), std::vector<std::wstring>{L"STACK"}) << "no coordinate points";
    EXPECT_EQ(m_gdx.backColorGet().colorIndex(), 7);
    EXPECT_EQ(stackAt(m_app.m_calls[3].parameters, L"STACK"), (std::vector<int>{4, 1})) << "one int as the path";
    EXPECT_EQ(keysOf(m_app.m_calls[4].parameters), std::vector<std::wstring>{L"STACK"}) << "a value is no parameters";
    EXPECT_EQ(stackAt(m_app.m_calls[4].parameters, L"STACK"), std::vector<int>{0});
    expectBounds(path({4, 1}), 20, -2, 30, 4);
}

// Below three times as wide as high the side view's left edge comes to the
// plan's right edge; from three on it stands above.
TEST_F(NormPrototypeImage, WidthToHeightDecidesWhereTheSecondViewGoes)
{
    struct Case {
        const wchar_t* name;
        CZemVertexArray plan;
        double x0, y0, x1, y1;  // where the side view ends up
    };
    // The bounds of each view hold the origin: a plan at [30,40] x [0,10] is
    // four times as wide as high, counted from 0.
    const Case cases[] = {
        {L"THREE", gentest::rectangle(0, 0, 30, 10), 20, 10.5, 30, 16.5},
        {L"ASIDE", gentest::rectangle(30, 0, 40, 10), 30, 10.5, 40, 16.5},
        {L"FLATSHORT", gentest::polygon({{0, 0, 0}, {2, 0, 0}}, false), 2, -2, 2, 4},
    };
    for (const Case& c : cases) {
        m_gdx.clear();
        const std::wstring key = part(c.name, c.plan, {L"PIECE"});
        ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), nullptr)) << c.name;
        SCOPED_TRACE(c.name);
        expectBounds(path({1}), c.x0, c.y0, c.x1, c.y1);
    }
}

TEST_F(NormPrototypeImage, OnlyAPieceGetsASecondViewAndOnlyABarItsAxes)
{
    struct Case {
        const wchar_t* name;
        std::initializer_list<const wchar_t*> kind;
        int axis;
    };
    const Case cases[] = {{L"BAR", {L"BAR", L"PIECE"}, 7}, {L"PLATE", {L"PLATE"}, 1}, {L"PLAIN", {}, 1}};
    for (const Case& c : cases) {
        m_app.m_calls.clear();
        const std::wstring key = part(c.name, gentest::rectangle(0, 0, 40, 10), c.kind);
        ASSERT_TRUE(zem_gdx_image_norm_prototype(&m_gdx, key.c_str(), nullptr)) << c.name;
        ASSERT_EQ(m_app.m_calls.size(), 1u) << c.name;
        EXPECT_EQ(intAt(m_app.m_calls[0].sourceCopy, L"AXIS"), c.axis) << c.name;
    }
}

TEST_F(NormPrototypeImage, RefusedWithoutListKeyOrPart)
{
    const std::wstring key = part(L"P", gentest::rectangle(0, 0, 20, 10), {L"PIECE"});
    gentest::set(ZEM::cfg_dir_make(L"OBJECTS\\NORM"), L"VALUE", 1);
    EXPECT_FALSE(zem_gdx_image_norm_prototype(nullptr, key.c_str(), nullptr));
    EXPECT_FALSE(zem_gdx_image_norm_prototype(&m_gdx, nullptr, nullptr));
    EXPECT_FALSE(zem_gdx_image_norm_prototype(&m_gdx, L"NORM\\MISSING", nullptr));
    EXPECT_FALSE(zem_gdx_image_norm_prototype(&m_gdx, L"NORM\\VALUE", nullptr)) << "a value is no part";
    EXPECT_TRUE(m_app.m_calls.empty() && m_gdx.lenGet() == 0);
}
