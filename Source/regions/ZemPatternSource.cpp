#include "ZemPatternSource.h"

#include "ZemApp.h"

CZemArrayTempl<CZemArrayTempl<double>> zem_reg_pattern(const CZemString& name) {
    CZemArrayTempl<CZemArrayTempl<double>> lines;
    CZemApp* app = zemAppPtr();
    if (app) app->hatchPattern(name, lines);
    return lines;
}
