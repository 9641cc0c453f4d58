#include "DataTestSupport.h"
#include "ZemDataAccess.h"
#include "ZemUnits.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZEM;

namespace {

class Units : public ::testing::Test {
protected:
    void SetUp() override { datatest::resetConfiguration(); }
    void TearDown() override { datatest::resetConfiguration(); }
};

double convert(double value, int from, int to) {
    double out = std::nan("");
    EXPECT_TRUE(acadUnitCv(value, static_cast<Zem::lUnit>(from), static_cast<Zem::lUnit>(to), out)) << from << "->" << to;
    return out;
}

}  // namespace

TEST_F(Units, FactorsAreExactAndEveryPairRoundTrips) {
    EXPECT_EQ(convert(1.0, 1, 4), 25.4) << "1 inch is 25.4 mm";
    EXPECT_EQ(convert(1.0, 3, 6), 1609.344) << "a mile";
    EXPECT_EQ(convert(1.0, 10, 2), 3.0) << "1 yard is 3 feet";
    EXPECT_EQ(convert(1000.0, 9, 1), 1.0) << "1000 mils are 1 inch";
    EXPECT_EQ(convert(1.0, 12, 11), 10.0) << "1 nm is 10 angstroms";
    EXPECT_EQ(convert(1.0, 19, 6), 9460730472580800.0) << "a light year";
    EXPECT_NEAR(convert(1.0, 20, 18), 206264.80624709636, 1e-8) << "a parsec is 648000/pi AU";
    for (int a = 1; a <= 20; ++a)
        for (int b = 1; b <= 20; ++b) EXPECT_NEAR(convert(convert(7.5, a, b), b, a), 7.5, 7.5e-15) << a << "<->" << b;
}

TEST_F(Units, TheCurrentUnitComesFromTheConfigurationAndSetsThePrecision) {
    double pen = 0.21;
    EXPECT_EQ(acad_unit_get(), Zem::unitMillimeters) << "millimetres without configuration";
    EXPECT_EQ(autoPrec(3, Zem::unitCurrent, Zem::formatDecimal), 3);
    acad_unit_set(Zem::unitMeters);
    EXPECT_TRUE(acadUnitCv(pen, Zem::unitMillimeters, Zem::unitCurrent));
    EXPECT_DOUBLE_EQ(pen, 0.00021);
    EXPECT_EQ(autoPrec(3, Zem::unitCurrent, Zem::formatDecimal), 6);
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"INSUNITS"), 21);
    EXPECT_EQ(acad_unit_get(), Zem::unitMillimeters) << "21 is no unit";
    dataItemSet(cfg_dir_make(nullptr), &CZemDataKey().set(L"INSUNITS"), L"6");
    EXPECT_EQ(acad_unit_get(), Zem::unitMillimeters) << "a string is no unit";
    double value = 5.0;
    EXPECT_FALSE(acadUnitCv(value, Zem::unitNone, Zem::unitMeters));
    EXPECT_FALSE(acadUnitCv(value, Zem::unitMeters, static_cast<Zem::lUnit>(21)));
    EXPECT_EQ(value, 5.0) << "a failed conversion leaves the value";

    EXPECT_EQ(autoPrec(2, Zem::unitInches, Zem::formatDecimal), 4) << "0.01 mm is 0.00039 in";
    EXPECT_EQ(autoPrec(10, Zem::unitParsecs, Zem::formatDecimal), 16);
    EXPECT_EQ(autoPrec(-2, Zem::unitMillimeters, Zem::formatDecimal), 0);
    EXPECT_EQ(autoPrec(0, Zem::unitInches, Zem::formatArchitectural), 5) << "1 mm needs 1/32 inch";
    EXPECT_EQ(autoPrec(1, Zem::unitMillimeters, Zem::formatFractional), 4) << "0.1 needs 1/16";
}
