#include "ZemPatternFile.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace {

using datatest::DumpCapture;

std::string patternPath(const char* file) { return std::string(ZEM_TESTDATA_DIR) + "/patterns/" + file; }

bool loadReal(CZemPatternFile& patterns, const char* file) {
    return patterns.load(datatest::widen(patternPath(file)).c_str());
}

int parseText(CZemPatternFile& patterns, const std::string& text) {
    return patterns.parse(text.data(), text.size(), L"test.pat");
}

// Pattern lines of a file counted the simple way: lines whose first
// character that is not blank begins a number.
int countNumberLines(const std::string& bytes) {
    int count = 0;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find('\n', start);
        if (end == std::string::npos) end = bytes.size();
        const std::size_t first = bytes.find_first_not_of(" \t", start);
        if (first < end && (std::isdigit(static_cast<unsigned char>(bytes[first])) || bytes[first] == '-' ||
                            bytes[first] == '.'))
            ++count;
        start = end + 1;
    }
    return count;
}

int countLines(const CZemPatternFile& patterns) {
    int count = 0;
    for (int i = 0; i < patterns.len(); ++i) count += patterns.lines(i).len();
    return count;
}

}  // namespace

TEST(PatternFile, RealFilesParseWithTheCountsOfTheirReadme) {
    struct Case {
        const char* file;
        int patterns;
    } const cases[] = {{"acad.pat", 72}, {"acadiso.pat", 83}, {"team4eng_custom_acad.pat", 123}};
    for (const Case& c : cases) {
        DumpCapture capture;
        CZemPatternFile patterns;
        ASSERT_TRUE(loadReal(patterns, c.file)) << c.file;
        EXPECT_EQ(c.patterns, patterns.len()) << c.file;
        EXPECT_EQ(countNumberLines(datatest::readBytes(patternPath(c.file))), countLines(patterns)) << c.file;
        EXPECT_EQ(L"", DumpCapture::text()) << c.file;
    }
}

TEST(PatternFile, RealFilesKeepTheirPeculiarities) {
    CZemPatternFile acad;
    ASSERT_TRUE(loadReal(acad, "acad.pat"));
    CZemPatternFile::Lines lines;
    ASSERT_TRUE(acad.get(L"zigzag", lines)) << "the last pattern, without a line end, and any case";
    ASSERT_EQ(2, lines.len());
    EXPECT_EQ(7, lines[1].len());
    EXPECT_DOUBLE_EQ(90.0, lines[1][0]);
    EXPECT_DOUBLE_EQ(-0.125, lines[1][6]);
    ASSERT_TRUE(acad.get(L"GRAVEL", lines));
    EXPECT_EQ(41, lines.len());
    ASSERT_TRUE(acad.get(L"ANSI31", lines));
    ASSERT_EQ(1, lines.len());
    EXPECT_DOUBLE_EQ(0.125, lines[0][4]);
    EXPECT_EQ(L"ANSI Iron, Brick, Stone masonry", std::wstring(acad.description(acad.find(L"ANSI31"))));

    CZemPatternFile iso;
    ASSERT_TRUE(loadReal(iso, "acadiso.pat"));
    ASSERT_TRUE(iso.get(L"ANSI31", lines));
    EXPECT_NEAR(0.125 * 25.4, lines[0][4], 1e-12) << "the same pattern in millimetres";
    EXPECT_GE(iso.find(L"JIS_STN_2.5"), 0);
    const int jis = iso.find(L"JIS_LC_20A");
    ASSERT_GE(jis, 0);
    // The bytes 91 E5 are no UTF-8 and read as two Latin-1 characters.
    EXPECT_EQ(L"LC JIS A 0150(@20\u0091\u00E5)", std::wstring(iso.description(jis)));

    CZemPatternFile custom;
    ASSERT_TRUE(loadReal(custom, "team4eng_custom_acad.pat"));
    ASSERT_TRUE(custom.get(L"GRVL_02", lines));
    EXPECT_EQ(464, lines.len());
    EXPECT_FALSE(custom.get(L"ANSI31", lines));
    EXPECT_EQ(464, lines.len()) << "a failed look-up leaves the lines alone";
}

