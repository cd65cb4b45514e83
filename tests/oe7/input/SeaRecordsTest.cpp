#include "tests/oe7/support/CInputText.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kBritish = "BRITISH METRIC SALT NOSPEEDCOR NOSWELLCOR MODAMP NOPPR";

/// The barge's file with another spectrum, its seaways from a line on.
CInputText WithSpectrum(const std::string& word, int seaways, const std::vector<std::string>& lines)
{
    CInputText text;
    text.Erase(12, 12).Insert(12, lines);
    text.Set(8, word).Set(11, std::to_string(seaways));
    return text;
}

/// A spectrum that comes with its directions.
CInputText WithDirectionalSpectrum(const std::string& word, int seaways,
                                   const std::vector<std::string>& lines)
{
    return WithSpectrum(word, seaways, lines).Erase(9, 10);
}

TEST(RegularWaves, HaveASteepnessAndNoSpreading)
{
    const CInput input = WithSpectrum("REGULAR", 1, {"0.0200"}).Set(9, "3 90").Read();
    EXPECT_EQ(input.Steepness, 0.02);
    EXPECT_EQ(input.SpreadingAngle, 0);
    ASSERT_THAT(input.Seaways, SizeIs(1));
    EXPECT_EQ(input.Seaways[0].Height, 0);
    EXPECT_EQ(input.Seaways[0].Period, 0);
}

TEST(RegularWaves, HaveASteepnessAlsoWithoutASeaway)
{
    const CInput input = WithSpectrum("REGULAR", 0, {"0.0200"}).Read();
    EXPECT_EQ(input.Steepness, 0.02);
    EXPECT_THAT(input.Seaways, IsEmpty());
}

TEST(RegularWaves, OfImpossibleSteepnessAreAnError)
{
    EXPECT_EQ(WithSpectrum("REGULAR", 1, {"1.1"}).Error(), "line 12: the wave steepness is more than 1");
    EXPECT_EQ(WithSpectrum("REGULAR", 1, {"-1"}).Error(),
              "line 12: the wave steepness is \"-1\", which is less than 0");
}

TEST(QuadraticSeaways, HaveHeightAndPeriodEach)
{
    const CInput input = WithSpectrum("QUADRATIC", 2, {"3 10", "4 11"}).Read();
    EXPECT_EQ(input.Spectrum, ESpectrum::Quadratic);
    ASSERT_THAT(input.Seaways, SizeIs(2));
    EXPECT_EQ(input.Seaways[1].Height, 4);
    EXPECT_EQ(input.Seaways[1].Period, 11);
}

TEST(JonswapSeaways, HaveAPeakFactor)
{
    const CInput input = WithSpectrum("JONSWAP", 1, {"3 10 3.3"}).Read();
    EXPECT_EQ(input.Seaways.at(0).PeakEnhancement, 3.3);
    EXPECT_EQ(WithSpectrum("JONSWAP", 1, {"3 10"}).Error(), "line 12: the peak factor is missing");
}

TEST(OchiHubbleSeaways, HaveTwoSystemsInFeetToo)
{
    const CInput input = WithSpectrum("OCHIHUBBLE", 1, {"10 0.5 1.5 20 1.0 2.5 "}).Set(2, kBritish).Read();
    const auto& systems = input.Seaways.at(0).Systems;
    EXPECT_DOUBLE_EQ(systems[0].Height, 3.048);
    EXPECT_EQ(systems[0].PeakFrequency, 0.5);
    EXPECT_EQ(systems[0].Lambda, 1.5);
    EXPECT_DOUBLE_EQ(systems[1].Height, 6.096);
    EXPECT_EQ(systems[1].PeakFrequency, 1);
    EXPECT_EQ(systems[1].Lambda, 2.5);
}

TEST(OchiHubbleSeaways, MayLackASystem)
{
    EXPECT_EQ(WithSpectrum("OCHIHUBBLE", 1, {"3 0.5 1.5 0 0 -1"}).Read().Seaways[0].Systems[1].Lambda, -1);
}

