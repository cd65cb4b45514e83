#include "oe7/seas/CHeadings.h"

#include "oe7/seas/CircleCells.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace oe7;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
CInput Directional(int positions, int loadStations)
{
    CInput input;
    input.Spectrum = ESpectrum::TenParameter;
    input.Positions.resize(static_cast<std::size_t>(positions));
    input.LoadStations.assign(static_cast<std::size_t>(loadStations), 1.0);
    return input;
}

CFrequencies Frequencies(double lowest, double step, int count)
{
    CInput input;
    input.LowestFrequency = lowest;
    input.FrequencyStep = step;
    input.FrequencyCount = count;
    return CFrequencies(input);
}

CInput ShortCrested(const std::vector<double>& directions, double spreading)
{
    CInput input;
    input.Spectrum = ESpectrum::Bretschneider;
    input.Directions = directions;
    input.SpreadingAngle = spreading;
    CSeaway seaway;
    seaway.Height = 3;
    seaway.Period = 9;
    input.Seaways = {seaway};
    return input;
}

struct CShares
{
    CRunLog Log;
    CHeadings Headings;
    CSeaState Sea;

    explicit CShares(const CInput& input) : Headings(FindHeadings(input, Log)), Sea(input, Headings, 0) {}
    /// Of the whole energy.
    std::vector<double> Of(int heading) const
    {
        std::vector<double> shares;
        for (int j = 0; j < Headings.ComponentCount(); ++j)
        {
            shares.push_back(Sea.Density(heading, j, 0.8) / Sea.Spectrum().Density(0.8));
        }
        return shares;
    }
};

double Sum(const std::vector<double>& values)
{
    double sum = 0;
    for (const double value : values)
    {
        sum += value;
    }
    return sum;
}

std::vector<double> EveryDegrees(double step)
{
    std::vector<double> directions;
    for (double direction = 0; direction < 360; direction += step)
    {
        directions.push_back(direction);
    }
    return directions;
}
} // namespace

TEST(Headings, AreTheSeaDirectionsOfTheInput)
{
    CRunLog log;
    const CHeadings headings = FindHeadings(ShortCrested({0, 45, 180}, 0), log);
    EXPECT_THAT(headings.Reported, ElementsAre(0, 45, 180));
    EXPECT_THAT(headings.Components, ElementsAre(0, 45, 180));
    EXPECT_FALSE(headings.Directional);
    EXPECT_THAT(log.Warnings(), IsEmpty());
}

TEST(Headings, WithoutADirectionThereIsNone)
{
    CRunLog log;
    const CInput input = ShortCrested({}, 90);
    const CHeadings headings = FindHeadings(input, log);
    EXPECT_EQ(headings.Count(), 0);
    EXPECT_EQ(CSeaState(input, headings, 0).Spectrum().Height(), 3);
}

TEST(Headings, OfDirectionalSpectraAre24ShipCourses)
{
    CRunLog log;
    for (const CInput& input : {Directional(0, 0), Directional(0, 2)})
    {
        const CHeadings headings = FindHeadings(input, log);
        EXPECT_TRUE(headings.Directional);
        ASSERT_EQ(headings.Count(), 24);
        ASSERT_EQ(headings.ComponentCount(), 24);
        EXPECT_EQ(headings.Reported[23], 345);
        EXPECT_EQ(headings.Components[1], 15);
    }
    EXPECT_THAT(log.Warnings(), IsEmpty());
}

TEST(Headings, OfDirectionalSpectraWithPositionsAreTheCoursesUpTo180)
{
    CRunLog log;
    const CHeadings headings = FindHeadings(Directional(1, 0), log);
    ASSERT_EQ(headings.Count(), 13);
    EXPECT_EQ(headings.Reported[12], 180);
    EXPECT_EQ(headings.ComponentCount(), 24);
    EXPECT_THAT(log.Warnings(), IsEmpty());
}

TEST(Headings, OfDirectionalSpectraWithPositionsAndLoadStationsAre24AndWarnOfIt)
{
    CRunLog log;
    EXPECT_EQ(FindHeadings(Directional(1, 1), log).Count(), 24);
    EXPECT_THAT(log.Warnings(), SizeIs(1));
}

