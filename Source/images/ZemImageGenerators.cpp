#include "ZemImageGenerators.h"

#include "ZemDrillImage.h"
#include "ZemNormPrototypeImage.h"
#include "ZemWallEditImage.h"

bool zem_wall_edit_image(CZemGDX* gdx, CZemDtaFilePointer* wall)
{
    return gdx && CZemWallEditImage(wall).image(*gdx);
}

bool zem_gdx_image_drill(CZemGDX* gdx, CZemDtaFilePointer* object, CZemDtaFilePointer* parameters)
{
    return gdx && CZemDrillImage(object, parameters).image(*gdx);
}

bool zem_gdx_image_norm_prototype(CZemGDX* gdx, const wchar_t* key, CZemDataItem* parameters)
{
    if (!gdx || !key)
        return false;
    return CZemNormPrototypeImage(*gdx, parameters).image(key);
}
