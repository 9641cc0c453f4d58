#include "CDialog.h"
#include "CEdit.h"
#include "CMap.h"
#include "CRect.h"
#include "CString.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <vector>

namespace {

class CMadeByName : public CObject {
    DECLARE_DYNCREATE(CMadeByName)
};

IMPLEMENT_DYNCREATE(CMadeByName, CObject)

}  // namespace

TEST(FrameworkTypes, StringsFormatTrimSearchAndReplace) {
    CString text;
    text.Format(L"\nDlgID = %d\nKEY = '%s'", 1070, L"ZEM_OUTL_0005");
    EXPECT_EQ(text, L"\nDlgID = 1070\nKEY = 'ZEM_OUTL_0005'");

    CString entry(L"  12,5 m \t");
    EXPECT_EQ(entry.Trim(), L"12,5 m");
    EXPECT_EQ(entry.Find(L"m", 3), 5);
    EXPECT_EQ(entry.Mid(3, 100), L"5 m");
    EXPECT_EQ(entry.Left(-1), L"");
    EXPECT_EQ(entry.CompareNoCase(L"12,5 M"), 0);

    CString url(L"http://help/<topic>/<topic>.html");
    EXPECT_EQ(url.Replace(L"<topic>", L"Wand"), 2);
    EXPECT_EQ(url, L"http://help/Wand/Wand.html");

    CString buffer;
    wcscpy(buffer.GetBuffer(10), L"abc");
    buffer.ReleaseBuffer();
    EXPECT_EQ(buffer.GetLength(), 3);
    EXPECT_EQ(CString(nullptr), L"");
}

TEST(FrameworkTypes, MapWalksItsBucketsInOrderAndFindsEveryKey) {
    CMap<unsigned, unsigned, CString, const wchar_t*> keys(10);
    keys.InitHashTable(17);
    std::vector<unsigned> ids;
    for (unsigned id = 1000; id < 1100; id += 7) ids.push_back(id);
    for (unsigned id : ids) keys.SetAt(id, L"KEY");
    keys[1000] = L"FIRST";

    // Buckets are id / 16 mod 17, walked upward; later entries first within one.
    std::vector<unsigned> expected = ids;
    std::stable_sort(expected.begin(), expected.end(), [](unsigned a, unsigned b) {
        if ((a >> 4) % 17 != (b >> 4) % 17) return (a >> 4) % 17 < (b >> 4) % 17;
        return a > b;
    });
    std::vector<unsigned> walked;
    for (POSITION pos = keys.GetStartPosition(); pos != nullptr;) {
        unsigned id = 0;
        CString value;
        keys.GetNextAssoc(pos, id, value);
        walked.push_back(id);
    }
    EXPECT_EQ(walked, expected);

    CString value;
    EXPECT_TRUE(keys.Lookup(1000, value));
    EXPECT_EQ(value, L"FIRST");
    EXPECT_TRUE(keys.RemoveKey(1007));
    EXPECT_FALSE(keys.Lookup(1007, value));
    EXPECT_FALSE(keys.RemoveKey(1007));
    EXPECT_EQ(keys.GetCount(), static_cast<std::intptr_t>(ids.size() - 1));

    CMap<double, double, CString, const wchar_t*> words;
    words.SetAt(0.0, L"null");
    EXPECT_TRUE(words.Lookup(-0.0, value)) << "both zeros are one key";
}

TEST(FrameworkTypes, RectanglesExcludeTheirRightAndBottomEdges) {
    CRect a(0, 0, 10, 10);
    EXPECT_TRUE(a.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(a.PtInRect(CPoint(10, 5)));
    CRect overlap;
    EXPECT_TRUE(overlap.IntersectRect(a, CRect(5, -5, 20, 5)));
    EXPECT_EQ(overlap, CRect(5, 0, 10, 5));
    EXPECT_FALSE(overlap.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(overlap.IsRectNull());
    CRect flipped(10, 8, 2, 1);
    flipped.NormalizeRect();
    EXPECT_EQ(flipped, CRect(2, 1, 10, 8));
}

TEST(FrameworkTypes, RunTimeClassesKnowTheirBasesAndMakeDynamicObjects) {
    CEdit edit;
    EXPECT_TRUE(edit.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(edit.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_STREQ(edit.GetRuntimeClass()->m_lpszClassName, "CEdit");
    CObject* made = RUNTIME_CLASS(CMadeByName)->CreateObject();
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMadeByName)));
    delete made;
    EXPECT_EQ(RUNTIME_CLASS(CEdit)->CreateObject(), nullptr) << "CEdit is not a dynamic class";
}
