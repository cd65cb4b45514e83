#include "core/results/CalculatedSection.h"

#include "core/results/CResultsCursor.h"
#include "core/results/CalculatedArrays.h"
#include "tests/support/CMadeResults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>

using testing::Each;
using testing::ElementsAre;

namespace
{
/// Counts what comes, and by which headings.
class CCounter : public CCalculatedReceiver
{
public:
    explicit CCounter(CMadeResults& made)
    {
        const CResults results = ReadResults(made.Bytes());
        WalkCalculated(results, *this);
    }

    void FroudeNumber(int, int heading, float) override { ++FroudeByHeading[heading]; }
    void Frequencies(int, int heading, const CFloatRows&) override { ++FrequenciesByHeading[heading]; }
    void Damping(int, int heading, const CFloatRows&) override { ++DampingByHeading[heading]; }
    void LiftBreakdown(int, int, const CFloatRows& rows) override { BreakdownWidths.insert(rows.Width()); }
    void ViscousBreakdown(int, int, const CFloatRows& rows) override { BreakdownWidths.insert(rows.Width()); }
    void Interruption(int, int, int, const CFloatRows& rows) override { MiiRows.push_back(rows.Count()); }
    void LoadRms(int, int, int, const CFloatRows& rows) override { LoadRows.push_back(rows.Count()); }

    std::map<int, int> FroudeByHeading;
    std::map<int, int> FrequenciesByHeading;
    std::map<int, int> DampingByHeading;
    std::multiset<int> BreakdownWidths;
    std::vector<int> MiiRows; ///< for each seaway and position
    std::vector<int> LoadRows;
};

template <class Arrays>
Arrays Walked(CMadeResults& made)
{
    const CResults results = ReadResults(made.Bytes());
    Arrays arrays(results);
    WalkCalculated(results, arrays);
    return arrays;
}
} // namespace

TEST(CalculatedWalk, GivesFrequenciesByTheirIndices)
{
    CMadeResults made;
    const auto arrays = Walked<CFrequencyArrays>(made);
    EXPECT_THAT(arrays.Froude, ElementsAre(MadeValue("Froude", 0, 0), MadeValue("Froude", 1, 0)));
    for (int speed = 0; speed < 2; ++speed)
    {
        for (int heading = 0; heading < 3; ++heading)
        {
            EXPECT_EQ(arrays.EncounterFreq(speed, heading, 2),
                      MadeValue("Frequencies", speed, heading, 2, 0));
            EXPECT_EQ(arrays.WavelengthRatio(speed, heading, 1),
                      MadeValue("Frequencies", speed, heading, 1, 1));
        }
    }
}

TEST(CalculatedWalk, TheFroudeNumberOfASpeedIsThatOfItsFirstHeadingUpTo180)
{
    CMadeResults made;
    made.Headings = {270, 90, 0};
    EXPECT_THAT(Walked<CFrequencyArrays>(made).Froude,
                ElementsAre(MadeValue("Froude", 0, 1), MadeValue("Froude", 1, 1)));
}

TEST(CalculatedWalk, GivesRollDampingByItsIndices)
{
    CMadeResults made;
    const auto arrays = Walked<CDampingArrays>(made);
    ASSERT_EQ(arrays.Constants.size(), 2U);
    EXPECT_THAT(arrays.Constants[1],
                ElementsAre(MadeValue("RollConstants", 1, 0, 0), MadeValue("RollConstants", 1, 0, 1),
                            MadeValue("RollConstants", 1, 0, 2)));
    EXPECT_TRUE(arrays.HasBreakdown);
    for (int heading = 0; heading < 3; ++heading)
    {
        for (int column = 0; column < CDampingArrays::ColumnCount; ++column)
        {
            EXPECT_EQ(arrays.Components(1, heading, 2, column), MadeValue("Damping", 1, heading, 2, column));
        }
        EXPECT_EQ(arrays.LiftTable(1, heading, 2, 0), MadeValue("Lift", 1, heading, 2, 0));
        EXPECT_EQ(arrays.LiftTable(1, heading, 2, 7), MadeValue("Lift", 1, heading, 2, 7));
        EXPECT_EQ(arrays.ViscousTable(1, heading, 1, 6), MadeValue("Viscous", 1, heading, 1, 6));
    }
    EXPECT_EQ(arrays.LiftTable.Size(3), 8); // two of all, rudder, skeg, two keels, foil, fin
    EXPECT_EQ(arrays.ViscousTable.Size(3), 7);
}

