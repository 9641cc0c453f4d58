#include "ZemHatch.h"

#include "ZemPatternHatcher.h"
#include "ZemPatternSource.h"
#include "ZemPlainHatcher.h"

CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_hatch(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx,
                                                        const CZemString& name, double spacing, double angle) {
    const CZemPlainHatcher hatcher(regs, mtx, spacing);
    return name == L"DOTS" ? hatcher.dots() : hatcher.lines(angle);
}

CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_hatch2(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx,
                                                         const CZemHatchProp& prop) {
    const CZemArrayTempl<CZemArrayTempl<double>> lines = zem_reg_pattern(prop.name);
    return CZemPatternHatcher(regs, mtx, prop).hatch(lines);
}
