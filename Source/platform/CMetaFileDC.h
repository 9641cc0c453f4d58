#pragma once

#include "CDC.h"

// The recording context of an enhanced metafile. A metafile still open when
// the object ends is closed and deleted.
class CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)
public:
    CMetaFileDC() = default;
    ~CMetaFileDC() override;

    // CreateEnhMetaFileW: a file, or memory for a null name; bounds in
    // 0.01 mm, or null to fit the drawing. The context answers questions
    // about itself.
    BOOL CreateEnhanced(const CDC* reference, LPCWSTR fileName, LPCRECT bounds, LPCWSTR description);
    // Ends the recording; the caller owns the metafile (null on failure).
    HENHMETAFILE CloseEnhanced();
};
