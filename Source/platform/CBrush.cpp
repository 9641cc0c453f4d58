#include "CBrush.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush(COLORREF color) { CreateSolidBrush(color); }

BOOL CBrush::CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }

BOOL CBrush::CreateHatchBrush(int hatch, COLORREF color) { return Attach(::CreateHatchBrush(hatch, color)); }

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* logBrush) { return Attach(::CreateBrushIndirect(logBrush)); }
