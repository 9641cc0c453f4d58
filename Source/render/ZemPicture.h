#pragma once

#include "CDC.h"
#include "CPoint.h"
#include "CWnd.h"

#include <ocidl.h>
#include <olectl.h>

// A child control that shows one raster or metafile image, as the platform's
// picture object loads it, fitted into its client area and centred, with
// wheel zoom about the cursor and pan with the held middle button. The
// caller initialises OLE before loading.
class CZemPicture : public CWnd {
    DECLARE_DYNAMIC(CZemPicture)
public:
    CZemPicture();
    ~CZemPicture() override;
    CZemPicture(const CZemPicture&) = delete;
    CZemPicture& operator=(const CZemPicture&) = delete;

    // Replaces the image by the one at path (a file name or URL) and shows it
    // fitted; a failure leaves the control empty and says why in a message
    // box. False only for a null path.
    bool LoadImageW(const wchar_t* path);
    // Back to the fitted, centred view of the image.
    virtual void Reset();
    // The background for the next paint; a transparent control keeps the
    // button face colour.
    virtual void SetBackColor(COLORREF color);
    // The image at its own pixel size to the clipboard as an enhanced
    // metafile; false without image or when the clipboard can't be opened.
    virtual bool Copy();

protected:
    void PreSubclassWindow() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    COLORREF m_backColor;
    IPicture* m_picture = nullptr;
    // Image size in screen pixels and in HIMETRIC units (0.01 mm).
    int m_pixelWidth = 0;
    int m_pixelHeight = 0;
    int m_hmWidth = 0;
    int m_hmHeight = 0;
    double m_zoom = 1.0;
    // Client position of the image's top left corner.
    int m_x = 0;
    int m_y = 0;
    // m_x, m_y and the cursor at the middle button press.
    int m_panBaseX = 0;
    int m_panBaseY = 0;
    CPoint m_panStart;

private:
    void release();
    void measure();
    void showLoadFailure(DWORD error);
    double fitFactor() const;
    void centre();
    void render(CDC& dc, const CRect& client);
    void invalidate();
};
