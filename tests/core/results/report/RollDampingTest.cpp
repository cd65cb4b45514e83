#include "tests/core/results/report/CReportCase.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{
const std::string kBanner = "<CENTER><B>REGULAR SEAS RESPONSE: ROLL DAMPING COEFFICIENTS</B></CENTER>\n";
const std::string kLift = "<B>Damping Components - Detailed breakdown of appendage lift roll damping</B>\n";
const std::string kViscous =
    "<B>Damping Components - Detailed breakdown of appendage viscous roll damping</B>\n";

std::string RollDamping(const CReportCase& sea)
{
    return sea.Section(RollDampingSection);
}

void SetAppendages(CReportCase& sea, int keels, int foils, int fins)
{
    sea.Results.Control.KeelColumns = keels;
    sea.Results.Control.FoilColumns = foils;
    sea.Results.Control.FinColumns = fins;
    sea.Fill();
}

/// The names above the columns of the tables under a title, each table's joined by blanks.
std::vector<std::string> ColumnNames(const std::string& text, const std::string& title)
{
    std::vector<std::string> tables;
    for (std::size_t at = text.find(title); at != std::string::npos; at = text.find(title, at + 1))
    {
        std::string names;
        for (const std::string& line :
             Lines(Between(text.substr(at), "<TR><TD>WF</TD><TD>WE</TD><TD>Roll Angle</TD>\n", "</TR>\n")))
        {
            names += line == "<TD>" || line == "</TD>" ? "" : names.empty() ? line : " " + line;
        }
        tables.push_back(names);
    }
    return tables;
}
} // namespace

TEST(RollDamping, WholeSectionWithBreakdown)
{
    CReportCase sea;
    sea.Project.SelectedSpeeds = {0};
    sea.Project.SelectedHeadings = {1, 2};
    ExpectGolden(RollDamping(sea), "report/RollDamping.html");
}

TEST(RollDamping, ValuesStandUnderTheirNames)
{
    // Held: roll angle 101, total 102, wave 103, lift 104, eddy 105, skin 106, keel 107, foil 108, mass 109.
    EXPECT_THAT(RollDamping(COneTable(1)),
                HasSubstr("<TR> <TD> WF </TD> <TD> WE </TD><TD>Roll Angle</TD> <TD>Total Damping</TD> "
                          "<TD>Lift</TD> <TD>Wave</TD> <TD>Visc BK</TD> <TD>Eddy</TD> <TD>Skin</TD> <TD>Visc "
                          "Foils</TD> <TD>Added Mass</TD> </TR>\n"
                          "<TR><TD>0.200</TD><TD>100.110</TD><TD>101.110</TD><TD>102.110</TD>"
                          "<TD>104.110</TD><TD>103.110</TD><TD>107.110</TD><TD>105.110</TD><TD>106.110</TD>"
                          "<TD>108.110</TD><TD>109.110</TD></TR>\n"));
}

TEST(RollDamping, WithOutputOfResponsesAloneThereIsNoDampingData)
{
    COneTable sea(1);
    sea.Results.Input->OUTRAO.Set(1);
    sea.Fill();
    EXPECT_THAT(RollDamping(sea), HasSubstr("<TR><TD>0.200</TD><TD>0.000</TD><TD>0.000</TD><TD>0.000</TD>"));
    EXPECT_THAT(RollDamping(sea), HasSubstr("RNF = <B>0.00e+00</B>  rad/sec</TD> </TR>\n"));
}

TEST(RollDamping, DataOfTheFirstSeawayStandOnEveryPage)
{
    COneTable sea(1);
    sea.Project.SelectedSeaways = {0, 1};
    const std::string text = RollDamping(sea);
    EXPECT_THAT(text, HasSubstr("<B>Roll Damping Data:</B>&nbsp&nbsp&nbsp Seaway 1<BR>\n"));
    EXPECT_THAT(text, HasSubstr("<B>Roll Damping Data:</B>&nbsp&nbsp&nbsp Seaway 2<BR>\n"));
    EXPECT_EQ(CountOf(text, "<TR><TD>0.200</TD><TD>100.110</TD><TD>101.110</TD>"), 2);
}

TEST(RollDamping, SeawayIsNumberedByItsPlaceInTheFile)
{
    COneTable sea(1);
    sea.Project.SelectedSeaways = {1};
    const std::string text = RollDamping(sea);
    EXPECT_THAT(text, HasSubstr("&nbsp&nbsp&nbsp Seaway 2<BR>\n"));
    EXPECT_THAT(text,
                HasSubstr("<TR> <TD>Significant Wave Height:</TD> <TD><B>5.00</B> meters</TD> <TD>Wave "
                          "Period:</TD> <TD><B>10.50</B> sec</TD> <TD>Sea State:</TD> <TD><B>6</B></TD> "
                          "</TR>\n"));
}

