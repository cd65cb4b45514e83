#include "core/results/CResultsCursor.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
/// 1.5F, the integer -2, "Bow Deck" in twelve bytes.
const std::string kBytes("\x00\x00\xC0\x3F\xFE\xFF\xFF\xFF"
                         "Bow Deck\0\0\0\0",
                         20);

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
} // namespace

TEST(ResultsCursor, ValuesAreLittleEndianAndTextsEndAtTheirFirstBlank)
{
    CResultsCursor cursor(kBytes);
    EXPECT_EQ(cursor.Float(), 1.5F);
    EXPECT_EQ(cursor.PeekInteger(), -2);
    EXPECT_EQ(cursor.Integer(), -2);
    EXPECT_EQ(cursor.Text(12), "Bow");
    EXPECT_EQ(cursor.Position(), 20U);
}

TEST(ResultsCursor, ATextEndsAtItsFirstZeroToo)
{
    EXPECT_EQ(CResultsCursor(kBytes, 12).Text(8), "Deck");
    EXPECT_EQ(CResultsCursor(kBytes, 11).Text(8), "");
    EXPECT_EQ(CResultsCursor(kBytes, 12).Text(4), "Deck");
}

TEST(ResultsCursor, NothingBehindTheEndIsRead)
{
    CResultsCursor cursor(kBytes, 17);
    EXPECT_THROW(cursor.Float(), CResultsError);
    EXPECT_THROW(cursor.Integer(), CResultsError);
    EXPECT_THROW(cursor.PeekInteger(), CResultsError);
    EXPECT_THROW(cursor.Text(4), CResultsError);
    EXPECT_THROW(cursor.Skip(4), CResultsError);
    EXPECT_THROW(cursor.Skip(std::numeric_limits<std::size_t>::max()), CResultsError);
    EXPECT_THROW(cursor.Rows(1, 1), CResultsError);
    EXPECT_THROW(cursor.Rows(std::numeric_limits<int>::max(), std::numeric_limits<int>::max()),
                 CResultsError);
    EXPECT_EQ(cursor.Position(), 17U);
    cursor.Skip(3);
    EXPECT_EQ(cursor.Position(), 20U);
    EXPECT_EQ(cursor.Text(0), "");
}

TEST(ResultsCursor, AMoveOutsideTheFileIsRefused)
{
    CResultsCursor cursor(kBytes);
    EXPECT_THROW(cursor.Seek(-1), CResultsError);
    EXPECT_THROW(cursor.Seek(21), CResultsError);
    EXPECT_THROW(CResultsCursor(kBytes, 21), CResultsError);
    cursor.Seek(20);
    EXPECT_EQ(cursor.Position(), 20U);
}

TEST(ResultsCursor, CountsAreTruncatedAndNeverNegative)
{
    EXPECT_EQ(CheckedCount(10.9F, 10), 10);
    EXPECT_EQ(CheckedCount(-0.5F, 10), 0);
    EXPECT_EQ(CheckedCount(-7.0F, 10), 0);
    EXPECT_EQ(CheckedCount(-2147483648.0F, 10), 0);
    EXPECT_EQ(CheckedCount(10, 10), 10);
    EXPECT_EQ(CheckedCount(std::numeric_limits<int>::min(), 10), 0);
    EXPECT_EQ(CResultsCursor(kBytes).FloatCount(1), 1);
    EXPECT_EQ(CResultsCursor(kBytes, 4).Count(1), 0);
}

TEST(ResultsCursor, ACountThatCannotBeIsAnError)
{
    EXPECT_THROW(CheckedCount(11.0F, 10), CResultsError);
    EXPECT_THROW(CheckedCount(11, 10), CResultsError);
    EXPECT_THROW(CheckedCount(2147483648.0F, std::numeric_limits<int>::max()), CResultsError);
    EXPECT_THROW(CheckedCount(-1e20F, 10), CResultsError);
    EXPECT_THROW(CheckedCount(kNotANumber, 10), CResultsError);
    EXPECT_THROW(CheckedCount(kInfinite, 10), CResultsError);
    EXPECT_THROW(CheckedCount(-kInfinite, 10), CResultsError);
    EXPECT_THROW(CResultsCursor(kBytes).FloatCount(0), CResultsError);
}

TEST(ResultsCursor, RowsAreTheFloatsAsTheyStand)
{
    const std::string bytes =
        "x" + std::string("\x00\x00\x80\x3F\x00\x00\x00\x40\x00\x00\x40\x40\x00\x00\x80\x40", 16);
    CResultsCursor cursor(bytes, 1);
    const CFloatRows rows = cursor.Rows(2, 2);
    EXPECT_EQ(rows.Count(), 2);
    EXPECT_EQ(rows.Width(), 2);
    EXPECT_EQ(rows.At(0, 1), 2.0F);
    EXPECT_EQ(rows.At(1, 0), 3.0F);
    EXPECT_EQ(cursor.Position(), 17U);
}
