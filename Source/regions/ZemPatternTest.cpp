#include "ZemPatternTest.h"

#include "ZemPatternTester.h"
#include "ZemPatternSource.h"

bool zem_gdx_pattern_test(CZemArrayTempl<CZemVertexArray> regs, const CZemHatchProp& prop, const CZemMatrix3d& mtx) {
    return CZemPatternTester(regs, prop, mtx).isLegible(zem_reg_pattern(prop.name));
}