TEST(CalculatedWalk, TheViscousTableHasNoSkeg)
{
    CMadeResults made;
    made.Skeg = 0;
    EXPECT_THAT(CCounter(made).BreakdownWidths, Each(3 + 1 + 2 + 1 + 1));
    made.Skeg = 1;
    made.Rudder = 0;
    const CCounter counter(made);
    EXPECT_EQ(counter.BreakdownWidths.count(3 + 1 + 2 + 1 + 1), 6U);
    EXPECT_EQ(counter.BreakdownWidths.count(3 + 2 + 1 + 1), 6U);
}

TEST(CalculatedWalk, BreakdownTablesAreAsWideAsTheIntegersSay)
{
    CMadeResults made;
    made.KeelWord = 0;
    const auto arrays = Walked<CLoadRmsArrays>(made);
    EXPECT_EQ(arrays.Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, WithTheOtherTagNoBreakdownFollows)
{
    CMadeResults made;
    made.HasBreakdown = false;
    EXPECT_FALSE(Walked<CDampingArrays>(made).HasBreakdown);
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, AWordThatIsNoBreakdownTagIsNotConsumed)
{
    CMadeResults made;
    made.Magic = false;
    made.HasColumnWords = false;
    EXPECT_FALSE(Walked<CDampingArrays>(made).HasBreakdown);
    EXPECT_EQ(Walked<CDampingArrays>(made).Components(1, 2, 2, 9), MadeValue("Damping", 1, 2, 2, 9));
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, AnyOtherSlamTagIsConsumedAndOnlyTheTwoFloatsAreMissing)
{
    CMadeResults made;
    made.SlamTag = 27;
    EXPECT_EQ(Walked<CSlammingArrays>(made).Values(1, 1, 0, 3, 10), MadeValue("Slamming", 1, 1, 0, 3, 10));
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, AHeadingAbove180HasNoDataPerFrequencyButHasThoseOfEverySeaway)
{
    CMadeResults made;
    const CCounter counter(made);
    const std::map<int, int> twoSpeeds = {{0, 2}, {1, 2}, {2, 2}}; // headings of 0, 90 and 180 degrees
    EXPECT_EQ(counter.FroudeByHeading, twoSpeeds);
    EXPECT_EQ(counter.FrequenciesByHeading, twoSpeeds);
    EXPECT_EQ(counter.DampingByHeading, twoSpeeds);
    EXPECT_THAT(counter.MiiRows, ElementsAre(4, 4, 4, 4, 4, 4, 4, 4));
    EXPECT_THAT(counter.LoadRows, ElementsAre(4, 4, 4, 4, 4, 4, 4, 4));
    EXPECT_EQ(Walked<CInterruptionArrays>(made).Values(1, 1, 0, 3, 5), MadeValue("Mii", 1, 1, 0, 3, 5));
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 0), MadeValue("LoadRms", 1, 1, 1, 3, 0));
}

TEST(CalculatedWalk, HeadingsNeedNotBeSorted)
{
    CMadeResults made;
    made.Headings = {200, 180, 180.5F, 10};
    EXPECT_EQ(CCounter(made).FroudeByHeading, (std::map<int, int>{{1, 2}, {3, 2}}));
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, RegularWavesHaveNeitherPositionsNorLoads)
{
    CMadeResults made;
    made.Keyword = "REGULAR";
    const CCounter counter(made);
    EXPECT_EQ(counter.DampingByHeading.size(), 3U);
    EXPECT_TRUE(counter.MiiRows.empty());
    EXPECT_TRUE(counter.LoadRows.empty());
    EXPECT_EQ(Walked<CFrequencyArrays>(made).EncounterFreq(1, 2, 2), MadeValue("Frequencies", 1, 2, 2, 0));
}

