// Motion and load responses in regular seas.
#include "tests/core/results/report/CReportCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace
{
const std::string kMotionBanner = "<CENTER><B>REGULAR SEAS RESPONSE: MOTION RAO</B></CENTER>\n";
const std::string kLoadBanner =
    "<CENTER><B>REGULAR SEAS RESPONSE: LOAD RAO AT SPECIFIED LOCATIONS</B></CENTER>\n";

std::string MotionRao(const CReportCase& sea)
{
    return sea.Section(MotionRaoSection);
}

std::string LoadRao(const CReportCase& sea)
{
    return sea.Section(LoadRaoSection);
}

/// The pages of a section, without the break between them.
std::vector<std::string> Pages(const std::string& text)
{
    std::vector<std::string> pages;
    const std::string mark = kPageBreakLine;
    std::size_t start = 0;
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, start))
    {
        pages.push_back(text.substr(start, at - start));
        start = at + mark.size();
    }
    pages.push_back(text.substr(start));
    return pages;
}

} // namespace

TEST(MotionRao, WholeSection)
{
    ExpectGolden(MotionRao(CReportCase()), "report/MotionRao.html");
}

TEST(MotionRao, TablesShowTheModesInTheirFixedOrder)
{
    COneTable sea(1);
    sea.Project.SelectedHeadings = {1};
    const std::vector<std::string> pages = Pages(MotionRao(sea));
    ASSERT_EQ(pages.size(), 2U);
    // Amplitudes and phases of the modes 2, 4, 3, then 0, 1, 5, each by its place from 1.
    EXPECT_THAT(pages[0], HasSubstr("<TR> <TD>0.200</TD> <TD>11.211</TD>\n"
                                    "<TD>1.231</TD>\n<TD>-1231</TD>\n<TD>1.251</TD>\n<TD>-1251</TD>\n"
                                    "<TD>1.241</TD>\n<TD>-1241</TD>\n<TD>21.211</TD></TR>\n</TABLE>\n"));
    EXPECT_THAT(pages[1], HasSubstr("<TR> <TD>0.200</TD> <TD>11.211</TD>\n"
                                    "<TD>1.211</TD>\n<TD>-1211</TD>\n<TD>1.221</TD>\n<TD>-1221</TD>\n"
                                    "<TD>1.261</TD>\n<TD>-1261</TD>\n<TD>21.211</TD></TR>\n</TABLE>\n"));
}

TEST(MotionRao, YawStandsInCapitals)
{
    EXPECT_THAT(MotionRao(CReportCase()), HasSubstr(R"(<TD colspan="2">YAW</TD>)"));
}

TEST(MotionRao, SelectedHeadingAbove180IsPassedOver)
{
    CReportCase sea;
    sea.Project.SelectedHeadings = {2, 1};
    const std::string text = MotionRao(sea);
    EXPECT_THAT(text, Not(HasSubstr("<B>190.0</B>")));
    EXPECT_EQ(CountOf(text, "Sea Direction:&nbsp&nbsp&nbsp <B>90.0</B>"), 4);
    EXPECT_THAT(text, HasSubstr("Total Number of sea directions:&nbsp&nbsp&nbsp <B>2</B><BR> Number of sea "
                                "directions selected: &nbsp&nbsp&nbsp <B>1</B>\n"));
}

TEST(MotionRao, Heading180HasItsTables)
{
    CReportCase sea;
    sea.SetHeadings({180, 180.5F});
    sea.Fill();
    sea.SelectAll();
    const std::string text = MotionRao(sea);
    EXPECT_EQ(CountOf(text, "<B>180.0</B>"), 4);
    EXPECT_EQ(CountOf(text, "<B>180.5</B>"), 0);
}

TEST(MotionRao, SpeedWithoutATableHasItsAnchorAlone)
{
    CReportCase sea;
    sea.Project.SelectedHeadings = {2};
    EXPECT_THAT(MotionRao(sea),
                EndsWith("</td></tr></TABLE><BR>\n<a NAME=\"RaoSpeed1\"></a>\n"
                         "<a NAME=\"RaoSpeed2\"></a>\n"
                         "<BR><b><i><a HREF=\"#TOC\">To the Table of Contents</a></i></b>\n"));
}

