#include "CWnd.h"

#include "AfxWin.h"
#include "CDataExchange.h"
#include "ZemCreateHook.h"
#include "ZemModuleState.h"
#include "ZemWndMap.h"

#include <commctrl.h>

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace {

// The message being handled on this thread, for Default.
thread_local MSG t_current = {};

// What a window procedure answers when a handler threw: creation fails, a
// paint counts as done, anything else is answered with 0.
LRESULT faultResult(HWND hwnd, UINT message) {
    switch (message) {
    case WM_NCCREATE:
        return FALSE;
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        ValidateRect(hwnd, nullptr);
        return 0;
    default:
        return 0;
    }
}

}  // namespace

const AFX_MSGMAP* CWnd::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, ZemSig::End, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const { return GetThisMessageMap(); }

CWnd::~CWnd() {
    if (m_temporary || m_hWnd == nullptr) return;
    HWND hwnd = m_hWnd;
    if (::IsWindow(hwnd)) {
        UnsubclassWindow();
        ::DestroyWindow(hwnd);
    } else {
        Detach();
    }
}

CWnd* CWnd::FromHandle(HWND hwnd) {
    if (hwnd == nullptr) return nullptr;
    CWnd* wnd = CZemWndMap::permanent(hwnd);
    return wnd != nullptr ? wnd : CZemWndMap::temporary(hwnd);
}

CWnd* CWnd::FromHandlePermanent(HWND hwnd) { return CZemWndMap::permanent(hwnd); }

void CWnd::DeleteTempMap() { CZemWndMap::deleteTemporaries(); }

bool CWnd::Attach(HWND hwnd) { return !m_temporary && CZemWndMap::bind(hwnd, this); }

HWND CWnd::Detach() {
    HWND hwnd = m_hWnd;
    if (hwnd != nullptr && !m_temporary) CZemWndMap::unbind(hwnd);
    m_hWnd = nullptr;
    return hwnd;
}

bool CWnd::SubclassWindow(HWND hwnd) {
    if (!Attach(hwnd)) return false;
    PreSubclassWindow();
    const auto former = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::StaticWindowProc)));
    if (former == nullptr) {
        Detach();
        return false;
    }
    // A window left behind by an earlier object still runs this procedure;
    // the procedure it replaced is the one to keep.
    m_pfnSuper = former == &CWnd::StaticWindowProc ? CZemWndMap::orphanSuper(hwnd) : former;
    return true;
}

bool CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    if (parent == nullptr || parent->m_hWnd == nullptr) return false;
    HWND item = ::GetDlgItem(parent->m_hWnd, static_cast<int>(id));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow() {
    if (m_hWnd == nullptr) return nullptr;
    if (m_pfnSuper != nullptr) {
        const auto current = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC));
        // With another subclass on top the procedure can't be put back; the
        // window procedure then forwards to the kept original by itself.
        if (current == &CWnd::StaticWindowProc) {
            SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        } else {
            CZemWndMap::setOrphanSuper(m_hWnd, m_pfnSuper);
        }
        m_pfnSuper = nullptr;
    }
    return Detach();
}

void CWnd::bindAtCreation(HWND hwnd) {
    if (!CZemWndMap::bind(hwnd, this)) return;
    PreSubclassWindow();
    m_pfnSuper = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::StaticWindowProc)));
}

void CWnd::finishNcDestroy() {
    HWND hwnd = m_hWnd;
    if (m_pfnSuper != nullptr &&
        reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_WNDPROC)) == &CWnd::StaticWindowProc) {
        SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    }
    CZemWndMap::dropProperties(hwnd);
    if (m_hWndToolTip != nullptr && ::IsWindow(m_hWndToolTip)) ::DestroyWindow(m_hWndToolTip);
    m_hWnd = nullptr;
    m_pfnSuper = nullptr;
    m_hWndToolTip = nullptr;
    PostNcDestroy();
}

