#pragma once

#include "CObject.h"

#include <windows.h>

// Base of the classes that take commands; here it carries the wait cursor.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    // Shows the hourglass until the matching EndWaitCursor; pairs nest.
    void BeginWaitCursor();
    void EndWaitCursor();

private:
    HCURSOR m_cursorBeforeWait = nullptr;
    int m_waitDepth = 0;
};
