#include "ZemCountry.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

TEST(Country, TableEndsWithANullCodeAndNamesEachLanguageOnce) {
    std::map<std::wstring, std::wstring> names;
    const zem_country_st* entry = zemDlCountrys();
    for (; entry->code; ++entry) {
        const std::wstring code = entry->code;
        EXPECT_EQ(code.size(), 3u) << names.size();
        for (const wchar_t c : code) EXPECT_TRUE(c >= L'A' && c <= L'Z') << names.size();
        ASSERT_NE(entry->name, nullptr);
        EXPECT_TRUE(names.emplace(code, entry->name).second) << "repeated code at " << names.size();
    }
    EXPECT_EQ(entry->name, nullptr);
    EXPECT_EQ(zemDlCountrys(), zemDlCountrys());

    const std::map<std::wstring, std::wstring> required = {
        {L"DEU", L"Deutsch"},  {L"ENU", L"English"},          {L"FRA", L"Fran\u00E7ais"},
        {L"ITA", L"Italiano"}, {L"NLD", L"Nederlands"},       {L"ESP", L"Espa\u00F1ol"},
        {L"PLK", L"Polski"},   {L"CSY", L"\u010Ce\u0161tina"},
    };
    for (const auto& [code, name] : required) EXPECT_EQ(names[code], name);
}
