#include "ZemPatternFile.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using datatest::DumpCapture;

std::string patternPath(const char* file) { return std::string(ZEM_TESTDATA_DIR) + "/patterns/" + file; }

int parseText(CZemPatternFile& patterns, const std::string& text) {
    return patterns.parse(text.data(), text.size(), L"test.pat");
}

bool hasMessage(const wchar_t* text) { return DumpCapture::text().find(text) != std::wstring::npos; }

}  // namespace

TEST(PatternFile, RealFilesParseWholeWithTheirPeculiarities) {
    const struct { const char* file; int patterns; const wchar_t* longest; int lines; } cases[] = {{"acad.pat", 72, L"GRAVEL", 41}, {"acadiso.pat", 83, L"GRAVEL", 41},
                 {"team4eng_custom_acad.pat", 123, L"GRVL_02", 464}};
    CZemPatternFile files[3];
    for (int k = 0; k < 3; ++k) {
        DumpCapture capture;
        ASSERT_TRUE(files[k].load(datatest::widen(patternPath(cases[k].file)).c_str())) << cases[k].file;
        EXPECT_EQ(cases[k].patterns, files[k].len()) << cases[k].file;
        EXPECT_EQ(cases[k].lines, files[k].lines(files[k].find(cases[k].longest)).len()) << cases[k].file;
        EXPECT_EQ(L"", DumpCapture::text()) << cases[k].file;
    }
    CZemPatternFile::Lines lines;
    ASSERT_TRUE(files[0].get(L"zigzag", lines)) << "the last pattern, without a line end, in any case";
    ASSERT_TRUE(lines.len() == 2 && lines[1].len() == 7);
    EXPECT_DOUBLE_EQ(-0.125, lines[1][6]);
    ASSERT_TRUE(files[1].get(L"ANSI31", lines));
    EXPECT_NEAR(0.125 * 25.4, lines[0][4], 1e-12) << "the imperial spacing in millimetres";
    EXPECT_EQ(L"ANSI Iron, Brick, Stone masonry", std::wstring(files[0].description(files[0].find(L"ANSI31"))));
    // The bytes 91 E5 are no UTF-8 and read as two Latin-1 characters.
    EXPECT_EQ(L"LC JIS A 0150(@20\u0091\u00E5)", std::wstring(files[1].description(files[1].find(L"JIS_LC_20A"))));
    EXPECT_FALSE(files[2].get(L"ANSI31", lines));
    EXPECT_EQ(1, lines.len()) << "a failed look-up leaves the lines alone";
}

TEST(PatternFile, TextConventions) {
    DumpCapture capture;
    CZemPatternFile patterns;
    const std::string text =
        "\xEF\xBB\xBF;; header comment\r\n\r\n"
        "  *Net ,  Grid ; a comment\r\n"
        "\t0, 0,0, 0,1 ; comment behind numbers\r\n"
        "90,0,0,0,1,\r\n"
        "*PLUS, signs and exponents\n"
        "+45, -.5, 5., 1e-1, 2.5E+1, 0, -1e0";
    ASSERT_EQ(2, parseText(patterns, text));
    EXPECT_EQ(L"", DumpCapture::text());
    EXPECT_TRUE(patterns.name(0) == L"Net" && patterns.description(0) == L"Grid");
    EXPECT_EQ(5, patterns.lines(0)[1].len()) << "one comma behind the last field is allowed";
    const double expected[] = {45.0, -0.5, 5.0, 0.1, 25.0, 0.0, -1.0};
    ASSERT_EQ(7, patterns.lines(1)[0].len());
    for (int k = 0; k < 7; ++k) EXPECT_DOUBLE_EQ(expected[k], patterns.lines(1)[0][k]) << k;
}

TEST(PatternFile, MalformedPatternsAreSkippedAndTheOthersKept) {
    for (const char* line : {"45, 0,0, 0,1.2.3", "45, 0,0, 0,1e999", "45, 0,0, 0 1", "45, 0,,0, 1", "45, 0,0, 1"}) {
        DumpCapture capture;
        CZemPatternFile patterns;
        EXPECT_EQ(2, parseText(patterns, std::string("*GOOD\n0,0,0,0,1\n*BAD\n0,0,0,0,1\n") + line + "\n*AFTER\n90,0,0,0,2\n"));
        EXPECT_EQ(-1, patterns.find(L"BAD")) << line;
        EXPECT_TRUE(hasMessage(L"test.pat:5: pattern BAD")) << line;
    }
    DumpCapture capture;
    CZemPatternFile patterns;
    const std::string text = "0,0,0,0,1\n*, no name\n0,0,0,0,1\n*EMPTY\n*TWICE\n0,0,0,0,1\n*twice\n0,0,0,0,2\n90,0,0,0,2\n";
    ASSERT_EQ(1, parseText(patterns, text));
    EXPECT_EQ(1, patterns.lines(0).len()) << "of two patterns of one name the first counts";
    EXPECT_TRUE(hasMessage(L"test.pat:1: a pattern line before the first header"));
    EXPECT_TRUE(hasMessage(L"test.pat:2: a pattern header without a name"));
    EXPECT_TRUE(hasMessage(L"test.pat:4: pattern EMPTY has no pattern lines"));
    EXPECT_TRUE(hasMessage(L"test.pat:7: pattern twice is defined before"));
    EXPECT_EQ(0, patterns.parse(nullptr, 0, nullptr));
    EXPECT_EQ(0, parseText(patterns, std::string("\0\0\n*\0", 5)));
    ASSERT_EQ(1, parseText(patterns, "*A\n0,0,0,0,1"));
    EXPECT_FALSE(patterns.load(L"no-such-folder/none.pat"));
    EXPECT_EQ(0, patterns.len()) << "a failed load empties the file";
}
