#include "ZemCountry.h"

namespace {

// Names are spelt in their own language; non-ASCII letters are written as
// escapes so the source stays plain ASCII.
zem_country_st g_countries[] = {
    {L"DEU", L"Deutsch", nullptr},
    {L"ENU", L"English", nullptr},
    {L"FRA", L"Fran\u00E7ais", nullptr},
    {L"ITA", L"Italiano", nullptr},
    {L"NLD", L"Nederlands", nullptr},
    {L"ESP", L"Espa\u00F1ol", nullptr},
    {L"PLK", L"Polski", nullptr},
    {L"CSY", L"\u010Ce\u0161tina", nullptr},
    {nullptr, nullptr, nullptr},
};

}  // namespace

zem_country_st* zemDlCountrys() { return g_countries; }
