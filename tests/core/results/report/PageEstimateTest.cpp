#include "core/results/report/PageEstimate.h"

#include "core/results/CResultsCursor.h"
#include "tests/support/CMadeResults.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
/// A file of two speeds, three headings, four seaways, five positions and six load stations.
CPageCounts Counts()
{
    CPageCounts counts;
    counts.SpectrumKind = kSpectrumBretschneider;
    counts.Headings = {0, 90, 180};
    counts.Speeds = {10, 20};
    counts.SpeedCount = 2;
    counts.SeawayCount = 4;
    counts.FreqCount = 35;
    counts.PositionCount = 5;
    counts.LoadStationCount = 6;
    counts.OutRao = 2;
    return counts;
}

/// Headings from 0 in steps of five degrees.
std::vector<float> Headings(int count)
{
    std::vector<float> headings;
    for (int k = 0; k < count; ++k)
    {
        headings.push_back(static_cast<float>(5 * k));
    }
    return headings;
}

int Pages(const CPageCounts& counts, std::initializer_list<EReportSection> sections)
{
    CReportFlags flags;
    flags.fill(kSectionNotSelected);
    for (const EReportSection section : sections)
    {
        flags[section] = kSectionSelected;
    }
    return EstimatePages(counts, flags);
}

std::vector<int> Offered(const CPageCounts& counts)
{
    const CReportFlags flags = OfferedSections(counts);
    std::vector<int> sections;
    for (int section = 0; section < kReportSectionCount; ++section)
    {
        const int flag = flags[static_cast<std::size_t>(section)];
        EXPECT_TRUE(flag == kSectionSelected || flag == kSectionNotSelected);
        if (flag == kSectionSelected)
        {
            sections.push_back(section);
        }
    }
    return sections;
}
} // namespace

TEST(PageEstimate, NothingSelectedHasNoPages)
{
    EXPECT_EQ(Pages(Counts(), {}), 0);
}

TEST(PageEstimate, SummaryAndEnvironmentCountOnce)
{
    CPageCounts counts = Counts();
    EXPECT_EQ(Pages(counts, {kSectionHydrostatics}), 4);
    EXPECT_EQ(Pages(counts, {kSectionEnvironment}), 4);
    EXPECT_EQ(Pages(counts, {kSectionHydrostatics, kSectionEnvironment}), 4);
}

TEST(PageEstimate, TheSummaryHasAPageMoreWithPositionsUnlessThereAreLoads)
{
    CPageCounts counts = Counts();
    counts.PositionCount = 0;
    EXPECT_EQ(Pages(counts, {kSectionHydrostatics}), 4);
    counts.LoadStationCount = 0;
    EXPECT_EQ(Pages(counts, {kSectionHydrostatics}), 2);
    counts.PositionCount = 1;
    EXPECT_EQ(Pages(counts, {kSectionHydrostatics}), 3);
}

TEST(PageEstimate, TheSummaryIsLongestWithLongInputTables)
{
    CPageCounts counts = Counts();
    counts.SpectrumKind = kSpectrumOchiHubble;
    counts.SeawayCount = 3;
    EXPECT_EQ(Pages(counts, {kSectionEnvironment}), 5);
    counts.SeawayCount = 2;
    EXPECT_EQ(Pages(counts, {kSectionEnvironment}), 4);
    counts.SpectrumKind = kSpectrumTenParameter;
    EXPECT_EQ(Pages(counts, {kSectionEnvironment}), 5);
    counts.SeawayCount = 1;
    EXPECT_EQ(Pages(counts, {kSectionEnvironment}), 4);
}

TEST(PageEstimate, AFrequencyCountOf36DoublesTheRaoPages)
{
    CPageCounts counts = Counts();
    EXPECT_EQ(Pages(counts, {kSectionMotionRao}), 2 * 6 + 1);
    EXPECT_EQ(Pages(counts, {kSectionLoadRao}), 2 * 6 * 6 + 1);
    counts.FreqCount = 36;
    EXPECT_EQ(Pages(counts, {kSectionMotionRao}), 4 * 6 + 1);
    EXPECT_EQ(Pages(counts, {kSectionLoadRao}), 4 * 6 * 6 + 1);
}

TEST(PageEstimate, RollDampingGrowsWithItsBreakdown)
{
    CPageCounts counts = Counts();
    const int tables = 4 * 2 * 3;
    const auto pages = [&](int frequencies, int columns)
    {
        counts.FreqCount = frequencies;
        counts.AppendageColumns = columns;
        return Pages(counts, {kSectionRollDamping});
    };
    EXPECT_EQ(pages(35, 0), tables + 1);
    EXPECT_EQ(pages(36, 0), 2 * tables + 1);
    EXPECT_EQ(pages(35, 4), tables + 1 + 2 * tables);
    EXPECT_EQ(pages(35, 12), tables + 1 + 2 * tables);
    EXPECT_EQ(pages(35, 13), tables + 1 + 4 * tables);
    EXPECT_EQ(pages(36, 12), 2 * tables + 1 + 4 * tables);
    EXPECT_EQ(pages(36, 13), 2 * tables + 1 + 8 * tables);
}

