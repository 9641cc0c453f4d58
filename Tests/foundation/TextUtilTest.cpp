#include "ZemTextUtil.h"

#include <gtest/gtest.h>

#include <climits>
#include <cwchar>
#include <cmath>
#include <string>

namespace {

std::wstring g_captured;

void captureSink(const wchar_t* text) { g_captured += text; }

std::wstring joined(const CZemArrayTempl<CZemString>& tokens) {
    std::wstring text;
    for (int k = 0; k < tokens.len(); ++k) text += std::wstring(L"[") + static_cast<const wchar_t*>(tokens[k]) + L"]";
    return text;
}

}  // namespace

TEST(TextUtil, NumbersAreReadFromTheFrontSaturatedAndCorrectlyRounded) {
    EXPECT_TRUE(ZEM::atoi(L"  -17abc") == -17 && ZEM::atoi(L"12.7") == 12 && ZEM::atoi(L"- 3") == 0);
    EXPECT_TRUE(ZEM::atoi(nullptr) == 0 && ZEM::atoi(L"99999999999999999999") == INT_MAX);
    EXPECT_EQ(ZEM::atoi(L"-2147483648"), INT_MIN);
    EXPECT_EQ(ZEM::atof(L" -2,25 "), -2.25);
    EXPECT_TRUE(ZEM::atof(L"1e3x") == 1000.0 && ZEM::atof(L"1e") == 1.0 && ZEM::atof(L"0.1") == 0.1);
    EXPECT_EQ(ZEM::atof(L"123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(ZEM::atof(L"2.2250738585072014e-308"), 2.2250738585072014e-308);
    EXPECT_TRUE(ZEM::atof(nullptr) == 0.0 && ZEM::atof(L".") == 0.0 && ZEM::atof(L"1e-999") == 0.0);
    EXPECT_TRUE(ZEM::atof(L"1e999") == HUGE_VAL && ZEM::atof(L"-1e999999999999999999") == -HUGE_VAL);
    double value = -7.0;
    EXPECT_TRUE(ZEM::scanReal(L"1,5,3", value) == 3u && value == 1.5);
    EXPECT_TRUE(ZEM::scanReal(L"-2E+2'", value) == 5u && value == -200.0);
    EXPECT_EQ(ZEM::scanReal(L"-", value) + ZEM::scanReal(L" 1", value) + ZEM::scanReal(nullptr, value), 0u);
    EXPECT_EQ(value, -200.0) << "nothing read, nothing written";
}

TEST(TextUtil, StrTokSplitsPathsWithOrWithoutEmptyTokens) {
    CZemArrayTempl<CZemString> tokens;
    EXPECT_TRUE(ZEM::strTok(L"\\a\\\\b\\", L"\\", tokens, false) && joined(tokens) == L"[a][b]");
    EXPECT_TRUE(ZEM::strTok(L"\\a\\\\b\\", L"\\", tokens, true) && joined(tokens) == L"[][a][][b][]");
    EXPECT_TRUE(ZEM::strTok(L"a b,c", L" ,", tokens, false) && joined(tokens) == L"[a][b][c]");
    EXPECT_TRUE(ZEM::strTok(L"a\\b", nullptr, tokens, false) && joined(tokens) == L"[a\\b]");
    EXPECT_FALSE(ZEM::strTok(L"\\\\", L"\\", tokens, false));
    tokens.append(CZemString(L"old"));
    EXPECT_FALSE(ZEM::strTok(nullptr, L"\\", tokens, true));
    EXPECT_EQ(tokens.len(), 0);
}

TEST(TextUtil, DumpFormatsWideArgumentsIntoTheSinkOrAsUtf8ToStderr) {
    EXPECT_EQ(ZEM::setDumpSink(captureSink), nullptr);
    ZEM::dump(L"%ls|%-4s|%c|%lc|%d%%|%.2f|0x%x", L"wide", L"ab", L'\u00E4', L'z', 50, 2.5, 0xC0000005u);
    EXPECT_EQ(g_captured, L"wide|ab  |\u00E4|z|50%|2.50|0xc0000005");
    g_captured.clear();
    const std::wstring longText(5000, L'x');
    ZEM::dump(L"<%s>", longText.c_str());
    ZEM::dump(nullptr);
    EXPECT_EQ(g_captured, L"<" + longText + L">");
    EXPECT_EQ(ZEM::setDumpSink(nullptr), captureSink);
    testing::internal::CaptureStderr();
    ZEM::dump(L"%s \U0001F600", L"\u010Ce\u0161tina");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "\xC4\x8C" "e\xC5\xA1tina \xF0\x9F\x98\x80");
}

TEST(String, BufferEditingAndEscapesThatRoundTripEveryCharacter) {
    CZemString s;
    EXPECT_TRUE(static_cast<const wchar_t*>(s) != nullptr && s.isEmpty() && !(s != nullptr)) << "empty equals a null text";
    std::wcscpy(s.GetBuffer(20), L"written by a call");
    EXPECT_TRUE(s.len() == 17 && s == L"written by a call");
    s.format(L"PARM%d\\LABEL", 3);
    EXPECT_TRUE(s.find(L'\\') == 5 && s.find(L'#') < 0 && s.mid(6, 100) == L"LABEL" && s.mid(99, 1).isEmpty());
    EXPECT_TRUE(CZemString(L"aXXbXX").replace(L"XX", L"XXY") == L"aXXYbXXY");
    EXPECT_TRUE(CZemString(L"Alpha") < L"Beta" && CZemString(L"beta") > L"Beta");
    std::wstring all;
    for (unsigned c = 1; c < 0x3000; c += 7) all += static_cast<wchar_t>(c);
    s = (all + L"\\u0041 \\\\ \xFC\xDF\x20AC").c_str();
    const CZemString original = s;
    s.escapeWideChar();
    for (const wchar_t* p = s; *p; ++p) ASSERT_TRUE(*p >= 0x20 && *p < 0x7F) << "escape form is ASCII";
    EXPECT_TRUE(s.unEscapeWideChar() == original);
    const CZemString malformed(L"\\u12 \\q \\");
    EXPECT_TRUE(CZemString(malformed).unEscapeWideChar() == malformed) << "malformed escapes stay text";
}