TEST(TenParameterSeaways, HaveDirectionsOfTheirOwnAndALineEach)
{
    const CInput input =
        WithDirectionalSpectrum("TENPARAMETER", 2, {"3 0.5 1.5 90 4 2 0.9 2 270 6", "1 1 1 0 1 1 1 1 0 1"})
            .Read();
    EXPECT_TRUE(input.IsDirectional());
    EXPECT_THAT(input.Directions, IsEmpty());
    EXPECT_EQ(input.SpreadingAngle, 0);
    ASSERT_THAT(input.Seaways, SizeIs(2));
    const auto& systems = input.Seaways[0].Systems;
    EXPECT_EQ(systems[0].Direction, 90);
    EXPECT_EQ(systems[0].SpreadingPower, 4);
    EXPECT_EQ(systems[1].Height, 2);
    EXPECT_EQ(systems[1].Direction, 270);
    EXPECT_EQ(systems[1].SpreadingPower, 6);
    EXPECT_EQ(input.Seaways[1].Systems[0].Height, 1);
    EXPECT_THAT(input.Speeds, ElementsAre(0, 8));
}

TEST(MeasuredSpectrum, IsReadFromItsFileForAllSeaways)
{
    const CTestFolder folder;
    folder.Write("sea of May.txt", "0.5 1\n0.4 0\n\n0.6 2\n0.7 9\n");
    const CInput input = WithSpectrum("INPUTUNI", 2, {"sea of May.txt", "METRIC", "3"}).Read(folder.Path());
    EXPECT_THAT(input.Points.Frequencies, ElementsAre(0.4, 0.5, 0.6));
    EXPECT_THAT(input.Points.Densities, ElementsAre(0, 1, 2));
    EXPECT_THAT(input.Seaways, SizeIs(2));
    EXPECT_THAT(input.Speeds, ElementsAre(0, 8));
}

TEST(MeasuredSpectrum, MayHaveItsPathInFull)
{
    const CTestFolder folder;
    const std::string path = folder.Write("sea.txt", "0.5 1\n0.4 0\n");
    EXPECT_THAT(WithSpectrum("INPUTUNI", 1, {path, "METRIC", "2"}).Read().Points.Frequencies, SizeIs(2));
}

TEST(MeasuredSpectrum, NeedsItsFileUnitsAndNumber)
{
    const CTestFolder folder;
    folder.Write("sea.txt", "0.5 1\n0.4 0\n");
    const auto error = [&](const std::vector<std::string>& lines)
    { return WithSpectrum("INPUTUNI", 1, lines).Error(folder.Path()); };
    EXPECT_EQ(error({"no.txt", "METRIC", "2"}), "the file no.txt is not there");
    EXPECT_EQ(error({".", "METRIC", "2"}), "the file . is not there");
    EXPECT_EQ(error({"", "METRIC", "2"}), "line 12: the name of the spectrum's file is missing");
    EXPECT_EQ(error({"sea.txt", "FEET", "2"}),
              "line 13: the units of the spectrum's file is \"FEET\", it can be BRITISH, METRIC");
    EXPECT_EQ(error({"sea.txt", "METRIC", "-1"}),
              "line 14: the number of frequencies is \"-1\", which is less than 1");
    EXPECT_EQ(error({"sea.txt", "METRIC", "1"}), "a spectrum needs two points, the file sea.txt has fewer");
}

TEST(HindcastAndDirectionalSpectrum, AreReadFromTheirFiles)
{
    const CTestFolder folder;
    folder.Write("h", "1 2 3 4 5 6 2 1\n0.1 0.2\n0\n1\n2\n");
    folder.Write("d", "\nMETRIC\n2 1\n0.1 0.2\n0\n1\n2\n");
    const CInput hindcast = WithDirectionalSpectrum("ODGPHINDCAST", 1, {"h"}).Read(folder.Path());
    EXPECT_EQ(hindcast.Spectrum, ESpectrum::Hindcast);
    EXPECT_THAT(hindcast.DirectionalPoints.Densities, SizeIs(2));
    EXPECT_THAT(hindcast.Seaways, SizeIs(1));
    const CInput directional = WithDirectionalSpectrum("INPUTDIR", 1, {"d"}).Read(folder.Path());
    EXPECT_EQ(directional.Spectrum, ESpectrum::Directional);
    EXPECT_THAT(directional.DirectionalPoints.Frequencies, ElementsAre(0.1, 0.2));
    EXPECT_THAT(directional.Speeds, ElementsAre(0, 8));
}

} // namespace
} // namespace oe7