TEST(PageEstimate, RmsPagesFollowTheHeadings)
{
    CPageCounts counts = Counts();
    const int tables = (5 + 1) * 4 * 2;
    counts.Headings = Headings(12);
    EXPECT_EQ(Pages(counts, {kSectionRms}), tables);
    counts.Headings = Headings(13);
    EXPECT_EQ(Pages(counts, {kSectionRms}), 3 * tables);

    counts.Headings = Headings(9);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), tables);
    counts.Headings = Headings(10);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), 2 * tables);
    counts.Headings = Headings(11);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), 3 * tables);
}

TEST(PageEstimate, HeadingsAbove180CountForPositionsOnly)
{
    CPageCounts counts = Counts();
    counts.Headings = {0, 30, 180, 190, 200, 210, 220, 230, 240, 250};
    EXPECT_EQ(Pages(counts, {kSectionMotionRao}), 2 * 2 * 3 + 1);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), 2 * 6 * 4 * 2);
}

TEST(PageEstimate, AHeadingOfZeroCountsForPositionsInTheFirstSlotOnly)
{
    CPageCounts counts = Counts();
    counts.Headings = Headings(10);
    std::swap(counts.Headings[0], counts.Headings[1]);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), 6 * 4 * 2);
    counts.Headings.push_back(0);
    EXPECT_EQ(Pages(counts, {kSectionMotionRao}), 2 * 2 * 11 + 1);
    EXPECT_EQ(Pages(counts, {kSectionRmsShortCrested}), 3 * 6 * 4 * 2);
}

TEST(PageEstimate, NegativeHeadingsCountNowhere)
{
    CPageCounts counts = Counts();
    counts.Headings = {-1, -1, 90};
    EXPECT_EQ(Pages(counts, {kSectionMotionRao}), 2 * 2 * 1 + 1);
}

TEST(PageEstimate, RmsLoadsTakeTwoPagesFromSeventeenHeadingsOn)
{
    CPageCounts counts = Counts();
    counts.Headings = Headings(16);
    EXPECT_EQ(Pages(counts, {kSectionRmsLoads}), 4 * 6 * 2);
    counts.Headings = Headings(17);
    EXPECT_EQ(Pages(counts, {kSectionRmsLoads}), 2 * 4 * 6 * 2);
}

TEST(PageEstimate, PositionSectionsHaveAPageForEachPositionSeawayAndSpeed)
{
    CPageCounts counts = Counts();
    counts.SlamPositions = 3;
    counts.MiiPositions = 2;
    counts.MsiPositions = 1;
    EXPECT_EQ(Pages(counts, {kSectionSlamming}), 3 * 4 * 2);
    EXPECT_EQ(Pages(counts, {kSectionMotionInterruption}), 2 * 4 * 2);
    EXPECT_EQ(Pages(counts, {kSectionMotionSickness}), 1 * 4 * 2);
    EXPECT_EQ(Pages(counts, {kSectionSlamming, kSectionMotionInterruption, kSectionMotionSickness}), 6 * 8);
}

TEST(PageEstimate, Pages499AreTheMost)
{
    CPageCounts counts = Counts();
    counts.SpeedCount = 3;
    counts.Headings = Headings(36); // all up to 175 degrees
    counts.FreqCount = 20;
    const int pages = Pages(counts, {kSectionMotionRao}); // 217
    counts.SlamPositions = 1;
    counts.SeawayCount = 94;
    EXPECT_EQ(pages + Pages(counts, {kSectionSlamming}), kGreatestPageCount);
    EXPECT_FALSE(Pages(counts, {kSectionMotionRao, kSectionSlamming}) > kGreatestPageCount);
    EXPECT_TRUE(Pages(counts, {kSectionMotionRao, kSectionSlamming}) + 1 > kGreatestPageCount);
}

TEST(OfferedSections, OfRegularWaves)
{
    CPageCounts counts = Counts();
    counts.SpectrumKind = kSpectrumRegular;
    counts.SpreadAngle = 90;
    counts.SlamPositions = counts.MiiPositions = counts.MsiPositions = 1;
    EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao,
                                             kSectionRollDamping, kSectionLoadRao));
    counts.SpectrumKind = kSpectrumUnknown;
    EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao,
                                             kSectionRollDamping, kSectionLoadRao));
}

