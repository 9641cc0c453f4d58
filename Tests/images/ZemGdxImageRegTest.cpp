#include "ZemGDX.h"
#include "ZemGdxImage.h"
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

// The names of one table, each with the function it should find: names that
// share prefixes and differ in case, so that order is tested on close calls.
std::vector<std::wstring> names(int count)
{
    std::vector<std::wstring> out;
    for (int i = 0; i < count; ++i)
        out.push_back((i % 2 ? L"w" : L"W") + std::wstring(static_cast<std::size_t>(i % 5), L'A') + std::to_wstring(i));
    return out;
}

ZemGdxImageFcn functionOf(const std::wstring& name) { return kFunctions[name.size() % 3]; }

std::vector<std::wstring> tableOrder(const CZemGdxImageReg& table)
{
    std::vector<std::wstring> out;
    for (std::uint32_t i = 0; i < table.count(); ++i)
        out.emplace_back(table.nameAt(i));
    return out;
}

bool wideLess(const std::wstring& a, const std::wstring& b) { return std::wcscmp(a.c_str(), b.c_str()) < 0; }

CZemGDX emptyList() { return CZemGDX(CZemColor(), CZemMatrix3d(), 1.0, 0, CZemPoint3d(), CZemPoint3d()); }

}  // namespace

TEST(ZemGdxImageReg, NamesInAnyOrderComeOutSortedAndAreFound)
{
    std::mt19937 random(12);
    for (int count : {0, 1, 2, 3, 4, 16, 17}) {
        std::vector<std::wstring> inserted = names(count);
        std::shuffle(inserted.begin(), inserted.end(), random);
        CZemGdxImageReg table;
        for (const std::wstring& name : inserted)
            table.set(name.c_str(), functionOf(name));
        std::vector<std::wstring> sorted = inserted;
        std::sort(sorted.begin(), sorted.end(), wideLess);
        EXPECT_EQ(tableOrder(table), sorted) << count << " names";
        EXPECT_EQ(table.capacity(), count == 0 ? 0u : count <= 16 ? 16u : 32u) << count << " names";
        for (const std::wstring& name : inserted)
            EXPECT_EQ(table.find(name.c_str()), functionOf(name)) << count << " names, looking for " << name.size();
        // Names before, between and behind the stored ones.
        for (const wchar_t* absent : {L"", L"A", L"W", L"WA", L"w99", L"zzz"})
            EXPECT_EQ(table.find(absent), nullptr) << count << " names";
    }
}

TEST(ZemGdxImageReg, ReplacingAndRemovingKeepTheOrder)
{
    CZemGdxImageReg table;
    std::vector<std::wstring> all = names(17);
    for (const std::wstring& name : all)
        table.set(name.c_str(), accepts);
    table.set(L"WALL", declines);
    table.set(L"wall", accepts);
    table.set(L"WALL", fillsOnePoint);
    EXPECT_EQ(table.count(), 19u) << "a second registration replaces; the case tells names apart";
    EXPECT_EQ(table.find(L"WALL"), fillsOnePoint);
    EXPECT_EQ(table.find(L"wall"), accepts);

    table.set(L"none", nullptr);
    table.set(nullptr, accepts);
    EXPECT_EQ(table.count(), 19u) << "removing an absent name, or a null name, does nothing";

    std::mt19937 random(7);
    std::shuffle(all.begin(), all.end(), random);
    for (std::size_t k = 0; k < all.size(); ++k) {
        table.set(all[k].c_str(), nullptr);
        std::vector<std::wstring> left(all.begin() + static_cast<long>(k) + 1, all.end());
        left.insert(left.end(), {L"WALL", L"wall"});
        std::sort(left.begin(), left.end(), wideLess);
        ASSERT_EQ(tableOrder(table), left) << "after removing " << k + 1;
        EXPECT_EQ(table.find(all[k].c_str()), nullptr);
    }
    EXPECT_EQ(table.capacity(), 32u) << "the table doesn't shrink";
}

TEST(ZemGdxImage, CallsTheRegisteredFunctionWithItsArguments)
{
    CZemGDX gdx = emptyList();
    EXPECT_FALSE(zem_gdx_image(L"SLIDE_TEST_POINT", &gdx, nullptr, nullptr));
    EXPECT_FALSE(zem_gdx_image(nullptr, &gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0) << "an unknown name leaves the list untouched";

    setGdxImageFcn(L"SLIDE_TEST_POINT", declines);
    setGdxImageFcn(L"SLIDE_TEST_POINT", fillsOnePoint);
    setGdxImageFcn(L"SLIDE_TEST_NO", declines);
    EXPECT_TRUE(zem_gdx_image(L"SLIDE_TEST_POINT", &gdx, nullptr, nullptr));
    ASSERT_EQ(gdx.lenGet(), 1);
    CZemPoint3d point;
    gdx.geomGet(point, 0);
    EXPECT_EQ(point.z, 3.0);
    EXPECT_FALSE(zem_gdx_image(L"SLIDE_TEST_NO", &gdx, nullptr, nullptr)) << "the function's own result";
    EXPECT_FALSE(zem_gdx_image(L"slide_test_point", &gdx, nullptr, nullptr));

    setGdxImageFcn(L"SLIDE_TEST_POINT", nullptr);
    setGdxImageFcn(L"SLIDE_TEST_NO", nullptr);
    EXPECT_FALSE(zem_gdx_image(L"SLIDE_TEST_POINT", &gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 1);
}
