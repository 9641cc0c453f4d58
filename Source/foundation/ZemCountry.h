#pragma once

// One language of the system: its code (the Windows three-letter language
// abbreviation, "DEU") and its name in its own language. The third field is
// reserved and null.
struct zem_country_st {
    const wchar_t* code;
    const wchar_t* name;
    const void* reserved;
};

// The table of the system's languages, German first, ended by a record whose
// code is null. It belongs to the library and lives as long as the process.
zem_country_st* zemDlCountrys();
