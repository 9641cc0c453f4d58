#include "ZemNumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

struct Written {
    double value;
    Zem::lFormat format;
    int precision;
    bool option;
    const wchar_t* text;
};

std::string narrow(const wchar_t* text) { return std::string(text, text + std::wcslen(text)); }

// The largest error a text of this format and precision may carry: half of
// its last step, plus a little for the arithmetic of reading it back.
double tolerance(double x, Zem::lFormat format, int precision) {
    const double slack = 1e-12 * std::fabs(x) + 1e-300;
    switch (format) {
    case Zem::formatScientific: return 0.5 * std::pow(10.0, -precision) * std::fabs(x) + slack;
    case Zem::formatArchitectural:
    case Zem::formatFractional: return 0.5 * std::ldexp(1.0, -precision) + slack;
    default: return 0.5 * std::pow(10.0, -precision) + slack;
    }
}

}  // namespace

TEST(NumberText, EachFormatRoundsOnTheExactValueCarriesAndSuppressesZeros) {
    using namespace Zem;
    const Written table[] = {
        {12.5, formatScientific, 4, true, L"1.25E+01"}, {9.999, formatScientific, 2, false, L"1.00E+01"},
        {0.0, formatScientific, 3, false, L"0.000E+00"}, {12.5, formatDecimal, 4, false, L"12.5000"},
        // 2.675 is stored as 2.67499999999999982..., which rounds down.
        {2.675, formatDecimal, 2, false, L"2.67"}, {0.125, formatDecimal, 2, false, L"0.13"},
        {-0.001, formatDecimal, 2, false, L"0.00"}, {15.5, formatEngineering, 2, false, L"1'-3.50\""},
        {6.0, formatEngineering, 2, true, L"6\""}, {23.999, formatEngineering, 2, false, L"2'-0.00\""},
        {0.5, formatArchitectural, 4, false, L"0'-0 1/2\""}, {-15.5, formatArchitectural, 4, false, L"-1'-3 1/2\""},
        // 15 17/32 lies half way between 15 8/16 and 15 9/16.
        {15.53125, formatArchitectural, 4, false, L"1'-3 9/16\""}, {23.99, formatArchitectural, 4, false, L"2'-0\""},
        {0.3, formatFractional, 3, false, L"1/4"}, {-2.125, formatFractional, 3, false, L"-2 1/8"},
        {1.0 / 3.0, formatFractional, 20, false, L"85/256"}, {1.0 / 3.0, formatDecimal, 40, false, L"0.3333333333333333"},
        {1.6, formatDecimal, -1, false, L"2"},
    };
    for (const Written& w : table) {
        wchar_t out[60] = L"<false>";
        zemRtoS(out, w.value, w.format, w.precision, w.option);
        EXPECT_STREQ(out, w.text) << w.value << " format " << w.format << " precision " << w.precision;
    }
}

TEST(NumberText, WritingRefusesWhatItCannotWriteAndLeavesTheBufferAlone) {
    wchar_t out[60];
    std::wmemset(out, L'#', 60);
    EXPECT_FALSE(zemRtoS(nullptr, 1.0, Zem::formatDecimal, 2, false));
    EXPECT_FALSE(zemRtoS(out, std::nan(""), Zem::formatDecimal, 2, false));
    EXPECT_FALSE(zemRtoS(out, -std::numeric_limits<double>::infinity(), Zem::formatScientific, 2, false));
    EXPECT_FALSE(zemRtoS(out, 1.0, Zem::formatDefault, 2, false) || zemRtoS(out, 1.0, static_cast<Zem::lFormat>(6), 2, false));
    // 43 integer digits, the point and 16 decimals make 60 characters: one too many.
    EXPECT_FALSE(zemRtoS(out, 1e42, Zem::formatDecimal, 16, false));
    EXPECT_FALSE(zemRtoS(out, 1e300, Zem::formatArchitectural, 8, false));
    EXPECT_TRUE(out[0] == L'#' && out[59] == L'#');
    ASSERT_TRUE(zemRtoS(out, -1e41, Zem::formatDecimal, 15, false));
    EXPECT_EQ(std::wcslen(out), 59u);
    EXPECT_TRUE(zemRtoS(out, 1e300, Zem::formatScientific, 16, false) && zemRtoS(out, 1e16, Zem::formatArchitectural, 8, true));
}

TEST(NumberText, EveryFormatAndPrecisionReadsBackWithinItsLastStep) {
    std::mt19937_64 random(20240601);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    std::uniform_int_distribution<int> exponent(-6, 6);
    std::vector<double> values = {0.0, 0.5, -0.5, 11.9999999, 12.0, -12.0, 1.0 / 3.0, 1e-9, 99999.99999};
    for (int k = 0; k < 200; ++k) values.push_back((k % 2 ? 1 : -1) * mantissa(random) * std::pow(10.0, exponent(random)));
    for (int format = 1; format <= 5; ++format) {
        for (int precision = 0; precision <= 8; ++precision) {
            for (const double x : values) {
                for (const bool option : {false, true}) {
                    wchar_t out[60];
                    const auto f = static_cast<Zem::lFormat>(format);
                    ASSERT_TRUE(zemRtoS(out, x, f, precision, option)) << x;
                    ASSERT_NEAR(zemAtoF(out), x, tolerance(x, f, precision)) << narrow(out) << " precision " << precision;
                }
            }
        }
    }
}

TEST(NumberText, ReadingAcceptsWhatUsersTypeAndGivesNaNForTheRest) {
    const std::vector<std::pair<const wchar_t*, double>> table = {
        {L"12,5", 12.5},       {L" -3 ", -3.0},        {L"+.5", 0.5},     {L"1,25e1", 12.5},  {L"15-1/2", 15.5},
        {L"-3/8", -0.375},     {L"1'-3 1/2\"", 15.5},  {L"1' 6", 18.0},   {L"1.5'", 18.0},    {L"-1'-3.50\"", -15.5},
        {L"2'-0 15/16\"", 24.9375}, {L"\t7\r\n", 7.0}, {L"0.1", 0.1}};
    for (const auto& [text, value] : table) EXPECT_EQ(zemAtoF(text), value) << narrow(text);
    const wchar_t* bad[] = {L"",   L"abc", L"1.2.3", L"1/0",  L"1 /2",   L"--1",     L"1'-", L"1\"2", L"12 1/2.5",
                            L"1e", L"inf", L"1e999", L"1 2",  L"1'-3'", L"1.5 1/2", L"'",   L"1-",   L"0x10"};
    EXPECT_TRUE(std::isnan(zemAtoF(nullptr)));
    for (const wchar_t* text : bad) EXPECT_TRUE(std::isnan(zemAtoF(text))) << narrow(text);
}
