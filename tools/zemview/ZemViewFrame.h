#pragma once

#include "CWnd.h"
#include "ZemDplistImage.h"

#include <string>

class CZemGDX;

// A top-level window filled by a display list control: the wheel zooms,
// the held middle button pans, a middle double click or fit() fits the
// list, and a left click names the picked item's group in the title.
class CZemViewFrame : public CWnd {
public:
    // The control's id, and so the message number of its picks.
    static constexpr UINT kImageId = WM_APP + 1;

    CZemViewFrame() = default;
    CZemViewFrame(const CZemViewFrame&) = delete;
    CZemViewFrame& operator=(const CZemViewFrame&) = delete;

    // Makes the window of width by height pixels showing list (not owned),
    // fitted; false if a window can't be made.
    bool open(CZemGDX* list, const std::wstring& title, int width, int height, bool visible = true);
    // Fits the list into the window anew and repaints.
    void fit();
    CZemDplistImage& image() { return m_image; }

protected:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd* oldWnd);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnPick(WPARAM, LPARAM group);
    DECLARE_MESSAGE_MAP()

private:
    CZemDplistImage m_image;
    std::wstring m_title;
};
