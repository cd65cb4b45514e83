// Positions and appendages in the input summary.
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
constexpr const char* kDataTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="2" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "80%">)";

/// Positions at the stations 1, 2, ... of a ship with 21.
struct CPositionTest : CTestProject
{
    explicit CPositionTest(int count)
    {
        Project.NST.Set(21);
        Project.NPOS.Set(static_cast<float>(count));
        for (int k = 0; k < count; ++k)
        {
            Project.XSTPOS.Set(k, static_cast<float>(k + 1));
        }
    }
};

/// A project with all parts that exclude each other not.
struct CPartsTest : CTestProject
{
    CPartsTest() { FillToMaximum(Project); }
};
} // namespace

TEST(SummaryPositions, WithoutPositionsThereIsOneSentence)
{
    CTestProject test;
    EXPECT_THAT(
        SummaryText(test.Project),
        HasSubstr("\n<B>Local Seakeeping Parameters: </B><BR>\n&nbsp&nbsp&nbsp No seakeeping positions "
                  "specified.<BR>\n<BR><B>No Calculation of Motion Induced Interruption Specified</B><BR>\n"
                  "<BR><B>No Calculation of Motion Sickness Incidence Specified</B><BR>\n"
                  "<B>Appendage and Auxiliary System Definition:</B><BR><BR>\n"));
}

TEST(SummaryPositions, APositionIsARow)
{
    CPositionTest test(1);
    CProjectData& p = test.Project;
    p.PositionLabel[0] = "Bridge";
    p.YPOS.Set(0.5F);
    p.YPOS.unit = kUnitBritish;
    p.ZPOSBL.Set(12);
    p.ZPOSBL.changed = 1;
    EXPECT_THAT(
        SummaryBlock(p, "Duration of Operation"),
        ElementsAre("Duration of Operation/Observation:&nbsp&nbsp&nbsp <I>20.00</I> hours<BR>",
                    "Slamming Exceedance Parameter:&nbsp&nbsp&nbsp <I>0.0100</I><BR>",
                    "<U>Seakeeping Calculation Positions:</U><BR>", kDataTable,
                    "<TR><TD> Description </TD><TD> Station </TD><TD> Y (feet) </TD><TD> Z wrt BL (meters) "
                    "</TD><TD> Deck Height (meters) </TD></TR>",
                    "<TR><TD>Bridge</TD>", "<TD><I>1.0000</I></TD>", "<TD><I>0.5000</I></TD>",
                    "<TD><B>12.0000</B></TD>", "<TD><I>N/A</I></TD>", "</TR>", "</TABLE>", kEnd));
}

TEST(SummaryPositions, StationsOfPositionsFollowTheStationOrigin)
{
    CPositionTest test(2);
    test.Project.XSTPOS.Set(1, -1);
    test.Project.StationOrigin = 1;
    EXPECT_THAT(SummaryBlock(test.Project, "Duration of Operation"),
                IsSupersetOf({"<TD><I>19.0000</I></TD>", "<TD><I>N/A</I></TD>"}));
    EXPECT_THAT(SummaryBlock(test.Project, "<U>Slamming"),
                IsSupersetOf({"Station Number:<I> 19.0000</I>", "Station Number:<I> N/A</I>"}));
}

