#pragma once

#include "ZemArrayTempl.h"
#include "ZemString.h"

// The pattern lines that the application object gives for a pattern name;
// none for a name it does not know.
CZemArrayTempl<CZemArrayTempl<double>> zem_reg_pattern(const CZemString& name);
