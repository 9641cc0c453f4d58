#pragma once

// Length units and number formats of the host drawing system. Units follow the
// numbering of its INSUNITS variable, formats that of LUNITS and its rtos modes.
namespace Zem {

enum lUnit : int {
    unitCurrent = -1,  // the drawing's current unit
    unitNone = 0,
    unitInches = 1,
    unitFeet = 2,
    unitMiles = 3,
    unitMillimeters = 4,
    unitCentimeters = 5,
    unitMeters = 6,
    unitKilometers = 7,
    unitMicroinches = 8,
    unitMils = 9,
    unitYards = 10,
    unitAngstroms = 11,
    unitNanometers = 12,
    unitMicrons = 13,
    unitDecimeters = 14,
    unitDecameters = 15,
    unitHectometers = 16,
    unitGigameters = 17,
    unitAstronomical = 18,
    unitLightYears = 19,
    unitParsecs = 20,
    unitLast = unitParsecs
};

enum lFormat : int {
    formatDefault = -1,  // not a format: asks for the application's format
    formatNone = 0,
    formatScientific = 1,     // 1.2500E+01
    formatDecimal = 2,        // 12.5000
    formatEngineering = 3,    // 1'-0.50" from inches
    formatArchitectural = 4,  // 1'-0 1/2" from inches; precision = log2 of the denominator
    formatFractional = 5      // 12 1/2; precision = log2 of the denominator
};

}  // namespace Zem
