#include "CCmdTarget.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

void CCmdTarget::BeginWaitCursor() {
    HCURSOR before = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    if (m_waitDepth++ == 0) m_cursorBeforeWait = before;
}

void CCmdTarget::EndWaitCursor() {
    if (m_waitDepth == 0) return;
    if (--m_waitDepth == 0) SetCursor(m_cursorBeforeWait != nullptr ? m_cursorBeforeWait : LoadCursorW(nullptr, IDC_ARROW));
}
