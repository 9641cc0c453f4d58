#include "RenderTestSupport.h"

#include <gtest/gtest.h>

using namespace rendertest;

namespace {

// One glyph: the square (20.5, 20.5) side 40 with the hole (40.5, 40.5) side
// 10, which lies at device x 45 to 55 and y 54 to 64.
CZemGDX ringText(unsigned long flags, COLORREF fill)
{
    CZemDisplayItem item;
    item.m_type = GDX_TXT;
    item.m_flags = flags;
    item.m_color = ole(kBlue);
    item.m_fcolor = ole(fill);
    item.m_txtRegl.append(rings({square(20.5, 20.5, 40), square(40.5, 40.5, 10)}));
    CZemGDX list = makeList();
    list.addDisplayList(CZemArrayTempl<CZemDisplayItem>().append(item));
    return list;
}

// Destination x, y, width and height of each blit.
std::vector<std::vector<LONG>> blits(CZemGDX& list)
{
    std::vector<std::vector<LONG>> out;
    for (const Record* r : refreshed(list).ofType(EMR_BITBLT)) {
        const EMRBITBLT& b = r->as<EMRBITBLT>();
        EXPECT_EQ(b.dwRop, static_cast<DWORD>(SRCCOPY));
        out.push_back({b.xDest, b.yDest, b.cxDest, b.cyDest});
    }
    return out;
}

}  // namespace

TEST(RefreshText, HolesAreCutFromTheClipAroundTheFilledPolygon)
{
    CZemGDX list = ringText(GDX_FILL, kWhite);
    const Emf emf = refreshed(list);
    const std::vector<const Record*> clips = emf.ofType(EMR_EXTSELECTCLIPRGN);
    ASSERT_EQ(clips.size(), 3u);
    const EMREXTSELECTCLIPRGN& hole = clips[1]->as<EMREXTSELECTCLIPRGN>();
    EXPECT_EQ(hole.iMode, static_cast<DWORD>(RGN_DIFF));
    const RECT bound = reinterpret_cast<const RGNDATAHEADER*>(hole.RgnData)->rcBound;
    EXPECT_EQ(std::vector<LONG>({bound.left, bound.top, bound.right, bound.bottom}), std::vector<LONG>({45, 54, 55, 64}));
    ASSERT_EQ(emf.count(EMR_CREATEBRUSHINDIRECT), 1);
    EXPECT_EQ(emf.ofType(EMR_CREATEBRUSHINDIRECT)[0]->as<EMRCREATEBRUSHINDIRECT>().lb.lbColor, kWhite)
        << "a text fill stays white";

    CZemGDX outlined = ringText(GDX_FILL | GDX_EDGE, kRed);
    Canvas canvas(110, 110);
    canvas.paint(outlined);
    EXPECT_EQ(canvas.pixel(50, 59), kWhite) << "the hole";
    EXPECT_EQ(canvas.pixel(35, 70), kRed);
    EXPECT_EQ(canvas.pixel(45, 59), kBlue) << "the hole's outline";
}

TEST(RefreshPictures, FullPicturesCoverTheOutputAndBoxesStayInPixels)
{
    const std::wstring red = writeBmp(L"red.bmp", 8, kRed);
    CZemGDX full = makeList();
    full.imagePicture(stack(1), GDX_PIC_FULL, red.c_str(), 0, CZemPoint3d(10, 10, 0), CZemPoint3d(20, 20, 0));
    EXPECT_EQ(blits(full), (std::vector<std::vector<LONG>>{{0, 0, 110, 110}}));

    CZemGDX boxed = makeList();
    boxed.imagePicture(stack(1), 0, red.c_str(), 0, CZemPoint3d(10, 20, 0), CZemPoint3d(60, 50, 0));
    EXPECT_EQ(blits(boxed), (std::vector<std::vector<LONG>>{{10, 20, 50, 30}}));
}

TEST(RefreshPictures, IconsByNumberComeOnWhiteAndUnknownFilesAreLeftOut)
{
    CZemGDX icon = makeList();
    icon.imagePicture(stack(1), 0, L"", 32516, CZemPoint3d(10, 10, 0), CZemPoint3d(42, 42, 0));
    EXPECT_EQ(blits(icon).size(), 1u);
    Canvas canvas(110, 110);
    canvas.paint(icon);
    EXPECT_EQ(canvas.pixel(10, 10), kWhite) << "a transparent corner of the round icon";

    writeBmp(L"picture.png", 8, kRed);
    for (const std::wstring& name : {outPath(L"picture.png"), outPath(L"missing.bmp"), std::wstring(L"red.bmp")}) {
        CZemGDX list = makeList();
        list.imagePicture(stack(1), 0, name.c_str(), 0, CZemPoint3d(10, 10, 0), CZemPoint3d(20, 20, 0));
        EXPECT_TRUE(blits(list).empty());
    }
}