TEST(SummaryPositions, EachSlammingMethodHasItsLines)
{
    CPositionTest test(4);
    CProjectData& p = test.Project;
    for (int k = 0; k < 3; ++k)
    {
        p.RELMOCALC.Set(k, static_cast<float>(k + 1));
    }
    p.RELMOCALC.Set(3, 5);
    p.SLFORM.Set(0, 5.4F);
    p.SLWIDTH.Set(0, 2);
    p.NSLOFF.Set(1, 2);
    p.YSLOFFBL.Set(kMaxSlamOffsets, 0);
    p.YSLOFFBL.Set(kMaxSlamOffsets + 1, 0.75F);
    p.ZSLOFFBL.Set(kMaxSlamOffsets, 0);
    p.ZSLOFFBL.Set(kMaxSlamOffsets + 1, 0.5F);
    p.DEADR.Set(2, 12);
    EXPECT_THAT(
        SummaryBlock(p, "<U>Slamming"),
        ElementsAre(
            "<U>Slamming Calculation Input Data:</U><BR>", "Station Number:<I> 1.0000</I>",
            "&nbsp&nbsp&nbsp Method:&nbsp&nbsp&nbsp <I>Form Factor</I><BR>",
            "&nbsp&nbsp&nbsp Slamming Form Factor:&nbsp&nbsp&nbsp <I>5.4000</I><BR>",
            "&nbsp&nbsp&nbsp Slamming Force Width (meters):&nbsp&nbsp&nbsp <I>2.0000</I><BR>",
            "Station Number:<I> 2.0000</I>", "&nbsp&nbsp&nbsp Method:&nbsp&nbsp&nbsp <I>1/10 Offsets</I><BR>",
            "Number of offsets: &nbsp&nbsp&nbsp <I>2</I><BR>", "y-offset : &nbsp&nbsp&nbsp",
            "&nbsp&nbsp <I>0.0000</I>", "&nbsp&nbsp <I>0.7500</I>", "<BR>", "z-offset : &nbsp&nbsp&nbsp",
            "&nbsp&nbsp <I>0.0000</I>", "&nbsp&nbsp <I>0.5000</I>", "<BR>", "Station Number:<I> 3.0000</I>",
            "&nbsp&nbsp&nbsp Method:&nbsp&nbsp&nbsp <I>Wedge</I><BR>",
            "&nbsp&nbsp&nbsp Deadrise (degrees): &nbsp&nbsp&nbsp <I>12.0000</I><BR>",
            "&nbsp&nbsp&nbsp Slamming Pressure Height: &nbsp&nbsp&nbsp <I>N/A</I><BR>",
            "Station Number:<I> 4.0000</I>", "&nbsp&nbsp&nbsp Method:&nbsp&nbsp&nbsp <I>N/A</I><BR>", kEnd));
}

TEST(SummaryMotions, DefaultTippingCoefficientsHaveTwoDecimals)
{
    CPositionTest test(4);
    CProjectData& p = test.Project;
    p.MIIFLAG.Set(1, 1);
    p.MIIFLAG.Set(2, 1);
    p.TCLAT.Set(2, 0.3F);
    p.TCLONG.Set(2, -1);
    p.MIIFLAG.Set(7, 1); // behind the last position
    EXPECT_THAT(
        SummaryBlock(p, "<U>Motion Induced"),
        ElementsAre(
            "<U>Motion Induced Interruption (MII) Input Data:</U><BR>", kDataTable,
            "<TR><TD>Station</TD><TD>Duration (sec)</TD><TD>Lateral Tipping Coefficient</TD><TD>Longitudinal "
            "Tipping Coefficient</TD></TR>",
            "<TR><TD><I>2.0000</I></TD><TD><I>60.0000</I></TD><TD><I>0.25</I></TD><TD><I>0.17</I></TD></TR>",
            "<TR><TD><I>3.0000</I></TD><TD><I>60.0000</I></TD><TD><I>0.3000</I></TD><TD><I>0.17</I></TD></"
            "TR>",
            "</TABLE>", kEnd));
}

TEST(SummaryMotions, MaximumSicknessHasNoExposureTime)
{
    CPositionTest test(2);
    CProjectData& p = test.Project;
    p.MSIFlag[0] = p.MSIFlag[1] = 1;
    p.MSIExposureOption[0] = 1;
    p.MSIMethod[1] = 1;
    p.MSIExposure[1] = 2.5F;
    EXPECT_THAT(
        SummaryBlock(p, "<U>Motion Sickness"),
        ElementsAre(
            "<U>Motion Sickness Incidence (MSI) Input Data:</U><BR>", kDataTable,
            "<TR><TD>Station</TD><TD>Calculation Method</TD> <TD>Exposure Time (hrs)</TD> <TD>Maximum "
            "MSI</TD></TR>",
            "<TR><TD><I>1.0000</I></TD><TD><I>Colwell</I></TD> <TD><I>0.00</I></TD> <TD><I>Yes</I></TD></TR>",
            "<TR><TD><I>2.0000</I></TD><TD><I>Bureau Veritas</I></TD> <TD><I>2.50</I></TD> "
            "<TD><I>No</I></TD></TR>",
            "</TABLE>", kEnd));
}

