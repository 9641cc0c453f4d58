#pragma once

#include "ZemArrayTempl.h"
#include "ZemDplistImage.h"
#include "ZemGDX.h"
#include "ZemVertexArray.h"

#include <windows.h>

// The polyline preview of dialogs: a display list control that owns its
// list and shows a set of polylines, one of them marked, and a base point at
// the origin. The lines are black on a light background and white on a dark
// one. A dialog that places it on a static control adds SS_NOTIFY itself.
class CZemVllImage : public CZemDplistImage {
    DECLARE_DYNAMIC(CZemVllImage)
public:
    CZemVllImage();
    ~CZemVllImage() override;

    // Sets the background and the line colour that shows on it; no repaint.
    void SetBkColor(COLORREF color);
    // Replaces all polylines and fits them; always true. Polyline i is
    // picked as i + 1, the base point as 0.
    bool setVll(const CZemArrayTempl<CZemVertexArray>& vll);
    // Marks polyline index (-1: none); returns the index marked before.
    int SetCurVl(int index);
    // Shows or hides the base point, which then no longer widens the fit;
    // returns the former setting.
    bool setDrawBase(bool draw);

protected:
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    CZemGDX m_gdx;
    // Size and style of the base point; 0 and 0xFFFFFFFF take the list's.
    int m_pdSize = 0;
    unsigned m_pdMode = 0xFFFFFFFF;
    int m_curVl = -1;
    COLORREF m_backColor = 0;
    COLORREF m_lineColor = 0;
    bool m_drawBase = true;
};
