#pragma once

#include "CPoint.h"
#include "CWnd.h"
#include "ZemGDX.h"
#include "ZemMatrix3d.h"

// A child window that shows a display list (not owned) in the list's view,
// drawn into a memory image and copied in one blit. The wheel zooms about
// the cursor, the held middle button pans, its double click fits the list,
// and a left click posts the first stack element of the item picked to the
// parent, as the message numbered by the control's id.
class CZemDplistImage : public CWnd {
    DECLARE_DYNAMIC(CZemDplistImage)
public:
    CZemDplistImage();
    ~CZemDplistImage() override;
    CZemDplistImage(const CZemDplistImage&) = delete;
    CZemDplistImage& operator=(const CZemDplistImage&) = delete;

    CZemGDX* get_dpList() const { return m_dpList; }
    // Shows list from the next paint on, zoom and view untouched; true if
    // list is not null.
    bool set_dpList(CZemGDX* list);
    // Fits the list into the client area with a margin and drops the zoom;
    // does not repaint. Always true.
    bool zoomExtents();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    // Erases and repaints the whole window at the next paint.
    void invalidate();

    CZemGDX* m_dpList = nullptr;
    // Zoom and pan in pixels, pushed to the list after every change.
    CZemMatrix3d m_zoomMtx;
    CPoint m_panStart;
    double m_panBaseX = 0.0;
    double m_panBaseY = 0.0;
    HCURSOR m_cursorPan;
    HCURSOR m_cursorNormal;

private:
    bool hasFocus() const;
    void pushZoom();
};