TEST(SummaryAppendages, ABareHullHasNoPartsWhateverTheyHold)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.FINTANKSTAB.Set(0);
    p.AppendedHull = 0;
    EXPECT_THAT(SummaryText(p),
                HasSubstr("\n<B>Appendage and Auxiliary System Definition:</B><BR><BR>\n"
                          "<B>No Bilge Keels Specified</B><BR>\n<B>No Skeg Specified</B><BR>\n"));
    EXPECT_THAT(
        SummaryBlock(p, "<U>Control Surface"),
        ElementsAre("<U>Control Surface Definition - Rudders/Roll Fins/Shaft Brackets</U><BR>", kDataTable,
                    "<TR><TD>X</TD><TD>Y</TD><TD>Z</TD><TD>Span</TD><TD>Root Chord</TD><TD>Tip "
                    "Chord</TD><TD>CLA0</TD><TD>Dihedral</TD></TR>",
                    R"(<TR><TD colspan="8"> <I>No Rudder Data Specified</I></TD></TR>)",
                    R"(<TR><TD colspan="8"> <I> &nbsp&nbsp&nbsp No Roll Fin Data Specified</I></TD></TR>)",
                    R"(<TR><TD colspan="8"> <I>No Shaft Bracket Data Specified</I></TD></TR>)", "</TABLE>",
                    kEnd));
    EXPECT_THAT(SummaryBlock(p, "<U>Control System"), Not(Contains(HasSubstr("Rudder - "))));
}

TEST(SummaryAppendages, EachPartHangsOnItsOwnSwitch)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    const char* none[] = {"<B>No Bilge Keels Specified</B>", "<B>No Skeg Specified</B>",
                          "No Rudder Data Specified", "No Shaft Bracket Data Specified"};
    int* switches[] = {&p.IncludeBilgeKeels, &p.IncludeSkeg, &p.IncludeRudder, &p.IncludeFoils};
    for (std::size_t k = 0; k < 4; ++k)
    {
        EXPECT_THAT(SummaryText(p), Not(HasSubstr(none[k])));
        *switches[k] = 0;
        EXPECT_THAT(SummaryText(p), HasSubstr(none[k]));
    }
}

TEST(SummaryAppendages, PartsThatAreCountedNeedOne)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.NBKPAIR.Set(0);
    p.NFOILPAIR.Set(0);
    p.NFINPAIR.Set(0);
    const std::string text = SummaryText(p);
    EXPECT_THAT(text, HasSubstr("No Bilge Keels Specified"));
    EXPECT_THAT(text, HasSubstr("No Shaft Bracket Data Specified"));
    EXPECT_THAT(text, HasSubstr("No Roll Fin Data Specified"));
    EXPECT_THAT(text, Not(HasSubstr("<TD>Fin - ")));
}

TEST(SummaryAppendages, KeelSegmentsAndSkegFollowTheStationOrigin)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.StationOrigin = 1;
    p.NBKPAIR.Set(1);
    p.IFIRSTBK.Set(6);
    p.ILASTBK.Set(7);
    for (int k = 0; k < 2; ++k)
    {
        p.XSTBKFORE.Set(k, 6.0F + static_cast<float>(k));
        p.XSTBKAFT.Set(k, 7.0F + static_cast<float>(k));
        p.YBK.Set(k, 5.5F);
        p.ZBKBL.Set(k, 1.25F);
        p.BBK.Set(k, -1);
    }
    p.XSTAFTSKEG.Set(17);
    EXPECT_THAT(
        SummaryBlock(p, "<U>Bilge Keel"),
        ElementsAre(
            "<U>Bilge Keel Definition</U><BR>", kDataTable,
            "<TR><TD> Pair </TD><TD> Station Fore </TD><TD> Station Aft </TD><TD> Transverse (meters) "
            "</TD><TD> Vertical (meters) </TD><TD> Breadth (meters) </TD></TR>",
            "<TR><TD>1</TD>", "<TD><I>14.00</I></TD>", "<TD><I>13.00</I></TD>", "<TD><I>5.500</I></TD>",
            "<TD><I>1.250</I></TD>", "<TD><I>N/A</I></TD>", "</TR>", "<TR><TD>1</TD>",
            "<TD><I>13.00</I></TD>", "<TD><I>12.00</I></TD>", "<TD><I>5.500</I></TD>",
            "<TD><I>1.250</I></TD>", "<TD><I>N/A</I></TD>", "</TR>", "</TABLE>", kEnd));
    EXPECT_THAT(SummaryBlock(p, "<U>Skeg Data"),
                Contains("&nbsp&nbsp Station Number of Aftmost Point : &nbsp&nbsp&nbsp <I>3.00</I><BR>"));
}