TEST(RollDamping, RegularSeasHaveTheSteepnessLine)
{
    COneTable sea(1, true);
    sea.SetSpectrum(kSpectrumRegular);
    sea.Fill();
    const std::string text = RollDamping(sea);
    EXPECT_THAT(text, HasSubstr("<TR> <TD>Wave Steepness (H/Wavelength):</TD> <TD><B>0.02</B></TD> <TD>Wave "
                                "Slope (ka):</TD> <TD><B>0.063</B></TD> </TR>\n"));
    EXPECT_EQ(CountOf(text, "<TR><TD>Wave Steepness (H/Wavelength):<B>0.02</B> </TD><TD>Wave Slope (ka): "
                            "<B>0.063</B></TD> </TR>\n"),
              2);
    EXPECT_THAT(text, Not(HasSubstr("Significant Wave Height")));
}

TEST(RollDamping, SelectedHeadingAbove180IsPassedOver)
{
    COneTable sea(1);
    sea.Project.SelectedHeadings = {2};
    EXPECT_THAT(RollDamping(sea), Not(HasSubstr("Roll Damping Data")));
    EXPECT_THAT(RollDamping(sea),
                HasSubstr("<TR> <TD>Total Number of sea directions:</TD> <TD><B>2</B></TD> <TD>Number of sea "
                          "directions selected:</TD> <TD><B>0</B></TD> </TR>\n"));
}

TEST(RollDamping, ConstantsAreThoseOfTheFirstSelectedSpeed)
{
    CReportCase sea;
    sea.Project.SelectedSpeeds = {1, 0};
    EXPECT_THAT(RollDamping(sea),
                HasSubstr("<TR> <TD>Roll Natural Frequency:</TD> <TD>RNF = <B>1.00e+00</B>  rad/sec</TD> "
                          "</TR>\n<TR> <TD>Roll Stiffness:</TD> <TD>C44 = <B>4.00e+06</B>  kn-m</TD> </TR>\n"
                          "<TR> <TD>Roll Inertia (dry):</TD> <TD>I44 = <B>6.00e+06</B>  tonne-m**2</TD> "
                          "</TR>\n"));
}

TEST(RollDamping, ConstantsInBritishUnitsAreRaw)
{
    CReportCase sea;
    sea.SetSystems(0, 0);
    EXPECT_THAT(RollDamping(sea),
                HasSubstr("C44 = <B>2.00e+09</B>  lb/ft</TD> </TR>\n<TR> <TD>Roll Inertia (dry):</TD> "
                          "<TD>I44 = <B>3.00e+09</B>  slug-ft**2</TD> </TR>\n"));
}

TEST(RollDamping, TableOf27FrequenciesStaysOnOnePageAnd28SplitIt)
{
    EXPECT_EQ(CountOf(RollDamping(COneTable(27)), kPageBreakLine), 1);
    const std::string text = RollDamping(COneTable(28));
    EXPECT_EQ(CountOf(text, kPageBreakLine), 2);
    EXPECT_EQ(CountOf(text, "<B>Damping Components</B><BR>\n"), 2);
    EXPECT_THAT(text, HasSubstr("</TD></TR>\n</TABLE>\n</td></tr></TABLE><BR>\n" +
                                std::string(kPageBreakLine) + kBanner));
    const std::string second = text.substr(text.rfind(kPageBreakLine));
    EXPECT_EQ(CountOf(second, "<TR><TD>2.900</TD>"), 1); // 0.2 + 27 x 0.1
    EXPECT_EQ(CountOf(second, "Seaway 1<BR>\n"), 1);
    EXPECT_EQ(CountOf(second, "<TD>Sea Direction:</TD>"), 1);
}

TEST(RollDamping, EveryHeadingAndSeawayHasItsPage)
{
    CReportCase sea;
    sea.Breakdown = false;
    sea.Fill();
    const std::string text = RollDamping(sea);
    EXPECT_EQ(CountOf(text, kPageBreakLine), 8);
    EXPECT_EQ(CountOf(text, std::string(kPageBreakLine) + kBanner), 8);
    EXPECT_THAT(text, HasSubstr("</TABLE>\n</td></tr></TABLE><BR>\n<a NAME=\"RollSpeed2\"></a>\n" +
                                std::string(kPageBreakLine)));
}

