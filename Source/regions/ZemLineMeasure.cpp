#include "ZemLineMeasure.h"

#include "ZemDashPattern.h"
#include "ZemLineMeasurer.h"
#include "ZemRegionPrep.h"

bool zem_gdx_image_vl_measure(CZemVertexArray& vl, CZemArrayTempl<double> pattern, int mode) {
    const CZemDashPattern prepared(pattern, mode, zem_reg_dot_length());
    if (!prepared.isUsable()) return false;
    vl = CZemLineMeasurer(prepared, mode).measure(vl);
    return true;
}
