#pragma once

#include "ZemArrayTempl.h"
#include "ZemDataItem.h"
#include "ZemPoint3d.h"
#include "ZemVector3d.h"

class CZemGDX;

// One preview of a norm part: its generator item from the object library,
// generated and drawn by the application; a "PIECE" gets its second view
// (view 1) placed beside the first or, for a long part, above it.
class CZemNormPrototypeImage {
public:
    // parameters (may be null) counts only as a directory: MAIN, STACK and
    // everything else it holds goes on to the application.
    CZemNormPrototypeImage(CZemGDX& gdx, CZemDataItem* parameters);

    // False if key names no part in the object library.
    bool image(const wchar_t* key);

    // The move that brings the second view (bounds min1, max1) beside the
    // first (bounds min, max) when the first is less than three times as
    // wide as high, and otherwise above it, right edges aligned and a gap
    // of a quarter of |min1.y|. A first view of no height counts its width.
    static CZemVector3d secondViewMove(const CZemPoint3d& min, const CZemPoint3d& max, const CZemPoint3d& min1,
                                       const CZemPoint3d& max1);

private:
    void generate(CZemDataItem& part);
    void imageView(CZemDataItem& part, int view);
    void imageSecondView(CZemDataItem& part);
    CZemArrayTempl<int> viewStack(int view) const;

    CZemGDX& m_gdx;
    CZemDataItem m_parameters;
    CZemArrayTempl<int> m_path;
    bool m_coordPoints = false;
};
