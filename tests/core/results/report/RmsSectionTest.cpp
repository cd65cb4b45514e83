#include "tests/core/results/report/CReportCase.h"
#include "tests/core/results/report/CSeasCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

#include <limits>

using testing::HasSubstr;
using testing::Not;

namespace
{
constexpr const char* kDisplacements = "<B>Displacements</B><BR>";
constexpr const char* kPeriods = "<B>Zero Crossing Periods, To</B><BR>";
constexpr const char* kAcceleration = "<B>Acceleration</B><BR>";
constexpr const char* kVertical = "<B>Vertical Components</B><BR>";
constexpr const char* kLateral = "<B>Lateral Components</B><BR>";
constexpr const char* kLongitudinal = "<B>Longitudinal Components</B><BR>";

/// Page breaks between two lines.
int BreaksBetween(const std::string& text, const char* from, const char* to)
{
    return CountOf(LinesBetween(text, from, to), kBreakLine);
}

/// One position and so many headings.
struct CHeadingsCase : CSeasCase
{
    explicit CHeadingsCase(int headings)
    {
        SetHeadings(headings);
        Add({"Bow"});
    }
};

void ExpectBreaks(int headings, int behindFirst, int behindSecond)
{
    CHeadingsCase seas(headings);
    const std::string text = seas.Section(RmsSection);
    EXPECT_EQ(BreaksBetween(text, kDisplacements, kPeriods), behindFirst) << headings;
    EXPECT_EQ(BreaksBetween(text, kPeriods, kAcceleration), behindSecond) << headings;
    EXPECT_EQ(BreaksBetween(text, kVertical, kLateral), behindFirst) << headings;
    EXPECT_EQ(BreaksBetween(text, kLateral, kLongitudinal), behindSecond) << headings;
}
} // namespace

TEST(RmsSection, WholeSectionOfOnePosition)
{
    CSeasCase seas;
    seas.Add({"Bow"});
    ExpectGolden(seas.Section(RmsSection), "report/Rms.html");
}

