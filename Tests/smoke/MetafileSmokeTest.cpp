#include <windows.h>

#include <gtest/gtest.h>

#include <map>

namespace {

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts) {
    (*reinterpret_cast<std::map<DWORD, int>*>(counts))[record->iType]++;
    return 1;
}

}  // namespace

// The platform under the library: a metafile drawn in memory and enumerated
// back holds exactly the drawing calls made into it.
TEST(Metafile, RecordsReadBackAsDrawn) {
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(dc, nullptr);
    for (int i = 0; i < 3; ++i) {
        MoveToEx(dc, 0, i * 10, nullptr);
        LineTo(dc, 100, i * 10);
    }
    const POINT triangle[] = {{0, 0}, {50, 0}, {0, 50}};
    Polygon(dc, triangle, 3);
    HENHMETAFILE emf = CloseEnhMetaFile(dc);
    ASSERT_NE(emf, nullptr);

    std::map<DWORD, int> counts;
    EnumEnhMetaFile(nullptr, emf, countRecord, &counts, nullptr);
    DeleteEnhMetaFile(emf);

    EXPECT_EQ(counts[EMR_HEADER], 1);
    EXPECT_EQ(counts[EMR_MOVETOEX], 3);
    EXPECT_EQ(counts[EMR_LINETO], 3);
    EXPECT_EQ(counts[EMR_POLYGON] + counts[EMR_POLYGON16], 1);
    EXPECT_EQ(counts[EMR_EOF], 1);
}
