#include "core/engine/SectionQuality.h"

#include "tests/support/StationPoints.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr float kHuge = std::numeric_limits<float>::max();
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kDeep = 1000;  ///< a waterline above all
constexpr float kNowhere = -1; ///< a waterline that isn't known
constexpr CPoint kGap = {kNotGiven, kNotGiven};

/// A hull whose stations are given one behind the other.
struct CHull
{
    CHull()
    {
        Project.YAUSER.Fill(kNotGiven);
        Project.ZAUSERBL.Fill(kNotGiven);
    }
    explicit CHull(const std::vector<std::vector<CPoint>>& stations) : CHull()
    {
        for (const auto& points : stations)
        {
            SetStation(Project, Count++, points);
        }
    }

    CStationOffsets Station(int station) const
    {
        return CStationOffsets::Of(Project.YAUSER.data, Project.ZAUSERBL.data, station);
    }
    std::vector<int> WithFewPoints() const
    {
        return StationsWithFewPoints(Project.YAUSER.data, Project.ZAUSERBL.data, Count);
    }

    CProjectData Project;
    int Count = 0;
};

/// The middle one of three stations, so that its neighbours' points would show.
struct CSection : CHull
{
    explicit CSection(const std::vector<CPoint>& points)
        : CHull({GoodStation(), points, GoodStation()}),
          Offsets(Station(1))
    {
    }

    /// Rows of long segments.
    std::vector<int> LongRows(float waterline, bool sparesCentreline = false) const
    {
        std::vector<int> rows;
        for (const CLongSegment& segment : LongSegments(Offsets, waterline, sparesCentreline))
        {
            rows.push_back(segment.Row);
        }
        return rows;
    }
    /// Into how many pieces its only long segment would be divided.
    int Pieces() const
    {
        const auto segments = LongSegments(Offsets, kNowhere, false);
        EXPECT_EQ(segments.size(), 1U);
        return segments.empty() ? 0 : segments.front().Pieces;
    }

    CStationOffsets Offsets;
};

/// A section of 60 points whose distances are 1, but for one behind a row.
std::vector<CPoint> FullWall(int row, float distance)
{
    std::vector<float> distances(kMaxOffsets - 1, 1);
    distances[static_cast<std::size_t>(row)] = distance;
    return Wall(distances);
}
} // namespace

TEST(SectionQuality, APointIsPresentIfNeitherYNorZIsTheSentinelExactly)
{
    const CSection section({{1, 2}, {-1, 2}, {1, -1}, {-1, -1}, {-1.0001F, -0.9999F}, {0, 0}});
    std::vector<bool> present;
    for (int row = 0; row < 7; ++row)
    {
        present.push_back(section.Offsets.IsPresent(row));
    }
    EXPECT_THAT(present, ElementsAre(true, false, false, false, true, true, false));
}

TEST(SectionQuality, PresentPointsAreCountedWhereverTheyStandButInTheLastRow)
{
    EXPECT_EQ(PresentPoints(CSection({}).Offsets), 0);
    EXPECT_EQ(PresentPoints(CSection({{0, 0}, kGap, {1, -1}, {2, 2}}).Offsets), 2);
    EXPECT_EQ(PresentPoints(CSection(FullWall(0, 1)).Offsets), kMaxOffsets - 1);
}

TEST(SectionQuality, TwoPointsInSuccessionOnTheCentrelineAtTheKeelAreAPair)
{
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {0, 1}, {1, 2}}).Offsets), 1);
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {-0.0F, 1}, {1, 2}}).Offsets), 1);
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {0, 1}}).Offsets), 1);
}

TEST(SectionQuality, OnThePairYIsZeroExactly)
{
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {1e-30F, 1}, {1, 2}}).Offsets), 0);
    EXPECT_EQ(CentrelinePair(CSection({{-1e-30F, 0}, {0, 1}, {1, 2}}).Offsets), 0);
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {1, 1}}).Offsets), 0);
}

TEST(SectionQuality, ZerosBehindARiseInYAreNoPair)
{
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {1, 1}, {0, 2}, {0, 3}}).Offsets), 0);
}

TEST(SectionQuality, ZerosBehindAFallInYAreAPair)
{
    EXPECT_EQ(CentrelinePair(CSection({{2, 0}, {2, 1}, {0, 2}, {0, 3}, {1, 4}}).Offsets), 3);
}

TEST(SectionQuality, OnePointIsNoPair)
{
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}}).Offsets), 0);
    EXPECT_EQ(CentrelinePair(CSection({}).Offsets), 0);
    EXPECT_EQ(CentrelinePair(CSection({{0, 0}, {0, -1}}).Offsets), 0) << "its second one has no Z";
}

