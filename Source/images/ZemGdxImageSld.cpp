#include "ZemGdxImageSld.h"

#include "ZemGDX.h"
#include "ZemSlideImage.h"

namespace {

bool isEmptySlideName(const wchar_t* name)
{
    const wchar_t* const kEmpty = L"leer";
    int i = 0;
    for (; name[i] && kEmpty[i]; ++i) {
        const wchar_t c = name[i] >= L'A' && name[i] <= L'Z' ? static_cast<wchar_t>(name[i] - L'A' + L'a') : name[i];
        if (c != kEmpty[i])
            return false;
    }
    return name[i] == kEmpty[i];
}

// The empty slide still leaves a mark in the list: an invisible point.
bool imageEmptySlide(CZemGDX& gdx)
{
    return gdx.imagePt(CZemArrayTempl<int>(), GDX_HIDE, CZemPoint3d::kOrigin, CZemColor(), CZemMatrix3d::kIdentity,
                       0.0, 0xFFFFFFFFUL);
}

}  // namespace

bool zem_gdx_image_sld(CZemGDX* gdx, const wchar_t* name, const wchar_t* lib, unsigned long flags, CZemDataItem* item)
{
    if (!gdx || !name)
        return false;
    if (isEmptySlideName(name))
        return imageEmptySlide(*gdx);
    CZemSlideImage slide;
    return slide.load(name, lib) && slide.image(*gdx, flags, item);
}
