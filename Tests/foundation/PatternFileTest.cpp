#include "ZemDataAccess.h"
#include "ZemDefaultHost.h"
#include "ZemPatternFile.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

using datatest::DumpCapture;

std::string patternPath(const char* file) { return std::string(ZEM_TESTDATA_DIR) + "/patterns/" + file; }

int parseText(CZemPatternFile& patterns, const std::string& text) {
    return patterns.parse(text.data(), text.size(), L"test.pat");
}
bool hasMessage(const wchar_t* text) { return DumpCapture::text().find(text) != std::wstring::npos; }

const double kPi = std::acos(-1.0);
using Lines = CZemPatternFile::Lines;
using Stroke = std::vector<double>;  // x0, y0, x1, y1; a line without dashes: angle, distance
const std::string kResources = std::string(ZEM_SOURCE_DIR) + "/Source/resources";

void setConfig(const wchar_t* key, const CZemString& value) {
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(key), value);
}

// The strokes that pattern lines draw with their middles in the square
// [low, high), worked out from the columns: line k of a family starts at the
// base point moved k times by dx along and dy across the line.
std::vector<Stroke> drawPattern(const Lines& lines, double low, double high) {
    std::vector<Stroke> out;
    const double size = high - low, centre = (low + high) / 2;
    for (int i = 0; i < lines.len(); ++i) {
        const CZemArrayTempl<double>& l = lines[i];
        const double ux = std::cos(l[0] * kPi / 180), uy = std::sin(l[0] * kPi / 180);
        double period = 0.0;
        for (int d = 5; d < l.len(); ++d) period += std::fabs(l[d]);
        const int families = static_cast<int>(2 * size / std::fabs(l[4])) + 2;
        for (int k = -families; k <= families; ++k) {
            const double ox = l[1] + k * (l[3] * ux - l[4] * uy), oy = l[2] + k * (l[3] * uy + l[4] * ux);
            const double distance = ux * oy - uy * ox;
            if (period == 0.0 && std::fabs(distance - (ux - uy) * centre) < size / 2)
                out.push_back({std::fmod(l[0] + 360, 180), distance, 0, 0});
            const double along = (centre - ox) * ux + (centre - oy) * uy;
            for (double s = period * std::floor((along - size) / period - 1); period > 0 && s < along + size + period;) {
                for (int d = 5; d < l.len(); s += std::fabs(l[d++])) {
                    const double x0 = ox + s * ux, y0 = oy + s * uy, x1 = x0 + l[d] * ux, y1 = y0 + l[d] * uy;
                    const double mx = (x0 + x1) / 2, my = (y0 + y1) / 2;
                    if (l[d] >= 0 && mx >= low && mx < high && my >= low && my < high)
                        out.push_back(x0 < x1 || (x0 == x1 && y0 < y1) ? Stroke{x0, y0, x1, y1} : Stroke{x1, y1, x0, y0});
                }
            }
        }
    }
    return out;
}

bool near(const Stroke& a, const Stroke& b, double tol) {
    for (int k = 0; k < 4; ++k)
        if (std::fabs(a[k] - b[k]) > tol) return false;
    return true;
}

bool sameDrawing(const std::vector<Stroke>& one, const std::vector<Stroke>& other) {
    return one.size() == other.size() && std::all_of(one.begin(), one.end(), [&](const Stroke& s) {
               return std::any_of(other.begin(), other.end(), [&](const Stroke& t) { return near(s, t, 1e-3); });
           });
}

}  // namespace

TEST(PatternFile, RealFilesParseWholeWithTheirPeculiarities) {
    const struct {
        const char* file;
        int patterns;
        const wchar_t* longest;
        int lines;
    } cases[] = {{"acad.pat", 72, L"GRAVEL", 41}, {"acadiso.pat", 83, L"GRAVEL", 41},
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

TEST(PatternLibrary, ConfiguredFilesInOrderThenAFileOfTheNameReadAgainWhenChanged) {
    const std::string folder = datatest::freshFolder("pattern-library");
    datatest::writeBytes(folder + "/a.pat", "*ONE\n0,0,0,0,1\n");
    datatest::writeBytes(folder + "/b.pat", "*one\n0,0,0,0,2\n*TWO\n0,0,0,0,3\n");
    datatest::writeBytes(folder + "/SOLO.pat", "*SOLO\n0,0,0,0,4\n");
    datatest::resetConfiguration();
    setConfig(L"SUPPORT", datatest::widen(folder).c_str());
    setConfig(L"PATTERN_FILES", L"missing.pat;a.pat;b.pat");
    CZemApp* app = zemAppPtr();
    Lines lines;
    const auto spacing = [&](const wchar_t* name) { return app->hatchPattern(name, lines) ? lines[0][4] : -1.0; };
    EXPECT_EQ(1.0, spacing(L"ONE")) << "the first file that has the name wins";
    EXPECT_EQ(3.0, spacing(L"two"));
    EXPECT_EQ(4.0, spacing(L"SOLO"));
    EXPECT_EQ(-1.0, spacing(L"NONE"));
    EXPECT_TRUE(lines.isEmpty()) << "an unknown name leaves no lines";
    EXPECT_EQ(-1.0, spacing(L"../b"));
    datatest::writeBytes(folder + "/a.pat", "*ONE\n0,0,0,0,10\n");
    EXPECT_EQ(10.0, spacing(L"ONE")) << "a changed file is read again";
    CZemArrayTempl<CZemString> list;
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"PATTERN_FILES"), list.append(L"b.pat"));
    EXPECT_EQ(2.0, spacing(L"ONE")) << "the files as a list of strings";
    datatest::resetConfiguration();
}

TEST(PatternLibrary, OurPatternsDrawWhatTheHostsMetricFileDraws) {
    datatest::resetConfiguration();
    setConfig(L"SUPPORT", datatest::widen(kResources).c_str());
    datatest::DumpCapture capture;
    const CZemPatternFile* ours = CZemDefaultHost::instance().patterns().file(datatest::widen(kResources + "/zem.pat").c_str());
    CZemPatternFile host;
    ASSERT_TRUE(ours && host.load(datatest::widen(std::string(ZEM_TESTDATA_DIR) + "/patterns/acadiso.pat").c_str()));
    EXPECT_EQ(L"", datatest::DumpCapture::text());
    Lines lines;
    for (const wchar_t* name : {L"DOTS", L"GRAVEL", L"ANSI31", L"ANSI38", L"BRICK", L"HONEY", L"EARTH", L"NET", L"SOLID",
                                L"CROSS", L"DASH", L"SQUARE", L"ZIGZAG"})
        EXPECT_TRUE(zemAppPtr()->hatchPattern(name, lines)) << name;
    int compared = 0;
    for (int i = 0; i < ours->len(); ++i) {
        const CZemString& name = ours->name(i);
        if (name == L"SOLID" || name == L"GRAVEL" || !host.get(name, lines)) continue;
        const std::vector<Stroke> mine = drawPattern(ours->lines(i), 0.123, 40.123);
        EXPECT_TRUE(!mine.empty() && sameDrawing(mine, drawPattern(lines, 0.123, 40.123))) << static_cast<const wchar_t*>(name);
        ++compared;
    }
    EXPECT_EQ(19, compared);
    datatest::resetConfiguration();
}
