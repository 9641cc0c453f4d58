#include "ZemDtaFilePointer.h"
#include "ZemGdxImage.h"
#include "ZemImageGenerators.h"

#include "GeneratorTestSupport.h"

#include <memory>

using gentest::intAt;
using gentest::keysOf;

namespace {

// What the registered "WALL" function saw at each call, and what it answers.
struct WallCall {
    CZemGDX* gdx;
    CZemDtaFilePointer* wall;
    CZemDataItem parameters;
};
std::vector<WallCall> g_calls;
bool g_result = true;

bool recordWall(CZemGDX* gdx, CZemDtaFilePointer* wall, CZemDtaFilePointer* parameters)
{
    const CZemDataItem* root = parameters ? parameters->get(nullptr) : nullptr;
    g_calls.push_back({gdx, wall, root ? *root : CZemDataItem()});
    return g_result;
}

class WallEditImage : public ::testing::Test {
protected:
    void SetUp() override { fresh(); }
    void TearDown() override
    {
        setGdxImageFcn(L"WALL", nullptr);
        gentest::resetConfiguration();
    }

    // An empty configuration, a new wall and "WALL" registered, answering true.
    void fresh()
    {
        gentest::resetConfiguration();
        g_calls.clear();
        g_result = true;
        setGdxImageFcn(L"WALL", recordWall);
        m_wall.reset(ZEM::zemDtaOpen(zemDtaMemory, zemDtaRead | zemDtaWrite, nullptr, nullptr));
    }

    // The edit state, a negative entry number staying unset, and the wall's
    // entries under SN with number keys, in the order given.
    void edit(int bt, const wchar_t* mode, std::initializer_list<int> numbers = {})
    {
        CZemDataItem* state = ZEM::cfg_dir_make(L"*WALL_EDIT*");
        if (bt >= 0)
            gentest::set(state, L"BT", bt);
        gentest::set(state, L"MODE", mode);
        gentest::set(state, L"VL", gentest::polygon({{0, 0, 0}, {300, 0, 0}, {300, 240, 0}}, false));
        for (int n : numbers)
            ZEM::dataItemSet(ZEM::dtaRoot(m_wall.get()), &CZemDataKey().set(5005, L"SN", 5003, n, 0), n * 10);
    }

    CZemGDX m_gdx = gentest::newList();
    std::unique_ptr<CZemDtaFilePointer> m_wall;
};

}  // namespace

TEST_F(WallEditImage, ShellEditHandsPolylineEntryAndCoordToWall)
{
    edit(5, L"SHELL", {2, 5, 7});
    ASSERT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get()));
    ASSERT_EQ(g_calls.size(), 1u);
    const WallCall& call = g_calls[0];
    EXPECT_TRUE(call.gdx == &m_gdx && call.wall == m_wall.get()) << "the wall goes on as it is";
    EXPECT_EQ(keysOf(call.parameters), (std::vector<std::wstring>{L"VL", L"ACT", L"COORD"}));
    EXPECT_EQ(intAt(call.parameters, L"ACT"), 5) << "an entry that exists is passed on unchanged";
    EXPECT_EQ(intAt(call.parameters, L"COORD"), 1);
    CZemVertexArray vl;
    EXPECT_TRUE(ZEM::itemGet(&call.parameters, L"VL", vl) && vl.len() == 2 && vl[1].m_end == CZemPoint3d(300, 240, 0));
    EXPECT_EQ(m_gdx.lenGet(), 0) << "the generator itself draws nothing";

    g_result = false;
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "the answer is that of WALL";
    EXPECT_FALSE(zem_wall_edit_image(nullptr, m_wall.get()));
    setGdxImageFcn(L"WALL", nullptr);
    setGdxImageFcn(L"wall", recordWall);
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "\"wall\" is another name";
    setGdxImageFcn(L"wall", nullptr);
    EXPECT_EQ(g_calls.size(), 2u);
}

TEST_F(WallEditImage, ActiveEntryOnlyForShellEditsAndCornersThatFollowTheShell)
{
    const struct {
        const wchar_t* mode;
        const wchar_t* corner;  // null: the wall stores no corner mode
        bool act;
    } cases[] = {{L"CORNER", L"SHELL", true}, {L"CORNER", nullptr, false}, {L"OPENING", L"SHELL", false}};
    for (const auto& c : cases) {
        fresh();
        edit(2, c.mode, {2});
        if (c.corner)
            ZEM::dtaWrite(m_wall.get(), L"CORNER\\MODE", c.corner);
        EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << c.mode;
        ASSERT_EQ(g_calls.size(), 1u) << c.mode;
        EXPECT_EQ(keysOf(g_calls[0].parameters).size(), c.act ? 3u : 2u)
            << "mode " << c.mode << ", corner " << (c.corner ? c.corner : L"none");
    }
}

TEST_F(WallEditImage, EntryFallsBackToTheWallsFirstEntry)
{
    edit(-1, L"SHELL", {7, 2, 5});
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "BT unreadable, but the wall has entries";
    edit(4, L"SHELL");
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "BT names no entry of the wall";
    edit(3, L"SHELL");
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, nullptr)) << "without a wall the entry of the edit";
    ASSERT_EQ(g_calls.size(), 3u);
    EXPECT_TRUE(intAt(g_calls[0].parameters, L"ACT") == 7 && intAt(g_calls[1].parameters, L"ACT") == 7);
    EXPECT_EQ(intAt(g_calls[2].parameters, L"ACT"), 3);

    gentest::resetConfiguration();
    edit(-1, L"SHELL");
    std::unique_ptr<CZemDtaFilePointer> bare(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
    ZEM::dtaWrite(bare.get(), L"NAME", L"W1");
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, bare.get())) << "no BT and no entries to fall back on";
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, nullptr));
    EXPECT_EQ(g_calls.size(), 3u) << "nothing is drawn without an entry number";
}
