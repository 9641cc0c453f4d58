#include "ZemMsgMap.h"

#include "CDC.h"
#include "CWnd.h"

#include <cstring>

const AFX_MSGMAP_ENTRY* zemFindMsgEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* e = map->lpEntries; e->nSig != ZemSig::End; ++e) {
            if (e->nMessage == message && e->nCode == code && id >= e->nID && id <= e->nLastID) return e;
        }
    }
    return nullptr;
}

namespace {

// The handler back in its real type; the entry was made from exactly that
// type, as its signature says.
template <class Pmf>
Pmf as(const AFX_MSGMAP_ENTRY& entry) {
    Pmf pmf;
    std::memcpy(&pmf, &entry.pfn, sizeof pmf);
    return pmf;
}

UINT lowWord(WPARAM w) { return LOWORD(static_cast<DWORD_PTR>(w)); }
UINT highWord(WPARAM w) { return HIWORD(static_cast<DWORD_PTR>(w)); }
CWnd* window(WPARAM handle) { return CWnd::FromHandle(reinterpret_cast<HWND>(handle)); }

bool callWindowMessage(CWnd* w, const AFX_MSGMAP_ENTRY& e, const ZemMsgCall& c, LRESULT& r) {
    const WPARAM wp = c.wParam;
    const LPARAM lp = c.lParam;
    switch (e.nSig) {
    case ZemSig::v_v:
        (w->*as<void (CWnd::*)()>(e))();
        return true;
    case ZemSig::i_CREATE:
        r = (w->*as<int (CWnd::*)(LPCREATESTRUCT)>(e))(reinterpret_cast<LPCREATESTRUCT>(lp));
        return true;
    case ZemSig::v_w_i_i:
        (w->*as<void (CWnd::*)(UINT, int, int)>(e))(static_cast<UINT>(wp), static_cast<short>(LOWORD(lp)),
                                                     static_cast<short>(HIWORD(lp)));
        return true;
    case ZemSig::v_b_w:
        (w->*as<void (CWnd::*)(BOOL, UINT)>(e))(static_cast<BOOL>(wp), static_cast<UINT>(lp));
        return true;
    case ZemSig::b_HELPINFO:
        r = (w->*as<BOOL (CWnd::*)(HELPINFO*)>(e))(reinterpret_cast<HELPINFO*>(lp));
        return true;
    case ZemSig::b_w_s_p:
        r = (w->*as<BOOL (CWnd::*)(UINT, short, CPoint)>(e))(lowWord(wp), static_cast<short>(highWord(wp)),
                                                              CPoint(lp));
        return true;
    case ZemSig::v_w_p:
        (w->*as<void (CWnd::*)(UINT, CPoint)>(e))(static_cast<UINT>(wp), CPoint(lp));
        return true;
    case ZemSig::v_W:
        (w->*as<void (CWnd::*)(CWnd*)>(e))(window(wp));
        return true;
    case ZemSig::v_w_w_W:
        (w->*as<void (CWnd::*)(UINT, UINT, CWnd*)>(e))(lowWord(wp), highWord(wp), window(static_cast<WPARAM>(lp)));
        return true;
    case ZemSig::v_W_p:
        (w->*as<void (CWnd::*)(CWnd*, CPoint)>(e))(window(wp), CPoint(lp));
        return true;
    case ZemSig::v_w_l:
        (w->*as<void (CWnd::*)(UINT, LPARAM)>(e))(static_cast<UINT>(wp), lp);
        return true;
    default:
        return false;
    }
}

bool callInputOrDrawingMessage(CWnd* w, const AFX_MSGMAP_ENTRY& e, const ZemMsgCall& c, LRESULT& r) {
    const WPARAM wp = c.wParam;
    const LPARAM lp = c.lParam;
    switch (e.nSig) {
    case ZemSig::v_w_w_w:
        (w->*as<void (CWnd::*)(UINT, UINT, UINT)>(e))(static_cast<UINT>(wp), LOWORD(lp), HIWORD(lp));
        return true;
    case ZemSig::v_t:
        (w->*as<void (CWnd::*)(UINT_PTR)>(e))(static_cast<UINT_PTR>(wp));
        return true;
    case ZemSig::b_D: {
        CDC dc;
        dc.Attach(reinterpret_cast<HDC>(wp));
        r = (w->*as<BOOL (CWnd::*)(CDC*)>(e))(&dc);
        dc.Detach();
        return true;
    }
    case ZemSig::v_i_DRAW:
        (w->*as<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(e))(static_cast<int>(wp), reinterpret_cast<LPDRAWITEMSTRUCT>(lp));
        r = TRUE;
        return true;
    case ZemSig::v_i_MEASURE:
        (w->*as<void (CWnd::*)(int, LPMEASUREITEMSTRUCT)>(e))(static_cast<int>(wp),
                                                               reinterpret_cast<LPMEASUREITEMSTRUCT>(lp));
        r = TRUE;
        return true;
    case ZemSig::v_DRAW:
        (w->*as<void (CWnd::*)(LPDRAWITEMSTRUCT)>(e))(reinterpret_cast<LPDRAWITEMSTRUCT>(lp));
        r = TRUE;
        return true;
    case ZemSig::v_MEASURE:
        (w->*as<void (CWnd::*)(LPMEASUREITEMSTRUCT)>(e))(reinterpret_cast<LPMEASUREITEMSTRUCT>(lp));
        r = TRUE;
        return true;
    case ZemSig::l_w_l:
        r = (w->*as<LRESULT (CWnd::*)(WPARAM, LPARAM)>(e))(wp, lp);
        return true;
    default:
        return false;
    }
}

bool callCommandOrNotify(CWnd* w, const AFX_MSGMAP_ENTRY& e, const ZemMsgCall& c, LRESULT& r) {
    switch (e.nSig) {
    case ZemSig::cmd_v:
        (w->*as<void (CWnd::*)()>(e))();
        return true;
    case ZemSig::cmd_w:
        (w->*as<void (CWnd::*)(UINT)>(e))(c.id);
        return true;
    case ZemSig::cmd_b:
        return (w->*as<BOOL (CWnd::*)()>(e))() != FALSE;
    case ZemSig::ntf_v:
        (w->*as<void (CWnd::*)(NMHDR*, LRESULT*)>(e))(c.notify, &r);
        return true;
    case ZemSig::ntf_w:
        (w->*as<void (CWnd::*)(UINT, NMHDR*, LRESULT*)>(e))(c.id, c.notify, &r);
        return true;
    case ZemSig::ntf_b:
        return (w->*as<BOOL (CWnd::*)(NMHDR*, LRESULT*)>(e))(c.notify, &r) != FALSE;
    case ZemSig::ntf_wb:
        return (w->*as<BOOL (CWnd::*)(UINT, NMHDR*, LRESULT*)>(e))(c.id, c.notify, &r) != FALSE;
    default:
        return callWindowMessage(w, e, c, r) || callInputOrDrawingMessage(w, e, c, r);
    }
}

}  // namespace

bool zemCallMsgHandler(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const ZemMsgCall& call, LRESULT& result) {
    result = 0;
    return callCommandOrNotify(wnd, entry, call, result);
}
