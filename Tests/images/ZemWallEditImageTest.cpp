#include "ZemDtaFilePointer.h"
#include "ZemGdxImage.h"
#include "ZemImageGenerators.h"

#include "GeneratorTestSupport.h"

#include <memory>

using gentest::intAt;
using gentest::keysOf;

namespace {

// What the registered "WALL" function saw at each call.
struct WallCall {
    CZemGDX* gdx;
    CZemDtaFilePointer* wall;
    CZemDataItem parameters;
};

std::vector<WallCall>& wallCalls()
{
    static std::vector<WallCall> calls;
    return calls;
}

bool& wallResult()
{
    static bool result = true;
    return result;
}

bool recordWall(CZemGDX* gdx, CZemDtaFilePointer* wall, CZemDtaFilePointer* parameters)
{
    const CZemDataItem* root = parameters ? parameters->get(nullptr) : nullptr;
    wallCalls().push_back({gdx, wall, root ? *root : CZemDataItem()});
    return wallResult();
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
        wallCalls().clear();
        wallResult() = true;
        setGdxImageFcn(L"WALL", recordWall);
        m_wall.reset(ZEM::zemDtaOpen(zemDtaMemory, zemDtaRead | zemDtaWrite, nullptr, nullptr));
    }

    // The edit state; an empty mode or a negative entry number stays unset.
    static void editState(int bt, const wchar_t* mode)
    {
        CZemDataItem* state = ZEM::cfg_dir_make(L"*WALL_EDIT*");
        if (bt >= 0)
            gentest::set(state, L"BT", bt);
        if (*mode)
            gentest::set(state, L"MODE", mode);
        gentest::set(state, L"VL", gentest::polygon({{0, 0, 0}, {300, 0, 0}, {300, 240, 0}}, false));
    }
    // Wall entries under SN with number keys, in the order given.
    void entries(std::initializer_list<int> numbers)
    {
        for (int n : numbers)
            ZEM::dataItemSet(ZEM::dtaRoot(m_wall.get()), &CZemDataKey().set(5005, L"SN", 5003, n, 0), n * 10);
    }
    void cornerMode(const wchar_t* mode) { ZEM::dtaWrite(m_wall.get(), L"CORNER\\MODE", mode); }

    CZemGDX m_gdx = gentest::newList();
    std::unique_ptr<CZemDtaFilePointer> m_wall;
};

}  // namespace

TEST_F(WallEditImage, ShellEditHandsPolylineEntryAndCoordToWall)
{
    editState(5, L"SHELL");
    entries({2, 5, 7});
    ASSERT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get()));
    ASSERT_EQ(wallCalls().size(), 1u);
    const WallCall& call = wallCalls()[0];
    EXPECT_EQ(call.gdx, &m_gdx);
    EXPECT_EQ(call.wall, m_wall.get()) << "the wall goes on as it is";
    EXPECT_EQ(keysOf(call.parameters), (std::vector<std::wstring>{L"VL", L"ACT", L"COORD"}));
    EXPECT_EQ(intAt(call.parameters, L"ACT"), 5) << "an entry that exists is passed on unchanged";
    EXPECT_EQ(intAt(call.parameters, L"COORD"), 1);
    CZemVertexArray vl;
    ASSERT_TRUE(ZEM::itemGet(&call.parameters, L"VL", vl));
    ASSERT_EQ(vl.len(), 2);
    EXPECT_EQ(vl[1].m_end, CZemPoint3d(300, 240, 0));
    EXPECT_EQ(m_gdx.lenGet(), 0) << "the generator itself draws nothing";

    wallResult() = false;
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "the answer is that of WALL";
    EXPECT_EQ(wallCalls().size(), 2u);
}

TEST_F(WallEditImage, ActiveEntryOnlyForShellEditsAndCornersThatFollowTheShell)
{
    struct Case {
        const wchar_t* mode;
        const wchar_t* corner;  // null: the wall stores no corner mode
        bool act;
    };
    const Case cases[] = {
        {L"SHELL", nullptr, true},    {L"SHELL", L"EDGE", true},     {L"CORNER", L"SHELL", true},
        {L"CORNER", L"EDGE", false},  {L"CORNER", nullptr, false},   {L"OPENING", L"SHELL", false},
        {L"", L"SHELL", false},
    };
    for (const Case& c : cases) {
        fresh();
        editState(2, c.mode);
        entries({2});
        if (c.corner)
            cornerMode(c.corner);
        EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << c.mode;
        ASSERT_EQ(wallCalls().size(), 1u) << c.mode;
        const std::vector<std::wstring> keys = keysOf(wallCalls()[0].parameters);
        EXPECT_EQ(keys, c.act ? (std::vector<std::wstring>{L"VL", L"ACT", L"COORD"})
                              : (std::vector<std::wstring>{L"VL", L"COORD"}))
            << "mode " << c.mode << ", corner " << (c.corner ? c.corner : L"none");
    }
}

TEST_F(WallEditImage, EntryFallsBackToTheWallsFirstEntry)
{
    editState(-1, L"SHELL");
    entries({7, 2, 5});
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "BT unreadable, but the wall has entries";
    editState(4, L"SHELL");
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "BT names no entry of the wall";
    ASSERT_EQ(wallCalls().size(), 2u);
    EXPECT_EQ(intAt(wallCalls()[0].parameters, L"ACT"), 7);
    EXPECT_EQ(intAt(wallCalls()[1].parameters, L"ACT"), 7);

    gentest::resetConfiguration();
    editState(-1, L"SHELL");
    std::unique_ptr<CZemDtaFilePointer> bare(ZEM::zemDtaOpen(zemDtaMemory, 3, nullptr, nullptr));
    ZEM::dtaWrite(bare.get(), L"NAME", L"W1");
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, bare.get())) << "no BT and no entries to fall back on";
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, nullptr));
    EXPECT_EQ(wallCalls().size(), 2u) << "nothing is drawn without an entry number";
}

TEST_F(WallEditImage, NullWallStillDrawsWithTheEntryOfTheEdit)
{
    editState(3, L"CORNER");
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, nullptr));
    editState(3, L"SHELL");
    EXPECT_TRUE(zem_wall_edit_image(&m_gdx, nullptr));
    ASSERT_EQ(wallCalls().size(), 2u);
    EXPECT_EQ(wallCalls()[0].wall, nullptr);
    EXPECT_EQ(keysOf(wallCalls()[0].parameters), (std::vector<std::wstring>{L"VL", L"COORD"}))
        << "without a wall there is no corner mode";
    EXPECT_EQ(intAt(wallCalls()[1].parameters, L"ACT"), 3);
}

TEST_F(WallEditImage, RefusedWithoutListOrWallFunction)
{
    editState(2, L"SHELL");
    entries({2});
    EXPECT_FALSE(zem_wall_edit_image(nullptr, m_wall.get()));
    setGdxImageFcn(L"WALL", nullptr);
    setGdxImageFcn(L"wall", recordWall);
    EXPECT_FALSE(zem_wall_edit_image(&m_gdx, m_wall.get())) << "\"wall\" is another name";
    setGdxImageFcn(L"wall", nullptr);
    EXPECT_TRUE(wallCalls().empty());
}
