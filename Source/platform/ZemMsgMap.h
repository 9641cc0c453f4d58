#pragma once

#include <windows.h>

#include <cstring>

class CWnd;

// Message maps as data: each window class has one static table of entries
// and a link to its base class's table. The macros below only emit entries;
// zemFindMsgEntry walks the chain and zemCallMsgHandler decodes the
// parameters for the entry's handler signature.

// A handler as stored in a table; cast back to its real type by signature.
using AFX_PMSG = void (CWnd::*)();

// Reflected notifications reach the control under this offset.
constexpr UINT WM_REFLECT_BASE = 0xBC00;

// Handler signatures, named by result and arguments.
enum class ZemSig : unsigned char {
    End,
    v_v,           // void ()
    i_CREATE,      // int (LPCREATESTRUCT)
    v_w_i_i,       // void (UINT, int, int)
    v_b_w,         // void (BOOL, UINT)
    b_HELPINFO,    // BOOL (HELPINFO*)
    b_w_s_p,       // BOOL (UINT, short, CPoint)
    v_w_p,         // void (UINT, CPoint)
    v_W,           // void (CWnd*)
    v_w_w_W,       // void (UINT, UINT, CWnd*)
    v_W_p,         // void (CWnd*, CPoint)
    v_w_l,         // void (UINT, LPARAM)
    v_w_w_w,       // void (UINT, UINT, UINT)
    v_t,           // void (UINT_PTR)
    b_D,           // BOOL (CDC*)
    v_i_DRAW,      // void (int, LPDRAWITEMSTRUCT)
    v_i_MEASURE,   // void (int, LPMEASUREITEMSTRUCT)
    v_DRAW,        // void (LPDRAWITEMSTRUCT)
    v_MEASURE,     // void (LPMEASUREITEMSTRUCT)
    l_w_l,         // LRESULT (WPARAM, LPARAM)
    cmd_v,         // void ()
    cmd_w,         // void (UINT id)
    cmd_b,         // BOOL ()
    ntf_v,         // void (NMHDR*, LRESULT*)
    ntf_w,         // void (UINT id, NMHDR*, LRESULT*)
    ntf_b,         // BOOL (NMHDR*, LRESULT*)
    ntf_wb,        // BOOL (UINT id, NMHDR*, LRESULT*)
};

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    ZemSig nSig;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// What a handler is called with: the message, and for commands and
// notifications the control id and the notification header.
struct ZemMsgCall {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    UINT id;
    NMHDR* notify;
};

// The first entry for (message, code, id) in map or its bases, or null.
const AFX_MSGMAP_ENTRY* zemFindMsgEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

// Calls the entry's handler on wnd and sets result. False if a handler that
// may decline (the _EX kinds) declined.
bool zemCallMsgHandler(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const ZemMsgCall& call, LRESULT& result);

// The handler's bits in the table's type; every CWnd member function pointer
// has the same size and is put back to its own type before a call.
template <class Pmf>
inline AFX_PMSG zemPmsg(Pmf pmf) {
    static_assert(sizeof(Pmf) == sizeof(AFX_PMSG), "a handler must be a member function of a CWnd class");
    AFX_PMSG stored;
    std::memcpy(&stored, &pmf, sizeof stored);
    return stored;
}

#define afx_msg

#define DECLARE_MESSAGE_MAP()                          \
protected:                                             \
    static const AFX_MSGMAP* GetThisMessageMap();      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                 \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }         \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                          \
        using ThisClass = theClass;                                                             \
        using TheBaseClass = baseClass;                                                         \
        static const AFX_MSGMAP_ENTRY zemMessageEntries[] = {

#define END_MESSAGE_MAP()                                                                      \
        {0, 0, 0, 0, ZemSig::End, nullptr}};                                                    \
        static const AFX_MSGMAP zemMessageMap = {&TheBaseClass::GetThisMessageMap, zemMessageEntries}; \
        return &zemMessageMap;                                                                  \
    }

// One table entry; type is the handler's type in CWnd, which checks fn.
#define ZEM_MSG_ENTRY(message, code, id, lastId, sig, type, fn) \
    {static_cast<UINT>(message), static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(lastId), \
     ZemSig::sig, zemPmsg(static_cast<type>(fn))},

#define ON_WM_CREATE() \
    ZEM_MSG_ENTRY(WM_CREATE, 0, 0, 0, i_CREATE, int (CWnd::*)(LPCREATESTRUCT), &ThisClass::OnCreate)