TEST(SectionQuality, TheSearchForAPairMayBeginAtALaterRow)
{
    const CSection section({{0, 0}, {0, 1}, {0, 2}, {1, 3}});
    EXPECT_EQ(CentrelinePair(section.Offsets, 2), 2);
    EXPECT_EQ(CentrelinePair(section.Offsets, 3), 0);
}

TEST(SectionQuality, RowsMayBeInTheWrongOrderIfBothYAndZFall)
{
    EXPECT_TRUE(MayBeInWrongOrder(CSection({{2, 2}, {1, 1}}).Offsets, 0));
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{2, 2}, {1, 3}}).Offsets, 0)) << "folds back in Y only";
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{2, 2}, {3, 1}}).Offsets, 0));
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{2, 2}, {1, 2}}).Offsets, 0));
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{2, 2}, {2, 1}}).Offsets, 0));
}

TEST(SectionQuality, RowsWithoutYAreInNoOrder)
{
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{2, 2}, {-1, 1}}).Offsets, 0));
    EXPECT_FALSE(MayBeInWrongOrder(CSection({{-1, 2}, {-2, 1}}).Offsets, 0));
}

TEST(SectionQuality, ARowWithoutZIsLowerThanOthers)
{
    EXPECT_TRUE(MayBeInWrongOrder(CSection({{2, 2}, {1, -1}}).Offsets, 0));
}

TEST(SectionQuality, TheMeanSegmentIsThatOfAllRowsThatFollowEachOther)
{
    EXPECT_EQ(MeanSegment(CSection({{0, 0}, {3, 4}, {3, 5}}).Offsets), 3);
    EXPECT_EQ(MeanSegment(CSection({{0, 0}, {3, 4}, kGap, {9, 9}, {9, 12}, {10, -1}}).Offsets), 4);
    EXPECT_EQ(MeanSegment(CSection(FullWall(58, 60)).Offsets), 2) << "up to the last row";
}

TEST(SectionQuality, WithoutASegmentTheMeanIsZero)
{
    EXPECT_EQ(MeanSegment(CSection({}).Offsets), 0);
    EXPECT_EQ(MeanSegment(CSection({{1, 1}}).Offsets), 0);
    EXPECT_EQ(MeanSegment(CSection({{1, 1}, kGap, {2, 2}}).Offsets), 0);
}

TEST(SectionQuality, TheMeanIsMadeInSinglePrecision)
{
    // The sum is even in single precision: the two short segments are lost in it.
    const CSection section({{1, 0}, {1, 16777216}, {2, 16777216}, {3, 16777216}});
    EXPECT_EQ(MeanSegment(section.Offsets), 16777216.0F / 3);
    EXPECT_NE(MeanSegment(section.Offsets), 16777218.0F / 3);
}

TEST(SectionQuality, AStationHasFewPointsIfItsMeanIsMoreThanTwoAndAHalfMedians)
{
    const auto good = Wall({1, 1});
    EXPECT_THAT(CHull({good, good, good, good, Wall({2.5F})}).WithFewPoints(), IsEmpty());
    EXPECT_THAT(CHull({good, good, good, good, Wall({2.5001F})}).WithFewPoints(), ElementsAre(4));
    EXPECT_THAT(CHull({Wall({3}), good, good, Wall({1, 5}), good}).WithFewPoints(), ElementsAre(0, 3));
}

TEST(SectionQuality, OfAnEvenNumberOfStationsTheLowerMiddleOneIsTheMedian)
{
    EXPECT_THAT(CHull({Wall({4}), Wall({1}), Wall({4}), Wall({1})}).WithFewPoints(), ElementsAre(0, 2));
    EXPECT_THAT(CHull({Wall({4}), Wall({1})}).WithFewPoints(), ElementsAre(0));
    EXPECT_THAT(CHull({Wall({4}), Wall({4}), Wall({1})}).WithFewPoints(), IsEmpty());
}

TEST(SectionQuality, AStationWithoutASegmentHasNeverFewPointsButCountsForTheMedian)
{
    EXPECT_THAT(CHull({{}, Wall({1}), {}}).WithFewPoints(), ElementsAre(1));
    EXPECT_THAT(CHull({{}, {{1, 1}}}).WithFewPoints(), IsEmpty());
    EXPECT_THAT(CHull().WithFewPoints(), IsEmpty());
}

TEST(SectionQuality, OneStationHasNeverFewPoints)
{
    EXPECT_THAT(CHull({Wall({100})}).WithFewPoints(), IsEmpty());
}

