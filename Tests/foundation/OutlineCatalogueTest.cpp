#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDataIterator.h"
#include "ZemMessages.h"
#include "ZemOutline.h"
#include "ZemOutlineCatalogue.h"
#include "ZemResbuf.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

CZemString text(const CZemDataItem* item, const CZemString& key) {
    CZemString out;
    ZEM::itemGet(item, key, out);
    return out;
}

int number(const CZemDataItem* item, const CZemString& key, int missing) {
    int out = missing;
    ZEM::itemGet(item, key, out);
    return out;
}

CZemString parm(int n, const wchar_t* key) { return CZemString().format(L"PARM%d\\%s", n, key); }

double defaultValue(const CZemDataItem* entry, int n, int range) {
    double value = 0.0;
    const CZemDataKey key = CZemDataKey().appendString(CZemString().format(L"PARM%d", n)).appendString(L"VAL").appendNumber(range);
    entry->get(value, &key);
    return value;
}

}  // namespace

TEST(OutlineCatalogue, HasEveryKeyTheOutlineDialogReads) {
    CZemDataItem catalogue;
    ASSERT_FALSE(zemOutlineInit(nullptr));
    ASSERT_TRUE(zemOutlineInit(&catalogue));
    ASSERT_TRUE(catalogue.isDir());
    ASSERT_EQ(21, catalogue.getDir()->len()) << "the forms of ZEM::g_outline";
    int expectedId = 1;
    CZemDataIterator it(&catalogue);
    for (it.start(); !it.done(); it.next(), ++expectedId) {
        CZemDataItem* entry = it.item();
        EXPECT_EQ(ZEM::RTSHORT, entry->key().type()) << "outline numbers are integer keys";
        EXPECT_EQ(expectedId, static_cast<long>(entry->key()));
        EXPECT_NE(0, number(entry, L"CODE", 0) & 15) << expectedId;
        EXPECT_EQ(CZemString().format(L"ZEM_OUTL_%04d", 10 + expectedId), text(entry, L"LABEL"));
        EXPECT_EQ(3, number(entry, L"TXTGEN", -1));
        const int count = number(entry, L"PARMS", -1);
        ASSERT_GE(count, 1);
        ASSERT_LE(count, 6) << "the dialog has six fields";
        EXPECT_EQ(nullptr, entry->get(&CZemDataKey().set(CZemString().format(L"PARM%d", count + 1))));
        for (int n = 1; n <= count; ++n) {
            EXPECT_FALSE(text(entry, parm(n, L"LABEL")).isEmpty()) << expectedId << " " << n;
            EXPECT_NE(0, number(entry, parm(n, L"VALID"), 0) & 1) << "a value is required";
            const CZemString type = text(entry, parm(n, L"TYPE"));
            EXPECT_TRUE(type == L"L" || type == L"A" || type == L"N") << expectedId << " " << n;
            for (int range = 1; range <= 4; ++range) {
                const double ratio = defaultValue(entry, n, range) / defaultValue(entry, n, 1);
                const double growth = type == L"L" ? std::pow(10.0, range - 1) : 1.0;
                if (defaultValue(entry, n, 1) != 0) {
                    EXPECT_DOUBLE_EQ(growth, ratio) << "lengths grow tenfold";
                }
            }
            CZemDataIterator words(entry->get(&CZemDataKey().set(parm(n, L"KWORD"))));
            for (words.start(); !words.done(); words.next()) {
                EXPECT_EQ(ZEM::RTSTR, words->key().type());
                double value = 0.0;
                EXPECT_TRUE(words->get(value, nullptr));
            }
        }
    }
}

TEST(OutlineCatalogue, DefaultsMakeOutlinesInEveryRangeAndSignsMirrorThem) {
    CZemDataItem catalogue;
    zemOutlineInit(&catalogue);
    CZemDataIterator it(&catalogue);
    for (it.start(); !it.done(); it.next()) {
        const int id = static_cast<int>(static_cast<long>(it->key()));
        const int count = number(it.item(), L"PARMS", 0);
        for (int range = 1; range <= 4; ++range) {
            CZemArrayTempl<double> values;
            for (int n = 1; n <= count; ++n) values.append(defaultValue(it.item(), n, range));
            const CZemVertexArray outline = ZEM::g_outline(id, CZemVector3d(), values);
            EXPECT_TRUE(outline.isClosed() && !outline.isEmpty()) << id << " range " << range;
            CZemPoint3d low, high;
            ASSERT_TRUE(outline.extents(low, high));
            for (int n = 1; n <= count; ++n) {
                if (!it->get(&CZemDataKey().set(parm(n, L"MINUSP")))) continue;
                CZemArrayTempl<double> mirrored = values;
                mirrored[n - 1] = -mirrored[n - 1];
                EXPECT_FALSE(ZEM::g_outline(id, CZemVector3d(), mirrored).isEmpty()) << id << " negative " << n;
            }
        }
    }
    CZemArrayTempl<double> size;
    size.append(defaultValue(catalogue.get(&CZemDataKey().appendNumber(1)), 1, 3));
    size.append(defaultValue(catalogue.get(&CZemDataKey().appendNumber(1)), 2, 3));
    CZemPoint3d low, high;
    ZEM::g_outline(1, CZemVector3d(), size).extents(low, high);
    EXPECT_DOUBLE_EQ(100.0, high.x - low.x) << "the rectangle of range 3 is 100 by 50";
    EXPECT_DOUBLE_EQ(50.0, high.y - low.y);
}

TEST(OutlineCatalogue, EveryMessageKeyHasItsTextInGermanAndEnglish) {
    datatest::resetConfiguration();
    const std::wstring resources = datatest::widen(std::string(ZEM_SOURCE_DIR) + "/Source/resources");
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"SUPPORT"), resources.c_str());
    CZemDataItem catalogue(CZemDataItem::typeDir);
    ASSERT_TRUE(zemOutlineInit(&catalogue));
    int keys = 0;
    CZemDataIterator it(&catalogue);
    for (it.start(); !it.done(); it.next()) {
        CZemArrayTempl<CZemString> used;
        used.append(text(it.item(), L"LABEL"));
        for (int n = 1; n <= number(it.item(), L"PARMS", 0); ++n) {
            used.append(text(it.item(), parm(n, L"LABEL")));
            if (!text(it.item(), parm(n, L"MINUSP")).isEmpty()) used.append(text(it.item(), parm(n, L"MINUSP")));
        }
        for (int k = 0; k < used.len(); ++k, ++keys) {
            for (const wchar_t* language : {L"DEU", L"ENU"}) {
                CZemString message;
                EXPECT_TRUE(ZEM::msgFind(L"ZEM_", used[k], language, message)) << used[k] << " " << language;
            }
        }
    }
    EXPECT_GT(keys, 60);
    EXPECT_EQ(L"Rechteck", std::wstring(zem_msg_get(L"ZEM_", L"ZEM_OUTL_0011", nullptr, L"DEU")));
    EXPECT_EQ(L"Slot width downwards", std::wstring(zem_msg_get(L"ZEM_", L"ZEM_OUTL_0237", nullptr, L"ENU")));
    datatest::resetConfiguration();
}
