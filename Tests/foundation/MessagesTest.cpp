#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemMessages.h"

#include <gtest/gtest.h>

using namespace ZEM;

namespace {

class Messages : public ::testing::Test {
protected:
    void SetUp() override {
        datatest::resetConfiguration();
        const std::string folder = datatest::freshFolder("Messages");
        m_first = folder + "/first";
        m_second = folder + "/second";
        std::filesystem::create_directories(m_first);
        std::filesystem::create_directories(m_second);
        CZemArrayTempl<CZemString> support;
        support.append(datatest::widen(m_first).c_str()).append(datatest::widen(m_second).c_str());
        dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"SUPPORT"), support);
    }
    void TearDown() override { datatest::resetConfiguration(); }

    std::string m_first;
    std::string m_second;
};

}  // namespace

TEST_F(Messages, TextsComeFromTheFilesOfTheLanguage) {
    datatest::writeBytes(m_first + "/ZEM_DEU.msg",
                         "# Dialogtexte\r\n"
                         "ZEM_MFC_0004 = Kopieren\r\n"
                         "ZEM_MFC_0009 =   Bezeichnung  \r\n"
                         "ZEM_MFC_0009 = zweite Zeile gilt nicht\n"
                         "  ; comment\n"
                         "no equal sign here\n"
                         "= no key\n"
                         "ZEM_ESC = a\\nb\\tc\\\\d\\s\\u00e4\\q\n"
                         "ZEM_LATIN = Gr\xF6\xDF" "e");
    datatest::writeBytes(m_second + "/ZEM_DEU.msg", "ZEM_MFC_0004 = not this\nZEM_MFC_0005 = Einf\xC3\xBCgen\n");
    datatest::writeBytes(m_second + "/ZEM_ENU.msg", "ZEM_MFC_0004 = Copy\n");

    datatest::DumpCapture dump;
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", L"Kopie", nullptr) == L"Kopieren");
    EXPECT_NE(datatest::DumpCapture::text().find(L"ZEM_DEU.msg:6:"), std::wstring::npos)
        << "a line without '=' is reported by its number";
    EXPECT_NE(datatest::DumpCapture::text().find(L"ZEM_DEU.msg:7:"), std::wstring::npos);
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0009", nullptr, nullptr) == L"Bezeichnung") << "the first text stands";
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0005", nullptr, nullptr) == L"Einf\u00FCgen") << "later folders add keys";
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_ESC", nullptr, nullptr) == L"a\nb\tc\\d \u00E4\\q");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_LATIN", nullptr, nullptr) == L"Gr\u00F6\u00DFe");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", L"Kopie", L"enu") == L"Copy");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0005", L"Einf\u00FCgen", L"ENU") == L"Einf\u00FCgen")
        << "the default at the call site stands for a missing key";
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_NONE", nullptr, nullptr) == L"");
    EXPECT_TRUE(zem_msg_get(L"KAL_", L"ZEM_MFC_0004", L"other store", nullptr) == L"other store");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", nullptr, L"no key", nullptr) == L"no key");

    EXPECT_STREQ(msgLangSet(L"enu"), L"ENU");
    EXPECT_STREQ(msgLangSet(nullptr), L"ENU") << "null only asks";
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", L"Kopie", nullptr) == L"Copy");

    msgSet(L"ZEM_", L"ZEM_MFC_0004", L"ENU", L"Copy it");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", nullptr, L"ENU") == L"Copy it") << "set in code wins";
    datatest::writeBytes(m_second + "/ZEM_ENU.msg", "ZEM_MFC_0004 = Copy again\n");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", nullptr, L"ENU") == L"Copy it") << "files are read once";
    msgReload();
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0004", nullptr, L"ENU") == L"Copy again");
}

TEST_F(Messages, TheStartLanguageComesFromTheConfiguration) {
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"LANGUAGE"), L"ita");
    msgReload();
    EXPECT_STREQ(msgLangSet(nullptr), L"ITA");
    EXPECT_STREQ(msgLangSet(L"FRA"), L"FRA");
    datatest::resetConfiguration();
    msgReload();
    EXPECT_STREQ(msgLangSet(nullptr), L"DEU") << "German without configuration";
}
