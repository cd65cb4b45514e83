#include "tests/core/results/report/SummaryText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

namespace
{
constexpr const char* kEnd = "</td></tr></TABLE><BR>";
constexpr const char* kBreak = "\n<p style = \"page-break-before: always\">\n";

/// A hull of stations that hold this many offsets each.
struct CHullTest : CTestProject
{
    CHullTest(int stations, int offsets)
    {
        Project.NST.Set(static_cast<float>(stations));
        Project.NOFFUSER.Fill(static_cast<float>(offsets));
        for (int k = 0; k < stations * kMaxOffsets; ++k)
        {
            Project.YAUSER.Set(k, static_cast<float>(k % kMaxOffsets));
            Project.ZAUSERBL.Set(k, static_cast<float>(k % kMaxOffsets) / 8);
        }
    }

    std::vector<std::string> Block() const
    {
        return SummaryBlock(Project, "<BR><U>Hull Geometry Definition Method");
    }
};
} // namespace

TEST(SummaryParticulars, AComputedMetacentricHeightHasNoUnit)
{
    CTestProject test;
    const char* line = "&nbsp&nbsp Metacentric Height, GM:";
    test.Project.GMUSER.Set(1.234F);
    EXPECT_EQ(SummaryLine(test.Project, line),
              "&nbsp&nbsp Metacentric Height, GM: &nbsp&nbsp&nbsp <I>Computed</I> <BR><BR>");
    test.Project.GMFLAG.Set(1);
    EXPECT_EQ(SummaryLine(test.Project, line),
              "&nbsp&nbsp Metacentric Height, GM: &nbsp&nbsp&nbsp <I>1.23</I> meters<BR><BR>");
}

TEST(SummaryParticulars, AValueOfTwoFieldsIsBoldWhenEitherChanged)
{
    CTestProject test;
    const char* line = "&nbsp&nbsp Metacentric Height, GM:";
    test.Project.GMFLAG.changed = 1;
    EXPECT_THAT(SummaryLine(test.Project, line), HasSubstr("<B>Computed</B>"));
    test.Project.GMFLAG.changed = 0;
    test.Project.GMUSER.changed = 1;
    EXPECT_THAT(SummaryLine(test.Project, line), HasSubstr("<B>Computed</B>"));
}

TEST(SummaryParticulars, OnlyTheChosenRollValueIsShown)
{
    CTestProject test;
    CProjectData& p = test.Project;
    p.ROLLNF.Set(0.61F);
    p.ROLLRG.Set(3.5F);
    p.WETROLLRG.Set(4.25F);
    p.WETROLLRG.unit = kUnitBritish;
    const std::string lines[] = {"&nbsp&nbsp Roll Natural Frequency (rad/s): &nbsp&nbsp&nbsp ",
                                 "&nbsp&nbsp Dry Roll Radius of Gyration (meters): &nbsp&nbsp&nbsp ",
                                 "&nbsp&nbsp Wet Roll Radius of Gyration (feet): &nbsp&nbsp&nbsp "};
    const char* values[] = {"<I>0.61</I><BR>", "<I>3.50</I><BR>", "<I>4.25</I><BR>"};
    for (std::size_t option = 0; option < 3; ++option)
    {
        p.ROLLRGDEF.Set(static_cast<float>(option));
        for (std::size_t k = 0; k < 3; ++k)
        {
            EXPECT_EQ(SummaryLine(p, lines[k]), lines[k] + (k == option ? values[k] : "<I>N/A</I><BR>"));
        }
    }
}

