#include "ZemGdiCount.h"

#include <windows.h>

int zemGdiObjectCount() {
    SetLastError(ERROR_SUCCESS);
    const DWORD reported = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (reported != 0 || GetLastError() != ERROR_CALL_NOT_IMPLEMENTED) return static_cast<int>(reported);
    // A handle with a zero high word names its table entry whatever the
    // entry's generation, so each index is asked once.
    int live = 0;
    for (ULONG_PTR index = 1; index <= 0xFFFF; ++index) {
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0) ++live;
    }
    return live;
}
