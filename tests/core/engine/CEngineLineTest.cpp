#include "core/engine/CEngineLine.h"

#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace
{
struct CLines
{
    CEngineLine British{CEngineUnits(0)};
    CEngineLine Metric{CEngineUnits(1)};
};

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
} // namespace

TEST(EngineLine, ValuesAreSeparatedByOneBlank)
{
    CLines lines;
    EXPECT_EQ(lines.Metric.Word("A").Integer(3).Value(1.5F, 0, kPlain3).Text(), "A 3 1.500");
}

TEST(EngineLine, AnEmptyWordIsAWord)
{
    CLines lines;
    EXPECT_EQ(lines.Metric.Word("").Text(), "");
    EXPECT_EQ(lines.Metric.Word("B").Text(), " B");
}

TEST(EngineLine, CarriageReturnsAreDropped)
{
    CLines lines;
    EXPECT_EQ(lines.Metric.Word("a\rb\r").Text(), "ab");
}

TEST(EngineLine, RestartForgetsTheLine)
{
    CLines lines;
    lines.Metric.Word("A");
    EXPECT_EQ(lines.Metric.Restart().Word("B").Text(), "B");
}

TEST(EngineLine, ABlankEndsTheLine)
{
    CLines lines;
    EXPECT_EQ(lines.Metric.Integer(1).Blank().Text(), "1 ");
}

TEST(EngineLine, AValueIsRoundedInItsStoredUnitBeforeItIsConverted)
{
    CLines lines;
    // 1.005 m is 3.2972 ft, but as "1.00" m it is 3.2808 ft.
    EXPECT_EQ(lines.British.Value(1.00499F, 0, kLength2).Text(), "3.30");
    EXPECT_EQ(lines.British.Restart().Value(1.00499F, 0, kRoundedLength2).Text(), "3.28");
}

TEST(EngineLine, AValueRoundedFirstBecomesSinglePrecisionAgain)
{
    CLines lines;
    const double rounded = static_cast<float>(9999.99);
    std::string expected;
    AppendFixed(expected, rounded * static_cast<double>(3.28084F), "%.2f");
    EXPECT_EQ(lines.British.Value(9999.994F, 0, kRoundedLength2).Text(), expected);
}

TEST(EngineLine, AValueThatIsNotConvertedReadsTheSameWhetherRoundedFirstOrNot)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> exponent(-20, 60);
    std::uniform_real_distribution<float> mantissa(-1, 1);
    const auto twice = [](float value, CFixedFormat format)
    { return FixedText(static_cast<float>(NumberAtStart(FixedText(value, format))), format); };
    for (int i = 0; i < 200000; ++i)
    {
        const float value = mantissa(random) * std::exp2(exponent(random));
        ASSERT_EQ(twice(value, "%.2f"), FixedText(value, "%.2f")) << value;
        ASSERT_EQ(twice(value, "%.3f"), FixedText(value, "%.3f")) << value;
        ASSERT_EQ(twice(value, "%.4f"), FixedText(value, "%.4f")) << value;
    }
    for (const float value :
         {131071.99F, 131072.0F, 131071.995F, 16383.999F, 0.005F, -0.001F, 2048.0F, 2047.99994F,
          std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min(),
          std::numeric_limits<float>::infinity()})
    {
        EXPECT_EQ(twice(value, "%.2f"), FixedText(value, "%.2f"));
        EXPECT_EQ(twice(value, "%.3f"), FixedText(value, "%.3f"));
    }
}

TEST(EngineLine, AFieldConvertsByItsOwnUnit)
{
    CLines lines;
    CParamArray metres(2);
    metres.Fill(2);
    CParamArray feet(2);
    feet.Fill(2);
    feet.unit = 1;
    EXPECT_EQ(lines.Metric.Values({&metres, &feet}, kLength3, 1).Text(), "2.000 0.610");
    EXPECT_EQ(lines.British.Values({&metres, &feet}, kLength3, 1).Text(), "6.562 2.000");
}

TEST(EngineLine, MassesAndInverseLengths)
{
    CLines lines;
    EXPECT_EQ(lines.British.Value(1000, 0, kMass3).Value(1, 0, kInverseLength3).Text(), "984.206 0.305");
    EXPECT_EQ(lines.Metric.Value(1000, 1, kMass3).Value(1, 1, kInverseLength3).Text(), "1016.047 3.281");
}

TEST(EngineLine, InsteadLooksAtTheLastWordAlone)
{
    CLines lines;
    lines.Metric.Value(-1, 0, kPlain2).Value(-1, 0, kPlain2).Instead("-1.00", "0.00");
    EXPECT_EQ(lines.Metric.Text(), "-1.00 0.00");
    EXPECT_EQ(lines.Metric.Instead("-1.00", "?").Text(), "-1.00 0.00");
}

TEST(EngineLine, ACountIsWrittenWithoutDecimals)
{
    CLines lines;
    CParamArray count(1);
    count.Set(-1);
    lines.Metric.Count(count, 10);
    count.Set(2.6F);
    EXPECT_EQ(lines.Metric.Count(count, 10).Text(), "-1 3");
}

TEST(EngineLine, ACountThatTheArrayCanNotHoldIsTheArrays)
{
    CLines lines;
    CParamArray count(1);
    for (const float hostile : {12.0F, 10.4F, 1e30F, std::numeric_limits<float>::infinity()})
    {
        count.Set(hostile);
        EXPECT_EQ(lines.Metric.Restart().Count(count, 10).Text(), "10");
    }
    count.Set(-5);
    EXPECT_EQ(lines.Metric.Restart().Count(count, 10).Text(), "-5");
    count.Set(kNaN);
    EXPECT_EQ(lines.Metric.Restart().Count(count, 10).Text(), "nan");
}

TEST(EngineLine, AListIsASliceOfAField)
{
    CLines lines;
    CParamArray field(4);
    for (int i = 0; i < 4; ++i)
    {
        field.Set(i, static_cast<float>(i));
    }
    EXPECT_EQ(lines.Metric.List(Slice(field, 1, 2), 0, kPlain2).Text(), "1.00 2.00");
    EXPECT_EQ(lines.Metric.Restart().List(Slice(field, 4, 0), 0, kPlain2).Text(), "");
}