TEST(MotionRao, TableOf34FrequenciesStaysOnOnePageAnd35SplitIt)
{
    EXPECT_EQ(Pages(MotionRao(COneTable(34))).size(), 2U);
    const std::vector<std::string> pages = Pages(MotionRao(COneTable(35)));
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_EQ(CountOf(pages[0], "</TD></TR>\n"), 34);
    EXPECT_EQ(CountOf(pages[1], "</TD></TR>\n"), 1);
    EXPECT_THAT(pages[0], EndsWith("</TABLE>\n</td></tr></TABLE><BR>\n"));
    EXPECT_THAT(pages[1], testing::StartsWith(kMotionBanner));
    for (const char* again : {"<B>RAO Data - Heave, Pitch, Roll:</B><BR>\n", "Sea Direction:", "<U>Note:</U>",
                              "<TR> <TD> WF </TD> ", "<TR> <TD></TD> <TD></TD><TD>Amp</TD>"})
    {
        EXPECT_THAT(pages[1], HasSubstr(again));
    }
}

TEST(MotionRao, TableOf60FrequenciesIsSplitOnce)
{
    const std::vector<std::string> pages = Pages(MotionRao(COneTable(60)));
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_EQ(CountOf(pages[1], "</TD></TR>\n"), 26);
    EXPECT_EQ(CountOf(pages[3], "</TD></TR>\n"), 26);
}

TEST(MotionRao, PagesBeginBeforeEachTableButTheFirstOfTheSectionAndBetweenSpeeds)
{
    const std::vector<std::string> pages = Pages(MotionRao(CReportCase()));
    ASSERT_EQ(pages.size(), 8U); // two speeds, two headings, two groups of modes
    for (const std::string& page : pages)
    {
        EXPECT_EQ(CountOf(page, "<B>RAO Data - "), 1);
    }
    EXPECT_THAT(pages[0], HasSubstr("<a NAME=\"RaoSpeed1\"></a>\n" + kMotionBanner));
    EXPECT_THAT(pages[1], testing::StartsWith(kMotionBanner));
    EXPECT_THAT(pages[4], testing::StartsWith("<a NAME=\"RaoSpeed2\"></a>\n" + kMotionBanner));
}

TEST(MotionRao, MoreThanTwoSpeedsGetALineBreak)
{
    CReportCase sea;
    const std::string noBreak = "<B>2</B><BR>\nShip speeds selected: &nbsp&nbsp&nbsp\n";
    EXPECT_THAT(MotionRao(sea), HasSubstr(noBreak));
    sea.Project.SelectedSpeeds = {0, 1, 0};
    EXPECT_THAT(MotionRao(sea), HasSubstr("<B>3</B><BR>\n<BR>\nShip speeds selected: &nbsp&nbsp&nbsp\n"
                                          "<B>10.00</B>&nbsp&nbsp&nbsp\n<B>20.50</B>&nbsp&nbsp&nbsp\n"
                                          "<B>10.00</B>&nbsp&nbsp&nbsp\n<BR>\n"));
}

TEST(MotionRao, SpeedAnchorsCountThePlaceInTheSelection)
{
    CReportCase sea;
    sea.Project.SelectedSpeeds = {1};
    const std::string text = MotionRao(sea);
    EXPECT_THAT(text, HasSubstr("<a NAME=\"RaoSpeed1\"></a>\n"));
    EXPECT_THAT(text, HasSubstr("<B>20.50</B> knots"));
    EXPECT_THAT(text, HasSubstr("Froude Number: &nbsp&nbsp&nbsp<B>0.200</B><BR>\n"));
}

TEST(MotionRao, WithoutFrequencyDataItsColumnsAreZero)
{
    COneTable sea(1);
    sea.Results.Input->OUTRAO.Set(0);
    sea.Fill();
    const std::string text = MotionRao(sea);
    EXPECT_THAT(text, HasSubstr("<TR> <TD>0.200</TD> <TD>0.000</TD>\n"));
    EXPECT_THAT(text, HasSubstr("<TD>0.000</TD></TR>\n"));
    EXPECT_THAT(text, HasSubstr("Froude Number: &nbsp&nbsp&nbsp<B>0.000</B><BR>\n"));
}

