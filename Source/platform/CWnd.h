#pragma once

#include "CCmdTarget.h"
#include "CPoint.h"
#include "CRect.h"
#include "CString.h"
#include "ZemMsgMap.h"

#include <windows.h>

class CDC;
class CDataExchange;

// A platform window bound to this object. Messages go through the object's
// message map (derived entries first, then the bases'), control
// notifications are offered to the control's own object before the parent's
// map, and whatever no entry takes goes to the window's original procedure
// (Default). The members below that carry a platform name forward to it.
class CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)
public:
    HWND m_hWnd = nullptr;
    // Set to send WM_CLOSE and the like to a window other than the parent.
    HWND m_hWndOwner = nullptr;

    CWnd() = default;
    // Destroys a window still bound to the object (not a temporary one).
    ~CWnd() override;

    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }

    // The object bound to hwnd, else a temporary plain CWnd that lives until
    // DeleteTempMap; null for a null handle.
    static CWnd* FromHandle(HWND hwnd);
    // The object bound to hwnd, or null.
    static CWnd* FromHandlePermanent(HWND hwnd);
    // Deletes the temporary objects of this thread's and of dead windows.
    static void DeleteTempMap();

    // Binds a window without taking over its messages; false if either side
    // is bound already.
    bool Attach(HWND hwnd);
    HWND Detach();
    // Binds a window and routes its messages through this object; the
    // original procedure stays reachable through Default.
    bool SubclassWindow(HWND hwnd);
    bool SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();

    // Creates a window bound to this object from its first message on. A
    // null class name takes the framework's plain window class.
    bool CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    bool CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, LPVOID param = nullptr);
    virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                        UINT id);
    virtual BOOL DestroyWindow();

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // The original window procedure, or the platform's default.
    virtual LRESULT DefWindowProcW(UINT message, WPARAM wParam, LPARAM lParam);
    // The message being handled, passed to DefWindowProcW.
    LRESULT Default();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A notification of this control, offered by its parent before the
    // parent's own map; true if the control took it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // Called by the modal loop for a message to this window or a child of it
    // before dispatch; true keeps the message from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* msg);
    // Offers msg to the objects of its target window and of its parents up to
    // stop, nearest first; true as soon as one took it.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* msg);
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // Runs DoDataExchange; false if an exchange failed.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    LRESULT SendMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessageW(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    CWnd* GetDlgItem(int id) const;
    int GetDlgCtrlID() const;
    void SetDlgItemTextW(int id, LPCWSTR text);
    int GetDlgItemTextW(int id, CString& text) const;
    int MessageBoxW(LPCWSTR text, LPCWSTR caption = nullptr, UINT type = MB_OK);
    void SetWindowTextW(LPCWSTR text);
    int GetWindowTextW(LPWSTR buffer, int size) const;
    void GetWindowTextW(CString& text) const;
    int GetWindowTextLengthW() const;
    // Returns the window that had the focus.
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* GetParent() const;
    CWnd* GetOwner() const;
    CWnd* GetWindow(UINT relation) const;
    BOOL ShowWindow(int command);
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL IsWindowVisible() const;
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags);
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    void GetWindowRect(LPRECT rect) const;
    void GetClientRect(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const;
    void ScreenToClient(LPRECT rect) const;
    void ClientToScreen(LPPOINT point) const;
    void ClientToScreen(LPRECT rect) const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    // flags other than 0 are passed to SetWindowPos with the frame change.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement);
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void UpdateWindow();
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc = nullptr);
    BOOL KillTimer(UINT_PTR id);
    CWnd* SetCapture();
    // Gives each child window a tool tip whose text is asked of this window
    // by TTN_NEEDTEXTW with TTF_IDISHWND; false without a window.
    BOOL EnableToolTips(BOOL enable = TRUE);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual void DoDataExchange(CDataExchange* dx);
    // Called before the window's messages come to this object.
    virtual void PreSubclassWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCTW& cs);
    // Called after the window is gone and unbound; an object that owns
    // itself may delete itself here.
    virtual void PostNcDestroy();
    // Handles a reflected notification through the map's reflect entries.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    // Handlers for the map entries; each does what the window would do
    // without them.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg void OnFontChange();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* oldWnd);
    afx_msg void OnKillFocus(CWnd* newWnd);
    afx_msg void OnHScroll(UINT code, UINT pos, CWnd* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT pos, CWnd* scrollBar);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint point);
    afx_msg void OnSysCommand(UINT id, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT ch, UINT repeat, UINT flags);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT draw);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT measure);

private:
    friend class CZemWndMap;
    friend class CZemCreateHook;

    static LRESULT CALLBACK StaticWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static LPCWSTR defaultClassName();
    void bindAtCreation(HWND hwnd);
    void finishNcDestroy();
    BOOL dispatch(UINT message, UINT code, UINT id, const ZemMsgCall& call, LRESULT* result);
    BOOL reflectToChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL reflectOwnerMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    WNDPROC m_pfnSuper = nullptr;
    HWND m_hWndToolTip = nullptr;
    bool m_temporary = false;
};
