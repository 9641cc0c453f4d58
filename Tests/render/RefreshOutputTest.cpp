#include "RenderTestSupport.h"
#include "ZemFont.h"
#include "ZemGdiCount.h"
#include "ZemRefresh.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace rendertest;

namespace {

void addEveryKind(CZemGDX& list)
{
    addLine(list, polyline({{0, 0, 0}, {100, 100, 0}}), doubles({1.0, 1.0, 1.0}), 1.0, 2);
    list.imageReg(stack(2), GDX_FILL | GDX_EDGE, rings({square(10, 60, 30), square(20, 70, 10)}), ole(kBlue),
                  CZemMatrix3d::kIdentity, doubles({1.0}), 1.0, 3, ole(RGB(255, 200, 0)));
    list.imageReg(stack(2), GDX_HATCH | GDX_EDGE, rings({square(55, 55, 40)}), ole(kBlue), CZemMatrix3d::kIdentity,
                  doubles({1.0}), 1.0, 1, ole(kRed), CZemHatchProp(L"ANSI31", 0.0, 1.0));
    list.imagePt(stack(3), 0, CZemPoint3d(80, 20, 0), ole(kRed), CZemMatrix3d::kIdentity, 8.0, 32 | 3);
    list.imagePicture(stack(4), 0, L"", 32516, CZemPoint3d(300, 40, 0), CZemPoint3d(332, 72, 0));
    CZemDisplayItem text;
    text.m_type = GDX_TXT;
    text.m_flags = GDX_FILL;
    text.m_color = ole(kBlue);
    text.m_mtx.setToSRM(CZemPoint3d(30, 30, 1), 0.0, CZemVector3d(50, 30, 0));
    text.m_txtRegl = get_ascii_from_map(L'B');
    list.addDisplayList(CZemArrayTempl<CZemDisplayItem>().append(text));
}

// The GDI objects that a metafile keeps from one blit of a bitmap into it,
// which Wine's recording doesn't give back.
int platformBlitResidue()
{
    const int before = zemGdiObjectCount();
    const HDC metafile = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    const HDC memory = CreateCompatibleDC(metafile);
    const HBITMAP bitmap = CreateCompatibleBitmap(metafile, 8, 8);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(metafile, 0, 0, 8, 8, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    DeleteEnhMetaFile(CloseEnhMetaFile(metafile));
    return zemGdiObjectCount() - before;
}

}  // namespace

// An empty list still fits the view and keeps it; at size 0 the view is fit
// into 320 by 240 while the clip region is empty.
TEST(Refresh, EmptyListsAndZeroSizesGiveValidMetafiles)
{
    CZemGDX list = makeList();
    const Emf empty = refreshed(list);
    ASSERT_EQ(empty.records.size(), 3u) << "header, clip region, end";
    const CZemPoint3d corner = CZemPoint3d(0, 0, 0) * list.viewMtxGet();
    EXPECT_DOUBLE_EQ(corner.x, 5.0);
    EXPECT_DOUBLE_EQ(corner.y, 105.0);
    EXPECT_FALSE(refresh(nullptr, outPath(L"none.emf").c_str(), 110, 110));

    addLine(list, polyline({{0, 0, 0}, {100, 100, 0}}));
    const Emf zero = refreshed(list, L"zero.emf", 0, 0);
    const EMREXTSELECTCLIPRGN& clip = zero.ofType(EMR_EXTSELECTCLIPRGN)[0]->as<EMREXTSELECTCLIPRGN>();
    EXPECT_EQ(reinterpret_cast<const RGNDATAHEADER*>(clip.RgnData)->nCount, 0u);
    ASSERT_EQ(zero.segments().size(), 1u);
    EXPECT_EQ(zero.segments()[0].to.x, static_cast<int>(160 + 50 * 240.0 / 110));
}

// Pictures lie at the bottom, regions above them, lines on top; a list that
// a viewer zoomed is written zoomed.
TEST(Refresh, ItemsAreDrawnInSortedOrderAndThroughTheZoom)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{50, 50, 0}, {60, 50, 0}}));
    list.imageReg(stack(2), GDX_EDGE, rings({square(0, 0, 10)}), ole(kRed), CZemMatrix3d::kIdentity, doubles({1.0}),
                  1.0, 0, ole(kRed));
    list.imagePicture(stack(3), GDX_PIC_FULL, L"", 32512, CZemPoint3d(), CZemPoint3d());
    list.zoomMtxSet(CZemMatrix3d().setToScaling(2.0, CZemPoint3d(0, 0, 0)));
    const Emf emf = refreshed(list);
    std::vector<DWORD> types;
    for (const Record& r : emf.records) types.push_back(r.type);
    const auto first = [&](DWORD type) { return std::find(types.begin(), types.end(), type) - types.begin(); };
    EXPECT_LT(first(EMR_BITBLT), first(EMR_LINETO));
    const std::vector<Segment> lines = emf.segments();
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[4], (Segment{{110, 110}, {130, 110}}));
}

TEST(Refresh, WithoutAFileNameTheMetafileGoesToTheClipboard)
{
    CZemGDX list = makeList();
    addLine(list, polyline({{0, 0, 0}, {100, 0, 0}}));
    ASSERT_TRUE(refresh(&list, nullptr, 110, 110));
    ASSERT_TRUE(OpenClipboard(nullptr));
    const Emf emf(static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE)));
    CloseClipboard();
    EXPECT_EQ(emf.segments(), (std::vector<Segment>{{{5, 105}, {105, 105}}}));
}

TEST(Refresh, LeavesNoGdiObjectBehindAndDrawsASamplePicture)
{
    PatternApp app;
    app.add(L"ANSI31", {45, 0, 0, 0, 3.175});
    CZemGDX list = makeList();
    addEveryKind(list);
    refreshed(list, L"sample.emf", 400, 400);
    platformBlitResidue();
    const int residue = platformBlitResidue();
    const int before = zemGdiObjectCount();
    const Emf emf = refreshed(list, L"sample.emf", 400, 400);
    EXPECT_EQ(zemGdiObjectCount() - before, residue);
    EXPECT_EQ(emf.count(EMR_BITBLT), 1);

    Canvas canvas(400, 400);
    canvas.paint(list);
    EXPECT_TRUE(canvas.save(L"sample.png"));
    const double scale = 400.0 / 110.0;
    EXPECT_NEAR(canvas.count(RGB(255, 200, 0)), (30 * 30 - 10 * 10) * scale * scale, 1100) << "the region's area";
}