TEST(PatternFile, TextConventions) {
    DumpCapture capture;
    CZemPatternFile patterns;
    const std::string text =
        "\xEF\xBB\xBF;; header comment\r\n"
        "\r\n"
        "  *Net ,  Grid ; a comment\r\n"
        "\t0, 0,0, 0,1 ; comment behind numbers\r\n"
        "90,0,0,0,1,\r\n"
        "*PLUS, signs and exponents\n"
        "+45, -.5, 5., 1e-1, 2.5E+1, 0, -1e0";
    ASSERT_EQ(2, parseText(patterns, text));
    EXPECT_EQ(L"", DumpCapture::text());
    EXPECT_EQ(L"Net", std::wstring(patterns.name(0)));
    EXPECT_EQ(L"Grid", std::wstring(patterns.description(0)));
    ASSERT_EQ(2, patterns.lines(0).len());
    EXPECT_EQ(5, patterns.lines(0)[1].len()) << "one comma behind the last field is allowed";
    const CZemArrayTempl<double>& plus = patterns.lines(1)[0];
    ASSERT_EQ(7, plus.len());
    const double expected[] = {45.0, -0.5, 5.0, 0.1, 25.0, 0.0, -1.0};
    for (int k = 0; k < 7; ++k) EXPECT_DOUBLE_EQ(expected[k], plus[k]) << k;
}

TEST(PatternFile, MalformedPatternsAreSkippedAndTheOthersKept) {
    struct Case {
        const char* line;
        const wchar_t* reason;
    } const cases[] = {
        {"45, 0,0, 0,1.2.3", L"no decimal number"}, {"45, 0,0, 0,0x10", L"no decimal number"},
        {"45, 0,0, 0,inf", L"no decimal number"},   {"45, 0,0, 0,1e", L"no decimal number"},
        {"45, 0,0, 0,1e999", L"no decimal number"}, {"45, 0,0, 0 1", L"no decimal number"},
        {"45, 0,,0, 1", L"empty field"},            {"45, 0,0, 1", L"fewer than five"},
        {"45, 0,0, 0,1,,", L"empty field"},         {"45, 0,0, 0,1, -", L"no decimal number"},
    };
    for (const Case& c : cases) {
        DumpCapture capture;
        CZemPatternFile patterns;
        const std::string text = std::string("*GOOD\n0,0,0,0,1\n*BAD\n0,0,0,0,1\n") + c.line + "\n*AFTER\n90,0,0,0,2\n";
        EXPECT_EQ(2, parseText(patterns, text)) << c.line;
        EXPECT_EQ(-1, patterns.find(L"BAD")) << c.line;
        EXPECT_EQ(1, patterns.find(L"AFTER")) << c.line;
        EXPECT_NE(std::wstring::npos, DumpCapture::text().find(L"test.pat:5: pattern BAD")) << c.line;
        EXPECT_NE(std::wstring::npos, DumpCapture::text().find(c.reason)) << c.line;
    }
}

TEST(PatternFile, StrayLinesNamelessHeadersEmptyAndRepeatedPatterns) {
    DumpCapture capture;
    CZemPatternFile patterns;
    const std::string text =
        "0,0,0,0,1\n"
        "*, no name\n0,0,0,0,1\n"
        "*EMPTY, no lines\n"
        "*TWICE, first\n0,0,0,0,1\n"
        "*twice, second\n0,0,0,0,2\n90,0,0,0,2\n";
    ASSERT_EQ(1, parseText(patterns, text));
    CZemPatternFile::Lines lines;
    ASSERT_TRUE(patterns.get(L"TWICE", lines));
    EXPECT_EQ(1, lines.len()) << "the first definition counts";
    const std::wstring& messages = DumpCapture::text();
    EXPECT_NE(std::wstring::npos, messages.find(L"test.pat:1: a pattern line before the first header"));
    EXPECT_NE(std::wstring::npos, messages.find(L"test.pat:2: a pattern header without a name"));
    EXPECT_NE(std::wstring::npos, messages.find(L"test.pat:4: pattern EMPTY has no pattern lines"));
    EXPECT_NE(std::wstring::npos, messages.find(L"test.pat:7: pattern twice is defined before"));
}

TEST(PatternFile, EmptyAndUnreadableInput) {
    DumpCapture capture;
    CZemPatternFile patterns;
    EXPECT_EQ(0, patterns.parse(nullptr, 0, nullptr));
    EXPECT_EQ(0, parseText(patterns, std::string("\0\0\n*\0", 5)));
    ASSERT_EQ(1, parseText(patterns, "*A\n0,0,0,0,1"));
    EXPECT_FALSE(patterns.load(L"no-such-folder/none.pat"));
    EXPECT_EQ(0, patterns.len()) << "a failed load empties the file";
    CZemPatternFile::Lines lines;
    EXPECT_FALSE(patterns.get(nullptr, lines)) << "a null name finds nothing";
}