TEST(SummaryAppendages, AnAngleOfMinusOneIsGivenAndOneOfMinus99IsNot)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.NFINPAIR.Set(2);
    p.DIFIN.Set(0, -1);
    p.DIFIN.Set(1, -99);
    EXPECT_THAT(SummaryBlock(p, "<U>Control Surface"), IsSupersetOf({HasSubstr("<TD><I>-1.000</I></TD></TR>"),
                                                                     HasSubstr("<TD><I>N/A</I></TD></TR>")}));
}

TEST(SummaryControl, RowsOfTheRudderNeedItsStabilization)
{
    CPartsTest test;
    test.Project.RudderRollStabilization = 0;
    const auto block = SummaryBlock(test.Project, "<U>Control System");
    EXPECT_THAT(block, Not(Contains(HasSubstr("Rudder - "))));
    EXPECT_THAT(block, Contains("<TR><TD>Fin - Roll</TD>"));
}

TEST(SummaryControl, TheGainsOfARudderActAtTheCentreOrAtAPoint)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.StationOrigin = 1;
    p.LateralPointZUnit = kUnitBritish;
    const std::string row = "<TR><TD>Rudder - Position for Lateral Motion Gains</TD>\n";
    EXPECT_THAT(SummaryText(p),
                HasSubstr(row + "<TD>X = <I>10.0000</I></TD>\n<TD>Z = <I>4.5000</I> feet</TD>\n</TR>\n"));
    p.LateralGainPoint = 0;
    EXPECT_THAT(SummaryText(p), HasSubstr(row + "<TD><I>CG</I></TD>\n</TR>\n"));
}

TEST(SummaryControl, AGainFileHasARowOnlyWhenItIsUsed)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    EXPECT_THAT(SummaryText(p), Not(HasSubstr("heading dependent File")));
    p.RudderGainFileUsed = p.FinGainFileUsed = 1;
    p.RudderGainFile = "rudder.txt";
    p.FinGainFile = "NoFile";
    const std::string text = SummaryText(p);
    EXPECT_THAT(text, HasSubstr("<TR><TD>Rudder - Speed and / or heading dependent File</TD>\n<TD "
                                "colspan=\"7\"><I>rudder.txt</I></TD>\n</TR>\n"));
    EXPECT_THAT(text, HasSubstr("<TR><TD>Fin - Speed and / or heading dependent File</TD>\n<TD "
                                "colspan=\"7\"><I>N/A</I></TD>\n</TR>\n"));
}

TEST(SummaryControl, LateralGainsHaveTheUnitOfTheirFlag)
{
    CPartsTest test;
    CProjectData& p = test.Project;
    p.RudderLateralGains[2] = kGainNotGiven;
    const std::string row = "<TR><TD>Rudder - Lateral</TD>\n";
    EXPECT_THAT(SummaryText(p),
                HasSubstr(row + "<TD><I>0.1200</I> rad-sec^2/m</TD>\n<TD><I>0.3400</I> rad-sec/m</TD>\n"
                                "<TD><I>N/A</I> rad/m</TD>\n</TR>\n"));
    p.RudderLateralGainUnits.fill(kUnitBritish);
    EXPECT_THAT(SummaryText(p),
                HasSubstr(row + "<TD><I>0.1200</I> rad-sec^2/ft</TD>\n<TD><I>0.3400</I> rad-sec/ft</TD>\n"
                                "<TD><I>N/A</I> rad/ft</TD>\n</TR>\n"));
}
