#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemDataIterator.h"
#include "ZemMessages.h"
#include "ZemOutline.h"
#include "ZemOutlineCatalogue.h"
#include "ZemPolyline.h"
#include "ZemResbuf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

const double kPi = 3.141592653589793;

// Signed area: the chords by the shoelace rule, each arc adding the segment
// between it and its chord, r^2 / 2 (a - sin a).
double areaOf(const CZemVertexArray& vl) {
    double area = 0.0;
    for (int k = 0; k < vl.len(); ++k) {
        const CZemVertex& v = vl[k];
        area += 0.5 * (v.m_start.x * v.m_end.y - v.m_end.x * v.m_start.y);
        if (v.m_bulge == 0.0) continue;
        const double a = 4 * std::atan(std::fabs(v.m_bulge));
        const double r = v.m_start.distanceTo(v.m_end) / (2 * std::sin(a / 2));
        area += (v.m_bulge > 0 ? 1 : -1) * 0.5 * r * r * (a - std::sin(a));
    }
    return area;
}

CZemArrayTempl<double> params(const std::vector<double>& values) {
    CZemArrayTempl<double> p;
    for (const double v : values) p.append(v);
    return p;
}

struct Expected {
    int form;
    std::vector<double> parameters;
    double area;
    double x0, y0, x1, y1;
};

void checkForm(const Expected& e, const CZemVector3d& base) {
    const CZemVertexArray vl = ZEM::g_outline(e.form, base, params(e.parameters));
    ASSERT_GT(vl.len(), 1) << "form " << e.form;
    EXPECT_TRUE(vl.isClosed() && vl.isContinuous() && vl.normal() == CZemVector3d::kZAxis) << "form " << e.form;
    CZemVertexArray atOrigin = vl;
    atOrigin.move(-base);
    EXPECT_NEAR(areaOf(atOrigin), e.area, 1e-9) << "form " << e.form << ", counter-clockwise";
    CZemPoint3d lo, hi;
    EXPECT_TRUE(vl.extents(lo, hi));
    EXPECT_NEAR(lo.distanceTo(CZemPoint3d(e.x0, e.y0, 0) + base), 0.0, 1e-9) << "form " << e.form;
    EXPECT_NEAR(hi.distanceTo(CZemPoint3d(e.x1, e.y1, 0) + base), 0.0, 1e-9) << "form " << e.form;
}

template <class T>
T read(const CZemDataItem* item, const CZemString& key, T value) {
    ZEM::itemGet(item, key, value);
    return value;
}

CZemString parm(int n, const wchar_t* key) { return CZemString().format(L"PARM%d\\%s", n, key); }

double defaultValue(const CZemDataItem* entry, int n, int range) {
    double value = 0.0;
    const CZemDataKey key = CZemDataKey().appendString(CZemString().format(L"PARM%d", n)).appendString(L"VAL").appendNumber(range);
    entry->get(value, &key);
    return value;
}

}  // namespace

TEST(Outline, EveryFormHasItsAreaAndBox) {
    const double s60 = 5 * std::sqrt(3.0) / 2;
    const std::vector<Expected> forms = {
        {1, {4, 3}, 12, 0, 0, 4, 3},
        {2, {4}, 4 * kPi, -2, -2, 2, 2},
        {3, {10, 4}, 24 + 4 * kPi, 0, 0, 10, 4},
        {4, {10, 6, 1}, 56 + kPi, 0, 0, 10, 6},
        {5, {10, 6, 1}, 58, 0, 0, 10, 6},
        {6, {6, 4, 8}, 12, 0, 0, 8, 4},
        {7, {6, 10, 0}, 1.5 * std::sqrt(3.0) * 25, -5, -s60, 5, s60},
        {8, {10, 2, kPi / 2}, 11 * kPi, -1, -1, 11, 11},
        {9, {6, 8, 1, 2}, 18, 0, 0, 6, 8},
        {10, {6, 8, 1, 2}, 20, 0, 0, 6, 8},
        {11, {6, 8, 1, 2}, 24, 0, 0, 6, 8},
        {12, {6, 8, 2, 1}, 18, 0, 0, 6, 8},
        {13, {6, 2, 4, 1}, 16, 0, 0, 6, 4},
        {14, {5, 3, 2}, 15, 0, 0, 7, 3},
        {15, {4}, 2 * kPi, -2, 0, 2, 2},
        {16, {3, kPi / 2}, 9 * kPi / 4, 0, 0, 3, 3},
        {17, {6, 8, 1, 2}, 24, 0, 0, 6, 8},
        {18, {6, 8, 1, 2}, 20, 0, 0, 6, 8},
        {19, {4, 3}, 12 + 2 * kPi, 0, 0, 4, 5},
        {20, {4, 6}, 12, -2, -3, 2, 3},
        {21, {5, 2, 90}, 4 * kPi, 0, 0, 5, 5},
    };
    for (const Expected& e : forms) checkForm(e, CZemVector3d(100, -20, 0));
    // Degenerate ends of the ranges: a rounded rectangle of full radius is an
    // oblong, a ring as wide as its radius a sector.
    checkForm({4, {10, 4, 2}, 24 + 4 * kPi, 0, 0, 10, 4}, CZemVector3d());
    checkForm({21, {3, 3, 90}, 9 * kPi / 4, 0, 0, 3, 3}, CZemVector3d());
    // Negative sizes mirror and stay counter-clockwise.
    checkForm({1, {-4, 3}, 12, -4, 0, 0, 3}, CZemVector3d(1, 1, 0));
    checkForm({4, {-10, -6, 1}, 56 + kPi, -10, -6, 0, 0}, CZemVector3d());
    checkForm({8, {10, 2, -kPi / 2}, 11 * kPi, -1, -11, 11, 1}, CZemVector3d());
}

