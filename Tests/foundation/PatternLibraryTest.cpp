#include "ZemDataAccess.h"
#include "ZemDefaultHost.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

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
