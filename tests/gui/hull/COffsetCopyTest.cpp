#include "gui/hull/COffsetCopy.h"

#include "core/project/UnitFactors.h"
#include "tests/gui/hull/CHull.h"

#include <gmock/gmock.h>
#include <random>

using testing::ElementsAre;
using testing::FloatEq;

namespace
{
/// A hull of random sections, with gaps.
struct CRandomHull : CHull
{
    CRandomHull(unsigned seed, int stations, int origin) : CHull(stations, origin)
    {
        std::mt19937 random(seed);
        std::uniform_int_distribution<int> thousandths(-900, 99999);
        for (int slot = 0; slot < kMaxStations * kMaxOffsets; ++slot)
        {
            const bool isGiven = random() % 4 != 0;
            Project.YAUSER.Set(slot, isGiven ? std::abs(Random(thousandths, random)) : kNotGiven);
            Project.ZAUSERBL.Set(slot, isGiven ? Random(thousandths, random) : kNotGiven);
        }
    }

    static float Random(std::uniform_int_distribution<int>& thousandths, std::mt19937& random)
    {
        return static_cast<float>(thousandths(random)) / 1000;
    }
};

/// The project's stations in use, whole.
std::vector<float> InUse(const CProjectData& project)
{
    const auto count = static_cast<std::ptrdiff_t>(project.WorkingStationCount * kMaxOffsets);
    std::vector<float> all(project.YAUSER.data.begin(), project.YAUSER.data.begin() + count);
    all.insert(all.end(), project.ZAUSERBL.data.begin(), project.ZAUSERBL.data.begin() + count);
    return all;
}
} // namespace

TEST(OffsetCopy, KeepsTheProjectsOrderWithStationZeroForward)
{
    const CHull hull(11, 0);
    const COffsetCopy copy(hull.Project, 11);
    EXPECT_EQ(copy.Y(3, 5), hull.Y(3, 5));
    EXPECT_EQ(copy.FromForward(3), 3);
}

TEST(OffsetCopy, HoldsTheStationsReversedWithStationZeroAft)
{
    const CHull hull(11, 1);
    const COffsetCopy copy(hull.Project, 11);
    EXPECT_EQ(copy.Y(3, 5), hull.Y(7, 5));
    EXPECT_EQ(copy.Z(0, 4), hull.Z(10, 4));
    EXPECT_EQ(copy.FromForward(3), 7);
}

TEST(OffsetCopy, StoredUneditedItChangesNothing)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        const std::vector<float> before = hull.Project.YAUSER.data;
        EXPECT_FALSE(COffsetCopy(hull.Project, 11).Store(hull.Project));
        EXPECT_EQ(hull.Project.YAUSER.data, before);
        EXPECT_EQ(hull.Project.YAUSER.changed, 0);
        EXPECT_EQ(hull.Project.NOFFUSER.changed, 0);
    }
}

TEST(OffsetCopy, StoreMarksTheFieldsThatChange)
{
    CHull hull(11, 1);
    COffsetCopy copy(hull.Project, 11);
    copy.Set(0, 5, copy.Y(0, 5), 9);
    EXPECT_TRUE(copy.Store(hull.Project));
    EXPECT_EQ(hull.Z(10, 5), 9);
    EXPECT_EQ(hull.Project.YAUSER.changed, 0);
    EXPECT_EQ(hull.Project.ZAUSERBL.changed, 1);
    EXPECT_EQ(hull.Project.NOFFUSER.changed, 0);
}

TEST(OffsetCopy, StoreCountsThePointsAndDoesNotPackTheRows)
{
    CHull hull;
    COffsetCopy copy(hull.Project, 11);
    copy.Set(2, 3, kNotGiven, 1);
    copy.Set(2, 59, 7, 8);
    copy.Set(2, 10, 7, 8);
    copy.Store(hull.Project);
    EXPECT_EQ(hull.Project.NOFFUSER.Value(2), 7);
    EXPECT_EQ(hull.Y(2, 4), copy.Y(2, 4));
    EXPECT_EQ(hull.Y(2, 59), 7);
}

TEST(OffsetCopy, ConvertLeavesAloneWhatIsNotGiven)
{
    const CHull hull;
    COffsetCopy copy(hull.Project, 11);
    copy.Convert();
    EXPECT_EQ(copy.Unit(), kUnitBritish);
    EXPECT_EQ(copy.Y(0, 5), 5 * kFeetPerMetre);
    EXPECT_EQ(copy.Y(0, 6), kNotGiven);
    copy.Convert();
    EXPECT_EQ(copy.Unit(), kUnitMetric);
    EXPECT_THAT(copy.Y(0, 5), FloatEq(5));
}