TEST(DampingBreakdown, ColumnsAreNamedInTheirOrderAndViscousOnesHaveNoSkeg)
{
    COneTable sea(1, true);
    SetAppendages(sea, 2, 1, 1);
    const std::string text = RollDamping(sea);
    EXPECT_THAT(ColumnNames(text, kLift), testing::ElementsAre("Rudder Skeg BK 1 BK 2 Foil 1 Fin 1"));
    EXPECT_THAT(ColumnNames(text, kViscous), testing::ElementsAre("Rudder BK 1 BK 2 Foil 1 Fin 1"));
}

TEST(DampingBreakdown, RowsBeginWithFrequenciesAndRollAngle)
{
    COneTable sea(1, true);
    SetAppendages(sea, 0, 0, 1);
    const std::string text = RollDamping(sea);
    // The first word of a row means nothing.
    EXPECT_THAT(text, HasSubstr("<TR><TD>0.200</TD><TD>201.110</TD><TD>202.110</TD>\n<TD>203.1100</TD>\n"
                                "<TD>204.1100</TD>\n<TD>205.1100</TD>\n</TR>\n</TABLE>\n"
                                "</tr></td></TABLE><BR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>0.200</TD><TD>301.110</TD><TD>302.110</TD>\n<TD>303.1100</TD>\n"
                                "<TD>304.1100</TD>\n</TR>\n"));
}

TEST(DampingBreakdown, OnePassUpToTenAppendages)
{
    COneTable sea(1, true);
    SetAppendages(sea, 5, 2, 1); // with rudder and skeg: 13 columns
    const std::string text = RollDamping(sea);
    EXPECT_EQ(ColumnNames(text, kLift).size(), 1U);
    EXPECT_EQ(ColumnNames(text, kViscous).size(), 1U);
}

TEST(DampingBreakdown, TwoPassesFromFourteenColumns)
{
    COneTable sea(1, true);
    SetAppendages(sea, 5, 3, 1);
    const std::string text = RollDamping(sea);
    EXPECT_THAT(ColumnNames(text, kLift),
                testing::ElementsAre("Rudder Skeg BK 1 BK 2 BK 3 BK 4 BK 5", "Foil 1 Foil 2 Foil 3 Fin 1"));
    EXPECT_THAT(ColumnNames(text, kViscous),
                testing::ElementsAre("Rudder BK 1 BK 2 BK 3 BK 4 BK 5", "Foil 1 Foil 2 Foil 3 Fin 1"));
    EXPECT_EQ(CountOf(text, kPageBreakLine), 5);
    EXPECT_EQ(CountOf(text, "<a NAME=\"RollDamp\"></a>\n"), 4);
    EXPECT_EQ(CountOf(text, "<B>Roll Damping Data:</B>&nbsp&nbsp Seaway 1\n"), 4);
    // The foils' columns follow the seven of the first pass.
    const std::string second = text.substr(text.find("Foil 1"));
    EXPECT_THAT(Between(second, "<TR><TD>0.200</TD>", "</TR>"),
                StartsWith("<TD>201.110</TD><TD>202.110</TD>\n<TD>210.1100</TD>\n"));
}

TEST(DampingBreakdown, FifteenAppendagesAreTheMost)
{
    COneTable sea(1, true);
    SetAppendages(sea, 5, 4, 4);
    EXPECT_THAT(ColumnNames(RollDamping(sea), kLift),
                testing::ElementsAre("Rudder Skeg BK 1 BK 2 BK 3 BK 4 BK 5",
                                     "Foil 1 Foil 2 Foil 3 Foil 4 Fin 1 Fin 2 Fin 3 Fin 4"));
}

TEST(DampingBreakdown, TablesAreSplitBehind27Rows)
{
    EXPECT_EQ(CountOf(RollDamping(COneTable(27, true)), kPageBreakLine), 3);
    const std::string text = RollDamping(COneTable(28, true));
    EXPECT_EQ(CountOf(text, kPageBreakLine), 6);
    EXPECT_EQ(ColumnNames(text, kLift).size(), 2U);
}

TEST(DampingBreakdown, NeitherWithoutTheTablesNorWithoutTheirColumns)
{
    COneTable sea(1);
    EXPECT_THAT(RollDamping(sea), Not(HasSubstr("Detailed breakdown")));
    EXPECT_THAT(RollDamping(COneTable(1, true)), HasSubstr("Detailed breakdown"));
    sea.Breakdown = true;
    sea.Fill();
    sea.Results.Control.HasAppendageBreakdown = 0;
    EXPECT_THAT(RollDamping(sea), Not(HasSubstr("Detailed breakdown")));
}
