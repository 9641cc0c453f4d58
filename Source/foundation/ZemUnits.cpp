#include "ZemUnits.h"

#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemMessages.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>
#include <string>

namespace {

// A unit's length in metres as a ratio, exact where the ratio is one of
// whole numbers (all but the parsec).
struct UnitRatio {
    double metres;
    double per;
};

const UnitRatio kUnits[] = {
    {1.0, 1.0},                                      // 0: none, not converted
    {254.0, 10000.0},                                // 1: inch
    {3048.0, 10000.0},                               // 2: foot
    {1609344.0, 1000.0},                             // 3: mile
    {1.0, 1000.0},                                   // 4: millimetre
    {1.0, 100.0},                                    // 5: centimetre
    {1.0, 1.0},                                      // 6: metre
    {1000.0, 1.0},                                   // 7: kilometre
    {254.0, 10000000000.0},                          // 8: microinch
    {254.0, 10000000.0},                             // 9: mil
    {9144.0, 10000.0},                               // 10: yard
    {1.0, 10000000000.0},                            // 11: angstrom
    {1.0, 1000000000.0},                             // 12: nanometre
    {1.0, 1000000.0},                                // 13: micron
    {1.0, 10.0},                                     // 14: decimetre
    {10.0, 1.0},                                     // 15: decametre
    {100.0, 1.0},                                    // 16: hectometre
    {1000000000.0, 1.0},                             // 17: gigametre
    {149597870700.0, 1.0},                           // 18: astronomical unit
    {9460730472580800.0, 1.0},                       // 19: light year
    {149597870700.0 * 648000.0 / 3.14159265358979323846, 1.0},  // 20: parsec
};

const wchar_t* const kNamesDeu[] = {
    L"Ohne Einheit", L"Zoll", L"Fu\u00DF", L"Meilen", L"Millimeter", L"Zentimeter", L"Meter",
    L"Kilometer", L"Mikrozoll", L"Mil", L"Yard", L"\u00C5ngstr\u00F6m", L"Nanometer", L"Mikrometer",
    L"Dezimeter", L"Dekameter", L"Hektometer", L"Gigameter", L"Astronomische Einheiten", L"Lichtjahre",
    L"Parsec"};

const wchar_t* const kNamesEnu[] = {
    L"Unitless", L"Inches", L"Feet", L"Miles", L"Millimeters", L"Centimeters", L"Meters",
    L"Kilometers", L"Microinches", L"Mils", L"Yards", L"Angstroms", L"Nanometers", L"Microns",
    L"Decimeters", L"Decameters", L"Hectometers", L"Gigameters", L"Astronomical Units", L"Light Years",
    L"Parsecs"};

constexpr double kExactLimit = 9007199254740992.0;  // 2^53: doubles hold every whole number below

// The ratio reduced by the greatest common divisor while both parts are
// whole numbers a double holds exactly, so products stay exact.
void reduce(double& num, double& den) {
    if (num != std::floor(num) || den != std::floor(den) || num >= kExactLimit || den >= kExactLimit) return;
    const std::uint64_t g = std::gcd(static_cast<std::uint64_t>(num), static_cast<std::uint64_t>(den));
    if (g > 1) {
        num /= static_cast<double>(g);
        den /= static_cast<double>(g);
    }
}

bool resolve(Zem::lUnit& unit) {
    if (unit == Zem::unitCurrent) unit = ZEM::acad_unit_get();
    return unit > Zem::unitNone && unit <= Zem::unitLast;
}

}  // namespace

namespace ZEM {

bool acadUnitCv(double value, Zem::lUnit from, Zem::lUnit to, double& out) {
    if (!resolve(from) || !resolve(to)) return false;
    const UnitRatio& a = kUnits[from];
    const UnitRatio& b = kUnits[to];
    double num = a.metres * b.per;
    double den = a.per * b.metres;
    reduce(num, den);
    // value * num / den rounds once per step and keeps whole ratios exact
    // (25.4 mm are 1 inch); a product that overflows takes the other order.
    const double scaled = value * num;
    out = std::isfinite(scaled) || !std::isfinite(value) ? scaled / den : value * (num / den);
    return true;
}

bool acadUnitCv(double& value, Zem::lUnit from, Zem::lUnit to) { return acadUnitCv(value, from, to, value); }

Zem::lUnit acad_unit_get() {
    Zem::lUnit unit = Zem::unitMillimeters;
    if (!cfgRead(L"INSUNITS", unit) || unit <= Zem::unitNone) return Zem::unitMillimeters;
    return unit;
}

void acad_unit_set(Zem::lUnit unit) {
    const CZemDataKey key(L"INSUNITS");
    dataItemSet(cfg_dir_make(nullptr), &key, unit);
}

CZemArrayTempl<CZemString>& acad_units(const wchar_t* language) {
    static std::map<std::wstring, CZemArrayTempl<CZemString>> lists;
    const CZemString code = language && *language ? CZemString(language) : CZemString(msgLangSet(nullptr));
    CZemString upper = code;
    for (int k = 0; k < upper.len(); ++k)
        if (upper[k] >= L'a' && upper[k] <= L'z') upper[k] = static_cast<wchar_t>(upper[k] - L'a' + L'A');
    const wchar_t* const* defaults = upper == L"DEU" ? kNamesDeu : kNamesEnu;
    CZemArrayTempl<CZemString>& names = lists[static_cast<const wchar_t*>(upper)];
    names.setLogicalLength(0);
    for (int unit = 0; unit <= Zem::unitLast; ++unit) {
        CZemString key;
        key.format(L"ZEM_UNIT_%02d", unit);
        names.append(zem_msg_get(L"ZEM_", key, defaults[unit], upper));
    }
    return names;
}

int autoPrec(int precision, Zem::lUnit unit, Zem::lFormat format) {
    if (precision < 0) precision = 0;
    if (format == Zem::formatScientific) return precision;
    double perMillimetre = 1.0;
    if (!acadUnitCv(1.0, Zem::unitMillimeters, unit, perMillimetre)) perMillimetre = 1.0;
    // The resolution 10^-precision mm in the unit; the tolerance keeps exact
    // powers of ten from rounding up.
    const double decimals = precision - std::log10(perMillimetre);
    if (format == Zem::formatArchitectural || format == Zem::formatFractional) {
        const double power = std::ceil(decimals * std::log2(10.0) - 1e-9);
        return power < 0 ? 0 : (power > 8 ? 8 : static_cast<int>(power));
    }
    const double places = std::ceil(decimals - 1e-9);
    return places < 0 ? 0 : (places > 16 ? 16 : static_cast<int>(places));
}

}  // namespace ZEM
