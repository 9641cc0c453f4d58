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

void setRoot(const wchar_t* key, const wchar_t* value) { dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(key), value); }

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
    EXPECT_TRUE(saved && saved->get(&CZemDataKey().set(L"KAL_MENU\\X")));
}

TEST_F(Config, DirectoriesAreMadeOnTheWay) {
    EXPECT_EQ(cfg_get(L"*ZEM_OUTLINE*"), nullptr);
    CZemDataItem* outline = cfg_dir_make(L"*ZEM_OUTLINE*");
    EXPECT_TRUE(outline && outline->isDir() && cfg_get(L"*ZEM_OUTLINE*") == outline);
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"A"), 1);
    EXPECT_NE(cfg_dir_make(L"A\\B"), nullptr);
    EXPECT_TRUE(cfg_get(L"A")->isDir()) << "a value on the way became a directory";
    dataItemSet(cfg_dir_make(L"*WALL_EDIT*"), &CZemDataKey().set(L"BT"), 3);
    CZemDataKey key;
    int bt = 0;
    EXPECT_TRUE(cfg_get(&key.set(RTSTR, L"*WALL_EDIT*", RTSTR, L"BT", 0))->get(bt, nullptr) && bt == 3);
}

TEST_F(Config, ColoursReadFromIndexTextOrDirectory) {
    CZemColor color;
    EXPECT_FALSE(color_from_cfg(color.setColorIndex(3), nullptr));
    CZemDataItem* menu = cfg_dir_make(L"KAL_MENU\\COLOR");
    const auto from = [&](const wchar_t* key, const wchar_t* text) {
        if (text) dataItemSet(menu, &CZemDataKey().set(key), text);
        return color_from_cfg(color, menu->get(&CZemDataKey().set(key)));
    };
    EXPECT_TRUE(from(L"AXIS", L" 255, 128 ,0") && color.oleColor() == 0x0080FFul) << "R 255, G 128, B 0 as a Windows colour";
    EXPECT_TRUE(from(L"AUX", L"#0080fF") && color.oleColor() == 0xFF8000ul);
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\COLOR"), 1);
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\RGB"), L"65280");
    dataItemSet(menu, &CZemDataKey().set(L"REFER\\TBL"), L"RAL");
    ASSERT_TRUE(from(L"REFER", nullptr));
    EXPECT_TRUE(color.kind() == CZemColor::byNames && color.oleColor() == 0x00FF00ul && color.bookName() == L"RAL");
    color.setColorIndex(2);
    EXPECT_FALSE(from(L"HIGHLIGHT", L"256,0,0")) << "256 is beyond a channel";
    dataItemSet(menu, &CZemDataKey().set(L"BACKGROUND"), 1.5);
    EXPECT_FALSE(from(L"BACKGROUND", nullptr)) << "1.5 is no colour";
    EXPECT_EQ(color.colorIndex(), 2);
}

TEST_F(Config, FilesAreFoundOnTheSupportPath) {
    const std::string folder = datatest::freshFolder("SupportPath");
    for (const char* file : {"/one/acad.pat", "/two/acad.pat", "/two/only.txt", "/help/only.txt"}) {
        std::filesystem::create_directories(std::filesystem::path(folder + file).parent_path());
        datatest::writeBytes(folder + file, "x");
    }
    const std::wstring one = datatest::widen(folder + "/one"), two = datatest::widen(folder + "/two");
    const std::wstring help = datatest::widen(folder + "/help");
    setRoot(L"SUPPORT", (L" " + one + L" ;;" + two).c_str());
    CZemString path = L"untouched";
    EXPECT_FALSE(fileFind(L"missing.pat", path));
    EXPECT_TRUE(path == L"untouched");
    EXPECT_TRUE(fileFind(L"acad.pat", path) && path == fsJoin(one.c_str(), L"acad.pat")) << "the first folder wins";
    EXPECT_TRUE(fileFind(L"only.txt", path) && path == fsJoin(two.c_str(), L"only.txt"));
    const std::wstring full = help + L"/only.txt";
    EXPECT_TRUE(fileFind(full.c_str(), path) && path == full.c_str()) << "a name with its folder";
    setRoot(L"HELP", help.c_str());
    EXPECT_TRUE(help_find(L"only.txt", path) && path == fsJoin(help.c_str(), L"only.txt"));
    EXPECT_TRUE(help_find(L"acad.pat", path)) << "help files are also looked for on the support path";
    cfgLibraryDirSet(help.c_str());
    setRoot(L"SUPPORT", L"");
    EXPECT_TRUE(fileFind(L"only.txt", path)) << "the library folder comes last";
}