TEST(SummaryParticulars, TheLoadingIsDraftAndTrimOrDisplacementAndCentre)
{
    CTestProject test;
    CProjectData& p = test.Project;
    p.DRAFTMID.Set(6.25F);
    p.DISPUSER.Set(2847.2F);
    p.DISPUSER.unit = kUnitBritish;
    EXPECT_THAT(
        SummaryBlock(p, "<U>Hull Geometry</U>"),
        ElementsAre("<U>Hull Geometry</U><BR>",
                    "<U>Draft at Midships:</U> &nbsp&nbsp&nbsp <I>6.250</I> meters<BR>",
                    "<U>Trim by the stern relative to bow:</U> &nbsp&nbsp&nbsp <I>0.000</I> meters<BR>",
                    "<U>Number of Stations:</U> &nbsp&nbsp&nbsp <I>N/A</I><BR>", kEnd));
    p.TRIMDEF.Set(1);
    EXPECT_THAT(SummaryBlock(p, "<U>Hull Geometry</U>"),
                ElementsAre("<U>Hull Geometry</U><BR>",
                            "<U>Design Displacement:</U> &nbsp&nbsp&nbsp <I>2847.200</I> tons<BR>",
                            "<U>Longitudinal Center of Buoyancy:</U> &nbsp&nbsp&nbsp <I>N/A</I> meters<BR>",
                            "(LCB, from fwd stn)<BR>",
                            "<U>Number of Stations:</U> &nbsp&nbsp&nbsp <I>N/A</I><BR>", kEnd));
}

TEST(SummaryHull, OffsetsBreakBehindTheEighthAndBehindTheLast)
{
    CHullTest test(1, 9);
    test.Project.ZAUSERBL.unit = kUnitBritish; // the heights are shown in the unit of the half-breadths
    test.Project.ZAUSERBL.changed = 1;
    EXPECT_THAT(test.Block(),
                ElementsAre("<BR><U>Hull Geometry Definition Method:</U> &nbsp&nbsp&nbsp <I>Offsets</I><BR>",
                            "<B>Station Number:</B> <I>0</I><BR>",
                            "&nbsp&nbsp y-offset(meters): &nbsp&nbsp&nbsp", "&nbsp&nbsp <I>0.000</I>",
                            "&nbsp&nbsp <I>1.000</I>", "&nbsp&nbsp <I>2.000</I>", "&nbsp&nbsp <I>3.000</I>",
                            "&nbsp&nbsp <I>4.000</I>", "&nbsp&nbsp <I>5.000</I>", "&nbsp&nbsp <I>6.000</I>",
                            "&nbsp&nbsp <I>7.000</I>", "<BR>", "&nbsp&nbsp <I>8.000</I>", "<BR>",
                            "&nbsp&nbsp z-elevation(meters):&nbsp&nbsp&nbsp", "&nbsp&nbsp <B>0.000</B>",
                            "&nbsp&nbsp <B>0.125</B>", "&nbsp&nbsp <B>0.250</B>", "&nbsp&nbsp <B>0.375</B>",
                            "&nbsp&nbsp <B>0.500</B>", "&nbsp&nbsp <B>0.625</B>", "&nbsp&nbsp <B>0.750</B>",
                            "&nbsp&nbsp <B>0.875</B>", "<BR>", "&nbsp&nbsp <B>1.000</B>", "<BR>", kEnd));
}

TEST(SummaryHull, EightOffsetsBreakOnce)
{
    EXPECT_THAT(SummaryText(CHullTest(1, 8).Project),
                HasSubstr("&nbsp&nbsp <I>7.000</I>\n<BR>\n&nbsp&nbsp z-elevation"));
}

TEST(SummaryHull, APageEndsBehindEachFifthStationIfMoreFollow)
{
    const std::string heading = "<B><CENTER>SHIP DATA SPECIFICATION</B></CENTER><BR>  -  <I></I>   -   "
                                "<I></I><BR><BR>\n<B>Station Number:</B> <I>";
    EXPECT_THAT(SummaryText(CHullTest(5, 3).Project), Not(HasSubstr(heading)));
    const std::string eleven = SummaryText(CHullTest(11, 3).Project);
    EXPECT_THAT(eleven, HasSubstr(kBreak + heading + "5</I><BR>\n"));
    EXPECT_THAT(eleven, HasSubstr(kBreak + heading + "10</I><BR>\n"));
    EXPECT_THAT(eleven, Not(HasSubstr(heading + "4</I>")));
}