TEST(RmsSection, VelocityBelowOneTenThousandthGivesAPeriodOfZero)
{
    CSeasCase seas;
    seas.SetHeadings(1);
    seas.Add({"Bow"});
    seas.Fill();
    CResultsBody& body = seas.Results.Body;
    const float values[] = {0.00009F, 0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(), 0.0001F, 2.0F};
    for (int mode = 0; mode < 6; ++mode)
    {
        body.RmsCg(0, 0, 0, mode, 0) = 1;
        body.RmsCg(0, 0, 1, mode, 0) = values[mode];
    }
    body.RmsLocal(0, 0, 1, 0, 0) = 0.00009F; // vertical velocity
    body.RmsLocal(0, 0, 4, 0, 0) = 0;
    body.RmsLocal(0, 0, 7, 0, 0) = 0;
    const std::string text = seas.Section(RmsSection);
    EXPECT_THAT(LinesBetween(text, kPeriods, kAcceleration),
                HasSubstr("<TR> <TD>0</TD>\n<TD>0.0</TD>\n<TD>0.0</TD>\n<TD>0.0</TD>\n<TD>0.0</TD>\n"
                          "<TD>62832.0</TD>\n<TD>3.1</TD>\n</TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>0.0</TD> <TD>1.000</TD> <TD>0.0</TD> <TD>0.000</TD>"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>0.0</TD> <TD>4.000</TD> <TD>0.0</TD> <TD>6.000</TD> </TR>"));
    EXPECT_THAT(text, HasSubstr("<TR> <TD>0.0</TD> <TD>7.000</TD> <TD>0.0</TD> <TD>9.000</TD> </TR>"));
}

TEST(RmsSection, TenHeadingsStandOnOnePage)
{
    ExpectBreaks(10, 0, 0);
}

TEST(RmsSection, ElevenToSixteenHeadingsBreakBehindTheSecondTable)
{
    ExpectBreaks(11, 0, 1);
    ExpectBreaks(16, 0, 1);
}

TEST(RmsSection, SeventeenHeadingsBreakBehindTheFirstAndTheSecondTable)
{
    ExpectBreaks(17, 1, 1);
}

TEST(RmsSection, UpToSixteenHeadingsBreakOnTheFirstSeawayOfTheSelectionOnly)
{
    CHeadingsCase seas(16);
    seas.SetSpeeds({5, 15});
    seas.SetSeaways({1, 2});
    seas.Project.SelectedSeaways = {1, 0};
    const std::string text = seas.Section(RmsSection);
    // Eight pages, and on both speeds' first seaway one more at the centre of gravity and at the position.
    EXPECT_EQ(CountOf(text, kBreakLine), 7 + 4);
    const std::size_t firstSeaway = text.find("<B>2.00</B> meters");
    const std::size_t secondSeaway = text.find("<B>1.00</B> meters");
    ASSERT_LT(firstSeaway, secondSeaway);
    EXPECT_EQ(BreaksBetween(text.substr(firstSeaway), kPeriods, kAcceleration), 1);
    EXPECT_EQ(BreaksBetween(text.substr(secondSeaway), kPeriods, kAcceleration), 0);
    EXPECT_EQ(BreaksBetween(text.substr(secondSeaway), kLateral, kLongitudinal), 0);
}

TEST(RmsSection, SeventeenHeadingsBreakOnEverySeaway)
{
    CHeadingsCase seas(17);
    seas.SetSeaways({1, 2});
    EXPECT_EQ(CountOf(seas.Section(RmsSection), kBreakLine), 3 + 8);
}

TEST(RmsSection, PageThatGoesOnHasBannerAndFrameAgain)
{
    CHeadingsCase seas(17);
    const std::string text = seas.Section(RmsSection);
    const std::string speed =
        R"(<TR> <TD>Speed:</TD> <TD><B>15</B> knots</TD> <TD>Spectrum Name:</TD> <TD><B>JONSWAP</B></TD> </TR>)";
    EXPECT_EQ(CountOf(text, "IRREGULAR SEAS RESPONSE"), 6);
    EXPECT_EQ(CountOf(text, speed), 6);
    EXPECT_EQ(CountOf(text, "<TD>Sea State:</TD>"), 6);
    EXPECT_EQ(CountOf(text, "<TD>Label:</TD> <TD><B>Bow</B></TD>"), 3);
    EXPECT_EQ(CountOf(text, "RMS Data: Centre of Gravity"), 1);
    EXPECT_EQ(CountOf(text, "RMS Data: Local Output"), 1);
}

TEST(RmsSection, WithoutPositionsNothingStandsBehindTheAccelerations)
{
    CSeasCase seas;
    const std::string text = seas.Section(RmsSection);
    EXPECT_EQ(CountOf(text, kBreakLine), 0);
    EXPECT_THAT(text, Not(HasSubstr("Local Output")));
    EXPECT_THAT(text, HasSubstr("</TR>\n</TABLE>\n</td></tr></TABLE><BR>\n<BR><b><i>"));
}

TEST(RmsSection, HeadingsAbove180HaveRows)
{
    CSeasCase seas;
    seas.SetHeadings(36);
    seas.Results.Body.Headings[35] = 270;
    EXPECT_EQ(CountOf(seas.Section(RmsSection), "<TR> <TD>270</TD>\n"), 3);
}

TEST(RmsSection, SeasAreNamedByTheAngleThenByTheSpectrum)
{
    const auto expect = [](int kind, float angle, const char* name)
    {
        CSeasCase seas;
        seas.Add({"Bow"});
        seas.Results.Head.SpectrumKind = kind;
        seas.Results.Head.SpreadAngle = angle;
        seas.RowsOfPositions = 13;
        const std::string text = seas.Section(RmsSection);
        EXPECT_EQ(CountOf(text, std::string("RMS RESPONSES - ") + name + "</B></CENTER>\n"), 2);
        EXPECT_THAT(text, HasSubstr(std::string("<B>RMS Data: Centre of Gravity - ") + name + "</B><BR>\n"));
        EXPECT_THAT(text, HasSubstr(std::string("<B>RMS Data: Local Output - ") + name + "</B><BR>\n"));
    };
    expect(3, 0, "Unidirectional Seas");
    expect(5, 0, "Unidirectional Seas");
    expect(6, 0, "Directional Seas");
    expect(8, -1, "Directional Seas");
    expect(3, 90, "Short-Crested Seas");
    expect(6, 90, "Short-Crested Seas");
}

TEST(RmsSection, UnitsFollowTheOutputSystem)
{
    CSeasCase seas;
    seas.Add({"Bow"});
    seas.Results.Input->OUTSYS.Set(0);
    const std::string text = seas.Section(RmsSection);
    EXPECT_THAT(text,
                HasSubstr("<TR> <TD>(Deg.)</TD> <TD>(ft)</TD><TD>(ft)</TD> <TD>(ft)</TD> <TD>(Deg.)</TD>"));
    EXPECT_THAT(text, HasSubstr("<TD>(ft)</TD><TD>(sec)</TD> <TD>(ft/s)</TD> <TD>(g)</TD>"));
    EXPECT_THAT(
        text,
        HasSubstr("<TD><B>1.25</B> feet</TD> <TD>Vertical Position, Z:</TD> <TD><B>-3.50</B> feet</TD>"));
    EXPECT_THAT(text, Not(HasSubstr("(m")));
}
