#include "ZemCountry.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

TEST(Country, TableEndsWithANullCodeAndNamesEachLanguageOnce) {
    std::map<std::wstring, std::wstring> names;
    const zem_country_st* entry = zemDlCountrys();
    for (; entry->code; ++entry) {
        const std::wstring code = entry->code;
        EXPECT_TRUE(code.size() == 3 && code.find_first_not_of(L"ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::wstring::npos);
        EXPECT_TRUE(entry->name && names.emplace(code, entry->name).second) << "repeated code at " << names.size();
    }
    EXPECT_EQ(entry->name, nullptr);
    EXPECT_EQ(names[L"ENU"], L"English");
    EXPECT_EQ(names[L"FRA"], L"Fran\u00E7ais");
    EXPECT_EQ(names[L"CSY"], L"\u010Ce\u0161tina");
}
