#include "ZemOutlineCatalogue.h"

#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemDataKey.h"

#include <cmath>
#include <memory>

namespace {

const double kPi = 3.14159265358979323846;

enum Group { basic = 1, further = 2, profile = 4, machining = 8 };
enum Valid { required = 1, noZero = 2, noNegative = 4 };
const int kSize = required | noZero | noNegative;  // a size that must be there
const int kOffset = required | noNegative;         // a magnitude that may be 0

struct Word {
    const wchar_t* word;
    double value;
};

const Word kNoWords[] = {{nullptr, 0.0}};
const Word kSweepWords[] = {{L"Viertelkreis", kPi / 2}, {L"Halbkreis", kPi}, {nullptr, 0.0}};
const Word kCornerWords[] = {{L"Dreieck", 3}, {L"Quadrat", 4}, {L"Sechseck", 6}, {L"Achteck", 8}, {nullptr, 0.0}};

// One parameter: message keys (numbers of ZEM_OUTL_0200 on; 0 for no
// negative sense), edit flags, kind, and the default of range 1.
struct Parameter {
    int label;
    int minus;
    int valid;
    const wchar_t* type;
    double value;
    const Word* words;
};

struct Form {
    int id;
    int code;
    int count;
    Parameter parameters[4];
};

// Message numbers of the parameter names, in ZEM_DEU.msg and ZEM_ENU.msg.
enum Text {
    width = 201, widthLeft, height, heightDown, diameter, length, lengthLeft, cornerRadius, chamfer, apexRight,
    apexLeft, corners, outerDiameter, rotation, centreRadius, slotWidth, sweepLeft, sweepRight, uprightLeg, lyingLeg,
    flange, web, wall, floorThickness, lyingBar, uprightBar, bottomWidth, topWidth, topRight, topLeft, radius,
    outerRadius, ringWidth, sideHeight, diagonalX, diagonalY, slotWidthDown
};

const Parameter kWidth = {width, widthLeft, kSize, L"L", 1.0, kNoWords};
const Parameter kHeight = {height, heightDown, kSize, L"L", 0.5, kNoWords};
const Parameter kDiameter = {diameter, 0, kSize, L"L", 1.0, kNoWords};

// The forms of ZEM::g_outline, in its order of parameters and with its signs.
const Form kForms[] = {
    {1, basic, 2, {kWidth, kHeight}},
    {2, basic | machining, 1, {kDiameter}},
    {3, basic | machining, 2, {{length, lengthLeft, kSize, L"L", 1.0, kNoWords}, {slotWidth, slotWidthDown, kSize, L"L", 0.4, kNoWords}}},
    {4, basic, 3, {kWidth, {height, heightDown, kSize, L"L", 0.6, kNoWords}, {cornerRadius, 0, kOffset, L"L", 0.1, kNoWords}}},
    {5, basic, 3, {kWidth, {height, heightDown, kSize, L"L", 0.6, kNoWords}, {chamfer, 0, kOffset, L"L", 0.1, kNoWords}}},
    {6, further, 3, {kWidth, {height, heightDown, kSize, L"L", 0.8, kNoWords}, {apexRight, apexLeft, kOffset, L"L", 0.5, kNoWords}}},
    {7, further, 3, {{corners, 0, kSize, L"N", 6.0, kCornerWords}, {outerDiameter, 0, kSize, L"L", 1.0, kNoWords}, {rotation, 0, required, L"A", 0.0, kNoWords}}},
    {8, machining, 3, {{centreRadius, 0, kSize, L"L", 1.0, kNoWords}, {slotWidth, 0, kSize, L"L", 0.2, kNoWords}, {sweepLeft, sweepRight, kSize, L"A", kPi / 2, kSweepWords}}},
    {9, profile, 4, {kWidth, {height, heightDown, kSize, L"L", 1.0, kNoWords}, {uprightLeg, 0, kSize, L"L", 0.2, kNoWords}, {lyingLeg, 0, kSize, L"L", 0.2, kNoWords}}},
    {10, profile, 4, {kWidth, {height, heightDown, kSize, L"L", 1.0, kNoWords}, {flange, 0, kSize, L"L", 0.2, kNoWords}, {web, 0, kSize, L"L", 0.2, kNoWords}}},
    {11, profile, 4, {kWidth, {height, heightDown, kSize, L"L", 0.8, kNoWords}, {wall, 0, kSize, L"L", 0.15, kNoWords}, {floorThickness, 0, kSize, L"L", 0.15, kNoWords}}},
    {12, profile, 4, {kWidth, {height, heightDown, kSize, L"L", 1.0, kNoWords}, {lyingBar, 0, kSize, L"L", 0.3, kNoWords}, {uprightBar, 0, kSize, L"L", 0.3, kNoWords}}},
    {13, further, 4, {{bottomWidth, widthLeft, kSize, L"L", 1.0, kNoWords}, {topWidth, 0, kOffset, L"L", 0.6, kNoWords}, kHeight, {topRight, topLeft, kOffset, L"L", 0.2, kNoWords}}},
    {14, further, 3, {kWidth, kHeight, {topRight, topLeft, kOffset, L"L", 0.25, kNoWords}}},
    {15, basic, 1, {kDiameter}},
    {16, further, 2, {{radius, 0, kSize, L"L", 1.0, kNoWords}, {sweepLeft, sweepRight, kSize, L"A", kPi / 2, kSweepWords}}},
    {17, profile, 4, {{width, widthLeft, kSize, L"L", 0.6, kNoWords}, {height, heightDown, kSize, L"L", 1.0, kNoWords}, {flange, 0, kSize, L"L", 0.1, kNoWords}, {web, 0, kSize, L"L", 0.08, kNoWords}}},
    {18, profile, 4, {kWidth, {height, heightDown, kSize, L"L", 1.0, kNoWords}, {flange, 0, kSize, L"L", 0.15, kNoWords}, {web, 0, kSize, L"L", 0.15, kNoWords}}},
    {19, basic, 2, {kWidth, {sideHeight, heightDown, kOffset, L"L", 0.5, kNoWords}}},
    {20, further, 2, {{diagonalX, 0, kSize, L"L", 1.0, kNoWords}, {diagonalY, 0, kSize, L"L", 0.6, kNoWords}}},
    {21, machining, 3, {{outerRadius, 0, kSize, L"L", 1.0, kNoWords}, {ringWidth, 0, kSize, L"L", 0.3, kNoWords}, {sweepLeft, sweepRight, kSize, L"A", 90.0, kSweepWords}}},
};

CZemString messageKey(int number) { return CZemString().format(L"ZEM_OUTL_%04d", number); }

bool isLength(const Parameter& parameter) { return CZemString(parameter.type) == L"L"; }

void writeParameter(CZemDataItem* entry, int n, const Parameter& parameter) {
    const CZemDataKey parm = CZemDataKey().appendString(CZemString().format(L"PARM%d", n));
    ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"LABEL"), messageKey(parameter.label));
    if (parameter.minus) ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"MINUSP"), messageKey(parameter.minus));
    ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"VALID"), parameter.valid);
    ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"TYPE"), parameter.type);
    for (const Word* word = parameter.words; word->word; ++word)
        ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"KWORD").appendString(word->word), word->value);
    for (int range = 1; range <= 4; ++range) {
        const double value = isLength(parameter) ? parameter.value * std::pow(10.0, range - 1) : parameter.value;
        ZEM::dataItemSet(entry, &CZemDataKey(parm).appendString(L"VAL").appendNumber(range), value);
    }
}

}  // namespace

bool zemOutlineInit(CZemDataItem* catalogue) {
    if (!catalogue) return false;
    CZemDataDir* dir = catalogue->mkDir();
    for (const Form& form : kForms) {
        std::unique_ptr<CZemDataItem> entry(new CZemDataItem(CZemDataItem::typeDir));
        ZEM::dataItemSet(entry.get(), &CZemDataKey().set(L"CODE"), form.code);
        ZEM::dataItemSet(entry.get(), &CZemDataKey().set(L"LABEL"), messageKey(10 + form.id));
        ZEM::dataItemSet(entry.get(), &CZemDataKey().set(L"TXTGEN"), 3);
        ZEM::dataItemSet(entry.get(), &CZemDataKey().set(L"PARMS"), form.count);
        for (int k = 0; k < form.count; ++k) writeParameter(entry.get(), k + 1, form.parameters[k]);
        dir->insert(&CZemDataKey().appendNumber(form.id), entry.release(), 0);
    }
    return true;
}
