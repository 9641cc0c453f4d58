#pragma once

#include <windows.h>

class CWnd;

// Which object belongs to a window handle. A bound object and the procedure
// it replaced are kept in properties of the window itself; temporary
// objects for unbound windows are kept in one table of the library.
class CZemWndMap {
public:
    static CWnd* permanent(HWND hwnd);
    // False if hwnd or wnd is bound already.
    static bool bind(HWND hwnd, CWnd* wnd);
    static void unbind(HWND hwnd);

    // The procedure that a subclassing replaced, kept for a window whose
    // object left while another subclass stood on top of it.
    static WNDPROC orphanSuper(HWND hwnd);
    static void setOrphanSuper(HWND hwnd, WNDPROC super);
    static void dropProperties(HWND hwnd);

    // The temporary object of hwnd, made on first request; null if memory ran out.
    static CWnd* temporary(HWND hwnd);
    // Deletes the temporary objects of the calling thread's and of dead windows.
    static void deleteTemporaries();
};