#define ON_WM_DESTROY() ZEM_MSG_ENTRY(WM_DESTROY, 0, 0, 0, v_v, void (CWnd::*)(), &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() ZEM_MSG_ENTRY(WM_NCDESTROY, 0, 0, 0, v_v, void (CWnd::*)(), &ThisClass::OnNcDestroy)
#define ON_WM_CLOSE() ZEM_MSG_ENTRY(WM_CLOSE, 0, 0, 0, v_v, void (CWnd::*)(), &ThisClass::OnClose)
#define ON_WM_PAINT() ZEM_MSG_ENTRY(WM_PAINT, 0, 0, 0, v_v, void (CWnd::*)(), &ThisClass::OnPaint)
#define ON_WM_FONTCHANGE() ZEM_MSG_ENTRY(WM_FONTCHANGE, 0, 0, 0, v_v, void (CWnd::*)(), &ThisClass::OnFontChange)
#define ON_WM_SIZE() ZEM_MSG_ENTRY(WM_SIZE, 0, 0, 0, v_w_i_i, void (CWnd::*)(UINT, int, int), &ThisClass::OnSize)
#define ON_WM_SHOWWINDOW() \
    ZEM_MSG_ENTRY(WM_SHOWWINDOW, 0, 0, 0, v_b_w, void (CWnd::*)(BOOL, UINT), &ThisClass::OnShowWindow)
#define ON_WM_HELPINFO() \
    ZEM_MSG_ENTRY(WM_HELP, 0, 0, 0, b_HELPINFO, BOOL (CWnd::*)(HELPINFO*), &ThisClass::OnHelpInfo)
#define ON_WM_MOUSEWHEEL() \
    ZEM_MSG_ENTRY(WM_MOUSEWHEEL, 0, 0, 0, b_w_s_p, BOOL (CWnd::*)(UINT, short, CPoint), &ThisClass::OnMouseWheel)
#define ON_WM_MOUSEMOVE() \
    ZEM_MSG_ENTRY(WM_MOUSEMOVE, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMouseMove)