TEST(OfferedSections, FollowTheOutputOption)
{
    CPageCounts counts = Counts();
    counts.SpectrumKind = kSpectrumRegular;
    counts.OutRao = 0;
    EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao));
    counts.OutRao = 1;
    EXPECT_THAT(Offered(counts),
                ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao, kSectionLoadRao));
    for (const int option : {-1, 3})
    {
        counts.OutRao = option;
        EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment));
    }
}

TEST(OfferedSections, LoadsAreNotOfferedWithoutLoadCalculation)
{
    CPageCounts counts = Counts();
    counts.OutRao = 1;
    counts.LoadFlag = 1;
    EXPECT_THAT(Offered(counts),
                ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao, kSectionRms));
    counts.LoadFlag = 2;
    EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionMotionRao,
                                             kSectionLoadRao, kSectionRms, kSectionRmsLoads));
}

TEST(OfferedSections, OneOfTheRmsSectionsAndNeverBoth)
{
    CPageCounts counts = Counts();
    counts.OutRao = 3;
    counts.LoadFlag = 1;
    const auto offersOnly = [&](EReportSection section)
    { EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, section)); };
    for (int kind = kSpectrumQuadratic; kind <= kSpectrumMeasuredUnidirectional; ++kind)
    {
        counts.SpectrumKind = kind;
        counts.SpreadAngle = 0;
        offersOnly(kSectionRms);
        counts.SpreadAngle = 45;
        offersOnly(kSectionRmsShortCrested);
    }
    counts.Headings.clear();
    offersOnly(kSectionRms);
    counts.SpreadAngle = 0;
    for (int kind = kSpectrumTenParameter; kind <= kSpectrumMeasuredDirectional; ++kind)
    {
        counts.SpectrumKind = kind;
        offersOnly(kSectionRmsShortCrested);
    }
}

TEST(OfferedSections, OfPositionsThatHaveSomething)
{
    CPageCounts counts = Counts();
    counts.OutRao = 3;
    counts.LoadFlag = 1;
    counts.SlamPositions = 1;
    EXPECT_THAT(Offered(counts),
                ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionRms, kSectionSlamming));
    counts.SlamPositions = 0;
    counts.MiiPositions = 1;
    EXPECT_THAT(Offered(counts), ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionRms,
                                             kSectionMotionInterruption));
    counts.MiiPositions = 0;
    counts.MsiPositions = 1;
    EXPECT_THAT(Offered(counts),
                ElementsAre(kSectionHydrostatics, kSectionEnvironment, kSectionRms, kSectionMotionSickness));
}

TEST(PageCounts, AreThoseOfTheFile)
{
    CMadeResults made;
    made.SpreadAngle = 30;
    made.OutRao = 1;
    for (const CPageCounts& counts : {ReadPageCounts(made.Bytes()), ReadReportCounts(made.Bytes())})
    {
        EXPECT_EQ(counts.SpectrumKind, kSpectrumJonswap);
        EXPECT_EQ(counts.SpreadAngle, 30);
        EXPECT_EQ(counts.OutRao, 1);
        EXPECT_EQ(counts.LoadFlag, 0);
        EXPECT_THAT(counts.Speeds, ElementsAre(10, 20));
        EXPECT_THAT(counts.Headings, ElementsAre(0, 90, 180, 270));
        EXPECT_EQ(counts.SpeedCount, 2);
        EXPECT_EQ(counts.SeawayCount, 2);
        EXPECT_EQ(counts.FreqCount, 3);
        EXPECT_EQ(counts.LoadStationCount, 2);
        EXPECT_EQ(counts.PositionCount, 3);
        EXPECT_EQ(counts.StationNumbering, 1);
        EXPECT_EQ(counts.StationCount, 3);
        EXPECT_EQ(counts.OutSys, 1);
        EXPECT_EQ(counts.LoadStations.size(), 2U);
        EXPECT_EQ(counts.WaveHeights.size(), 2U);
        EXPECT_EQ(counts.WavePeriods.size(), 2U);
    }
    made.LoadFlag = 1;
    EXPECT_EQ(ReadPageCounts(made.Bytes()).LoadFlag, 1);
}

TEST(PageCounts, OfAFileThatCannotBeOpenedAndOfOneThatCannotBeRead)
{
    const CTestFolder folder;
    CRecorder recorder;
    EXPECT_FALSE(LoadPageCounts(folder.File("gone.tv7"), recorder));
    EXPECT_FALSE(LoadPageCounts(folder.Write("short.tv7", "OD7b"), recorder));
    EXPECT_THAT(recorder.Messages,
                ElementsAre("Error In Result File: The result file could not be read.",
                            "Unable To Read File: There is a problem with the results file."));
    EXPECT_TRUE(LoadPageCounts(folder.Write("whole.tv7", CMadeResults().Bytes()), recorder));
    EXPECT_EQ(recorder.Messages.size(), 2U);
}