TEST(OffsetCopy, DiffersByTheTextsOnTheScreen)
{
    const CHull hull;
    const COffsetCopy original(hull.Project, 11);
    COffsetCopy copy = original;
    copy.Set(4, 1, copy.Y(4, 1) + 0.0001F, copy.Z(4, 1));
    EXPECT_FALSE(copy.ShowsOther(original));
    copy.Set(4, 1, copy.Y(4, 1), copy.Z(4, 1) + 0.001F);
    EXPECT_TRUE(copy.ShowsOther(original));
}

TEST(OffsetCopy, ADividedSegmentHasEqualPieces)
{
    const CHull hull;
    COffsetCopy copy(hull.Project, 11);
    EXPECT_EQ(copy.Divide(0, 4, 4), 4);
    EXPECT_EQ(copy.PointCount(0), 9);
    for (int row = 4; row <= 8; ++row)
    {
        EXPECT_THAT(copy.Y(0, row), FloatEq(4 + static_cast<float>(row - 4) * 0.25F));
        EXPECT_THAT(copy.Z(0, row), FloatEq(2.5F + static_cast<float>(row - 4) * 0.375F));
    }
    EXPECT_EQ(copy.Y(0, 9), kNotGiven);
    EXPECT_EQ(copy.Y(1, 0), 0);
}

TEST(OffsetCopy, ADivisionLosesNoPoint)
{
    const CHull hull;
    COffsetCopy copy(hull.Project, 11);
    copy.Set(0, 57, 6, 6);
    EXPECT_EQ(copy.Divide(0, 0, 10), 3);
    EXPECT_EQ(copy.Y(0, 59), 6);
    EXPECT_EQ(copy.PointCount(0), 9);
    EXPECT_EQ(copy.Divide(0, 0, 2), 0);
    EXPECT_EQ(copy.PointCount(0), 9);
    EXPECT_EQ(copy.Divide(1, 0, 1), 0);
    EXPECT_EQ(copy.Divide(1, 0, -3), 0);
    EXPECT_EQ(copy.PointCount(1), 6);
}

TEST(OffsetCopy, AStationThatIsInsertedAndDeletedGivesTheHullBack)
{
    for (unsigned seed = 0; seed < 8; ++seed)
    {
        for (const int origin : {0, 1})
        {
            const int stations = 2 + static_cast<int>(seed * 5 % 19);
            CRandomHull hull(seed, stations, origin);
            const std::vector<float> before = InUse(hull.Project);
            for (int station = 0; station < stations; ++station)
            {
                COffsetCopy copy(hull.Project, stations);
                copy.InsertStation(station);
                ASSERT_EQ(copy.StationCount(), stations + 1);
                EXPECT_EQ(copy.PointCount(station), 0);
                copy.DeleteStation(station);
                copy.Store(hull.Project);
                ASSERT_EQ(InUse(hull.Project), before) << station << " of " << stations << ", " << origin;
            }
        }
    }
}

TEST(OffsetCopy, AnInsertedStationMovesThoseBehindItOnTheScreen)
{
    for (const int origin : {0, 1})
    {
        CHull hull(11, origin);
        COffsetCopy copy(hull.Project, 11);
        const float second = copy.Y(2, 5);
        const float third = copy.Y(3, 5);
        const float last = copy.Y(10, 5);
        copy.InsertStation(3);
        EXPECT_EQ(copy.Y(2, 5), second);
        EXPECT_EQ(copy.PointCount(3), 0);
        EXPECT_EQ(copy.Y(4, 5), third);
        EXPECT_EQ(copy.Y(11, 5), last);
        copy.Store(hull.Project);
        EXPECT_EQ(hull.Y(origin == 0 ? 11 : 0, 5), last);
        EXPECT_EQ(hull.Project.NOFFUSER.Value(origin == 0 ? 3 : 8), 0);
    }
}

TEST(OffsetCopy, TakesAStationInItsOwnUnit)
{
    const CHull hull;
    const COffsetCopy original(hull.Project, 11);
    COffsetCopy copy = original;
    copy.ClearStation(0);
    EXPECT_EQ(copy.PointCount(0), 0);
    copy.Convert();
    copy.TakeStation(0, original);
    EXPECT_EQ(copy.Y(0, 1), kFeetPerMetre);
    EXPECT_EQ(copy.Y(0, 6), kNotGiven);
    copy.CopyStation(0, 5);
    EXPECT_EQ(copy.Y(5, 1), kFeetPerMetre);
}

TEST(OffsetCopy, RowsAreSwappedWhole)
{
    const CHull hull;
    COffsetCopy copy(hull.Project, 11);
    copy.SwapRows(0, 2);
    EXPECT_THAT((std::vector{copy.Y(0, 2), copy.Z(0, 2), copy.Y(0, 3), copy.Z(0, 3)}),
                ElementsAre(3, 1.25F, 2, 0.5F));
}
