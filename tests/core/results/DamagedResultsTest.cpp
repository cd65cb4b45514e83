// Results files that hold anything: the reader gives up with its own error, and with nothing else.
#include "core/results/CResultsCursor.h"
#include "core/results/CalculatedArrays.h"
#include "tests/support/CMadeResults.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace
{
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr int kGreatest = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

template <class Arrays>
void Walk(const CResults& results)
{
    Arrays arrays(results);
    WalkCalculated(results, arrays);
}

/// Reads all that there is. True if the file could be read to its end.
bool IsRead(const std::string& bytes)
{
    try
    {
        const CResults results = ReadResults(bytes);
        Walk<CFrequencyArrays>(results);
        Walk<CDampingArrays>(results);
        Walk<CSlammingArrays>(results);
        Walk<CInterruptionArrays>(results);
        Walk<CSicknessArrays>(results);
        Walk<CLoadRmsArrays>(results);
        return true;
    }
    catch (const CResultsError&)
    {
        return false;
    }
}

/// A small file that has everything.
CMadeResults Small()
{
    CMadeResults made;
    made.StationCount = 2;
    made.LoadStationCount = 1;
    made.Speeds = {10};
    made.Headings = {90, 270};
    made.SeawayCount = 1;
    made.FreqCount = 2;
    made.Positions = {{1, 1, 1, "Bow"}, {2, 0, 0, "Keel"}, {5, 0, 0, "Mast"}};
    return made;
}

template <class Value>
std::string With(std::string bytes, std::size_t place, Value value)
{
    static_assert(sizeof value == 4);
    std::memcpy(&bytes[place], &value, sizeof value);
    return bytes;
}
} // namespace

TEST(DamagedResults, AFileThatIsCutAnywhereIsAnError)
{
    const std::string bytes = Small().Bytes();
    ASSERT_TRUE(IsRead(bytes));
    for (std::size_t length = 0; length < bytes.size(); ++length)
    {
        EXPECT_FALSE(IsRead(bytes.substr(0, length))) << length;
    }
}

TEST(DamagedResults, AFileThatIsCutInFrontOfItsTrailerIsAnError)
{
    CMadeResults made = Small();
    const std::string bytes = made.Bytes();
    const std::string trailer = bytes.substr(bytes.size() - 20);
    for (std::size_t length = 0; length < bytes.size() - 20; ++length)
    {
        const std::string cut = bytes.substr(0, length) + trailer;
        // The last 20 bytes of the section may be those of the trailer.
        EXPECT_FALSE(length + 20 < bytes.size() - 20 && IsRead(cut)) << length;
        IsRead(cut);
    }
}

TEST(DamagedResults, ACountBeyondItsBoundIsAnError)
{
    CMadeResults made = Small();
    const std::string bytes = made.Bytes();
    ASSERT_EQ(made.IntegerCounts.size(), 10U);
    ASSERT_GE(made.FloatCounts.size(), 14U);
    for (const std::size_t place : made.IntegerCounts)
    {
        for (const int count : {kGreatest, 1 << 30, 61})
        {
            EXPECT_FALSE(IsRead(With(bytes, place, count))) << place << ": " << count;
        }
    }
    for (const std::size_t place : made.FloatCounts)
    {
        for (const float count : {1e9F, 3e38F, 61.0F, kNoNumber, kInfinite, -kInfinite, -3e38F})
        {
            EXPECT_FALSE(IsRead(With(bytes, place, count))) << place << ": " << count;
        }
    }
}

TEST(DamagedResults, ANegativeCountIsNone)
{
    CMadeResults made;
    made.SeawayCount = 0;
    made.Positions.clear();
    made.LoadStationCount = 0;
    made.LoadFlag = 1;
    std::string bytes = made.Bytes();
    for (const std::size_t place : made.IntegerCounts)
    {
        int count = -1;
        std::memcpy(&count, &bytes[place], sizeof count);
        bytes = count == 0 ? With(bytes, place, -1) : bytes;
    }
    const CResults results = ReadResults(bytes);
    EXPECT_EQ(results.Head.LoadStationCount, 0);
    EXPECT_EQ(results.Body.PositionCount, 0);
    EXPECT_EQ(results.Body.SeawayCount, 0);
    EXPECT_TRUE(IsRead(bytes));
}

TEST(DamagedResults, ACountOfMinusOneEndsNothing)
{
    CMadeResults made = Small();
    const std::string bytes = made.Bytes();
    for (const std::size_t place : made.IntegerCounts)
    {
        IsRead(With(bytes, place, -1));
        IsRead(With(bytes, place, kLeast));
    }
    for (const std::size_t place : made.FloatCounts)
    {
        IsRead(With(bytes, place, -1.0F));
    }
}

TEST(DamagedResults, APlaceOutsideTheFileIsAnError)
{
    const std::string bytes = Small().Bytes();
    const int size = static_cast<int>(bytes.size());
    for (const std::size_t pointer : {size_t{12}, size_t{8}, size_t{4}})
    {
        for (const int place : {-1, kLeast, kGreatest, size, size + 1, size - 3})
        {
            EXPECT_FALSE(IsRead(With(bytes, bytes.size() - pointer, place))) << pointer << ": " << place;
        }
    }
}

TEST(DamagedResults, APlaceAnywhereInTheFileEndsNothing)
{
    const std::string bytes = Small().Bytes();
    for (const std::size_t pointer : {size_t{12}, size_t{8}, size_t{4}})
    {
        for (int place = 0; place < static_cast<int>(bytes.size()); place += 7)
        {
            IsRead(With(bytes, bytes.size() - pointer, place));
        }
    }
}

TEST(DamagedResults, AnyWordMayHoldAnything)
{
    const std::string bytes = Small().Bytes();
    for (std::size_t place = 0; place + 4 <= bytes.size(); place += 4)
    {
        IsRead(With(bytes, place, -1));
        IsRead(With(bytes, place, kGreatest));
        IsRead(With(bytes, place, 26));
        IsRead(With(bytes, place, 9.0F));
        IsRead(With(bytes, place, kNoNumber));
    }
}

TEST(DamagedResults, FewerSpeedsInTheBodyThanInTheControlSectionAreAnError)
{
    CMadeResults made;
    const std::string bytes = made.Bytes();
    // Speeds come third of the integers: stations, load stations, positions, speeds.
    EXPECT_FALSE(IsRead(With(bytes, made.IntegerCounts[3], 1)));
}

TEST(DamagedResults, CountsThatTheFileHasNoRoomForAllocateNothing)
{
    CMadeResults made = Small();
    std::string bytes = made.Bytes();
    for (const auto& [index, count] : {std::pair(5, 10), std::pair(6, 60)}) // seaways, frequencies
    {
        EXPECT_FALSE(IsRead(With(bytes, made.IntegerCounts[static_cast<std::size_t>(index)], count)));
    }
}
