#include "ZemString.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(String, DefaultStringReadsAsEmptyText) {
    CZemString s;
    const wchar_t* text = s;
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text[0], 0);
    EXPECT_EQ(s.len(), 0);
    EXPECT_TRUE(s.isEmpty());
    EXPECT_FALSE(s != nullptr) << "an empty string equals a null text";
    EXPECT_TRUE(CZemString(L"a") != nullptr);
}

TEST(String, IndexGetBufferAndCut) {
    CZemString s(L"abc");
    EXPECT_EQ(s[-1], L'c');
    s[-1] = 0;
    EXPECT_EQ(s.len(), 2);
    wchar_t* buffer = s.GetBuffer(20);
    std::wcscpy(buffer, L"written by a call");
    EXPECT_EQ(s.len(), 17);
    EXPECT_TRUE(s == L"written by a call");
    s.GetBuffer(0)[3] = 0;
    EXPECT_TRUE(s == L"wri");
}

TEST(String, EditingOperations) {
    CZemString s;
    s.format(L"PARM%d\\LABEL", 3);
    EXPECT_TRUE(s == L"PARM3\\LABEL");
    EXPECT_EQ(s.find(L'\\'), 5);
    EXPECT_LT(s.find(L'#'), 0);
    EXPECT_TRUE(s.mid(0, 5) == L"PARM3");
    EXPECT_TRUE(s.mid(6, 100) == L"LABEL");
    EXPECT_TRUE(s.mid(99, 1).isEmpty());
    EXPECT_TRUE(s.right(3) == L"BEL");
    EXPECT_TRUE(s.right(99) == s);
    EXPECT_TRUE(CZemString(s).downcase() == L"parm3\\label");
    EXPECT_TRUE(CZemString(L"a.b.c").replace(L'.', L',') == L"a,b,c");
    EXPECT_TRUE(CZemString(L"aXXbXX").replace(L"XX", L"XXY") == L"aXXYbXXY");
    EXPECT_TRUE(CZemString().format(L"%s-%.2f", L"x", 1.5) == L"x-1.50");

    CZemString t(L"ab");
    t += t;
    t = t + L"!";
    EXPECT_TRUE(t == L"abab!");
    EXPECT_TRUE(L">" + t == L">abab!");
    EXPECT_TRUE(CZemString(L"Alpha") < L"Beta");
    EXPECT_TRUE(CZemString(L"beta") > L"Beta");
}

TEST(String, EscapeRoundTripsEveryCharacter) {
    std::wstring all;
    for (unsigned c = 1; c < 0x3000; c += 7) all += static_cast<wchar_t>(c);
    all += L"\\u0041 \\\\ \xFC\xDF\x20AC";
    CZemString s(all.c_str());
    s.escapeWideChar();
    for (const wchar_t* p = s; *p; ++p) ASSERT_TRUE(*p >= 0x20 && *p < 0x7F) << "escape form is ASCII";
    s.unEscapeWideChar();
    EXPECT_TRUE(s == all.c_str());

    CZemString malformed(L"\\u12 \\q \\");
    EXPECT_TRUE(CZemString(malformed).unEscapeWideChar() == malformed) << "malformed escapes stay text";
}