TEST(PageCounts, OfAReportHaveThePositionsAsTheyStand)
{
    CMadeResults made;
    made.Positions = {{0, 0, 1, "a"}, {4, 1, 0, "b"}, {2, 1, 1, "c"}, {0, 2, 2, "d"}};
    const CPageCounts counts = ReadReportCounts(made.Bytes());
    EXPECT_EQ(counts.SlamPositions, 2);
    EXPECT_EQ(counts.MiiPositions, 2);
    EXPECT_EQ(counts.MsiPositions, 2);
}

TEST(PageCounts, OfTheFormReadTheListsOfACurrentFileOneWordOut)
{
    CMadeResults made;
    // The last position drops out, and the first has the spreading angle.
    made.Positions = {{0, 0, 0, "a"}, {0, 0, 0, "b"}, {2, 1, 1, "c"}};
    CPageCounts counts = ReadPageCounts(made.Bytes());
    EXPECT_EQ(counts.SlamPositions, 0);
    EXPECT_EQ(counts.MiiPositions, 0);
    EXPECT_EQ(counts.MsiPositions, 0);

    made.SpreadAngle = 0.9F; // truncated
    EXPECT_EQ(ReadPageCounts(made.Bytes()).SlamPositions, 0);
    made.SpreadAngle = 45;
    EXPECT_EQ(ReadPageCounts(made.Bytes()).SlamPositions, 1);
    EXPECT_EQ(ReadReportCounts(made.Bytes()).SlamPositions, 1);

    made.SpreadAngle = 0;
    made.Positions = {{2, 1, 1, "a"}, {0, 0, 0, "b"}};
    counts = ReadPageCounts(made.Bytes());
    EXPECT_EQ(counts.SlamPositions, 1);
    EXPECT_EQ(counts.MiiPositions, 1);
    EXPECT_EQ(counts.MsiPositions, 1);
}

TEST(PageCounts, OfAFileWithoutTheMagicAreTheSameInBothWays)
{
    CMadeResults made;
    made.Magic = false;
    made.Positions = {{0, 0, 1, "a"}, {0, 0, 1, "b"}, {2, 1, 1, "c"}};
    for (const CPageCounts& counts : {ReadPageCounts(made.Bytes()), ReadReportCounts(made.Bytes())})
    {
        EXPECT_EQ(counts.SlamPositions, 1);
        EXPECT_EQ(counts.MiiPositions, 1);
        EXPECT_EQ(counts.MsiPositions, 0);
    }
}

TEST(PageCounts, AppendageColumnsAreThoseOfTheBreakdown)
{
    const auto columns = [](CMadeResults made) { return ReadPageCounts(made.Bytes()).AppendageColumns; };
    CMadeResults made; // rudder, skeg, two keels, a foil, a fin
    EXPECT_EQ(columns(made), 3 + 6);
    made.Rudder = made.Skeg = 0;
    EXPECT_EQ(columns(made), 3 + 4);
    made.Keels = made.Foils = made.Fins = 0;
    EXPECT_EQ(columns(made), 0);
    made.Skeg = 1;
    EXPECT_EQ(columns(made), 4);
    made = {};
    made.HasColumnWords = false;
    EXPECT_EQ(columns(made), 0);
}

TEST(PageCounts, ANegativeCountOfAppendagesIsNone)
{
    CMadeResults made;
    std::string bytes = made.Bytes();
    const int none = -1;
    // The count of keels is the third last of the integer counts.
    bytes.replace(made.IntegerCounts[made.IntegerCounts.size() - 3], sizeof none,
                  reinterpret_cast<const char*>(&none), sizeof none);
    EXPECT_EQ(ReadPageCounts(bytes).AppendageColumns, 3 + 4);
}

TEST(PageCounts, OfAFileThatIsCutAreAnErrorAndNothingElse)
{
    CMadeResults made;
    const std::string bytes = made.Bytes();
    const std::string trailer = bytes.substr(bytes.size() - 20);
    const auto isRead = [](const std::string& cut)
    {
        try
        {
            ReadPageCounts(cut);
            ReadReportCounts(cut);
            return true;
        }
        catch (const CResultsError&)
        {
            return false;
        }
    };
    const auto end = static_cast<std::size_t>(made.SectionB) + 36; // behind the last word that is read
    for (std::size_t length = 0; length < bytes.size(); ++length)
    {
        isRead(bytes.substr(0, length));
        EXPECT_FALSE(length + trailer.size() < end && isRead(bytes.substr(0, length) + trailer)) << length;
    }
}