TEST(Outline, SizesThatMakeNoShapeGiveNothing) {
    const CZemVector3d o;
    EXPECT_EQ(ZEM::g_outline(0, o, params({4, 3})).len() + ZEM::g_outline(22, o, params({4, 3})).len(), 0);
    EXPECT_EQ(ZEM::g_outline(1, o, params({4})).len(), 0) << "a missing height reads 0";
    EXPECT_EQ(ZEM::g_outline(1, o, params({4, std::nan("")})).len(), 0);
    EXPECT_EQ(ZEM::g_outline(3, o, params({4, 6})).len(), 0) << "wider than long";
    EXPECT_EQ(ZEM::g_outline(7, o, params({2, 10})).len(), 0);
    EXPECT_EQ(ZEM::g_outline(11, o, params({6, 8, 3, 2})).len(), 0);
    EXPECT_EQ(ZEM::g_outline(21, o, params({5, 2, 360})).len(), 0);
    EXPECT_EQ(ZEM::g_outline(1, o, params({4, 3, 99, 99, 99, 99, 99})).len(), 4) << "extra parameters are ignored";
}

TEST(OutlineCatalogue, EveryFormHasItsTextsAndDefaultsThatMakeOutlines) {
    datatest::resetConfiguration();
    const std::wstring resources = datatest::widen(std::string(ZEM_SOURCE_DIR) + "/Source/resources");
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"SUPPORT"), resources.c_str());
    const auto expectTexts = [](const CZemString& key) {
        CZemString text;
        EXPECT_TRUE(ZEM::msgFind(L"ZEM_", key, L"DEU", text) && ZEM::msgFind(L"ZEM_", key, L"ENU", text)) << key;
    };
    CZemDataItem catalogue;
    ASSERT_FALSE(zemOutlineInit(nullptr));
    ASSERT_TRUE(zemOutlineInit(&catalogue));
    int id = 1;
    CZemDataIterator it(&catalogue);
    for (it.start(); !it.done(); it.next(), ++id) {
        const CZemDataItem* entry = it.item();
        ASSERT_TRUE(entry->key().type() == ZEM::RTSHORT && static_cast<long>(entry->key()) == id) << "integer keys, in order";
        expectTexts(read(entry, L"LABEL", CZemString()));
        const int count = read(entry, L"PARMS", 0);
        ASSERT_TRUE(count >= 1 && count <= 6) << "the dialog has six fields";
        for (int n = 1; n <= count; ++n) {
            const CZemString type = read(entry, parm(n, L"TYPE"), CZemString());
            EXPECT_TRUE(type == L"L" || type == L"A" || type == L"N") << id << " " << n;
            expectTexts(read(entry, parm(n, L"LABEL"), CZemString()));
            if (it->get(&CZemDataKey().set(parm(n, L"MINUSP")))) expectTexts(read(entry, parm(n, L"MINUSP"), CZemString()));
        }
        for (int range = 1; range <= 4; ++range) {
            CZemArrayTempl<double> values;
            for (int n = 1; n <= count; ++n) values.append(defaultValue(entry, n, range));
            EXPECT_TRUE(ZEM::g_outline(id, CZemVector3d(), values).isClosed()) << id << " range " << range;
        }
    }
    EXPECT_EQ(22, id) << "the 21 forms of ZEM::g_outline";
    datatest::resetConfiguration();
}