bool CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU idOrMenu, LPVOID param) {
    if (m_hWnd != nullptr || m_temporary) return false;
    zemInitCommonControls();
    CREATESTRUCTW cs = {param, AfxGetStaticModuleState()->m_hCurrentInstanceHandle, idOrMenu, parent, height, width,
                        y, x, static_cast<LONG>(style), windowName, className, exStyle};
    if (!PreCreateWindow(cs)) return false;
    if (cs.lpszClass == nullptr) cs.lpszClass = zemDefaultWndClass();
    HWND hwnd = nullptr;
    {
        CZemCreateHook hook(this);
        hwnd = ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                                 cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    }
    return hwnd != nullptr && m_hWnd == hwnd;
}

bool CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                    CWnd* parent, UINT id, LPVOID param) {
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent != nullptr ? parent->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), param);
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW&) { return TRUE; }

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr || m_temporary) return FALSE;
    HWND hwnd = m_hWnd;
    const BOOL done = ::DestroyWindow(hwnd);
    // A window that was only attached never tells the object it died.
    if (m_hWnd == hwnd && !::IsWindow(hwnd)) Detach();
    return done;
}

void CWnd::PreSubclassWindow() {}

void CWnd::PostNcDestroy() {}

LRESULT CALLBACK CWnd::StaticWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* wnd = CZemWndMap::permanent(hwnd);
    if (wnd == nullptr) {
        WNDPROC super = CZemWndMap::orphanSuper(hwnd);
        if (message == WM_NCDESTROY) CZemWndMap::dropProperties(hwnd);
        return super != nullptr ? CallWindowProcW(super, hwnd, message, wParam, lParam)
                                : ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
    const MSG outer = t_current;
    t_current = MSG{hwnd, message, wParam, lParam, 0, {0, 0}};
    LRESULT result = 0;
    try {
        result = wnd->WindowProc(message, wParam, lParam);
    } catch (...) {
        result = faultResult(hwnd, message);
    }
    t_current = outer;
    // The object may have died or let go of the window inside the handler.
    if (message == WM_NCDESTROY && CZemWndMap::permanent(hwnd) == wnd) wnd->finishNcDestroy();
    return result;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result)) result = DefWindowProcW(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    LRESULT answer = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) return FALSE;
        answer = 1;
    } else if (message == WM_NOTIFY) {
        if (!OnNotify(wParam, lParam, &answer)) return FALSE;
    } else if (!dispatch(message, 0, 0, ZemMsgCall{message, wParam, lParam, 0, nullptr}, &answer) &&
               !reflectOwnerMessage(message, wParam, lParam, &answer)) {
        return FALSE;
    }
    if (result != nullptr) *result = answer;
    return TRUE;
}

BOOL CWnd::dispatch(UINT message, UINT code, UINT id, const ZemMsgCall& call, LRESULT* result) {
    const AFX_MSGMAP_ENTRY* entry = zemFindMsgEntry(GetMessageMap(), message, code, id);
    LRESULT answer = 0;
    if (entry == nullptr || !zemCallMsgHandler(this, *entry, call, answer)) return FALSE;
    if (result != nullptr) *result = answer;
    return TRUE;
}

LRESULT CWnd::DefWindowProcW(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper != nullptr) return CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    if (m_hWnd == nullptr || t_current.hwnd != m_hWnd) return 0;
    return DefWindowProcW(t_current.message, t_current.wParam, t_current.lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    HWND control = reinterpret_cast<HWND>(lParam);
    UINT code = HIWORD(wParam);
    if (control != nullptr) {
        if (reflectToChild(control, WM_COMMAND, wParam, lParam, nullptr)) return TRUE;
        if (id == 0) return FALSE;
    } else {
        // Menus and accelerators alike are plain commands.
        code = 0;
    }
    return dispatch(WM_COMMAND, code, id, ZemMsgCall{WM_COMMAND, wParam, lParam, id, nullptr}, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header == nullptr) return FALSE;
    if (header->hwndFrom != nullptr && reflectToChild(header->hwndFrom, WM_NOTIFY, wParam, lParam, result)) {
        return TRUE;
    }
    // The id is the sender's control id, so a pop-up such as a tool tip has 0.
    const UINT id = header->hwndFrom != nullptr ? static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom))
                                                : static_cast<UINT>(header->idFrom);
    return dispatch(WM_NOTIFY, header->code, id, ZemMsgCall{WM_NOTIFY, wParam, lParam, id, header}, result);
}

