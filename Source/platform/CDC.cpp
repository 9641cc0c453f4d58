#include "CDC.h"

#include "CBrush.h"
#include "CGdiObject.h"
#include "CRgn.h"

IMPLEMENT_DYNAMIC(CDC, CObject)

CDC::~CDC() {
    if (m_hDC != nullptr) ::DeleteDC(Detach());
}

bool CDC::Attach(HDC dc) {
    if (m_hDC != nullptr || dc == nullptr) return false;
    m_hDC = dc;
    m_hAttribDC = dc;
    return true;
}

HDC CDC::Detach() {
    HDC dc = m_hDC;
    m_hDC = nullptr;
    m_hAttribDC = nullptr;
    return dc;
}

void CDC::SetAttribDC(HDC dc) { m_hAttribDC = dc; }

BOOL CDC::CreateCompatibleDC(const CDC* dc) {
    return Attach(::CreateCompatibleDC(dc != nullptr ? dc->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    if (m_hDC == nullptr) return FALSE;
    return ::DeleteDC(Detach());
}

CZemDCSelect CDC::SelectObject(const CGdiObject& object) { return CZemDCSelect(m_hDC, object.m_hObject); }

CZemDCSelect CDC::SelectStockObject(int index) { return CZemDCSelect(m_hDC, ::GetStockObject(index)); }

int CDC::SelectClipRgn(const CRgn* region) {
    return ::SelectClipRgn(m_hDC, region != nullptr ? static_cast<HRGN>(*region) : nullptr);
}

int CDC::SelectClipRgn(const CRgn* region, int mode) {
    return ::ExtSelectClipRgn(m_hDC, region != nullptr ? static_cast<HRGN>(*region) : nullptr, mode);
}

int CDC::GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hDC, rect); }

CPoint CDC::MoveTo(int x, int y) {
    POINT before = {0, 0};
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) ::MoveToEx(m_hAttribDC, x, y, nullptr);
    ::MoveToEx(m_hDC, x, y, &before);
    return CPoint(before);
}

CPoint CDC::GetCurrentPosition() const {
    POINT at = {0, 0};
    ::GetCurrentPositionEx(attrib(), &at);
    return CPoint(at);
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Rectangle(int left, int top, int right, int bottom) { return ::Rectangle(m_hDC, left, top, right, bottom); }

BOOL CDC::Rectangle(LPCRECT rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }

BOOL CDC::Ellipse(int left, int top, int right, int bottom) { return ::Ellipse(m_hDC, left, top, right, bottom); }

BOOL CDC::Ellipse(LPCRECT rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }

BOOL CDC::Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }

BOOL CDC::Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    SetBkColor(color);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color) {
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, color);
}

void CDC::FillRect(LPCRECT rect, const CBrush* brush) {
    if (brush != nullptr) ::FillRect(m_hDC, rect, *brush);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }

COLORREF CDC::GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

BOOL CDC::BitBlt(int x, int y, int width, int height, const CDC* source, int xSource, int ySource, DWORD rop) {
    return ::BitBlt(m_hDC, x, y, width, height, source != nullptr ? source->m_hDC : nullptr, xSource, ySource, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, const CDC* source, int xSource, int ySource,
                     int widthSource, int heightSource, DWORD rop) {
    return ::StretchBlt(m_hDC, x, y, width, height, source != nullptr ? source->m_hDC : nullptr, xSource, ySource,
                        widthSource, heightSource, rop);
}

BOOL CDC::TextOutW(int x, int y, LPCWSTR text, int count) { return ::TextOutW(m_hDC, x, y, text, count); }

int CDC::DrawTextW(LPCWSTR text, int count, LPRECT rect, UINT format) {
    return ::DrawTextW(m_hDC, text, count, rect, format);
}

BOOL CDC::DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }

BOOL CDC::PlayMetaFile(HENHMETAFILE metafile, LPCRECT bounds) { return ::PlayEnhMetaFile(m_hDC, metafile, bounds); }

COLORREF CDC::SetBkColor(COLORREF color) { return setBoth(::SetBkColor, color); }

COLORREF CDC::GetBkColor() const { return ::GetBkColor(attrib()); }

COLORREF CDC::SetTextColor(COLORREF color) { return setBoth(::SetTextColor, color); }

COLORREF CDC::GetTextColor() const { return ::GetTextColor(attrib()); }

int CDC::SetBkMode(int mode) { return setBoth(::SetBkMode, mode); }

int CDC::GetBkMode() const { return ::GetBkMode(attrib()); }

int CDC::SetPolyFillMode(int mode) { return setBoth(::SetPolyFillMode, mode); }

int CDC::GetPolyFillMode() const { return ::GetPolyFillMode(attrib()); }

int CDC::SetROP2(int mode) { return setBoth(::SetROP2, mode); }

int CDC::GetDeviceCaps(int index) const { return ::GetDeviceCaps(attrib(), index); }

int CDC::SaveDC() { return ::SaveDC(m_hDC); }

BOOL CDC::RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