TEST(SectionQuality, NumbersThatAreNoneOrTooLargeMakeNoFewPoints)
{
    const auto good = Wall({1, 1});
    EXPECT_THAT(CHull({{{kNoNumber, 0}, {1, 1}}, good, good}).WithFewPoints(), IsEmpty());
    EXPECT_THAT(CHull({{{-kHuge, 0}, {kHuge, 1}}, good, good}).WithFewPoints(), ElementsAre(0));
    const std::vector<CPoint> nothing = {{kNoNumber, kNoNumber}, {kNoNumber, 1}};
    EXPECT_THAT(CHull({nothing, nothing, good}).WithFewPoints(), IsEmpty());
}

TEST(SectionQuality, StationsAreListedAsInASentence)
{
    EXPECT_EQ(StationList({}), "");
    EXPECT_EQ(StationList({3}), "3");
    EXPECT_EQ(StationList({3, 4}), "3 and 4");
    EXPECT_EQ(StationList({0, 7, 20}), "0, 7 and 20");
}

TEST(SectionQuality, ASegmentIsLongIfItIsMoreThanTwoAndAHalfMedians)
{
    EXPECT_THAT(CSection(Wall({1, 1, 1, 2.5F})).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection(Wall({1, 1, 1, 2.5001F})).LongRows(kDeep), ElementsAre(3));
    EXPECT_THAT(CSection(Wall({3, 1, 1, 4, 1})).LongRows(kDeep), ElementsAre(0, 3));
    EXPECT_THAT(CSection({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {6, 4}}).LongRows(kDeep), ElementsAre(3));
}

