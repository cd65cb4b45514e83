#include "oe7/input/SpectrumFiles.h"

#include "oe7/input/CRunLog.h"

#include <gmock/gmock.h>

#include <functional>
#include <numbers>

namespace oe7
{
namespace
{
using testing::DoubleEq;
using testing::ElementsAre;

std::string Error(const std::function<void()>& read)
{
    try
    {
        read();
    }
    catch (const CInputError& error)
    {
        return error.what();
    }
    return "no error";
}

TEST(PointSpectrum, IsSortedByFrequency)
{
    const CPointSpectrum points = ParsePointSpectrum("0.6 3\r\n0.4 1\r\n0.5 2\r\n", "f", EUnits::Metric, 3);
    EXPECT_THAT(points.Frequencies, ElementsAre(0.4, 0.5, 0.6));
    EXPECT_THAT(points.Densities, ElementsAre(1, 2, 3));
}

TEST(PointSpectrum, IsReadUpToItsNumberOfPointsOrTheEndOfTheFile)
{
    EXPECT_THAT(ParsePointSpectrum("1 1\n2 2\nnot looked at", "f", EUnits::Metric, 2).Frequencies,
                ElementsAre(1, 2));
    EXPECT_THAT(ParsePointSpectrum("1 1\n\n2 2", "f", EUnits::Metric, 101).Frequencies, ElementsAre(1, 2));
}

TEST(PointSpectrum, IsConvertedFromSquareFeet)
{
    EXPECT_THAT(ParsePointSpectrum("1 0\n2 100\n", "f", EUnits::British, 2).Densities,
                ElementsAre(0, DoubleEq(9.290304)));
}

TEST(PointSpectrum, ThatIsWrongIsToldWithFileAndLine)
{
    const auto error = [](const char* text)
    { return Error([text] { ParsePointSpectrum(text, "sea.txt", EUnits::Metric, 9); }); };
    EXPECT_EQ(error("1 1\n2\n"), "sea.txt, line 2: a density is missing");
    EXPECT_EQ(error("1 1\nx 2\n"), "sea.txt, line 2: a frequency is \"x\", which is no number");
    EXPECT_EQ(error("-1 1\n1 1"), "sea.txt, line 1: a frequency is \"-1\", which is less than 0");
    EXPECT_EQ(error("1 1\n2 -1"), "sea.txt, line 2: a density is \"-1\", which is less than 0");
    EXPECT_EQ(error("1 1\n1 2"), "the file sea.txt has a frequency twice");
    EXPECT_EQ(error("1 1\n"), "a spectrum needs two points, the file sea.txt has fewer");
    EXPECT_EQ(error(""), "a spectrum needs two points, the file sea.txt has fewer");
}

TEST(DirectionalSpectrum, IsReadInFreeFormatAndSorted)
{
    const CDirectionalSpectrum spectrum =
        ParseDirectionalSpectrum("May\n METRIC \n2 3\n0.7\n0.5\n0 90 180 4 5 6\n1 2\n3", "f");
    EXPECT_THAT(spectrum.Frequencies, ElementsAre(0.5, 0.7));
    EXPECT_THAT(spectrum.Directions, ElementsAre(0, 90, 180));
    EXPECT_THAT(spectrum.Densities, ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6)));
}

TEST(DirectionalSpectrum, IsConvertedFromSquareFeet)
{
    const CDirectionalSpectrum spectrum = ParseDirectionalSpectrum("\nBRITISH\n2 1\n1 2\n0\n100 200", "f");
    EXPECT_THAT(spectrum.Densities,
                ElementsAre(ElementsAre(DoubleEq(9.290304)), ElementsAre(DoubleEq(18.580608))));
}

TEST(DirectionalSpectrum, ThatIsWrongIsToldWithFileAndLine)
{
    const auto error = [](const char* text)
    { return Error([text] { ParseDirectionalSpectrum(text, "d.txt"); }); };
    EXPECT_EQ(error(""), "d.txt, line 2: the unit system is missing");
    EXPECT_EQ(error("\nmetric\n"), "d.txt, line 2: the unit system is \"metric\", it can be BRITISH, METRIC");
    EXPECT_EQ(error("\nMETRIC\n1 3"),
              "d.txt, line 3: the number of frequencies is \"1\", which is less than 2");
    EXPECT_EQ(error("\nMETRIC\n2 361"),
              "d.txt, line 3: the number of directions is \"361\", which is more than 360");
    EXPECT_EQ(error("\nMETRIC\n1000 360\n1 2 3"), "d.txt, line 4: a frequency is missing");
    EXPECT_EQ(error("\nMETRIC\n2 1\n1 2 0 1\n"), "d.txt, line 4: a density is missing");
    EXPECT_EQ(error("\nMETRIC\n2 1\n1 2 0 1 -1\n"), "d.txt, line 4: a density is less than 0");
    EXPECT_EQ(error("\nMETRIC\n2 1\n1 1 0 1 1\n"), "the file d.txt has a frequency twice");
}

TEST(Hindcast, IsConvertedFromHertz)
{
    const CDirectionalSpectrum spectrum =
        ParseHindcast("20261120 0600 45.0 -60.0 12.5 270 2 2\n0.1 0.2\n0 180\n1 2\n3 4\n", "f");
    const double cycle = 2 * std::numbers::pi;
    EXPECT_THAT(spectrum.Frequencies, ElementsAre(DoubleEq(0.1 * cycle), DoubleEq(0.2 * cycle)));
    EXPECT_THAT(spectrum.Directions, ElementsAre(0, 180));
    EXPECT_THAT(spectrum.Densities, ElementsAre(ElementsAre(DoubleEq(1 / cycle), DoubleEq(2 / cycle)),
                                                ElementsAre(DoubleEq(3 / cycle), DoubleEq(4 / cycle))));
}

TEST(Hindcast, MayHaveADateThatIsNoNumberAndMoreBehindItsCounts)
{
    EXPECT_THAT(ParseHindcast("20-NOV 06:00 45N 60W - - 2 1 spare 9\n1 2\n0\n1\n2\n", "f").Directions,
                ElementsAre(0));
}

TEST(Hindcast, ThatIsWrongIsToldWithFileAndLine)
{
    const auto error = [](const char* text) { return Error([text] { ParseHindcast(text, "h.txt"); }); };
    EXPECT_EQ(
        error("1 2 3 4 5"),
        "h.txt, line 1: one of date, time, latitude, longitude, wind speed and wind direction is missing");
    EXPECT_EQ(error("1 2 3 4 5 6 2"), "h.txt, line 1: the number of directions is missing");
    EXPECT_EQ(error("1 2 3 4 5 6 2 1\n1 2\n\n"), "h.txt, line 3: a direction is missing");
}

} // namespace
} // namespace oe7