BOOL CWnd::reflectToChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    CWnd* wnd = CZemWndMap::permanent(child);
    if (wnd == nullptr || wnd == this) return FALSE;
    return wnd->OnChildNotify(message, wParam, lParam, result);
}

// Owner-drawing, colour and scroll messages name their control inside the
// message; the parent's own map comes first, then the control's object.
BOOL CWnd::reflectOwnerMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    HWND control = nullptr;
    switch (message) {
    case WM_DRAWITEM: {
        const auto* draw = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (draw != nullptr && draw->CtlType != ODT_MENU) control = draw->hwndItem;
        break;
    }
    case WM_MEASUREITEM: {
        const auto* measure = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        if (measure != nullptr && measure->CtlType != ODT_MENU) {
            control = ::GetDlgItem(m_hWnd, static_cast<int>(measure->CtlID));
        }
        break;
    }
    case WM_COMPAREITEM:
        if (lParam != 0) control = reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam)->hwndItem;
        break;
    case WM_DELETEITEM:
        if (lParam != 0) control = reinterpret_cast<const DELETEITEMSTRUCT*>(lParam)->hwndItem;
        break;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORSCROLLBAR:
    case WM_HSCROLL:
    case WM_VSCROLL:
        control = reinterpret_cast<HWND>(lParam);
        break;
    default:
        return FALSE;
    }
    return control != nullptr && reflectToChild(control, message, wParam, lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const ZemMsgCall call{message, wParam, lParam, 0, nullptr};
    if (message == WM_COMMAND) {
        return dispatch(WM_REFLECT_BASE + WM_COMMAND, HIWORD(wParam), 0, call, result);
    }
    if (message == WM_NOTIFY) {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        return dispatch(WM_REFLECT_BASE + WM_NOTIFY, header->code, 0,
                        ZemMsgCall{message, wParam, lParam, 0, header}, result);
    }
    return dispatch(WM_REFLECT_BASE + message, 0, 0, call, result);
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* msg) {
    for (HWND hwnd = msg->hwnd; hwnd != nullptr; hwnd = ::GetParent(hwnd)) {
        CWnd* wnd = CZemWndMap::permanent(hwnd);
        if (wnd != nullptr && wnd->PreTranslateMessage(msg)) return TRUE;
        if (hwnd == stop) break;
    }
    return FALSE;
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    if (m_hWnd == nullptr) return FALSE;
    CDataExchange exchange(this, saveAndValidate);
    DoDataExchange(&exchange);
    return !exchange.failed();
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::EnableToolTips(BOOL enable) {
    if (!enable) {
        if (m_hWndToolTip != nullptr) ::DestroyWindow(m_hWndToolTip);
        m_hWndToolTip = nullptr;
        return TRUE;
    }
    if (m_hWnd == nullptr) return FALSE;
    if (m_hWndToolTip == nullptr) {
        zemInitCommonControls();
        m_hWndToolTip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, m_hWnd, nullptr,
                                          AfxGetStaticModuleState()->m_hCurrentInstanceHandle, nullptr);
        if (m_hWndToolTip == nullptr) return FALSE;
    }
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        TOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = m_hWnd;
        tool.uId = reinterpret_cast<UINT_PTR>(child);
        tool.lpszText = LPSTR_TEXTCALLBACKW;
        // Removing first keeps a second call from giving a child two tools.
        ::SendMessageW(m_hWndToolTip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        ::SendMessageW(m_hWndToolTip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return TRUE;
}

LRESULT CWnd::SendMessageW(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessageW(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

CWnd* CWnd::GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }

int CWnd::GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

void CWnd::SetDlgItemTextW(int id, LPCWSTR text) { ::SetDlgItemTextW(m_hWnd, id, text); }

int CWnd::GetDlgItemTextW(int id, CString& text) const {
    HWND item = ::GetDlgItem(m_hWnd, id);
    text.Empty();
    if (item == nullptr) return 0;
    const int length = ::GetWindowTextLengthW(item);
    ::GetWindowTextW(item, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text.GetLength();
}

int CWnd::MessageBoxW(LPCWSTR text, LPCWSTR caption, UINT type) {
    return ::MessageBoxW(m_hWnd, text, caption, type);
}

void CWnd::SetWindowTextW(LPCWSTR text) { ::SetWindowTextW(m_hWnd, text); }

int CWnd::GetWindowTextW(LPWSTR buffer, int size) const { return ::GetWindowTextW(m_hWnd, buffer, size); }

void CWnd::GetWindowTextW(CString& text) const {
    const int length = ::GetWindowTextLengthW(m_hWnd);
    ::GetWindowTextW(m_hWnd, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
}

int CWnd::GetWindowTextLengthW() const { return ::GetWindowTextLengthW(m_hWnd); }

CWnd* CWnd::SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }

CWnd* CWnd::GetFocus() { return FromHandle(::GetFocus()); }

CWnd* CWnd::GetParent() const { return FromHandle(::GetParent(m_hWnd)); }

CWnd* CWnd::GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }

CWnd* CWnd::GetWindow(UINT relation) const { return FromHandle(::GetWindow(m_hWnd, relation)); }

BOOL CWnd::ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }

BOOL CWnd::EnableWindow(BOOL enable) { return ::EnableWindow(m_hWnd, enable); }

BOOL CWnd::IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }

BOOL CWnd::IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags) {
    return ::SetWindowPos(m_hWnd, insertAfter != nullptr ? insertAfter->m_hWnd : nullptr, x, y, cx, cy, flags);
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint) {
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint) {
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

void CWnd::GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }

