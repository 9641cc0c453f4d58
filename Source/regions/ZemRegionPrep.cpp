#include "ZemRegionPrep.h"

#include "ZemPolyline.h"
#include "ZemUnits.h"
#include "ZemVector3d.h"

void zem_reg_orient(CZemArrayTempl<CZemVertexArray>& regs) {
    for (int k = 0; k < regs.len(); ++k) {
        if (regs[k].isClosed() && !ZEM::g_vl_orient(regs[k], CZemVector3d::kZAxis)) regs[k].revert();
    }
}

void zem_reg_transform(CZemArrayTempl<CZemVertexArray>& regs, const CZemMatrix3d& mtx) {
    for (int k = 0; k < regs.len(); ++k) regs[k].transformBy(mtx);
}

void zem_reg_ensure_contour(CZemArrayTempl<CZemVertexArray>& regs) {
    if (regs.isEmpty()) regs.append(CZemVertexArray());
}

double zem_reg_dot_length() {
    double length = 0.2;
    ZEM::acadUnitCv(length, Zem::unitMillimeters, Zem::unitCurrent);
    return length;
}
