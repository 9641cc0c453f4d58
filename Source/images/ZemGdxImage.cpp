#include "ZemGdxImage.h"

namespace {

// Made on first use, so that a registration from another module's start-up
// finds it; freed with the remaining entries when the library unloads.
CZemGdxImageReg& imageFunctions()
{
    static CZemGdxImageReg table;
    return table;
}

}  // namespace

void setGdxImageFcn(const wchar_t* name, ZemGdxImageFcn fcn) { imageFunctions().set(name, fcn); }

bool zem_gdx_image(const wchar_t* name, CZemGDX* gdx, CZemDtaFilePointer* object, CZemDtaFilePointer* parameters)
{
    const ZemGdxImageFcn fcn = imageFunctions().find(name);
    return fcn && fcn(gdx, object, parameters);
}