#define ON_WM_LBUTTONDOWN() \
    ZEM_MSG_ENTRY(WM_LBUTTONDOWN, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() \
    ZEM_MSG_ENTRY(WM_LBUTTONUP, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() \
    ZEM_MSG_ENTRY(WM_LBUTTONDBLCLK, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDblClk)
#define ON_WM_MBUTTONDOWN() \
    ZEM_MSG_ENTRY(WM_MBUTTONDOWN, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() \
    ZEM_MSG_ENTRY(WM_MBUTTONUP, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() \
    ZEM_MSG_ENTRY(WM_MBUTTONDBLCLK, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonDblClk)
#define ON_WM_RBUTTONDOWN() \
    ZEM_MSG_ENTRY(WM_RBUTTONDOWN, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP() \
    ZEM_MSG_ENTRY(WM_RBUTTONUP, 0, 0, 0, v_w_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonUp)
#define ON_WM_SETFOCUS() ZEM_MSG_ENTRY(WM_SETFOCUS, 0, 0, 0, v_W, void (CWnd::*)(CWnd*), &ThisClass::OnSetFocus)
#define ON_WM_KILLFOCUS() ZEM_MSG_ENTRY(WM_KILLFOCUS, 0, 0, 0, v_W, void (CWnd::*)(CWnd*), &ThisClass::OnKillFocus)
#define ON_WM_HSCROLL() \
    ZEM_MSG_ENTRY(WM_HSCROLL, 0, 0, 0, v_w_w_W, void (CWnd::*)(UINT, UINT, CWnd*), &ThisClass::OnHScroll)
#define ON_WM_VSCROLL() \
    ZEM_MSG_ENTRY(WM_VSCROLL, 0, 0, 0, v_w_w_W, void (CWnd::*)(UINT, UINT, CWnd*), &ThisClass::OnVScroll)
#define ON_WM_CONTEXTMENU() \
    ZEM_MSG_ENTRY(WM_CONTEXTMENU, 0, 0, 0, v_W_p, void (CWnd::*)(CWnd*, CPoint), &ThisClass::OnContextMenu)
#define ON_WM_SYSCOMMAND() \
    ZEM_MSG_ENTRY(WM_SYSCOMMAND, 0, 0, 0, v_w_l, void (CWnd::*)(UINT, LPARAM), &ThisClass::OnSysCommand)
#define ON_WM_KEYDOWN() \
    ZEM_MSG_ENTRY(WM_KEYDOWN, 0, 0, 0, v_w_w_w, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() ZEM_MSG_ENTRY(WM_KEYUP, 0, 0, 0, v_w_w_w, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyUp)
#define ON_WM_CHAR() ZEM_MSG_ENTRY(WM_CHAR, 0, 0, 0, v_w_w_w, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnChar)
#define ON_WM_TIMER() ZEM_MSG_ENTRY(WM_TIMER, 0, 0, 0, v_t, void (CWnd::*)(UINT_PTR), &ThisClass::OnTimer)
#define ON_WM_ERASEBKGND() ZEM_MSG_ENTRY(WM_ERASEBKGND, 0, 0, 0, b_D, BOOL (CWnd::*)(CDC*), &ThisClass::OnEraseBkgnd)
#define ON_WM_DRAWITEM() \
    ZEM_MSG_ENTRY(WM_DRAWITEM, 0, 0, 0, v_i_DRAW, void (CWnd::*)(int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM() \
    ZEM_MSG_ENTRY(WM_MEASUREITEM, 0, 0, 0, v_i_MEASURE, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), &ThisClass::OnMeasureItem)
#define ON_WM_DRAWITEM_REFLECT() \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, 0, 0, 0, v_DRAW, void (CWnd::*)(LPDRAWITEMSTRUCT), &ThisClass::DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                              \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, 0, 0, 0, v_MEASURE, void (CWnd::*)(LPMEASUREITEMSTRUCT), \
                  &ThisClass::MeasureItem)

#define ON_MESSAGE(message, fn) \
    ZEM_MSG_ENTRY(message, 0, 0, 0, l_w_l, LRESULT (CWnd::*)(WPARAM, LPARAM), &ThisClass::fn)

#define ON_COMMAND(id, fn) ZEM_MSG_ENTRY(WM_COMMAND, 0, id, id, cmd_v, void (CWnd::*)(), &ThisClass::fn)
#define ON_COMMAND_RANGE(id, idLast, fn) \
    ZEM_MSG_ENTRY(WM_COMMAND, 0, id, idLast, cmd_w, void (CWnd::*)(UINT), &ThisClass::fn)
#define ON_CONTROL(code, id, fn) ZEM_MSG_ENTRY(WM_COMMAND, code, id, id, cmd_v, void (CWnd::*)(), &ThisClass::fn)
#define ON_CONTROL_RANGE(code, id, idLast, fn) \
    ZEM_MSG_ENTRY(WM_COMMAND, code, id, idLast, cmd_w, void (CWnd::*)(UINT), &ThisClass::fn)
#define ON_BN_CLICKED(id, fn) ON_CONTROL(BN_CLICKED, id, fn)
#define ON_BN_DOUBLECLICKED(id, fn) ON_CONTROL(BN_DOUBLECLICKED, id, fn)
#define ON_EN_CHANGE(id, fn) ON_CONTROL(EN_CHANGE, id, fn)
#define ON_EN_UPDATE(id, fn) ON_CONTROL(EN_UPDATE, id, fn)
#define ON_EN_SETFOCUS(id, fn) ON_CONTROL(EN_SETFOCUS, id, fn)
#define ON_EN_KILLFOCUS(id, fn) ON_CONTROL(EN_KILLFOCUS, id, fn)
#define ON_CBN_SELCHANGE(id, fn) ON_CONTROL(CBN_SELCHANGE, id, fn)
#define ON_CBN_EDITCHANGE(id, fn) ON_CONTROL(CBN_EDITCHANGE, id, fn)
#define ON_CBN_SETFOCUS(id, fn) ON_CONTROL(CBN_SETFOCUS, id, fn)
#define ON_CBN_KILLFOCUS(id, fn) ON_CONTROL(CBN_KILLFOCUS, id, fn)
#define ON_CBN_DROPDOWN(id, fn) ON_CONTROL(CBN_DROPDOWN, id, fn)
#define ON_CBN_CLOSEUP(id, fn) ON_CONTROL(CBN_CLOSEUP, id, fn)
#define ON_CBN_SELENDOK(id, fn) ON_CONTROL(CBN_SELENDOK, id, fn)
#define ON_LBN_SELCHANGE(id, fn) ON_CONTROL(LBN_SELCHANGE, id, fn)
#define ON_LBN_DBLCLK(id, fn) ON_CONTROL(LBN_DBLCLK, id, fn)
#define ON_STN_CLICKED(id, fn) ON_CONTROL(STN_CLICKED, id, fn)
#define ON_STN_DBLCLK(id, fn) ON_CONTROL(STN_DBLCLK, id, fn)

#define ON_NOTIFY(code, id, fn) \
    ZEM_MSG_ENTRY(WM_NOTIFY, code, id, id, ntf_v, void (CWnd::*)(NMHDR*, LRESULT*), &ThisClass::fn)
#define ON_NOTIFY_RANGE(code, id, idLast, fn) \
    ZEM_MSG_ENTRY(WM_NOTIFY, code, id, idLast, ntf_w, void (CWnd::*)(UINT, NMHDR*, LRESULT*), &ThisClass::fn)
#define ON_NOTIFY_EX(code, id, fn) \
    ZEM_MSG_ENTRY(WM_NOTIFY, code, id, id, ntf_wb, BOOL (CWnd::*)(UINT, NMHDR*, LRESULT*), &ThisClass::fn)
#define ON_NOTIFY_EX_RANGE(code, id, idLast, fn) \
    ZEM_MSG_ENTRY(WM_NOTIFY, code, id, idLast, ntf_wb, BOOL (CWnd::*)(UINT, NMHDR*, LRESULT*), &ThisClass::fn)

#define ON_CONTROL_REFLECT(code, fn) \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, cmd_v, void (CWnd::*)(), &ThisClass::fn)
#define ON_CONTROL_REFLECT_EX(code, fn) \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, cmd_b, BOOL (CWnd::*)(), &ThisClass::fn)
#define ON_NOTIFY_REFLECT(code, fn) \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, ntf_v, void (CWnd::*)(NMHDR*, LRESULT*), &ThisClass::fn)
#define ON_NOTIFY_REFLECT_EX(code, fn) \
    ZEM_MSG_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, ntf_b, BOOL (CWnd::*)(NMHDR*, LRESULT*), &ThisClass::fn)
