#include "TextTestSupport.h"

#include <cmath>

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
    EXPECT_TRUE(std::hypot(lo.x - x0, lo.y - y0) < 1e-9 && std::hypot(hi.x - x1, hi.y - y1) < 1e-9)
        << lo.x << ", " << lo.y << " to " << hi.x << ", " << hi.y;
}

}  // namespace

TEST(TextItem, EntryStoresTheTextAndWidensTheExtentsAndSettersLayTheGroupOutAnew) {
    CZemGDX g = newList();
    const CZemMatrix3d twice = CZemMatrix3d().setToSRM(CZemPoint3d(2, 2, 1), 0.0, CZemVector3d(10, 0, 0));
    const CZemColor green = CZemColor().setColorIndex(3);
    ASSERT_TRUE(g.imageTxt(path({4, 1}), 0x200, L"AB", green, twice, L"BC", CZemPoint3d(1, 1, 0)));
    EXPECT_TRUE(g.typeGet(0) == GDX_TXT && g.flagGet(0) == 0x200UL) << "the string form stores the flags as given";
    EXPECT_TRUE(g.linetypeGet(0).len() == 3 && g.linetypeGet(0)[0] == 1.0 && g.linetypeGet(0)[2] == 0.0);
    EXPECT_TRUE(CZemString(g.txtGet(0)) == L"AB" && CZemString(g.txtAlignGet(0)) == L"BC" && g.colorGet(0) == green);

    // Bounds of the outer contours: B's bottom sits on the baseline y = 1.
    const Box a = glyphBox(L'A'), b = glyphBox(L'B');
    const double w = (a.x1 - a.x0) + (b.x1 - b.x0) + 0.7;
    const double x0 = 1 + a.x0 - w / 2, x1 = 1 + (a.x1 - a.x0) + 0.5 + b.x1 - w / 2;
    const double top = 1 + std::max(a.y1, b.y1);
    expectExtents(g, 10 + 2 * x0, 2 * 1, 10 + 2 * x1, 2 * top);

    g.imageTxt(path({5}), GDX_NOEXT, L"WWWWWWWWWW", CZemColor(), CZemMatrix3d(), L"", CZemPoint3d(100, 0, 0));
    expectExtents(g, 10 + 2 * x0, 2 * 1, 10 + 2 * x1, 2 * top);
    Regions regions;
    g.geomGet(regions, 1);
    EXPECT_EQ(regions.len(), 10) << "laid out all the same";

    // Setters lay the group out anew.
    OpenList group;
    group.imageTxt(path({1, 1}), 0, L"Ai", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    group.imageTxt(path({1, 2}), 0, L"i", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    group.imagePt(path({1, 3}), 0, CZemPoint3d(7, 7, 0), CZemColor(), CZemMatrix3d(), 0.0, 0xFFFFFFFFUL);
    group.imageTxt(path({2}), 0, L"x", CZemColor(), CZemMatrix3d(), L"BL", CZemPoint3d());
    group.imagePicture(path({1, 4}), 0, L"plan.bmp", 0, CZemPoint3d(), CZemPoint3d(1, 1, 0));  // goes to index 0

    EXPECT_FALSE(group.txtSet(path({1}), nullptr) || group.txtAlignSet(path({1}), nullptr));
    EXPECT_TRUE(group.txtSet(path({9}), L"nothing matches"));
    EXPECT_TRUE(group.txtSet(path({1}), group.txtGet(1) + 1)) << "a tail of the text of an item of the group";
    Regions laid;
    for (int i : {0, 1, 2, 3}) EXPECT_TRUE(CZemString(group.txtGet(i)) == L"i") << i;
    EXPECT_TRUE(CZemString(group.txtGet(4)) == L"x");
    CZemString file;
    int number = 0;
    EXPECT_TRUE(group.pictureGet(0, file, number) && file == L"i") << "a picture of the group loses its file name";
    group.geomGet(laid, 1);
    EXPECT_EQ(laid.len(), 2);

    EXPECT_TRUE(group.txtPointSet(path({1}), CZemPoint3d(0, 10, 0)));
    CZemPoint3d moved;
    group.geomGet(moved, 3);
    EXPECT_EQ(moved, CZemPoint3d(0, 10, 0)) << "a point item of the group moves too";
    expectExtents(group, 0, 0, std::max(glyphBox(L'i').x1, glyphBox(L'x').x1), 10 + glyphBox(L'i').y1);

    // Setting a word twice gives what a fresh layout gives: no drift.
    group.txtAlignSet(path({1, 2}), L"CC");
    group.txtAlignSet(path({1, 2}), L"CC");
    group.geomGet(laid, 2);
    expectMoved(layout(L"i", L"CC", CZemPoint3d(0, 10, 0)), laid, 0, 0, 0);

    EXPECT_TRUE(group.txtReglUpd(-1));
    group.geomGet(laid, 4);
    expectMoved(layout(L"x", L"BL"), laid, 0, 0, 0);
    EXPECT_TRUE(group.txtReglUpd(group.lenGet()) && group.lenGet() == 6) << "the writing index adds an empty item";
    group.geomGet(laid, 5);
    EXPECT_EQ(laid.len(), 0);
}
