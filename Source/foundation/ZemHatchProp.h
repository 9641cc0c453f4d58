#pragma once

#include "ZemObj.h"
#include "ZemString.h"

// A hatch: a pattern name looked up through the application object, the
// pattern's rotation in radians and its scale. flag is carried along.
class CZemHatchProp : public CZemObj {
public:
    CZemHatchProp() = default;
    CZemHatchProp(const wchar_t* patternName, double patternAngle, double patternScale, bool patternFlag = false)
        : name(patternName), angle(patternAngle), scale(patternScale), flag(patternFlag) {}

    CZemString name;
    double angle = 0.0;
    double scale = 1.0;
    bool flag = false;
};
