#pragma once

#include "ZemMatrix3d.h"

class CZemDataItem;
class CZemDtaFilePointer;
class CZemGDX;

// One drawing of a drilled part: the hidden-line projection of its solid
// (view 3), or the application's drawing of the stored object with an
// optional marker at the origin.
class CZemDrillImage {
public:
    // Either data set may be null; what is missing reads as its default.
    CZemDrillImage(CZemDtaFilePointer* object, CZemDtaFilePointer* parameters);

    // False only when view 3 can't make or model the solid.
    bool image(CZemGDX& gdx) const;

    // The fixed isometric frame of the projection: X along (1, 1, 0), Z
    // towards the viewer along (1, -1, 1).
    static CZemMatrix3d isometricView();

private:
    bool imageProjection(CZemGDX& gdx) const;
    void imageStored(CZemGDX& gdx) const;
    CZemDataItem applicationParameters() const;

    CZemDataItem* m_object;
    CZemDataItem* m_parameters;
    int m_cmode = 0;
    CZemMatrix3d m_mtx;
    bool m_marker = false;
    int m_view = 0;
};
