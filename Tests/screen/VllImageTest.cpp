#include "RenderTestSupport.h"
#include "ScreenTestSupport.h"
#include "ZemVllImage.h"
#include "ZemVlMtxView.h"

#include <gtest/gtest.h>

using namespace rendertest;
using screentest::ScreenWindow;

namespace {

// The square (0, 0) - (100, 100), then upright lines: with the base point at
// its corner, in 110 by 110 pixels its left edge is column 5.
CZemArrayTempl<CZemVertexArray> squareAnd(int more)
{
    CZemArrayTempl<CZemVertexArray> out;
    out.append(square(0, 0, 100));
    for (int k = 0; k < more; ++k) out.append(polyline({{10.0 * k, 20, 0}, {10.0 * k, 80, 0}}));
    return out;
}

unsigned long flagsOf(CZemVllImage& image, int element)
{
    CZemGDX& list = *image.get_dpList();
    const CZemArrayTempl<int> items = list.StackToItemNr(stack(element));
    return items.len() == 1 ? list.flagGet(items[0]) : 0;
}

int cmodeOf(CZemVllImage& image, int element) { return zem_gdx_cmode(flagsOf(image, element)); }

}  // namespace

// A grey of mean 128 counts as light. Polyline i is picked as i + 1.
TEST(VllImage, LinesAreBlackOnLightWhiteOnDarkAndPickedByTheirIndex)
{
    CZemVllImage image;
    ScreenWindow window(image);
    image.setVll(squareAnd(0));
    image.SetBkColor(RGB(128, 128, 128));
    window.paint();
    EXPECT_GE(window.count(kBlack, 5), 90);
    EXPECT_EQ(window.pixel(50, 50), RGB(128, 128, 128));
    image.SetBkColor(RGB(127, 128, 128));
    EXPECT_FALSE(GetUpdateRect(window.control(), nullptr, FALSE)) << "no repaint of its own";
    window.paint();
    EXPECT_GE(window.count(kWhite, 5), 90) << "the lines follow without a new setVll";

    window.mouse(WM_LBUTTONDOWN, {5, 50}, MK_LBUTTON);
    EXPECT_EQ(window.picks(), std::vector<LPARAM>{1});
    CZemTestHost::wheel(image, 240, {50, 50});
    window.mouse(WM_LBUTTONDBLCLK, {50, 50}, MK_LBUTTON);
    EXPECT_TRUE(image.get_dpList()->zoomMtxGet() == CZemMatrix3d::kIdentity) << "the left double click fits";
}

TEST(VllImage, TheMarkMovesBetweenPolylinesAndSurvivesANewSet)
{
    CZemVllImage image;
    image.setVll(squareAnd(2));
    EXPECT_EQ(image.SetCurVl(1), -1);
    EXPECT_EQ(image.SetCurVl(1), 1);
    EXPECT_EQ(cmodeOf(image, 2), GDX_CM_HIGHLIGHT) << "set back, then marked again";
    EXPECT_EQ(image.SetCurVl(-1), 1);
    EXPECT_EQ(cmodeOf(image, 2), 6);
    EXPECT_EQ(image.SetCurVl(2), -1);
    image.setVll(squareAnd(2));
    EXPECT_EQ(cmodeOf(image, 3), 6) << "a new set has no mark";
    EXPECT_EQ(image.SetCurVl(2), 2);
    EXPECT_EQ(cmodeOf(image, 3), GDX_CM_HIGHLIGHT);
}

TEST(VllImage, AHiddenBasePointLeavesTheExtents)
{
    CZemVllImage image;
    image.setVll(CZemArrayTempl<CZemVertexArray>().append(square(50, 50, 10)));
    EXPECT_EQ(flagsOf(image, 0), 1024u);
    EXPECT_TRUE(image.setDrawBase(true));
    CZemPoint3d min, max;
    image.get_dpList()->extmaxGet(min, max);
    EXPECT_EQ(min, CZemPoint3d(0, 0, 0)) << "a shown base point widens the extents";
    EXPECT_TRUE(image.setDrawBase(false));
    EXPECT_EQ(flagsOf(image, 0), 1036u);
    image.get_dpList()->extmaxGet(min, max);
    EXPECT_EQ(min, CZemPoint3d(50, 50, 0));

    ScreenWindow window(image);
    image.setVll(CZemArrayTempl<CZemVertexArray>());
    EXPECT_EQ(flagsOf(image, 0), 1036u);
    window.paint();
    EXPECT_EQ(window.count(window.pixel(0, 0)), 110 * 110) << "nothing to fit, nothing drawn";
}

// Seen from +X with Z up, world Y is the view's x and world Z its y.
TEST(VlMtxView, APolylineSeenFromADirectionLiesFlatInXY)
{
    const CZemVector3d fromX(1, 0, 0);
    const CZemVertexArray seen = zem_g_vl_mtx_view(polyline({{4, 2, 3}, {4, 5, 3}}), fromX, CZemPoint3d(), true);
    ASSERT_EQ(seen.len(), 1);
    EXPECT_NEAR(seen[0].m_start.distanceTo(CZemPoint3d(2, 3, 0)), 0.0, 1e-12);
    EXPECT_NEAR(seen[0].m_end.distanceTo(CZemPoint3d(5, 3, 0)), 0.0, 1e-12);
    const CZemVertexArray back = zem_g_vl_mtx_view(polyline({{2, 3, 1}, {5, 3, 1}}), fromX, CZemPoint3d(), false);
    EXPECT_NEAR(back[0].m_start.distanceTo(CZemPoint3d(1, 2, 0)), 0.0, 1e-12) << "the inverse, flattened";
}
