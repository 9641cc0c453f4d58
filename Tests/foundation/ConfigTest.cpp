#include "DataTestSupport.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemFileSystem.h"
#include "ZemResbuf.h"
#include "ZemSupportPath.h"

#include <gtest/gtest.h>

using namespace ZEM;

namespace {

class Config : public ::testing::Test {
protected:
    void SetUp() override { datatest::resetConfiguration(); }
    void TearDown() override {
        datatest::setEnv("ZEM_CONFIG", nullptr);
        datatest::resetConfiguration();
    }
};

CZemDataItem* colorNode(const wchar_t* name) {
    CZemString path = L"KAL_MENU\\COLOR\\";
    path += name;
    return cfg_get(path);
}

}  // namespace

TEST_F(Config, LoadsFromTheNamedFileElseBesideTheLibrary) {
    const std::string folder = datatest::freshFolder("ConfigLoad");
    datatest::writeBytes(folder + "/named.cfg", "ZEMDATA 1 { CURVER = \"7\"; }");
    datatest::writeBytes(folder + "/zem.cfg", "ZEMDATA 1 { _APPL = \"KAL\"; }");
    datatest::setEnv("ZEM_CONFIG", (folder + "/named.cfg").c_str());
    cfgReset();
    cfgLibraryDirSet(datatest::widen(folder).c_str());
    CZemString text;
    EXPECT_TRUE(cfgRead(L"CURVER", text) && text == L"7");
    EXPECT_EQ(cfg_get(L"_APPL"), nullptr);

    datatest::setEnv("ZEM_CONFIG", nullptr);
    cfgReset();
    EXPECT_TRUE(cfgRead(L"_APPL", text) && text == L"KAL") << "zem.cfg beside the library";

    datatest::writeBytes(folder + "/zem.cfg", "ZEMDATA 1 { _APPL = \"KAL\" }");
    cfgReset();
    datatest::DumpCapture dump;
    EXPECT_EQ(cfg_get(L"_APPL"), nullptr) << "a malformed file leaves the configuration empty";
    EXPECT_NE(datatest::DumpCapture::text().find(L"zem.cfg"), std::wstring::npos);

    EXPECT_TRUE(cfgLoad(datatest::widen(folder + "/named.cfg").c_str()));
    EXPECT_FALSE(cfgLoad(datatest::widen(folder + "/missing.cfg").c_str()));
    EXPECT_NE(cfg_get(L"CURVER"), nullptr) << "a failed load keeps the configuration";
    dataItemSet(cfg_dir_make(L"KAL_MENU"), &CZemDataKey().set(L"X"), 1);
    EXPECT_TRUE(cfgData()->save());
    std::unique_ptr<CZemDtaFilePointer> saved(zemDtaOpenFile(datatest::widen(folder + "/named.cfg").c_str(), 0));
    ASSERT_NE(saved, nullptr);
    EXPECT_NE(saved->get(&CZemDataKey().set(L"KAL_MENU\\X")), nullptr);
}

TEST_F(Config, DirectoriesAreMadeOnTheWay) {
    CZemDataItem* outline = cfg_get(L"*ZEM_OUTLINE*");
    EXPECT_EQ(outline, nullptr);
    outline = cfg_dir_make(L"*ZEM_OUTLINE*");
    ASSERT_NE(outline, nullptr);
    EXPECT_TRUE(outline->isDir());
    EXPECT_EQ(cfg_get(L"*ZEM_OUTLINE*"), outline);
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"A"), 1);
    CZemDataItem* a = cfg_dir_make(L"A\\B");
    ASSERT_NE(a, nullptr);
    EXPECT_TRUE(cfg_get(L"A")->isDir()) << "a value on the way became a directory";
    CZemDataKey key;
    key.set(RTSTR, L"*WALL_EDIT*", RTSTR, L"BT", 0);
    dataItemSet(cfg_dir_make(L"*WALL_EDIT*"), &CZemDataKey().set(L"BT"), 3);
    int bt = 0;
    ASSERT_NE(cfg_get(&key), nullptr);
    EXPECT_TRUE(cfg_get(&key)->get(bt, nullptr));
    EXPECT_EQ(bt, 3);
}

