#pragma once

#include "CPoint.h"
#include "CRect.h"
#include "CString.h"
#include "CObject.h"
#include "ZemDCSelect.h"

#include <windows.h>

class CBrush;
class CGdiObject;
class CRgn;

// A device context. The object deletes the context it holds when it ends;
// a borrowed context must be taken out by Detach before. Drawing goes to
// m_hDC; settings go to both contexts and questions to the attribute
// context m_hAttribDC, which is m_hDC unless set apart.
class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    ~CDC() override;

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    bool Attach(HDC dc);
    HDC Detach();
    void SetAttribDC(HDC dc);
    BOOL CreateCompatibleDC(const CDC* dc);   // CreateCompatibleDC; null: like the screen
    BOOL DeleteDC();

    // Selects a pen, brush, bitmap or font until the returned guard ends.
    CZemDCSelect SelectObject(const CGdiObject& object);
    // Regions become the clip region through SelectClipRgn instead.
    CZemDCSelect SelectObject(const CRgn& region) = delete;
    CZemDCSelect SelectStockObject(int index);
    // A copy of region becomes the clip region (null: none); returns the
    // region's complexity or ERROR.
    int SelectClipRgn(const CRgn* region);                 // SelectClipRgn
    int SelectClipRgn(const CRgn* region, int mode);       // ExtSelectClipRgn
    int GetClipBox(LPRECT rect) const;

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    CPoint GetCurrentPosition() const;
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Rectangle(LPCRECT rect);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Ellipse(LPCRECT rect);
    BOOL Polygon(const POINT* points, int count);
    BOOL Polyline(const POINT* points, int count);
    // Fills with color as the background colour, which stays set afterwards.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void FillRect(LPCRECT rect, const CBrush* brush);
    COLORREF SetPixel(int x, int y, COLORREF color);
    COLORREF GetPixel(int x, int y) const;
    BOOL BitBlt(int x, int y, int width, int height, const CDC* source, int xSource, int ySource, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, const CDC* source, int xSource, int ySource,
                    int widthSource, int heightSource, DWORD rop);
    BOOL TextOutW(int x, int y, LPCWSTR text, int count);
    BOOL TextOutW(int x, int y, const CString& text) { return TextOutW(x, y, text, text.GetLength()); }
    int DrawTextW(LPCWSTR text, int count, LPRECT rect, UINT format);
    BOOL DrawIcon(int x, int y, HICON icon);
    BOOL PlayMetaFile(HENHMETAFILE metafile, LPCRECT bounds);

    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    int SetBkMode(int mode);
    int GetBkMode() const;
    int SetPolyFillMode(int mode);
    int GetPolyFillMode() const;
    int SetROP2(int mode);
    int GetDeviceCaps(int index) const;
    int SaveDC();
    BOOL RestoreDC(int saved);

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;

private:
    HDC attrib() const { return m_hAttribDC != nullptr ? m_hAttribDC : m_hDC; }
    // Applies a setting to the output context and to a separate attribute context.
    template <class Setter, class Value>
    auto setBoth(Setter setter, Value value) {
        if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) setter(m_hAttribDC, value);
        return setter(m_hDC, value);
    }
};
