#include "ZemDataAccess.h"
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

const double kPi = std::acos(-1.0);

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

TEST(OutlineCatalogue, HasEveryKeyTheOutlineDialogReadsWithTextsAndDefaultsThatMakeOutlines) {
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
        EXPECT_NE(0, read(entry, L"CODE", 0) & 15) << id;
        EXPECT_EQ(CZemString().format(L"ZEM_OUTL_%04d", 10 + id), read(entry, L"LABEL", CZemString()));
        expectTexts(read(entry, L"LABEL", CZemString()));
        const int count = read(entry, L"PARMS", 0);
        ASSERT_TRUE(count >= 1 && count <= 6) << "the dialog has six fields";
        EXPECT_EQ(nullptr, it->get(&CZemDataKey().set(CZemString().format(L"PARM%d", count + 1))));
        for (int n = 1; n <= count; ++n) {
            const CZemString type = read(entry, parm(n, L"TYPE"), CZemString());
            EXPECT_TRUE(type == L"L" || type == L"A" || type == L"N") << id << " " << n;
            expectTexts(read(entry, parm(n, L"LABEL"), CZemString()));
            if (it->get(&CZemDataKey().set(parm(n, L"MINUSP")))) expectTexts(read(entry, parm(n, L"MINUSP"), CZemString()));
            EXPECT_NE(0, read(entry, parm(n, L"VALID"), 0) & 1) << "a value is required";
            for (int range = 2; range <= 4 && defaultValue(entry, n, 1) != 0; ++range)
                EXPECT_DOUBLE_EQ(type == L"L" ? std::pow(10.0, range - 1) : 1.0,
                                 defaultValue(entry, n, range) / defaultValue(entry, n, 1)) << "lengths grow tenfold";
        }
        for (int range = 1; range <= 4; ++range) {
            CZemArrayTempl<double> values;
            for (int n = 1; n <= count; ++n) values.append(defaultValue(entry, n, range));
            EXPECT_TRUE(ZEM::g_outline(id, CZemVector3d(), values).isClosed()) << id << " range " << range;
        }
    }
    EXPECT_EQ(22, id) << "the 21 forms of ZEM::g_outline";
    const CZemDataItem* rectangle = catalogue.get(&CZemDataKey().appendNumber(1));
    EXPECT_TRUE(defaultValue(rectangle, 1, 3) == 100 && defaultValue(rectangle, 2, 3) == 50) << "the rectangle of range 3";
    double half = 0.0;
    const CZemDataKey word = CZemDataKey().appendNumber(16).appendString(L"PARM2").appendString(L"KWORD").appendString(L"Halbkreis");
    ASSERT_TRUE(catalogue.get(half, &word));
    EXPECT_DOUBLE_EQ(kPi, half) << "the sweep of a sector has words";
    datatest::resetConfiguration();
}