TEST(SummaryHull, StationsCountFromTheAftEndInTheOrderOfTheProject)
{
    CHullTest test(3, 3);
    test.Project.StationOrigin = 1;
    const auto block = test.Block();
    std::vector<std::string> stations;
    for (const std::string& line : block)
    {
        if (line.starts_with("<B>Station"))
        {
            stations.push_back(line);
        }
    }
    EXPECT_THAT(stations,
                ElementsAre("<B>Station Number:</B> <I>2</I><BR>", "<B>Station Number:</B> <I>1</I><BR>",
                            "<B>Station Number:</B> <I>0</I><BR>"));
}

TEST(SummaryHull, SectionAreasAreATable)
{
    CHullTest test(2, 3);
    CProjectData& p = test.Project;
    p.HULLDEF.Set(1);
    p.BEAM.Set(0, 9.5F);
    p.DRAFT.Set(1, 6.25F);
    p.DRAFT.unit = kUnitBritish;
    p.ACOEF.Set(0, 0.81235F);
    p.ACOEF.changed = 1;
    EXPECT_THAT(
        test.Block(),
        ElementsAre(
            "<BR><U>Hull Geometry Definition Method</U>: &nbsp&nbsp&nbsp <I>Section Area</I><BR>",
            R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="2" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "80%">)",
            "<TR><TD> Station </TD><TD> Beam (meters) </TD> <TD> Draft (feet) </TD> <TD> Area "
            "Coefficient</TD></TR>",
            "<TR><TD><I>0</I></TD> <TD><I>9.500</I></TD> <TD><I>N/A</I></TD> <TD><B>0.8123</B></TD></TR>",
            "<TR><TD><I>1</I></TD> <TD><I>N/A</I></TD> <TD><I>6.250</I></TD> <TD><B>N/A</B></TD></TR>",
            "</TABLE>", kEnd));
}

TEST(SummaryTank, WithoutATankItIsSaid)
{
    CTestProject test;
    for (const float stabilizer : {0.0F, 1.0F})
    {
        test.Project.FINTANKSTAB.Set(stabilizer);
        EXPECT_THAT(SummaryBlock(test.Project, "<U>Roll Stablization"),
                    ElementsAre("<U>Roll Stablization Tank Data</U><BR>", "No Anti-roll Tank specified",
                                "<BR>", kEnd));
    }
}

TEST(SummaryTank, ATankHasTwelveValues)
{
    CTestProject test;
    CProjectData& p = test.Project;
    p.FINTANKSTAB.Set(2);
    p.StationOrigin = 1;
    p.NST.Set(21);
    float value = 1;
    for (CParamArray* field : {&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL,
                               &p.XSTTANK, &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK})
    {
        field->Set(value++);
    }
    p.HDTANK.unit = kUnitBritish;
    p.SGTANK.changed = 1;
    EXPECT_THAT(
        SummaryBlock(p, "<U>Roll Stablization"),
        ElementsAre(
            "<U>Roll Stablization Tank Data</U><BR>", "<U>Tank Type:</U> U-Tank<BR>", "<U>Tank Data:</U><BR>",
            "&nbsp&nbsp Longitudinal Length (meters): &nbsp&nbsp&nbsp <I>1.0000</I><BR>",
            "&nbsp&nbsp Width of Tank Connecting Duct (meters): &nbsp&nbsp&nbsp <I>2.0000</I><BR>",
            "&nbsp&nbsp Bottom Width of Tank Vertical Leg (meters): &nbsp&nbsp&nbsp <I>3.0000</I><BR>",
            "&nbsp&nbsp Average Fluid Depth (meters): &nbsp&nbsp&nbsp <I>4.0000</I><BR>",
            "&nbsp&nbsp Inclination of Outside Walls (degrees): &nbsp&nbsp&nbsp <I>5.0000</I><BR>",
            "&nbsp&nbsp Height of Tank Connecting Duct (feet): &nbsp&nbsp&nbsp <I>6.0000</I><BR>",
            "&nbsp&nbsp Height Above Baseline of Connecting Duct (meters): &nbsp&nbsp&nbsp <I>7.0000</I><BR>",
            "&nbsp&nbsp Station Number of Tank Centre: &nbsp&nbsp&nbsp <I>12.00</I><BR>",
            "&nbsp&nbsp Specific Gravity of Tank Fluid: &nbsp&nbsp&nbsp <B>9.0000</B><BR>",
            "&nbsp&nbsp Valve Resistance Coeff for Freq >= Break Freq: &nbsp&nbsp&nbsp <I>10.0000</I><BR>",
            "&nbsp&nbsp Valve Resistance Coeff for Freq = 0: &nbsp&nbsp&nbsp <I>11.0000</I><BR>",
            "&nbsp&nbsp Break Frequency (rad/sec): &nbsp&nbsp&nbsp <I>N/A</I><BR>", kEnd));
}

