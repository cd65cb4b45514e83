#include "core/project/FieldChecks.h"

#include "tests/support/CRecorder.h"

#include <cmath>
#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// The message for a value that is out of range; empty without one.
std::string RangeMessage(float minimum, float maximum, int mode)
{
    CRecorder recorder;
    const int refused = CheckRange(recorder, minimum, maximum, maximum + 1, mode, "Draft");
    EXPECT_EQ(refused, recorder.Messages.empty() ? 0 : 1);
    return recorder.Messages.empty() ? "" : recorder.Messages.front();
}
} // namespace

TEST(FieldChecks, AValueEqualToALimitPasses)
{
    CRecorder recorder;
    for (const float value : {0.2F, 20.0F, 5.0F})
    {
        EXPECT_EQ(CheckRange(recorder, 0.2F, 20.0F, value, kTwoDecimals, "Frequency"), 0);
    }
    EXPECT_THAT(recorder.Messages, IsEmpty());
    EXPECT_EQ(recorder.Beeps, 0);
}

TEST(FieldChecks, AValueBeyondALimitIsRefusedWithAStopMessage)
{
    CRecorder recorder;
    EXPECT_EQ(CheckRange(recorder, 0.2F, 20.0F, std::nextafter(0.2F, 0.0F), kTwoDecimals, "Frequency"), 1);
    EXPECT_EQ(CheckRange(recorder, 0.2F, 20.0F, std::nextafter(20.0F, 30.0F), kTwoDecimals, "Speed"), 1);
    EXPECT_THAT(recorder.Messages,
                ElementsAre("Frequency: Min. = 0.20   Max. = 20.00", "Speed: Min. = 0.20   Max. = 20.00"));
    EXPECT_THAT(recorder.Icons, ElementsAre(EIcon::Stop, EIcon::Stop));
    EXPECT_EQ(recorder.Beeps, 0);
}

TEST(FieldChecks, TheModeSetsTheDecimalsOfTheMinimum)
{
    EXPECT_EQ(RangeMessage(0.123456789F, 20, 1), "Draft: Min. = 0.12   Max. = 20.00");
    EXPECT_EQ(RangeMessage(0.123456789F, 20, 3), "Draft: Min. = 0.1235   Max. = 20.00");
    EXPECT_EQ(RangeMessage(0.123456789F, 20, 4), "Draft: Min. = 0.12346   Max. = 20.00");
    EXPECT_EQ(RangeMessage(0.123456789F, 20, 5), "Draft: Min. = 0.123457   Max. = 20.00");
}

TEST(FieldChecks, ModeTwoShowsTheHalvesOfTheMinimumsBits)
{
    EXPECT_EQ(RangeMessage(0, 10, 2), "Draft: Min. = 0   Max. = 0");
    EXPECT_EQ(RangeMessage(1, 10, 2), "Draft: Min. = 0   Max. = 1072693248");
    EXPECT_EQ(RangeMessage(-1, 10, 2), "Draft: Min. = 0   Max. = -1074790400");
    EXPECT_EQ(RangeMessage(0.2F, 10, 2), "Draft: Min. = -1610612736   Max. = 1070176665");
}

TEST(FieldChecks, AnyOtherModeChecksNothing)
{
    for (const int mode : {0, 6, -1, 100})
    {
        EXPECT_EQ(RangeMessage(0, 10, mode), "") << mode;
    }
}

TEST(FieldChecks, WhatIsNoNumberIsOutOfRange)
{
    CRecorder recorder;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(CheckRange(recorder, 0, 10, nan, kTwoDecimals, "Draft"), 1);
    EXPECT_EQ(CheckRange(recorder, 0, 10, std::numeric_limits<float>::infinity(), kTwoDecimals, "Draft"), 1);
    EXPECT_EQ(recorder.Messages.size(), 2U);
}

TEST(FieldChecks, InvertedLimitsPassNothing)
{
    EXPECT_EQ(RangeMessage(0, -1000, 1), "Draft: Min. = 0.00   Max. = -1000.00");
}

TEST(FieldChecks, AValueThatIsntEnteredIsAskedFor)
{
    CRecorder recorder;
    EXPECT_TRUE(CheckEntered(recorder, -1.0F, "KG"));
    EXPECT_THAT(recorder.Messages, ElementsAre("Enter a value: Please enter a value for KG"));
    EXPECT_THAT(recorder.Icons, ElementsAre(EIcon::Stop));
}

TEST(FieldChecks, OnlyExactlyMinusOneIsNotEntered)
{
    CRecorder recorder;
    for (const float value : {0.0F, 1.0F, -1.0001F, std::nextafter(-1.0F, 0.0F), -99.0F, -111111.0F})
    {
        EXPECT_FALSE(CheckEntered(recorder, value, "KG")) << value;
    }
    EXPECT_THAT(recorder.Messages, IsEmpty());
}
