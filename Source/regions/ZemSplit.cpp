#include "ZemSplit.h"

#include "ZemArcSplitter.h"

CZemVertexArray zem_gdx_image_vl_split(CZemVertexArray vl) { return CZemArcSplitter(vl).split(); }

CZemArrayTempl<CZemVertexArray> zem_gdx_image_reg_split(CZemArrayTempl<CZemVertexArray> regs) {
    CZemArrayTempl<CZemVertexArray> out;
    for (int k = 0; k < regs.len(); ++k) out.append(CZemArcSplitter(regs[k]).split());
    return out;
}