TEST(SummaryLoads, WithoutLoadsThereIsNoMassTable)
{
    CTestProject test;
    test.Project.NSTLOAD.Set(4);
    EXPECT_THAT(SummaryBlock(test.Project, "<U>Sea Loads"),
                ElementsAre("<U>Sea Loads Calculation Positions:</U><BR>",
                            "<U>Number of Load Calculation positions:</U> &nbsp&nbsp&nbsp <I>0</I><BR>",
                            kEnd));
    EXPECT_THAT(SummaryText(test.Project), Not(HasSubstr("Mass Distribution")));
}

TEST(SummaryLoads, TheStationsAreThoseThatWereTypedElseAll)
{
    CHullTest test(3, 3);
    CProjectData& p = test.Project;
    p.LOADFLAG.Set(0);
    p.NSTLOAD.Set(2);
    p.XSTLOAD.Set(0, 0.5F);
    p.XSTLOAD.Set(1, 2);
    EXPECT_THAT(SummaryBlock(p, "<U>Sea Loads"),
                ElementsAre("<U>Sea Loads Calculation Positions:</U><BR>",
                            "<U>Number of Load Calculation positions:</U> &nbsp&nbsp&nbsp <I>2</I><BR>",
                            "&nbsp&nbsp&nbsp <I>0.00 &nbsp&nbsp1.00 &nbsp&nbsp2.00</I><BR>", kEnd));
    p.LoadStationsUserInput = 1;
    EXPECT_THAT(SummaryBlock(p, "<U>Sea Loads"), Contains("&nbsp&nbsp&nbsp <I>0.50 &nbsp&nbsp2.00</I><BR>"));
    p.StationOrigin = 1;
    EXPECT_THAT(SummaryBlock(p, "<U>Sea Loads"), Contains("&nbsp&nbsp&nbsp <I>1.50 &nbsp&nbsp0.00</I><BR>"));
}

TEST(SummaryLoads, TheMassTableEndsWithTheOverhangs)
{
    CHullTest test(1, 3);
    CProjectData& p = test.Project;
    p.LOADFLAG.Set(0);
    p.SECTTN.Set(250);
    p.SECTTN.unit = kUnitBritish;
    p.SECTRRG.unit = kUnitBritish;
    p.BOWTN.Set(1.5F);
    p.STERNKG.Set(4);
    p.STERNKG.changed = 1;
    const auto block = SummaryBlock(p, "<U>Vessel Weight/Mass");
    EXPECT_THAT(
        block,
        IsSupersetOf(
            {"<I>Default</I><BR>",
             "<TR> <TD>Station</TD> <TD>Section Weight (tons)</TD> <TD>Section CG (meters)</TD> "
             "<TD>Section RRG (feet) (Kxxi)</TD></TR>",
             "<TR> <TD><I>0</I></TD> <TD><I>250.00</I></TD> <TD><I>N/A</I></TD> <TD><I>N/A</I></TD> </TR>",
             "<TR> <TD>Bow Overhang</TD> <TD><I>1.50</I></TD> <TD><I>N/A</I></TD> <TD><I>N/A</I></TD> </TR>",
             "<TR> <TD>Stern Overhang</TD> <TD><I>N/A</I></TD> <TD><B>4.00</B></TD> <TD><I>N/A</I></TD> "
             "</TR>"}));
    for (int* option : {&p.KgUserInput, &p.KxxiUserInput})
    {
        *option = 1;
        EXPECT_THAT(SummaryBlock(p, "<U>Vessel Weight/Mass"), Contains("<I>User Input</I><BR>"));
        *option = 0;
    }
}
