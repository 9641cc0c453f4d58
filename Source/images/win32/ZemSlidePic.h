#pragma once

#include "CBrush.h"
#include "CDC.h"
#include "CPen.h"
#include "CRect.h"
#include "CWnd.h"
#include "ZemArrayTempl.h"
#include "ZemSlideData.h"
#include "ZemSlideFit.h"
#include "ZemSlidePalette.h"
#include "ZemSlideSink.h"

#include <memory>

// A child window that shows one AutoCAD slide, from a slide file, a slide
// library, a resource or memory, scaled to its client area with its
// proportions kept and centred. The slide's bytes are decoded on every paint.
class CZemSlidePic : public CWnd, private CZemSlideSink {
    DECLARE_DYNAMIC(CZemSlidePic)
public:
    CZemSlidePic();
    ~CZemSlidePic() override;
    CZemSlidePic(const CZemSlidePic&) = delete;
    CZemSlidePic& operator=(const CZemSlidePic&) = delete;

    // Drops the slide held and invalidates the window, then loads the slide
    // name of the slide library lib, or with a null lib the slide file at path
    // name. True if a slide is held afterwards.
    bool show(const wchar_t* name, const wchar_t* lib);
    // Holds a copy of size bytes as the slide (null data: none) and invalidates.
    void show(void* data, int size);
    // The slide in resource id of type of the application's modules; false if
    // there is no such resource or it doesn't load.
    bool LoadSlide(unsigned long id, const wchar_t* type);
    // The slide's raster size as of its last decoding; false without a slide.
    bool getSize(long& width, long& height);
    // The AutoCAD colour index of the background behind a slide.
    int BackColor();
    // Sets the background for the next paint; returns 1.
    int SetBkColor(int color);
    // The slide drawn into rect of a new memory metafile, as on white paper;
    // the caller owns the handle.
    virtual HENHMETAFILE CreateEnhMetaFileW(CRect rect);
    // The slide to the clipboard as an enhanced metafile in its raster size;
    // false if the clipboard can't be opened.
    bool Copy();

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPaintClipboard(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static unsigned long acadRGB(int color);
    bool SetCoordSystem(CRect rect, int width, int height);
    void trans(POINT& point);
    void trans(int& x, int& y);
    void MoveTo(int x, int y);
    void LineTo(int x, int y);
    void Polygon(CZemArrayTempl<POINT>& points);
    bool draw(CRect rect);
    void invalidate();

    void slideSize(int width, int height) override;
    void newColor(int color) override;
    void line(int fromX, int fromY, int toX, int toY) override;
    void polygon(std::vector<Point>& points) override;

    std::unique_ptr<CDC> m_dc;
    CPen m_pen;
    CBrush m_brush;
    CBrush m_bkBrush;
    CBrush m_sysBrush;
    // The pen and brush of m_dc before the slide's first colour, put back
    // when a decoding ends.
    CZemDCSelect m_penSelected;
    CZemDCSelect m_brushSelected;
    // Test number, raster size, bytes, read position and count.
    CZemSlideData m_slide;
    // Window offset and scale.
    CZemSlideFit m_fit;
    // Background colour index.
    CZemSlidePalette m_palette;
    CRect m_drawRect;
    CZemArrayTempl<POINT> m_points;
};
