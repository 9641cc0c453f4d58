#include "CBitmap.h"
#include "CBrush.h"
#include "CClientDC.h"
#include "CMetaFileDC.h"
#include "CPaintDC.h"
#include "CPen.h"
#include "CRgn.h"
#include "CWnd.h"
#include "ZemGdiCount.h"
#include "ZemTestHost.h"

#include <gtest/gtest.h>

#include <map>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts) {
    (*reinterpret_cast<std::map<DWORD, int>*>(counts))[record->iType]++;
    return 1;
}

// A 3-pixel red frame around a blue rectangle from (4, 4) to (60, 40),
// clipped to x < 32, on white.
void drawClippedFrame(CDC& dc) {
    dc.FillSolidRect(0, 0, 64, 48, kWhite);
    CRgn clip;
    ASSERT_TRUE(clip.CreateRectRgn(0, 0, 32, 48));
    dc.SelectClipRgn(&clip);
    CPen pen(PS_SOLID, 3, kRed);
    CBrush brush(kBlue);
    {
        CZemDCSelect selectedPen = dc.SelectObject(pen);
        CZemDCSelect selectedBrush = dc.SelectObject(brush);
        ASSERT_TRUE(selectedPen.selected());
        dc.Rectangle(4, 4, 60, 40);
    }
    dc.SelectClipRgn(nullptr);
}

// Paints its client area blue through a CPaintDC.
class CBluePanel : public CWnd {
public:
    int paints = 0;

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(&client, kBlue);
        ++paints;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBluePanel, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

}  // namespace

TEST(Gdi, DrawingIntoAMemoryBitmapOrAMetafileLeavesNoObjectBehind) {
    const int before = zemGdiObjectCount();
    {
        CClientDC screen(nullptr);
        CDC memory;
        ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 64, 48));
        HGDIOBJ stockPen = GetCurrentObject(memory, OBJ_PEN);
        CZemDCSelect selectedBitmap = memory.SelectObject(bitmap);
        drawClippedFrame(memory);

        EXPECT_EQ(memory.GetPixel(16, 20), kBlue);
        EXPECT_EQ(memory.GetPixel(4, 20), kRed);
        EXPECT_EQ(memory.GetPixel(48, 20), kWhite) << "drawn outside the clip region";
        EXPECT_EQ(memory.GetBkColor(), kWhite) << "FillSolidRect leaves its colour as the background";
        EXPECT_EQ(GetCurrentObject(memory, OBJ_PEN), stockPen);
        CRect box;
        EXPECT_EQ(memory.GetClipBox(&box), SIMPLEREGION);
        EXPECT_EQ(box, CRect(0, 0, 64, 48)) << "the clip region stayed";
    }
    EXPECT_EQ(zemGdiObjectCount(), before);

    std::map<DWORD, int> counts;
    {
        CMetaFileDC metafile;
        ASSERT_TRUE(metafile.CreateEnhanced(nullptr, nullptr, nullptr, nullptr));
        drawClippedFrame(metafile);
        HENHMETAFILE recorded = metafile.CloseEnhanced();
        ASSERT_NE(recorded, nullptr);
        EnumEnhMetaFile(nullptr, recorded, countRecord, &counts, nullptr);
        DeleteEnhMetaFile(recorded);
    }
    EXPECT_EQ(counts[EMR_CREATEPEN], 1);
    EXPECT_EQ(counts[EMR_CREATEBRUSHINDIRECT], 1);
    EXPECT_EQ(counts[EMR_SELECTOBJECT], 4) << "two selections and two restores";
    EXPECT_EQ(counts[EMR_EXTSELECTCLIPRGN], 2) << "the clip region and its removal";
    EXPECT_EQ(zemGdiObjectCount(), before);

    // A recording never closed is closed and dropped by its object.
    {
        CMetaFileDC abandoned;
        ASSERT_TRUE(abandoned.CreateEnhanced(nullptr, nullptr, nullptr, nullptr));
        abandoned.LineTo(10, 10);
    }
    EXPECT_EQ(zemGdiObjectCount(), before);
}

TEST(Gdi, PaintingThroughCPaintDCValidatesAndReleases) {
    CZemTestHost host;
    const int before = zemGdiObjectCount();
    CBluePanel panel;
    ASSERT_TRUE(panel.CreateEx(0, nullptr, L"", WS_CHILD | WS_VISIBLE, 0, 0, 40, 30, host.hwnd(), nullptr));
    panel.Invalidate();
    panel.UpdateWindow();
    EXPECT_GE(panel.paints, 1);
    EXPECT_FALSE(GetUpdateRect(panel, nullptr, FALSE));
    EXPECT_TRUE(panel.DestroyWindow());
    EXPECT_EQ(zemGdiObjectCount(), before);
}

TEST(Gdi, OwnershipMovesWithTheObject) {
    const int before = zemGdiObjectCount();
    CPen first(PS_SOLID, 1, kRed);
    CPen second(std::move(first));
    EXPECT_EQ(first.m_hObject, nullptr);
    CPen third;
    third = std::move(second);
    EXPECT_EQ(zemGdiObjectCount(), before + 1);
    HGDIOBJ kept = third.Detach();
    EXPECT_FALSE(third.DeleteObject());
    EXPECT_EQ(zemGdiObjectCount(), before + 1);
    DeleteObject(kept);
    EXPECT_EQ(zemGdiObjectCount(), before);
}
