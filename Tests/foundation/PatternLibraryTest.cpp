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

using Lines = CZemPatternFile::Lines;

void useSupport(const std::string& folder) {
    datatest::resetConfiguration();
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"SUPPORT"), datatest::widen(folder).c_str());
    CZemDefaultHost::instance().patterns().clear();
}

const std::string kResources = std::string(ZEM_SOURCE_DIR) + "/Source/resources";

// One stroke of a drawn pattern, its ends in a fixed order; a continuous
// line is kept as its angle (mod 180) and its distance from the origin.
struct Stroke {
    double a[2];
    double b[2];
};

bool sameStroke(const Stroke& s, const Stroke& t, double tol) {
    return std::fabs(s.a[0] - t.a[0]) < tol && std::fabs(s.a[1] - t.a[1]) < tol && std::fabs(s.b[0] - t.b[0]) < tol &&
           std::fabs(s.b[1] - t.b[1]) < tol;
}

Stroke ordered(double x0, double y0, double x1, double y1) {
    if (x1 < x0 - 1e-9 || (std::fabs(x1 - x0) <= 1e-9 && y1 < y0)) return Stroke{{x1, y1}, {x0, y0}};
    return Stroke{{x0, y0}, {x1, y1}};
}

// The strokes of the lines of a pattern whose middles lie in a square window,
// worked out from the meaning of the columns: line k of a family starts at
// the base point moved k times by dx along and dy across the line.
std::vector<Stroke> drawPattern(const Lines& lines, double low, double high) {
    const double pi = std::acos(-1.0);
    const double centre = (low + high) / 2;
    std::vector<Stroke> out;
    for (int i = 0; i < lines.len(); ++i) {
        const CZemArrayTempl<double>& line = lines[i];
        const double angle = line[0] * pi / 180, ux = std::cos(angle), uy = std::sin(angle);
        const double dx = line[3], dy = line[4];
        double period = 0.0;
        for (int k = 5; k < line.len(); ++k) period += std::fabs(line[k]);
        const int families = static_cast<int>(2 * (high - low) / std::fabs(dy)) + 2;
        for (int k = -families; k <= families; ++k) {
            const double ox = line[1] + k * (dx * ux - dy * uy), oy = line[2] + k * (dx * uy + dy * ux);
            if (period == 0.0) {
                const double distance = -uy * ox + ux * oy;
                if (std::fabs(distance - (-uy * centre + ux * centre)) < (high - low) / 2)
                    out.push_back(Stroke{{std::fmod(line[0] + 360.0, 180.0), distance}, {0, 0}});
                continue;
            }
            const double along = (centre - ox) * ux + (centre - oy) * uy;
            for (int j = static_cast<int>(std::floor((along - (high - low)) / period)) - 1;
                 j * period < along + (high - low) + period; ++j) {
                double s = j * period;
                for (int d = 5; d < line.len(); s += std::fabs(line[d]), ++d) {
                    if (line[d] < 0) continue;
                    const double x0 = ox + s * ux, y0 = oy + s * uy;
                    const double x1 = x0 + line[d] * ux, y1 = y0 + line[d] * uy;
                    const double mx = (x0 + x1) / 2, my = (y0 + y1) / 2;
                    if (mx >= low && mx < high && my >= low && my < high) out.push_back(ordered(x0, y0, x1, y1));
                }
            }
        }
    }
    return out;
}

// Each stroke of one set has its match in the other, both ways.
bool sameDrawing(const std::vector<Stroke>& one, const std::vector<Stroke>& other, double tol) {
    if (one.size() != other.size()) return false;
    for (const Stroke& s : one)
        if (std::none_of(other.begin(), other.end(), [&](const Stroke& t) { return sameStroke(s, t, tol); }))
            return false;
    return true;
}

}  // namespace

