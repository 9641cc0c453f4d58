#include "TextTestSupport.h"

#include <string>

namespace {

const double kLeftA = 0.155932, kRightA = 0.844746;
const double kWidthA = kRightA - kLeftA;  // 0.688814

const wchar_t* const kWords[] = {L"TL", L"TC", L"TR", L"CL", L"CC", L"CR", L"BL", L"BC", L"BR"};

}  // namespace

TEST(TextLayout, CharactersOutsideTheFontTakeNoRoomAndGlyphsFollowHalfAUnitApart) {
    for (const wchar_t* word : {L"", L"CC", L"XX"}) {
        EXPECT_EQ(layout(L"", word).len(), 0) << "empty text, word " << word;
        EXPECT_EQ(layout(L"  \n\t", word).len(), 0) << "blanks, word " << word;
    }
    EXPECT_EQ(layout(nullptr, nullptr).len(), 0);
    const Regions ab = layout(L"AB", L"BL");
    ASSERT_EQ(ab.len(), 2);
    expectMoved(ab, layout(L"A B", L"BL"), 0, 0, 0);
    expectMoved(ab, layout(L"A\r\n\x20AC" L"B", L"BL"), 0, 0, 0);
    // A character beyond 16 bits is not taken for the one of its low bits ("A").
    EXPECT_EQ(layout(L"\U00010041", L"BL").len(), 0);
    EXPECT_EQ(layout(L"i", L"BL").len(), 2) << "the dot is a region of its own";
    EXPECT_EQ(layout(L"%", L"BL").len(), 3);

    // Glyphs follow half a unit behind the one before.
    const Box a = outerBox(ab), first = outerBox(Regions().append(ab[0])), second = outerBox(Regions().append(ab[1]));
    EXPECT_DOUBLE_EQ(first.x0, kLeftA) << "the left bearing stays";
    EXPECT_DOUBLE_EQ(first.x1, kRightA);
    EXPECT_NEAR(second.x0, kWidthA + 0.5 + glyphBox(L'B').x0, 1e-12);
    EXPECT_DOUBLE_EQ(a.y0, 0.0);

    // A glyph of several parts is as wide as all of them.
    const Regions quoted = layout(L"\"A", L"BL");
    const Box quote = glyphBox(L'"');
    ASSERT_EQ(quoted.len(), 3);
    EXPECT_NEAR(outerBox(Regions().append(quoted[2])).x0, (quote.x1 - quote.x0) + 0.5 + kLeftA, 1e-12);

    const Box right = outerBox(layout(L"A", L"BR"));
    EXPECT_NEAR(right.x1, kRightA - (kWidthA + 0.5 - 0.3), 1e-12) << "W of one glyph: its width + 0.2";
    EXPECT_NEAR(right.x0, kLeftA - (kWidthA + 0.2), 1e-12);
}

// "Ag" at (2, 3, 0.5): W = both widths + 0.5 + 0.2; H = the top of A above
// y = 0, the insertion point's y included. The descender of g counts for
// neither.
TEST(TextLayout, AlignmentWordsMoveByWidthAndHeightAndEveryContourRunsCounterClockwise) {
    const CZemPoint3d at(2, 3, 0.5);
    const Box boxA = glyphBox(L'A'), boxG = glyphBox(L'g');
    const double w = (boxA.x1 - boxA.x0) + (boxG.x1 - boxG.x0) + 0.7;
    const double h = 3 + std::max(boxA.y1, boxG.y1);
    const double dx[] = {0, -w / 2, -w, 0, -w / 2, -w, 0, -w / 2, -w};
    const double dy[] = {-h, -h, -h, -h / 2, -h / 2, -h / 2, 0, 0, 0};
    const Regions base = layout(L"Ag", L"BL", at);
    ASSERT_EQ(base.len(), 2);
    EXPECT_DOUBLE_EQ(outerBox(base).x0, 2 + kLeftA);
    EXPECT_DOUBLE_EQ(base[1][0][0].m_start.z, 0.5);
    for (int k = 0; k < 9; ++k) {
        SCOPED_TRACE(std::string(kWords[k], kWords[k] + 2));
        expectMoved(base, layout(L"Ag", kWords[k], at), dx[k], dy[k]);
    }
    for (const wchar_t* other : {L"", L"bl", L"tl", L"T", L"TLX", L"LT", L"CCC"})
        expectMoved(base, layout(L"Ag", other, at), 0, 0, 0);

    // The stem of ! is its top, though its dot comes later.
    expectMoved(layout(L"!", L"BL"), layout(L"!", L"TL"), 0, -glyphBox(L'!').y1);

    // Below y = 0 the height stays 0: the top row stands at the baseline.
    const Regions low = layout(L"A", L"BL", CZemPoint3d(0, -5, 0));
    expectMoved(low, layout(L"A", L"TC", CZemPoint3d(0, -5, 0)), -(kWidthA + 0.2) / 2, 0);

    // Every contour of every character runs counter-clockwise, aligned or not.
    std::wstring all;
    int parts = 0;
    for (int c : fontCodes()) {
        all += static_cast<wchar_t>(c);
        parts += get_ascii_from_map(c).len();
    }
    for (const wchar_t* word : {L"BL", L"CC"}) {
        const Regions out = layout(all.c_str(), word, CZemPoint3d(1, 2, 0));
        ASSERT_EQ(out.len(), parts);
        for (int r = 0; r < out.len(); ++r) {
            for (int c = 0; c < out[r].len(); ++c) {
                const CZemVertexArray& contour = out[r][c];
                ASSERT_TRUE(contour.isClosed()) << "region " << r << " contour " << c;
                EXPECT_GT(signedArea2(contour), 0.0) << "region " << r << " contour " << c;
            }
        }
    }
}
