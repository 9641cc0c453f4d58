#include "ZemGdxPainter.h"

#include "CBitmap.h"
#include "ZemDeviceLines.h"
#include "ZemIconBitmap.h"
#include "ZemString.h"
#include "ZemSupportPath.h"

namespace {

// A bitmap or an icon loaded for one picture item; the icon goes into the
// bitmap when there is no bitmap of its own.
struct PictureSource {
    ~PictureSource()
    {
        if (icon != nullptr) ::DestroyIcon(icon);
    }

    CBitmap bitmap;
    HICON icon = nullptr;
};

// The stored name is loaded, sized to the box; the name found on the search
// path only decides whether and as what, by its ending.
void loadFile(const CZemString& name, int cx, int cy, PictureSource& out)
{
    CZemString found;
    if (!ZEM::fileFind(name, found) || found.len() <= 4) return;
    CZemString ending = found.right(4);
    ending.downcase();
    if (ending == L".ico")
        out.icon = static_cast<HICON>(::LoadImageW(nullptr, name, IMAGE_ICON, cx, cy, LR_LOADFROMFILE));
    else if (ending == L".bmp")
        out.bitmap.Attach(::LoadImageW(nullptr, name, IMAGE_BITMAP, cx, cy, LR_LOADFROMFILE));
}

}  // namespace

// The box is in device pixels and does not follow the view.
void CZemGdxPainter::pictureBox(int i, unsigned long flags, CZemPoint3d& p0, CZemPoint3d& p1) const
{
    CZemVertexArray placement;
    m_gdx.geomGet(placement, i);
    p0 = CZemPoint3d::kOrigin;
    p1 = CZemPoint3d(m_width, m_height, 0.0);
    if (!(flags & GDX_PIC_FULL) && !placement.isEmpty()) {
        p0 = placement[0].m_start;
        p1 = placement[-1].m_end;
    }
}

// The blit does not stretch, so a file's image is sized by its loading and
// an icon keeps its own size.
void CZemGdxPainter::drawPicture(int i, unsigned long flags)
{
    CZemString name;
    int number = 0;
    m_gdx.pictureGet(i, name, number);
    CZemPoint3d p0, p1;
    pictureBox(i, flags, p0, p1);
    const int cx = zem_device_int(p1.x - p0.x);
    const int cy = zem_device_int(p1.y - p0.y);
    PictureSource source;
    if (!name.isEmpty())
        loadFile(name, cx, cy, source);
    else
        source.icon = ::LoadIconW(nullptr, MAKEINTRESOURCEW(number & 0xFFFF));
    if (source.icon != nullptr && source.bitmap.GetSafeHandle() == nullptr) {
        source.bitmap.Attach(zem_icon_to_bitmap(source.icon));
        source.icon = nullptr;
    }
    if (source.bitmap.GetSafeHandle() == nullptr) return;
    CDC memory;
    if (!memory.CreateCompatibleDC(&m_dc)) return;
    const CZemDCSelect selected = memory.SelectObject(source.bitmap);
    m_dc.BitBlt(zem_device_int(p0.x), zem_device_int(p0.y), cx, cy, &memory, 0, 0, SRCCOPY);
}
