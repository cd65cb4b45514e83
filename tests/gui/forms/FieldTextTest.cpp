#include "gui/forms/FieldText.h"

#include "core/project/UnitFactors.h"

#include <cmath>

#include <gtest/gtest.h>

TEST(FieldText, IsTheValueThroughItsFormat)
{
    EXPECT_EQ(FieldText(12.345F, "%.2f"), "12.35"); // as a float a little above
    EXPECT_EQ(FieldText(0, "%.3f"), "0.000");
    EXPECT_EQ(FieldText(100000, "%.4f"), "100000.0000");
}

TEST(FieldText, IsEmptyWhereNotGiven)
{
    EXPECT_EQ(FieldText(-1, "%.2f"), "");
    EXPECT_EQ(FieldText(-99, "%.2f", kAngleNotGiven), "");
    EXPECT_EQ(FieldText(-111111, "%.4f", kGainNotGiven), "");
    EXPECT_EQ(FieldText(-1, "%.2f", kAngleNotGiven), "-1.00");
}

TEST(FieldText, IsEmptyForAllThatReadsAsTheSentinel)
{
    EXPECT_EQ(FieldText(-1.004F, "%.2f"), "");
    EXPECT_EQ(FieldText(-0.996F, "%.2f"), "");
    EXPECT_EQ(FieldText(-1.004F, "%.3f"), "-1.004");
}

TEST(FieldText, KeepsANegativeZero)
{
    EXPECT_EQ(FieldText(-0.001F, "%.2f"), "-0.00");
}

TEST(FieldValue, OfAnEmptyTextOrOneBlankIsTheSentinel)
{
    EXPECT_EQ(FieldValue(""), -1);
    EXPECT_EQ(FieldValue(" "), -1);
    EXPECT_EQ(FieldValue(" ", kAngleNotGiven), -99);
}

TEST(FieldValue, OfTwoBlanksIsZero)
{
    EXPECT_EQ(FieldValue("  "), 0);
    EXPECT_EQ(FieldValue("\t"), 0);
}

TEST(FieldValue, IsTheNumberAtTheBeginningAsAFloat)
{
    EXPECT_EQ(FieldValue("12.5 m"), 12.5F);
    EXPECT_EQ(FieldValue("  7"), 7);
    EXPECT_EQ(FieldValue("abc"), 0);
    EXPECT_EQ(FieldValue("12,5"), 12);
    EXPECT_EQ(FieldValue("1e2"), 100);
    EXPECT_EQ(FieldValue("0.2"), 0.2F);
    EXPECT_EQ(FieldValue("0x10"), 16);
    EXPECT_TRUE(std::isnan(FieldValue("nan")));
    EXPECT_GT(FieldValue("inf"), 1e38F);
}

TEST(ConvertedText, IsTheProductInSinglePrecision)
{
    EXPECT_EQ(ConvertedText("1000", kLongTonsPerTonne, "%.3f"), "984.206");
    EXPECT_EQ(ConvertedText("100", kMetresPerFoot, "%.2f"), "30.48");
    EXPECT_EQ(ConvertedText("10 m", kFeetPerMetre, "%.3f"), "32.808");
    EXPECT_EQ(ConvertedText("abc", kFeetPerMetre, "%.3f"), "0.000");
    EXPECT_EQ(ConvertedText("  ", kFeetPerMetre, "%.2f"), "0.00");
    EXPECT_EQ(ConvertedText("-0.001", kFeetPerMetre, "%.2f"), "-0.00");
}

TEST(ConvertedText, LeavesWhatIsNotGiven)
{
    for (const char* text : {"", " ", "-1", "-1.00", "-1.0000000001"})
    {
        EXPECT_EQ(ConvertedText(text, kFeetPerMetre, "%.2f"), text);
    }
    EXPECT_EQ(ConvertedText("-1.01", kFeetPerMetre, "%.2f"), "-3.31");
    EXPECT_EQ(ConvertedText("-1", kFeetPerMetre, "%.2f", kAngleNotGiven), "-3.28");
}

TEST(ConvertedText, MayBecomeTheSentinelsTextAndStaysSo)
{
    const std::string metres = ConvertedText("-3.28", kMetresPerFoot, "%.2f");
    EXPECT_EQ(metres, "-1.00");
    EXPECT_EQ(ConvertedText(metres, kFeetPerMetre, "%.2f"), "-1.00");
}