TEST_F(Config, ColoursReadFromIndexTextOrDirectory) {
    CZemColor color;
    color.setColorIndex(3);
    EXPECT_FALSE(color_from_cfg(color, nullptr));
    EXPECT_EQ(color.colorIndex(), 3) << "a null item leaves the colour";

    CZemDataItem* menu = cfg_dir_make(L"KAL_MENU\\COLOR");
    dataItemSet(menu, &CZemDataKey().set(L"BASE"), 5);
    dataItemSet(menu, &CZemDataKey().set(L"AXIS"), L" 255, 128 ,0");
    dataItemSet(menu, &CZemDataKey().set(L"AUX"), L"#0080fF");
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\COLOR"), 1);
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\RGB"), L"65280");
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\TBL"), L"RAL");
    dataItemSet(menu, &CZemDataKey().set(L"HIGHLIGHT"), L"256,0,0");
    dataItemSet(menu, &CZemDataKey().set(L"BACKGROUND"), 1.5);

    ASSERT_TRUE(color_from_cfg(color, colorNode(L"BASE")));
    EXPECT_EQ(color.colorIndex(), 5);
    ASSERT_TRUE(color_from_cfg(color, colorNode(L"AXIS")));
    EXPECT_EQ(color.oleColor(), 0x0080FFul) << "R 255, G 128, B 0 as a Windows colour";
    ASSERT_TRUE(color_from_cfg(color, colorNode(L"AUX")));
    EXPECT_EQ(color.oleColor(), 0xFF8000ul);
    ASSERT_TRUE(color_from_cfg(color, colorNode(L"REFER")));
    EXPECT_EQ(color.kind(), CZemColor::byNames);
    EXPECT_EQ(color.oleColor(), 0x00FF00ul);
    EXPECT_TRUE(color.bookName() == L"RAL" && color.colorName() == L"RAL");

    color.setColorIndex(2);
    EXPECT_FALSE(color_from_cfg(color, colorNode(L"HIGHLIGHT"))) << "256 is beyond a channel";
    EXPECT_FALSE(color_from_cfg(color, colorNode(L"BACKGROUND"))) << "1.5 is no colour";
    EXPECT_EQ(color.colorIndex(), 2);
}

TEST_F(Config, FilesAreFoundOnTheSupportPath) {
    const std::string folder = datatest::freshFolder("SupportPath");
    std::filesystem::create_directories(folder + "/one");
    std::filesystem::create_directories(folder + "/two");
    std::filesystem::create_directories(folder + "/help");
    datatest::writeBytes(folder + "/two/acad.pat", "*A\n");
    datatest::writeBytes(folder + "/one/acad.pat", "*B\n");
    datatest::writeBytes(folder + "/two/only.txt", "x");
    datatest::writeBytes(folder + "/help/only.txt", "x");
    const std::wstring one = datatest::widen(folder + "/one");
    const std::wstring two = datatest::widen(folder + "/two");
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"SUPPORT"), (L" " + one + L" ;;" + two).c_str());

    CZemString path = L"untouched";
    EXPECT_FALSE(fileFind(L"missing.pat", path));
    EXPECT_TRUE(path == L"untouched");
    ASSERT_TRUE(fileFind(L"acad.pat", path));
    EXPECT_EQ(datatest::readBytes(std::filesystem::path(path.operator const wchar_t*()).string()), "*B\n")
        << "the first folder wins";
    ASSERT_TRUE(fileFind(L"only.txt", path));
    EXPECT_TRUE(CZemString(path) == fsJoin(two.c_str(), L"only.txt"));
    const std::wstring full = datatest::widen(folder + "/help/only.txt");
    EXPECT_TRUE(fileFind(full.c_str(), path) && path == full.c_str()) << "a name with its folder";

    CZemArrayTempl<CZemString> helpFolders;
    helpFolders.append(datatest::widen(folder + "/help").c_str());
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"HELP"), helpFolders);
    ASSERT_TRUE(help_find(L"only.txt", path));
    EXPECT_TRUE(path == fsJoin(datatest::widen(folder + "/help").c_str(), L"only.txt"));
    EXPECT_TRUE(help_find(L"acad.pat", path)) << "help files are also looked for on the support path";

    cfgLibraryDirSet(datatest::widen(folder + "/help").c_str());
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"SUPPORT"), L"");
    EXPECT_TRUE(fileFind(L"only.txt", path)) << "the library folder comes last";
}