TEST(Frequencies, AreRefinedToStepsOfAFortiethAtMost)
{
    EXPECT_EQ(Frequencies(0.2, 0.1, 19).Parts, 4);
    EXPECT_EQ(Frequencies(0.2, 0.05, 19).Parts, 2);
    EXPECT_EQ(Frequencies(0.2, 0.025, 19).Parts, 1);
    EXPECT_EQ(Frequencies(0.2, 0.01, 19).Parts, 1);
    EXPECT_EQ(Frequencies(0.2, 0.03, 19).Parts, 2);
    EXPECT_EQ(Frequencies(0.2, 0.075, 19).Parts, 3);
    EXPECT_EQ(Frequencies(0.2, 0.3, 19).Parts, 12);
}

TEST(Frequencies, OfTheOutputAreAmongTheRefinedOnes)
{
    const CFrequencies frequencies = Frequencies(0.2, 0.1, 19);
    ASSERT_EQ(frequencies.Output.size(), 19U);
    ASSERT_EQ(frequencies.Refined.size(), 73U);
    for (std::size_t n = 0; n < 19; ++n)
    {
        EXPECT_EQ(frequencies.Refined[4 * n], frequencies.Output[n]);
    }
    EXPECT_NEAR(frequencies.Output[18], 2.0, 1e-12);
    EXPECT_NEAR(frequencies.Refined[1], 0.225, 1e-12);
    EXPECT_NEAR(frequencies.Refined[71], 1.975, 1e-12);
}

TEST(Frequencies, HaveTrapeziumWeights)
{
    const CFrequencies frequencies = Frequencies(0.2, 0.05, 3);
    ASSERT_EQ(frequencies.Refined.size(), 5U);
    const std::vector<double> expected{0.0125, 0.025, 0.025, 0.025, 0.0125};
    for (int n = 0; n < 5; ++n)
    {
        EXPECT_NEAR(frequencies.Weight(n), expected[static_cast<std::size_t>(n)], 1e-12) << n;
    }
}

TEST(Frequencies, ASingleOneHasNoWeight)
{
    const CFrequencies frequencies = Frequencies(0.2, 0.1, 1);
    EXPECT_THAT(frequencies.Refined, ElementsAre(0.2));
    EXPECT_EQ(frequencies.Weight(0), 0);
}

TEST(Frequencies, MayBeNoneAndStepsMayBeNonsense)
{
    EXPECT_THAT(Frequencies(0.2, 0.1, 0).Refined, IsEmpty());
    EXPECT_EQ(Frequencies(0.2, 0, 1).Parts, 1);
    EXPECT_EQ(Frequencies(0.2, -1, 2).Parts, 1);
    EXPECT_LT(Frequencies(0.2, 1e9, 2).Refined.size(), 2000U);
}

TEST(CircleCells, AreHalfTheGapsToBothNeighbours)
{
    EXPECT_THAT(CircleCells({0, 90, 180}), ElementsAre(135, 90, 135));
    EXPECT_THAT(CircleCells({180, 0, 270, 90}), ElementsAre(90, 90, 90, 90));
    EXPECT_THAT(CircleCells({45}), ElementsAre(360));
    EXPECT_THAT(CircleCells({10, 20, 350}), ElementsAre(15, 170, 175));
    EXPECT_THAT(CircleCells({0, 180, 360}), ElementsAre(90, 180, 90)) << "north twice";
    EXPECT_THAT(CircleCells({}), IsEmpty());
}

TEST(SeaStates, LongCrestedOnesHaveOneComponent)
{
    const CShares shares(ShortCrested({0, 90, 180}, 0));
    EXPECT_THAT(shares.Of(1), ElementsAre(0, 1, 0));
    EXPECT_TRUE(shares.Sea.Contributes(1, 1));
    EXPECT_FALSE(shares.Sea.Contributes(1, 0));
}

TEST(SeaStates, SpreadByTheSquaredCosine)
{
    const CShares shares(ShortCrested(EveryDegrees(30), 90));
    // Squared cosines 1, 3/4, 1/4, 0; their sum over both sides is 3.
    const auto near = [](double value) { return DoubleNear(value, 1e-12); };
    EXPECT_THAT(shares.Of(6),
                ElementsAre(near(0), near(0), near(0), near(0), near(1.0 / 12), near(0.25), near(1.0 / 3),
                            near(0.25), near(1.0 / 12), near(0), near(0), near(0)));
    EXPECT_NEAR(shares.Of(0)[11], 0.25, 1e-12) << "across the bow";
    EXPECT_FALSE(shares.Sea.Contributes(6, 3)) << "at the spreading angle";
    EXPECT_TRUE(shares.Sea.Contributes(6, 4));
}

