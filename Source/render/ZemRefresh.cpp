#include "ZemRefresh.h"

#include "CMetaFileDC.h"
#include "CRgn.h"
#include "ZemGDX.h"
#include "ZemGdxPainter.h"
#include "ZemViewMatrix.h"

namespace {

// The margin around the list's extents, as a share of their larger side.
constexpr double kViewMargin = 0.05;

// M applies the fitted view, then the projection, then the zoom, so a list
// that a viewer has zoomed is written zoomed.
CZemMatrix3d fitView(CZemGDX& gdx, int height, int width)
{
    CZemPoint3d min, max;
    gdx.extMaxViewGet(min, max);
    const CZemMatrix3d view = getViewMtx(min, max, height, width, kViewMargin);
    gdx.viewMtxSet(view);
    const CZemMatrix3d projected = gdx.projMtxGet() * view;
    return gdx.zoomMtxGet() * projected;
}

// A clipboard that can't be opened loses the metafile.
void toClipboard(HENHMETAFILE metafile)
{
    if (metafile == nullptr) return;
    if (!::OpenClipboard(nullptr)) {
        ::DeleteEnhMetaFile(metafile);
        return;
    }
    ::EmptyClipboard();
    if (::SetClipboardData(CF_ENHMETAFILE, metafile) == nullptr) ::DeleteEnhMetaFile(metafile);
    ::CloseClipboard();
}

}  // namespace

// A metafile that can't be created leaves a device without a context, on
// which every drawing call has no effect.
bool refresh(CZemGDX* gdx, const wchar_t* file, int height, int width)
{
    if (gdx == nullptr) return false;
    CMetaFileDC dc;
    dc.CreateEnhanced(nullptr, file, nullptr, nullptr);
    gdx->displListSort();
    const CZemMatrix3d device = fitView(*gdx, height, width);
    const CZemMatrix3d direction = gdx->viewDirectionMtxGet();
    CRgn clip;
    clip.CreateRectRgn(0, 0, width, height);
    dc.SelectClipRgn(&clip);
    if (gdx->lenGet() > 0) CZemGdxPainter(dc, *gdx, device, direction, clip, width, height).drawItems();
    const HENHMETAFILE metafile = dc.CloseEnhanced();
    if (file == nullptr)
        toClipboard(metafile);
    else if (metafile != nullptr)
        ::DeleteEnhMetaFile(metafile);
    return true;
}
