#include "DataTestSupport.h"
#include "ZemLabel.h"

#include <gtest/gtest.h>

using namespace ZEM;

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
    EXPECT_TRUE(label_set(L"Blech", L"Sheet", L"ENU") == L"\\DEU=Blech\\ENU=Sheet") << "a plain text becomes the message language's";
    const wchar_t* broken = L"\\DEU\\EN U=no\\=none\\ENU=yes\\";
    EXPECT_TRUE(label_get(text, broken, L"ENU", false) && text == L"yes");
    EXPECT_FALSE(label_get(text, broken, L"DEU", false));
    EXPECT_TRUE(label_set(broken, L"ja", L"DEU") == L"\\ENU=yes\\DEU=ja") << "malformed entries are dropped";
}
