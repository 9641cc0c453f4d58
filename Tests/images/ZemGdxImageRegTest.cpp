#include "ZemGDX.h"
#include "ZemGdxImageReg.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <random>
#include <string>
#include <vector>

namespace {

bool fillsOnePoint(CZemGDX* gdx, CZemDtaFilePointer*, CZemDtaFilePointer*)
{
    return gdx->imagePt(CZemArrayTempl<int>(), 0, CZemPoint3d(1, 2, 3), CZemColor(), CZemMatrix3d(), 0.0, 0);
}
bool declines(CZemGDX*, CZemDtaFilePointer*, CZemDtaFilePointer*) { return false; }
bool accepts(CZemGDX*, CZemDtaFilePointer*, CZemDtaFilePointer*) { return true; }

const ZemGdxImageFcn kFunctions[] = {fillsOnePoint, declines, accepts};
ZemGdxImageFcn functionOf(const std::wstring& name) { return kFunctions[name.size() % 3]; }

// Names that share prefixes and differ in case, so that order is tested on
// close calls; the table's order against a sort by wide characters.
void expectSorted(const CZemGdxImageReg& table, std::vector<std::wstring> names, int step)
{
    std::sort(names.begin(), names.end(), [](const std::wstring& a, const std::wstring& b) {
        return std::wcscmp(a.c_str(), b.c_str()) < 0;
    });
    ASSERT_EQ(table.count(), names.size()) << "step " << step;
    for (std::uint32_t i = 0; i < table.count(); ++i)
        ASSERT_TRUE(names[i] == static_cast<const wchar_t*>(table.nameAt(i))) << "step " << step << " at " << i;
}

}  // namespace

TEST(ZemGdxImageReg, NamesInAnyOrderStaySortedThroughInsertionReplacementAndRemoval)
{
    std::mt19937 random(12);
    std::vector<std::wstring> names;
    for (std::size_t i = 0; i < 17; ++i)
        names.push_back((i % 2 ? L"w" : L"W") + std::wstring(i % 5, L'A') + std::to_wstring(i));
    std::shuffle(names.begin(), names.end(), random);
    CZemGdxImageReg table;
    for (std::size_t k = 0; k < names.size(); ++k) {
        table.set(names[k].c_str(), functionOf(names[k]));
        expectSorted(table, std::vector<std::wstring>(names.begin(), names.begin() + static_cast<long>(k) + 1), int(k));
    }
    EXPECT_EQ(table.capacity(), 32u);
    for (const std::wstring& name : names)
        EXPECT_EQ(table.find(name.c_str()), functionOf(name)) << name.size();
    // Names before, between and behind the stored ones.
    for (const wchar_t* absent : {L"", L"A", L"W", L"WA", L"w99", L"zzz", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(table.find(absent), nullptr);

    table.set(names[3].c_str(), declines);
    EXPECT_EQ(table.find(names[3].c_str()), declines) << "a second registration replaces";
    table.set(L"none", nullptr);
    table.set(nullptr, accepts);
    EXPECT_EQ(table.count(), 17u) << "removing an absent name, or a null name, does nothing";

    std::shuffle(names.begin(), names.end(), random);
    for (std::size_t k = 0; k < names.size(); ++k) {
        table.set(names[k].c_str(), nullptr);
        expectSorted(table, std::vector<std::wstring>(names.begin() + static_cast<long>(k) + 1, names.end()), int(k));
        EXPECT_EQ(table.find(names[k].c_str()), nullptr);
    }
}