void CWnd::GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }

void CWnd::ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }

void CWnd::ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2); }

void CWnd::ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }

void CWnd::ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2); }

DWORD CWnd::GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }

DWORD CWnd::GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }

namespace {

BOOL modifyLong(HWND hwnd, int index, DWORD remove, DWORD add, UINT flags) {
    const DWORD before = static_cast<DWORD>(::GetWindowLongPtrW(hwnd, index));
    const DWORD after = (before & ~remove) | add;
    if (before == after) return FALSE;
    ::SetWindowLongPtrW(hwnd, index, static_cast<LONG_PTR>(after));
    if (flags != 0) {
        ::SetWindowPos(hwnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags) {
    return modifyLong(m_hWnd, GWL_STYLE, remove, add, flags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT flags) {
    return modifyLong(m_hWnd, GWL_EXSTYLE, remove, add, flags);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* placement) const {
    placement->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, placement);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* placement) { return ::SetWindowPlacement(m_hWnd, placement); }

void CWnd::Invalidate(BOOL erase) { ::InvalidateRect(m_hWnd, nullptr, erase); }

void CWnd::InvalidateRect(LPCRECT rect, BOOL erase) { ::InvalidateRect(m_hWnd, rect, erase); }

void CWnd::UpdateWindow() { ::UpdateWindow(m_hWnd); }

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc) { return ::SetTimer(m_hWnd, id, elapse, proc); }

BOOL CWnd::KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }

CWnd* CWnd::SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }

int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnNcDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
void CWnd::OnPaint() { Default(); }
void CWnd::OnFontChange() { Default(); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
BOOL CWnd::OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnHScroll(UINT, UINT, CWnd*) { Default(); }
void CWnd::OnVScroll(UINT, UINT, CWnd*) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }

// A derived handler that hands an owner-drawing message on to the base
// still reaches the control's object.
void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT) {
    if (!reflectOwnerMessage(t_current.message, t_current.wParam, t_current.lParam, nullptr)) Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    if (!reflectOwnerMessage(t_current.message, t_current.wParam, t_current.lParam, nullptr)) Default();
}
