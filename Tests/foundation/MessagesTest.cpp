#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemLabel.h"
#include "ZemMessages.h"

#include <gtest/gtest.h>

using namespace ZEM;

TEST(Messages, TextsComeFromTheFilesOfTheLanguage) {
    datatest::resetConfiguration();
    const std::string folder = datatest::freshFolder("Messages"), first = folder + "/first", second = folder + "/second";
    std::filesystem::create_directories(first);
    std::filesystem::create_directories(second);
    CZemArrayTempl<CZemString> support;
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"SUPPORT"),
                support.append(datatest::widen(first).c_str()).append(datatest::widen(second).c_str()));
    datatest::writeBytes(first + "/ZEM_DEU.msg",
                         "# Dialogtexte\r\nZEM_MFC_0004 = Kopieren\r\nZEM_MFC_0009 =   Bezeichnung  \r\n"
                         "ZEM_MFC_0009 = zweite Zeile gilt nicht\n  ; comment\nno equal sign here\n= no key\n"
                         "ZEM_ESC = a\\nb\\tc\\\\d\\s\\u00e4\\q\nZEM_LATIN = Gr\xF6\xDF" "e");
    datatest::writeBytes(second + "/ZEM_DEU.msg", "ZEM_MFC_0004 = not this\nZEM_MFC_0005 = Einf\xC3\xBCgen\n");
    datatest::writeBytes(second + "/ZEM_ENU.msg", "ZEM_MFC_0004 = Copy\n");
    const auto get = [](const wchar_t* key, const wchar_t* lang) {
        return std::wstring(zem_msg_get(L"ZEM_", key, nullptr, lang));
    };

    datatest::DumpCapture dump;
    EXPECT_EQ(get(L"ZEM_MFC_0004", nullptr), L"Kopieren");
    EXPECT_NE(datatest::DumpCapture::text().find(L"ZEM_DEU.msg:6:"), std::wstring::npos) << "a line without '=' by its number";
    EXPECT_NE(datatest::DumpCapture::text().find(L"ZEM_DEU.msg:7:"), std::wstring::npos);
    EXPECT_EQ(get(L"ZEM_MFC_0009", nullptr), L"Bezeichnung") << "the first text stands";
    EXPECT_EQ(get(L"ZEM_MFC_0005", nullptr), L"Einf\u00FCgen") << "later folders add keys";
    EXPECT_EQ(get(L"ZEM_ESC", nullptr), L"a\nb\tc\\d \u00E4\\q");
    EXPECT_EQ(get(L"ZEM_LATIN", nullptr), L"Gr\u00F6\u00DFe");
    EXPECT_EQ(get(L"ZEM_MFC_0004", L"enu"), L"Copy");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", L"ZEM_MFC_0005", L"Einf\u00FCgen", L"ENU") == L"Einf\u00FCgen") << "the call's default";
    EXPECT_EQ(get(L"ZEM_NONE", nullptr), L"");
    EXPECT_TRUE(zem_msg_get(L"KAL_", L"ZEM_MFC_0004", L"other store", nullptr) == L"other store");
    EXPECT_TRUE(zem_msg_get(L"ZEM_", nullptr, L"no key", nullptr) == L"no key");
    EXPECT_TRUE(std::wstring(msgLangSet(L"enu")) == L"ENU" && std::wstring(msgLangSet(nullptr)) == L"ENU") << "null only asks";
    EXPECT_EQ(get(L"ZEM_MFC_0004", nullptr), L"Copy");
    msgSet(L"ZEM_", L"ZEM_MFC_0004", L"ENU", L"Copy it");
    datatest::writeBytes(second + "/ZEM_ENU.msg", "ZEM_MFC_0004 = Copy again\n");
    EXPECT_EQ(get(L"ZEM_MFC_0004", L"ENU"), L"Copy it") << "set in code wins; files are read once";
    msgReload();
    EXPECT_EQ(get(L"ZEM_MFC_0004", L"ENU"), L"Copy again");

    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"LANGUAGE"), L"ita");
    msgReload();
    EXPECT_STREQ(msgLangSet(nullptr), L"ITA") << "the start language comes from the configuration";
    datatest::resetConfiguration();
}

TEST(Label, OneTextPerLanguageSurvivesAnyCharacters) {
    datatest::resetConfiguration();
    CZemString label, text;
    const wchar_t* hard = L"a\\b\\\\c=\\ENU=x\n\u00A7\\";
    label_set(label, L"T\u00FCr", L"DEU");
    label_set(label, hard, L"ENU");
    label_set(label, L"porte", L"fra");
    EXPECT_TRUE(label == CZemString(L"\\DEU=T\u00FCr\\ENU=") + L"a\\\\b\\\\\\\\c=\\\\ENU=x\n\u00A7\\\\\\FRA=porte");
    EXPECT_TRUE(label_get(text, label, L"ENU", false) && text == hard);
    EXPECT_TRUE(label_get(text, label, L"deu", false) && text == L"T\u00FCr");
    label_set(label, L"Doors", L"ENU");
    EXPECT_TRUE(label == L"\\DEU=T\u00FCr\\ENU=Doors\\FRA=porte") << "replaced in its place";
    label_set(label, L"", L"DEU");
    EXPECT_TRUE(label == L"\\ENU=Doors\\FRA=porte") << "an empty text removes the language";
    text = L"kept";
    EXPECT_FALSE(label_get(text, label, L"DEU", false));
    EXPECT_TRUE(text == L"kept");
    EXPECT_TRUE(label_get(text, label, L"DEU", true) && text == L"Doors") << "any language as a fallback";
    EXPECT_TRUE(label_set(L"", L"Tor", nullptr) == L"\\DEU=Tor") << "null is the message language";
    EXPECT_TRUE(label_set(L"", L"x", L"D=U") == L"") << "a malformed code changes nothing";
}

TEST(Label, PlainTextsAndMalformedLabels) {
    datatest::resetConfiguration();
    CZemString text;
    EXPECT_TRUE(label_get(text, L"Blech 2mm", L"ENU", false) && text == L"Blech 2mm") << "a plain text in every language";
    EXPECT_FALSE(label_get(text, L"", L"ENU", false) || label_get(text, nullptr, L"ENU", false));
    EXPECT_TRUE(label_set(L"Blech", L"Sheet", L"ENU") == L"\\DEU=Blech\\ENU=Sheet") << "a plain text is the message language's";
    const wchar_t* broken = L"\\DEU\\EN U=no\\=none\\ENU=yes\\";
    EXPECT_TRUE(label_get(text, broken, L"ENU", false) && text == L"yes");
    EXPECT_FALSE(label_get(text, broken, L"DEU", false));
    EXPECT_TRUE(label_set(broken, L"ja", L"DEU") == L"\\ENU=yes\\DEU=ja") << "malformed entries are dropped";
}
