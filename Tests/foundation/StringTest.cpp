#include "ZemString.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(String, EmptyTextBufferAndEditing) {
    CZemString s;
    EXPECT_TRUE(static_cast<const wchar_t*>(s) != nullptr && s.isEmpty() && !(s != nullptr)) << "empty equals a null text";
    s = L"abc";
    s[-1] = 0;
    EXPECT_EQ(s.len(), 2);
    std::wcscpy(s.GetBuffer(20), L"written by a call");
    EXPECT_TRUE(s.len() == 17 && s == L"written by a call");
    s.format(L"PARM%d\\LABEL", 3);
    EXPECT_TRUE(s.find(L'\\') == 5 && s.find(L'#') < 0);
    EXPECT_TRUE(s.mid(6, 100) == L"LABEL" && s.mid(99, 1).isEmpty() && s.right(99) == s);
    EXPECT_TRUE(CZemString(L"aXXbXX").replace(L"XX", L"XXY") == L"aXXYbXXY");
    CZemString t(L"ab");
    t += t;
    EXPECT_TRUE(L">" + t + L"!" == L">abab!");
    EXPECT_TRUE(CZemString(L"Alpha") < L"Beta" && CZemString(L"beta") > L"Beta");
}

TEST(String, EscapeRoundTripsEveryCharacter) {
    std::wstring all;
    for (unsigned c = 1; c < 0x3000; c += 7) all += static_cast<wchar_t>(c);
    all += L"\\u0041 \\\\ \xFC\xDF\x20AC";
    CZemString s(all.c_str());
    s.escapeWideChar();
    for (const wchar_t* p = s; *p; ++p) ASSERT_TRUE(*p >= 0x20 && *p < 0x7F) << "escape form is ASCII";
    EXPECT_TRUE(s.unEscapeWideChar() == all.c_str());
    const CZemString malformed(L"\\u12 \\q \\");
    EXPECT_TRUE(CZemString(malformed).unEscapeWideChar() == malformed) << "malformed escapes stay text";
}