TEST(CalculatedWalk, WithoutPositionsTheirLoopDoesNotRun)
{
    CMadeResults made;
    made.Positions.clear();
    EXPECT_TRUE(CCounter(made).MiiRows.empty());
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, OutputPerFrequencyFollowsItsOption)
{
    CMadeResults made;
    made.OutRao = 1;
    EXPECT_TRUE(CCounter(made).DampingByHeading.empty());
    EXPECT_EQ(CCounter(made).FrequenciesByHeading.size(), 3U);
    made.OutRao = 0;
    EXPECT_TRUE(CCounter(made).FrequenciesByHeading.empty());
    EXPECT_THAT(Walked<CFrequencyArrays>(made).Froude, ElementsAre(0, 0));
    EXPECT_EQ(Walked<CLoadRmsArrays>(made).Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, SpectraWithDirectionsHave13HeadingsUntilTheFirstLoadsOfASpeedAndThen24)
{
    for (const char* keyword : {"TENPARAMETER", "ODGPHINDCAST", "INPUTDIR"})
    {
        CMadeResults made;
        made.Keyword = keyword;
        const CCounter counter(made);
        EXPECT_THAT(counter.MiiRows, ElementsAre(13, 13, 24, 24, 13, 13, 24, 24)) << keyword;
        EXPECT_THAT(counter.LoadRows, Each(24)) << keyword;
        const auto mii = Walked<CInterruptionArrays>(made);
        EXPECT_EQ(mii.Rows(1, 0, 2), 13);
        EXPECT_EQ(mii.Rows(1, 1, 2), 24);
        EXPECT_EQ(mii.Values(1, 1, 2, 23, 5), MadeValue("Mii", 1, 1, 2, 23, 5));
        EXPECT_EQ(mii.Values(1, 0, 2, 12, 5), MadeValue("Mii", 1, 0, 2, 12, 5));
        EXPECT_EQ(mii.Values(1, 0, 2, 13, 5), 0);
    }
}

TEST(CalculatedWalk, SpectraWithDirectionsButWithoutLoadsHave13HeadingsThroughout)
{
    CMadeResults made;
    made.Keyword = "TENPARAMETER";
    made.LoadStationCount = 0;
    EXPECT_THAT(CCounter(made).MiiRows, Each(13));
}

TEST(CalculatedWalk, GivesSlammingByItsIndices)
{
    CMadeResults made;
    made.Positions[1].RelMotionKind = 3;
    const auto arrays = Walked<CSlammingArrays>(made);
    for (const int position : {0, 1})
    {
        EXPECT_EQ(arrays.Rows(1, 1, position), 4);
        EXPECT_EQ(arrays.Levels(1, 1, position, 3), MadeValue("Levels", 1, 1, position, 3));
        for (int column = 0; column < CSlammingArrays::kColumns; ++column)
        {
            EXPECT_EQ(arrays.Values(1, 1, position, 3, column),
                      MadeValue("Slamming", 1, 1, position, 3, column));
        }
    }
}

TEST(CalculatedWalk, GivesDeckWetnessAndEmergenceByTheirIndices)
{
    CMadeResults made;
    const auto arrays = Walked<CSlammingArrays>(made);
    for (const int position : {1, 2})
    {
        EXPECT_EQ(arrays.Rows(0, 1, position), 4);
        EXPECT_EQ(arrays.Levels(0, 1, position, 1), MadeValue("Levels", 0, 1, position, 1));
        EXPECT_EQ(arrays.Levels(0, 1, position, 2), 0);
        EXPECT_EQ(arrays.Values(0, 1, position, 3, 4), MadeValue("Wetness", 0, 1, position, 3, 4));
        EXPECT_EQ(arrays.Values(0, 1, position, 3, 5), 0);
    }
}

TEST(CalculatedWalk, GivesMotionSicknessByItsIndices)
{
    CMadeResults made;
    const auto arrays = Walked<CSicknessArrays>(made);
    EXPECT_EQ(arrays.Formulation(1, 1, 0), 1);
    EXPECT_EQ(arrays.ExposureFlag(1, 1, 0), 0);
    EXPECT_EQ(arrays.Exposure(1, 1, 0), MadeValue("Exposure", 1, 1, 0));
    EXPECT_EQ(arrays.Rows(1, 1, 0), 4);
    EXPECT_EQ(arrays.Rows(1, 1, 1), 0);
    EXPECT_EQ(arrays.Values(1, 1, 0, 3, 2), MadeValue("Msi", 1, 1, 0, 3, 2));
}

TEST(CalculatedWalk, OnlyTheFirstPositionsAreLookedAt)
{
    CMadeResults made;
    std::string bytes = made.Bytes();
    // The control section tells of interruption at the fourth of three positions.
    const float one = 1;
    std::memcpy(&bytes[static_cast<std::size_t>(made.SectionC) + 72 + 3 * 4], &one, sizeof one);
    const CResults results = ReadResults(bytes);
    CLoadRmsArrays arrays(results);
    WalkCalculated(results, arrays);
    EXPECT_EQ(results.Control.MiiKind[3], 1);
    EXPECT_EQ(arrays.Values(1, 1, 1, 3, 9), MadeValue("LoadRms", 1, 1, 1, 3, 9));
}

TEST(CalculatedWalk, ASectionThatIsCutShortIsAnError)
{
    CMadeResults made;
    CResults results = ReadResults(made.Bytes());
    CCalculatedReceiver end;
    WalkCalculated(results, end);
    const std::size_t whole = results.Bytes.size() - 20;
    results.Bytes.resize(whole);
    WalkCalculated(results, end); // all of it is there
    results.Bytes.resize(whole - 1);
    EXPECT_THROW(WalkCalculated(results, end), CResultsError);
}
