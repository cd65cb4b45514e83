#include "oe7/output/CListingText.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

using ::testing::SizeIs;

namespace
{
struct CPage
{
    oe7::CRunLog Log;
    oe7::CListingText Text{Log};

    std::string Number(double value, int width, int decimals)
    {
        return Text.Number(value, width, decimals).Take();
    }
    std::string Encounter(double value) { return Text.Encounter(value).Take(); }
};
} // namespace

TEST(ListingText, NumbersStandRightInTheirColumns)
{
    EXPECT_EQ(CPage().Number(-1.25, 8, 3), "  -1.250");
    EXPECT_EQ(CPage().Number(2.5, 0, 2), "2.50");
    EXPECT_EQ(CPage().Text.Left("ab", 4).Right("cd", 4).Integer(7, 3).Take(), "ab    cd  7");
}

TEST(ListingText, AFullColumnIsKeptApartFromWhatStandsBefore)
{
    EXPECT_EQ(CPage().Text.Add("|").Number(999, 8, 4).Take(), "| 999.0000");
    EXPECT_EQ(CPage().Text.Number(1.5, 4, 1).Number(123456.78, 6, 2).Take(), " 1.5 123456.78");
    EXPECT_EQ(CPage().Text.Add("x ").Number(12345, 5, 0).Take(), "x 12345") << "there is a blank already";
    EXPECT_EQ(CPage().Text.Add(":").Exponential(4.2e7, 5).Take(), ": 4.200000e+07");
}

TEST(ListingText, NumbersFarTooLargeForTheirColumnHaveAnExponent)
{
    EXPECT_EQ(CPage().Number(12345678.5, 8, 4), "12345678.5000");
    EXPECT_EQ(CPage().Number(123456789.5, 8, 4), "1.2346e+08");
    EXPECT_EQ(CPage().Number(-3.4e38, 15, 4), "    -3.4000e+38");
    EXPECT_EQ(CPage().Number(123456789.5, 15, 4), " 123456789.5000");
}

TEST(ListingText, AnEncounterFrequencyAlwaysHasFiveCharacters)
{
    EXPECT_EQ(CPage().Encounter(0.16249), "0.162");
    EXPECT_EQ(CPage().Encounter(-1.5), "1.500");
    EXPECT_EQ(CPage().Encounter(9.9994), "9.999");
    EXPECT_EQ(CPage().Encounter(9.9996), "10.00");
    EXPECT_EQ(CPage().Encounter(99.994), "99.99");
    EXPECT_EQ(CPage().Encounter(99.996), "100.0");
    EXPECT_EQ(CPage().Encounter(999.94), "999.9");
    EXPECT_EQ(CPage().Encounter(999.96), " 1000");
    EXPECT_EQ(CPage().Encounter(1e7), "99999");
    EXPECT_EQ(CPage().Encounter(std::nan("")), "0.000");
}

TEST(ListingText, WhatIsNoNumberBecomesZeroAndOneWarning)
{
    CPage page;
    page.Text.Number(std::nan(""), 6, 2).Number(std::numeric_limits<double>::infinity(), 6, 2);
    page.Text.Exponential(-std::numeric_limits<double>::infinity(), 14);
    EXPECT_EQ(page.Text.Take(), "  0.00  0.00  0.000000e+00");
    EXPECT_THAT(page.Log.Warnings(), SizeIs(1));
}