TEST(SectionQuality, TheMedianSegmentStandsInTheMiddleOrJustAboveIt)
{
    EXPECT_THAT(CSection(Wall({1, 4, 10.1F})).LongRows(kDeep), ElementsAre(2));
    EXPECT_THAT(CSection(Wall({1, 4, 10})).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection(Wall({1, 1, 4, 10})).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection(Wall({1, 1, 3.75F, 10})).LongRows(kDeep), ElementsAre(3));
    EXPECT_THAT(CSection(Wall({1, 100})).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection(Wall({100})).LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, BothEndsOfALongSegmentLieUnderTheWaterline)
{
    const CSection section(Wall({1, 1, 1, 3})); // from Z 3 to Z 6
    EXPECT_THAT(section.LongRows(6.001F), ElementsAre(3));
    EXPECT_THAT(section.LongRows(6), IsEmpty()) << "one end in the waterline";
    EXPECT_THAT(section.LongRows(4), IsEmpty()) << "through the waterline";
    EXPECT_THAT(section.LongRows(3), IsEmpty()) << "above the waterline";
    EXPECT_THAT(section.LongRows(0), IsEmpty());
    EXPECT_THAT(CSection({{0, 9}, {9, 1}, {9, 0}, {10, 0}, {11, 0}}).LongRows(5), IsEmpty());
}

TEST(SectionQuality, ANegativeWaterlineTakesInAllSegments)
{
    EXPECT_THAT(CSection(Wall({1, 1, 1, 3})).LongRows(kNowhere), ElementsAre(3));
    EXPECT_THAT(CSection(Wall({1, 1, 1, 3})).LongRows(kNoNumber), IsEmpty());
}

TEST(SectionQuality, ASegmentOnTheCentrelineMayBeSpared)
{
    const CSection centreline({{0, 0}, {0, 5}, {1, 5}, {2, 5}, {3, 5}});
    EXPECT_THAT(centreline.LongRows(kDeep, true), IsEmpty());
    EXPECT_THAT(centreline.LongRows(kDeep, false), ElementsAre(0));
    const CSection leaves({{0, 0}, {0.001F, 5}, {1, 5}, {2, 5}, {3, 5}});
    EXPECT_THAT(leaves.LongRows(kDeep, true), ElementsAre(0));
    const CSection comes({{1, 5}, {2, 5}, {3, 5}, {4, 5}, {0.001F, 5}, {0, 0}});
    EXPECT_THAT(comes.LongRows(kDeep, true), ElementsAre(3, 4));
}

TEST(SectionQuality, PiecesAreHalfAsManyAsTheSegmentHasMediansRoundedUp)
{
    EXPECT_EQ(CSection(Wall({1, 1, 1, 4})).Pieces(), 2);
    EXPECT_EQ(CSection(Wall({1, 1, 1, 4.001F})).Pieces(), 3);
    EXPECT_EQ(CSection(Wall({2, 2, 2, 5.5F})).Pieces(), 2);
    EXPECT_EQ(CSection(Wall({1, 1, 1, 300})).Pieces(), 150) << "more than there is room for";
}

TEST(SectionQuality, AMedianOfZeroAsksForAHundredThousandPiecesAndNoMore)
{
    EXPECT_EQ(CSection(Wall({0, 0, 0, 1})).Pieces(), 100000);
    EXPECT_EQ(CSection(Wall({1e-30F, 1e-30F, 1e-30F, 3e30F})).Pieces(), 100000);
    EXPECT_THAT(CSection(Wall({0, 0, 0, 0})).LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, AStationOfFewerThanTwoPointsHasNoLongSegment)
{
    EXPECT_THAT(CSection({}).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection({{1, 1}}).LongRows(kDeep), IsEmpty());
    EXPECT_THAT(CSection({{1, 1}, kGap, {2, 2}, kGap}).LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, AGapShortensTheRowsThatAreLookedAt)
{
    // Nine points in ten rows: the first nine rows are looked at, the last two points' segment is not.
    auto points = Wall({1, 1, 1, 1, 1, 1, 1, 10, 10});
    points[2] = kGap;
    EXPECT_THAT(CSection(points).LongRows(kDeep), ElementsAre(7));
    points[2] = {1, kNotGiven}; // half a point is none
    EXPECT_THAT(CSection(points).LongRows(kDeep), ElementsAre(7));
}

TEST(SectionQuality, WhereAGapLeavesFewLengthsTheLongestIsTheMedian)
{
    auto points = Wall({1, 1, 1, 10, 1});
    points[2] = kGap; // lengths of 1 and 10; the middle of four would be the third
    EXPECT_THAT(CSection(points).LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, OfAFullStationTheSegmentIntoTheLastRowIsNotLookedAt)
{
    EXPECT_THAT(CSection(FullWall(57, 9)).LongRows(kDeep), ElementsAre(57));
    EXPECT_THAT(CSection(FullWall(58, 9)).LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, NumbersThatAreNoneOrTooLargeAreNotFollowed)
{
    EXPECT_THAT(
        CSection({{1, 0}, {kNoNumber, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 10}}).LongRows(kDeep),
        ElementsAre(6));
    EXPECT_THAT(CSection({{1, kNoNumber}, {1, kNoNumber}, {1, kNoNumber}}).LongRows(kDeep), IsEmpty());
    const CSection large({{1, 0}, {1, 1}, {1, 2}, {1, 3}, {kHuge, 4}});
    EXPECT_THAT(large.LongRows(kDeep), ElementsAre(3));
    EXPECT_EQ(large.Pieces(), 100000);
    const CSection largeAll({{-kHuge, 0}, {kHuge, 0}, {-kHuge, 0}, {kHuge, 0}});
    EXPECT_THAT(largeAll.LongRows(kDeep), IsEmpty());
}

TEST(SectionQuality, TheForwardHalfOfTheShipSparesTheCentreline)
{
    EXPECT_TRUE(SparesCentreline(0, 21, 0));
    EXPECT_TRUE(SparesCentreline(9, 21, 0));
    EXPECT_FALSE(SparesCentreline(10, 21, 0));
    EXPECT_FALSE(SparesCentreline(20, 21, 0));
    EXPECT_TRUE(SparesCentreline(9, 20, 0));
    EXPECT_FALSE(SparesCentreline(10, 20, 0));
}

TEST(SectionQuality, WithStationZeroAftItIsTheOtherHalf)
{
    EXPECT_FALSE(SparesCentreline(0, 21, 1));
    EXPECT_FALSE(SparesCentreline(10, 21, 1));
    EXPECT_TRUE(SparesCentreline(11, 21, 1));
    EXPECT_TRUE(SparesCentreline(20, 21, 1));
    EXPECT_FALSE(SparesCentreline(10, 20, 1));
    EXPECT_TRUE(SparesCentreline(11, 20, 1));
}

TEST(SectionQuality, ZIsNegativeBelowZeroButNotAtTheSentinel)
{
    EXPECT_FALSE(HasNegativeZ(std::vector<float>{0, 1, -1, -0.0F, kNoNumber}));
    EXPECT_TRUE(HasNegativeZ(std::vector<float>{0, 1, -0.001F}));
    EXPECT_TRUE(HasNegativeZ(std::vector<float>{-1.0001F}));
    EXPECT_TRUE(HasNegativeZ(std::vector<float>{-std::numeric_limits<float>::infinity()}));
    EXPECT_FALSE(HasNegativeZ({}));
}
