#include "gui/hull/SegmentDivision.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
std::vector<int> Lowered(std::vector<int> pieces, int points)
{
    std::vector<CLongSegment> segments;
    for (const int proposed : pieces)
    {
        segments.push_back({0, proposed});
    }
    LowerToFit(segments, points);
    pieces.clear();
    for (const CLongSegment& segment : segments)
    {
        pieces.push_back(segment.Pieces);
    }
    return pieces;
}
} // namespace

TEST(SegmentDivision, ProposalsThatFitStay)
{
    EXPECT_THAT(Lowered({20, 10}, 30), ElementsAre(20, 10));
}

TEST(SegmentDivision, AllProposalsAreLoweredByOneAtATime)
{
    EXPECT_THAT(Lowered({20, 10}, 31), ElementsAre(19, 9));
    EXPECT_THAT(Lowered({20, 2, 10}, 45), ElementsAre(12, 1, 2));
}

TEST(SegmentDivision, NoProposalFallsBelowOne)
{
    EXPECT_THAT(Lowered({3}, 60), ElementsAre(1));
    EXPECT_THAT(Lowered({5, 4}, 59), ElementsAre(1, 1));
}

TEST(SegmentDivision, WhatIsLeftCountsTheSegmentsStillToCome)
{
    const std::vector<CLongSegment> segments = {{3, 4}, {7, 2}};
    EXPECT_EQ(PointsLeft(20, segments), 60 - 20 - 3 - 1);
    EXPECT_EQ(PointsLeft(20, {}), 40);
}

TEST(SegmentDivision, ThereIsRoomForSixtyPoints)
{
    EXPECT_TRUE(HasRoom(55, 6));
    EXPECT_FALSE(HasRoom(55, 7));
}
