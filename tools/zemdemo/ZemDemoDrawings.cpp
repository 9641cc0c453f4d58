#include "ZemDemoDrawings.h"

#include "ZemDemoLegend.h"
#include "ZemDemoLogo.h"
#include "ZemDemoPlan.h"
#include "ZemGDX.h"
#include "ZemGdxImageSld.h"

namespace {

bool buildPlan(CZemGDX& gdx, const ZemDemoDrawing& drawing, const ZemDemoInputs& inputs, std::wstring& error)
{
    const std::wstring logo = inputs.folder + L"\\logo.bmp";
    if (!zem_demo_logo_write(logo.c_str(), 128)) {
        error = L"can't write " + logo;
        return false;
    }
    CZemDemoPlan plan(gdx, drawing.width, drawing.height);
    return plan.build(inputs.slideLibrary, inputs.slideName, logo, error);
}

bool buildLegend(CZemGDX& gdx, const ZemDemoDrawing&, const ZemDemoInputs&, std::wstring& error)
{
    CZemDemoLegend legend(gdx);
    return legend.build(error);
}

// The slide as the library holds it, in its own colours.
bool buildSlide(CZemGDX& gdx, const ZemDemoDrawing&, const ZemDemoInputs& inputs, std::wstring& error)
{
    if (zem_gdx_image_sld(&gdx, inputs.slideName.c_str(), inputs.slideLibrary.c_str(), 0, nullptr))
        return true;
    error = L"slide " + inputs.slideName + L" of " + inputs.slideLibrary + L" can't be read";
    return false;
}

}  // namespace

const std::vector<ZemDemoDrawing>& zem_demo_drawings()
{
    static const std::vector<ZemDemoDrawing> drawings = {
        {L"plan", 1600, 1095, false, buildPlan},
        {L"legend", 1600, 1006, false, buildLegend},
        {L"slide", 1024, 768, true, buildSlide},
    };
    return drawings;
}