TEST(SeaStates, SharesSumToOneWhateverTheDirections)
{
    for (const double spreading : {20.0, 45.0, 90.0, 180.0, 400.0})
    {
        const CShares shares(ShortCrested({0, 10, 40, 90, 180, 200, 345, 360, 360, 360}, spreading));
        for (int heading = 0; heading < shares.Headings.Count(); ++heading)
        {
            EXPECT_NEAR(Sum(shares.Of(heading)), 1, 1e-12) << heading << ' ' << spreading;
        }
    }
}

TEST(SeaStates, UnevenDirectionsAreWeightedByTheirCells)
{
    // Cells of 60, 30, 30 and 60 degrees: beside the gaps a direction stands for more of the sea.
    const CShares shares(ShortCrested({0, 30, 60, 90, 180, 270}, 90));
    const double middle = 1 * 30, wide = 0.25 * 60, narrow = 0.75 * 30, first = 0.75 * 60;
    const double sum = middle + first + narrow + wide;
    const std::vector<double> found = shares.Of(1);
    EXPECT_NEAR(found[0], first / sum, 1e-12);
    EXPECT_NEAR(found[1], middle / sum, 1e-12);
    EXPECT_NEAR(found[2], narrow / sum, 1e-12);
    EXPECT_NEAR(found[3], wide / sum, 1e-12);
    EXPECT_EQ(found[4], 0);
}

TEST(SeaStates, ASingleDirectionIsLongCrestedWhateverTheSpreading)
{
    EXPECT_THAT(CShares(ShortCrested({135}, 90)).Of(0), ElementsAre(1));
}

TEST(SeaStates, EnergyMeetsTheShipByItsCourse)
{
    // From east (90 degrees) only: a ship that goes north takes it from starboard, travelling to port (sea
    // direction 0 - 90 + 180), one that goes east from ahead (180), west from behind (0), south from port
    // (270).
    CInput input = Directional(0, 0);
    CSeaway seaway;
    seaway.Systems[0] = {3, 0.7, 1, 90, 1e9};
    input.Seaways = {seaway};
    const CShares shares(input);
    const std::vector<std::pair<int, int>> meets{{0, 90}, {90, 180}, {270, 0}, {180, 270}, {345, 75}};
    for (const auto& [course, direction] : meets)
    {
        for (int j = 0; j < 24; ++j)
        {
            const bool expected = 15 * j == direction;
            EXPECT_EQ(shares.Sea.Contributes(course / 15, j), expected) << course << ' ' << j;
            EXPECT_NEAR(shares.Of(course / 15)[static_cast<std::size_t>(j)], expected ? 1 : 0, 1e-12);
        }
    }
}

TEST(SeaStates, EveryCourseMeetsTheWholeEnergy)
{
    CInput input = Directional(1, 0);
    CSeaway seaway;
    seaway.Systems = {COchiHubbleSystem{3, 0.7, 1, 77, 3}, COchiHubbleSystem{2, 0.5, 3, 200, 1}};
    input.Seaways = {seaway};
    const CShares shares(input);
    ASSERT_EQ(shares.Headings.Count(), 13);
    for (int course = 0; course < 13; ++course)
    {
        EXPECT_NEAR(Sum(shares.Of(course)), 1, 1e-12) << course;
    }
}

TEST(SeaStates, HaveTheSameDensityAtAndBetweenTheFrequenciesOfTheRun)
{
    CInput directional = Directional(1, 0);
    CSeaway seaway;
    seaway.Height = 3;
    seaway.Period = 9;
    seaway.Systems[0] = {3, 0.7, 1, 77, 3};
    directional.Seaways = {seaway};
    for (CInput input : {ShortCrested({150, 180, 210}, 90), directional})
    {
        const CShares without(input);
        input.LowestFrequency = 0.3;
        input.FrequencyStep = 0.1;
        input.FrequencyCount = 10;
        const CShares with(input);
        const CFrequencies frequencies(input);
        for (const double w : {frequencies.Refined.front(), frequencies.Refined[17],
                               frequencies.Refined.back(), 0.71, 0.1, 5.0})
        {
            EXPECT_DOUBLE_EQ(with.Sea.Density(1, 2, w), without.Sea.Density(1, 2, w)) << w;
        }
        EXPECT_GT(with.Sea.Density(1, 2, 0.8), 0);
    }
}