TEST(MotionRao, IndicesThatTheResultsDoNotHaveAreLeftOut)
{
    CReportCase sea;
    sea.Project.SelectedSpeeds = {-1, 1, 2};
    sea.Project.SelectedHeadings = {0, 3, 36};
    const std::string text = MotionRao(sea);
    EXPECT_THAT(text, HasSubstr("Number of ship speeds selected: &nbsp&nbsp&nbsp <B>1</B><BR>\n"));
    EXPECT_EQ(CountOf(text, "Sea Direction:"), 2);
}

TEST(LoadRao, WholeSection)
{
    ExpectGolden(LoadRao(CReportCase()), "report/LoadRao.html");
}

TEST(LoadRao, AmplitudesAndPhasesOfTheFiveLoadsStandInTheOrderOfTheFile)
{
    COneTable sea(1);
    sea.Project.SelectedHeadings = {1};
    sea.Project.SelectedPositions = {1};
    const std::vector<std::string> pages = Pages(LoadRao(sea));
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_THAT(pages[0], HasSubstr("Bending: Amplitude</B><BR>\n"));
    EXPECT_THAT(pages[0], HasSubstr("<TR> <TD>0.200</TD> <TD>11.211</TD>\n"
                                    "<TD>1.221</TD>\n<TD>1.241</TD>\n<TD>1.261</TD>\n<TD>1.281</TD>\n"
                                    "<TD>1.301</TD>\n<TD>21.211</TD> </TR>\n"));
    EXPECT_THAT(pages[1], HasSubstr("Bending: Phase</B><BR>\n"));
    EXPECT_THAT(pages[1], HasSubstr("<TD>-1221</TD>\n<TD>-1241</TD>\n<TD>-1261</TD>\n<TD>-1281</TD>\n"
                                    "<TD>-1301</TD>\n<TD>21.211</TD> </TR>\n"));
}

TEST(LoadRao, SelectedHeadingAbove180IsPassedOver)
{
    CReportCase sea;
    sea.Project.SelectedHeadings = {2};
    const std::string text = LoadRao(sea);
    EXPECT_THAT(text, Not(HasSubstr("Load RAO Data")));
    EXPECT_THAT(text, EndsWith("<a NAME=\"LdRaoSpeed1\"></a>\n<a NAME=\"LdRaoSpeed2\"></a>\n"
                               "<BR><b><i><a HREF=\"#TOC\">To the Table of Contents</a></i></b>\n"));
}

TEST(LoadRao, LoadStationsFollowTheNumberingOfTheProject)
{
    CReportCase sea;
    EXPECT_THAT(LoadRao(sea), HasSubstr("<TD>Load Station:</TD> <TD><B>2.50</B></TD> </TR>\n"));
    sea.Project.StationOrigin = 1;
    EXPECT_THAT(LoadRao(sea), HasSubstr("<TD>Load Station:</TD> <TD><B>1.50</B></TD> </TR>\n"));
}

TEST(LoadRao, EveryTableHasItsPage)
{
    const std::vector<std::string> pages = Pages(LoadRao(CReportCase()));
    ASSERT_EQ(pages.size(), 16U); // two speeds, two headings, two stations, amplitude and phase
    for (const std::string& page : pages)
    {
        EXPECT_EQ(CountOf(page, "<B>Load RAO Data - "), 1);
    }
    EXPECT_THAT(pages[8], testing::StartsWith("<a NAME=\"LdRaoSpeed2\"></a>\n" + kLoadBanner));
}

TEST(LoadRao, TableOf34FrequenciesStaysOnOnePageAnd35SplitIt)
{
    EXPECT_EQ(Pages(LoadRao(COneTable(34))).size(), 2U);
    const std::vector<std::string> pages = Pages(LoadRao(COneTable(35)));
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_THAT(pages[1], testing::StartsWith(kLoadBanner));
    EXPECT_EQ(CountOf(pages[0], "<TR> <TD>0.200</TD>"), 1);
    EXPECT_EQ(CountOf(pages[1], "<TR> <TD>3.600</TD>"), 1); // 0.2 + 34 x 0.1
}

TEST(LoadRao, UnclosedRowOfTheLocationsStays)
{
    EXPECT_THAT(
        LoadRao(CReportCase()),
        HasSubstr("<TR> <TD>Total Number of loads:</TD> <TD><B>2</B></TD></TR> <TR><TD>Number of load "
                  "locations selected:</TD> <TD><B>2</B></TD><TR>\n</TABLE>\n"));
}
