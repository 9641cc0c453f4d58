#include "CPen.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }

BOOL CPen::CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