TEST(PatternLibrary, FilesFromTheConfigurationInOrderThenAFileOfTheName) {
    const std::string folder = datatest::freshFolder("pattern-library");
    datatest::writeBytes(folder + "/a.pat", "*ONE\n0,0,0,0,1\n");
    datatest::writeBytes(folder + "/b.pat", "*one\n0,0,0,0,2\n*TWO\n0,0,0,0,3\n");
    datatest::writeBytes(folder + "/SOLO.pat", "*SOLO\n0,0,0,0,4\n");
    useSupport(folder);
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"PATTERN_FILES"), L"missing.pat;a.pat;b.pat");
    CZemApp* app = zemAppPtr();
    Lines lines;
    ASSERT_TRUE(app->hatchPattern(L"ONE", lines));
    EXPECT_DOUBLE_EQ(1.0, lines[0][4]) << "the first file that has the name wins";
    ASSERT_TRUE(app->hatchPattern(L"two", lines));
    EXPECT_DOUBLE_EQ(3.0, lines[0][4]);
    ASSERT_TRUE(app->hatchPattern(L"SOLO", lines));
    EXPECT_DOUBLE_EQ(4.0, lines[0][4]);
    EXPECT_FALSE(app->hatchPattern(L"NONE", lines));
    EXPECT_TRUE(lines.isEmpty()) << "an unknown name leaves no lines";
    EXPECT_FALSE(app->hatchPattern(L"../b", lines));

    datatest::writeBytes(folder + "/a.pat", "*ONE\n0,0,0,0,10\n");
    ASSERT_TRUE(app->hatchPattern(L"ONE", lines));
    EXPECT_DOUBLE_EQ(10.0, lines[0][4]) << "a changed file is read again";

    CZemArrayTempl<CZemString> list;
    list.append(L"b.pat");
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"PATTERN_FILES"), list);
    ASSERT_TRUE(app->hatchPattern(L"ONE", lines));
    EXPECT_DOUBLE_EQ(2.0, lines[0][4]) << "the files as a list of strings";
    datatest::resetConfiguration();
}

TEST(PatternLibrary, OurPatternFileHasTheNamedPatternsAndParsesClean) {
    useSupport(kResources);
    datatest::DumpCapture capture;
    Lines lines;
    const wchar_t* const names[] = {L"DOTS",  L"GRAVEL", L"ANSI31", L"ANSI38", L"BRICK", L"HONEY", L"EARTH",
                                    L"NET",   L"SOLID",  L"LINE",   L"CROSS",  L"DASH",  L"SQUARE", L"ZIGZAG"};
    for (const wchar_t* name : names) EXPECT_TRUE(zemAppPtr()->hatchPattern(name, lines)) << name;
    EXPECT_EQ(L"", datatest::DumpCapture::text());
    datatest::resetConfiguration();
}

TEST(PatternLibrary, OurPatternsDrawWhatTheHostsMetricFileDraws) {
    CZemPatternFile ours;
    CZemPatternFile host;
    ASSERT_TRUE(ours.load(datatest::widen(kResources + "/zem.pat").c_str()));
    ASSERT_TRUE(host.load(datatest::widen(std::string(ZEM_TESTDATA_DIR) + "/patterns/acadiso.pat").c_str()));
    int compared = 0;
    for (int i = 0; i < ours.len(); ++i) {
        const std::wstring name = static_cast<const wchar_t*>(ours.name(i));
        Lines theirs;
        if (name == L"SOLID" || name == L"GRAVEL" || !host.get(name.c_str(), theirs)) continue;
        const std::vector<Stroke> mine = drawPattern(ours.lines(i), 0.123, 40.123);
        EXPECT_FALSE(mine.empty()) << name.c_str();
        EXPECT_TRUE(sameDrawing(mine, drawPattern(theirs, 0.123, 40.123), 1e-3)) << name.c_str();
        ++compared;
    }
    EXPECT_EQ(19, compared);
}

TEST(PatternLibrary, OurGravelIsClosedStonesRepeatingEveryInch) {
    CZemPatternFile ours;
    ASSERT_TRUE(ours.load(datatest::widen(kResources + "/zem.pat").c_str()));
    Lines gravel;
    ASSERT_TRUE(ours.get(L"GRAVEL", gravel));
    const std::vector<Stroke> strokes = drawPattern(gravel, -30.0, 80.0);
    int inner = 0;
    for (const Stroke& s : strokes) {
        for (const double* end : {s.a, s.b}) {
            if (end[0] < 0 || end[0] > 50 || end[1] < 0 || end[1] > 50) continue;
            ++inner;
            const auto meets = [&](const Stroke& t) {
                return &t != &s && (std::hypot(t.a[0] - end[0], t.a[1] - end[1]) < 1e-6 ||
                                    std::hypot(t.b[0] - end[0], t.b[1] - end[1]) < 1e-6);
            };
            EXPECT_EQ(1, std::count_if(strokes.begin(), strokes.end(), meets)) << end[0] << ", " << end[1];
        }
        if (s.a[0] < 0 || s.a[0] > 50 || s.a[1] < 0 || s.a[1] > 50) continue;
        const Stroke moved = ordered(s.a[0] + 25.4, s.a[1] + 25.4, s.b[0] + 25.4, s.b[1] + 25.4);
        EXPECT_TRUE(std::any_of(strokes.begin(), strokes.end(), [&](const Stroke& t) { return sameStroke(moved, t, 1e-6); }));
    }
    EXPECT_GT(inner, 100);
}
