#include "tests/core/results/report/CReportCase.h"
#include "tests/core/results/report/CSeasCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

TEST(RmsLoadsSection, WholeSectionOfTwoStations)
{
    CSeasCase seas;
    seas.SetLoadStations({5, 12.5F});
    ExpectGolden(seas.Section(RmsLoadsSection), "report/RmsLoads.html");
}

TEST(RmsLoadsSection, UnitsHaveABlankInTheBritishSystem)
{
    CSeasCase seas;
    seas.SetLoadStations({5});
    seas.Results.Input->OUTSYS.Set(0);
    const std::string text = seas.Section(RmsLoadsSection);
    EXPECT_EQ(CountOf(text, "<TD>(10^3 ft-lb)</TD>"), 3);
    EXPECT_EQ(CountOf(text, "<TD>(10^3 lb)</TD>"), 2);
    EXPECT_THAT(text, Not(HasSubstr("kN")));
}

TEST(RmsLoadsSection, LoadStationsComeInTheOrderOfTheSelection)
{
    CSeasCase seas;
    seas.SetLoadStations({5, 10, 15});
    seas.Project.SelectedPositions = {2, 0};
    const std::string text = seas.Section(RmsLoadsSection);
    const std::size_t last = text.find("station:</TD> <TD><B>15.00</B>");
    const std::size_t first = text.find("station:</TD> <TD><B>5.00</B>");
    ASSERT_NE(first, std::string::npos);
    EXPECT_LT(last, first);
    EXPECT_EQ(text.find("station:</TD> <TD><B>10.00</B>"), std::string::npos);
    // Vertical bending of the third station.
    EXPECT_LT(text.find("<TD>206.0</TD>"), first);
}

TEST(RmsLoadsSection, PositionsOfTheSectionAreLoadStationsFromEitherEnd)
{
    CSeasCase seas;
    seas.SetLoadStations({3});
    seas.Project.StationOrigin = 1647789135;
    EXPECT_THAT(seas.Section(RmsLoadsSection),
                HasSubstr("<TD>RMS Load at station:</TD> <TD><B>17.00</B></TD>"));
}

TEST(RmsLoadsSection, BannerIsChosenByTheSpreadingAngle)
{
    CSeasCase seas;
    seas.SetLoadStations({3});
    EXPECT_THAT(seas.Section(RmsLoadsSection), HasSubstr("RMS LOADS - Unidirectional Seas</B></CENTER>"));
    seas.Results.Head.SpreadAngle = 90;
    EXPECT_THAT(seas.Section(RmsLoadsSection), HasSubstr("RMS LOADS - Short-Crested Seas</B></CENTER>"));
}

TEST(RmsLoadsSection, HeadingsWithoutDataOfADirectionalSpectrumHaveNoRows)
{
    CSeasCase seas;
    seas.SetLoadStations({3});
    seas.SetHeadings(30);
    seas.Results.Head.SpectrumKind = kSpectrumHindcast;
    seas.RowsOfLoads = 24;
    const std::string text = seas.Section(RmsLoadsSection);
    EXPECT_EQ(CountOf(text, "<TR> <TD>115</TD>\n"), 2);
    EXPECT_EQ(CountOf(text, "<TR> <TD>120</TD>\n"), 0);
}
