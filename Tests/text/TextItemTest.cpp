#include "TextTestSupport.h"

using namespace texttest;

namespace {

// Reaches the protected layout of one item.
class OpenList : public CZemGDX {
public:
    OpenList() : CZemGDX(newList()) {}
    using CZemGDX::txtReglUpd;
};

void expectExtents(const CZemGDX& g, double x0, double y0, double x1, double y1) {
    CZemPoint3d lo, hi;
    g.extmaxGet(lo, hi);
    EXPECT_NEAR(lo.x, x0, 1e-9);
    EXPECT_NEAR(lo.y, y0, 1e-9);
    EXPECT_NEAR(hi.x, x1, 1e-9);
    EXPECT_NEAR(hi.y, y1, 1e-9);
}

}  // namespace

TEST(TextItem, EntryStoresTheTextAndWidensTheExtentsThroughTheMatrix) {
    CZemGDX g = newList();
    CZemMatrix3d twice;
    twice.setToSRM(CZemPoint3d(2, 2, 1), 0.0, CZemVector3d(10, 0, 0));
    const CZemColor green = CZemColor().setColorIndex(3);
    ASSERT_TRUE(g.imageTxt(path({4, 1}), 0x200, L"AB", green, twice, L"BC", CZemPoint3d(1, 1, 0)));
    EXPECT_EQ(g.typeGet(0), GDX_TXT);
    EXPECT_EQ(g.flagGet(0), 0x200UL) << "the string form stores the flags as given";
    EXPECT_TRUE(g.linetypeGet(0).len() == 3 && g.linetypeGet(0)[0] == 1.0 && g.linetypeGet(0)[2] == 0.0);
    EXPECT_TRUE(CZemString(g.txtGet(0)) == L"AB" && CZemString(g.txtAlignGet(0)) == L"BC" && g.colorGet(0) == green);

    // Bounds of the outer contours: B's bottom sits on the baseline y = 1.
    const Box a = glyphBox(L'A'), b = glyphBox(L'B');
    const double w = (a.x1 - a.x0) + (b.x1 - b.x0) + 0.7;
    const double x0 = 1 + a.x0 - w / 2, x1 = 1 + (a.x1 - a.x0) + 0.5 + b.x1 - w / 2;
    const double top = 1 + std::max(a.y1, b.y1);
    expectExtents(g, 10 + 2 * x0, 2 * 1, 10 + 2 * x1, 2 * top);

    g.imageTxt(path({5}), GDX_NOEXT, L"WWWWWWWWWW", CZemColor(), CZemMatrix3d(), L"", CZemPoint3d(100, 0, 0));
    EXPECT_EQ(g.flagGet(1), static_cast<unsigned long>(GDX_NOEXT));
    expectExtents(g, 10 + 2 * x0, 2 * 1, 10 + 2 * x1, 2 * top);
    Regions regions;
    g.geomGet(regions, 1);
    EXPECT_EQ(regions.len(), 10) << "laid out all the same";
}

TEST(TextItem, SettersLayTheGroupOutAnew) {
    OpenList g;
    g.imageTxt(path({1, 1}), 0, L"Ai", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    g.imageTxt(path({1, 2}), 0, L"i", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    g.imagePt(path({1, 3}), 0, CZemPoint3d(7, 7, 0), CZemColor(), CZemMatrix3d(), 0.0, 0xFFFFFFFFUL);
    g.imageTxt(path({2}), 0, L"x", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    g.imagePicture(path({1, 4}), 0, L"plan.bmp", 0, CZemPoint3d(), CZemPoint3d(1, 1, 0));  // goes to index 0

    EXPECT_FALSE(g.txtSet(path({1}), nullptr));
    EXPECT_FALSE(g.txtAlignSet(path({1}), nullptr));
    EXPECT_TRUE(g.txtSet(path({9}), L"nothing matches"));
    EXPECT_TRUE(g.txtSet(path({1}), g.txtGet(1) + 1)) << "a tail of the text of an item of the group";
    Regions regions;
    for (int i : {0, 1, 2, 3}) EXPECT_TRUE(CZemString(g.txtGet(i)) == L"i") << i;
    EXPECT_TRUE(CZemString(g.txtGet(4)) == L"x");
    CZemString file;
    int number = 0;
    EXPECT_TRUE(g.pictureGet(0, file, number) && file == L"i") << "a picture of the group loses its file name";
    g.geomGet(regions, 1);
    EXPECT_EQ(regions.len(), 2);

    EXPECT_TRUE(g.txtPointSet(path({1}), CZemPoint3d(0, 10, 0)));
    CZemPoint3d moved;
    g.geomGet(moved, 3);
    EXPECT_EQ(moved, CZemPoint3d(0, 10, 0)) << "a point item of the group moves too";
    expectExtents(g, 0, 0, std::max(glyphBox(L'i').x1, glyphBox(L'x').x1), 10 + glyphBox(L'i').y1);

    // Setting a word twice gives what a fresh layout gives: no drift.
    g.txtAlignSet(path({1, 2}), L"CC");
    g.txtAlignSet(path({1, 2}), L"CC");
    g.geomGet(regions, 2);
    expectMoved(layout(L"i", L"CC", CZemPoint3d(0, 10, 0)), regions, 0, 0, 0);

    EXPECT_TRUE(g.txtReglUpd(-1));
    g.geomGet(regions, 4);
    expectMoved(layout(L"x", L"BL"), regions, 0, 0, 0);
    EXPECT_TRUE(g.txtReglUpd(g.lenGet()) && g.lenGet() == 6) << "the writing index adds an empty item";
    g.geomGet(regions, 5);
    EXPECT_EQ(regions.len(), 0);
}
