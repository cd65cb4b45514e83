// The text of a project file: labels, order, formats and repetitions.
#include "core/project/InputFileText.h"
#include "tests/support/CTestProject.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{
std::string Text(const CTestProject& test)
{
    return InputFileText(test.Project);
}

std::string Line(const CTestProject& test, const std::string& label, int behind = 1)
{
    return LineBehind(Text(test), label, behind);
}
} // namespace

TEST(InputFileFormat, AProjectAtItsDefaultsIsTheGoldenFile)
{
    CTestProject test;
    ExpectGolden(Text(test), "project/defaults.od7");
}

TEST(InputFileFormat, AnEmptyTitleBeginsTheFileWithAnEmptyLine)
{
    CTestProject test;
    EXPECT_THAT(Text(test), StartsWith("\nod7b\nRecord (b) //**CONTROL VARIABLES**///\n"));
}

TEST(InputFileFormat, ATitleLosesItsCarriageReturnsAndKeepsItsLineFeeds)
{
    CTestProject test;
    test.Project.ProjectTitle = "first\r\nsecond\r";
    EXPECT_THAT(Text(test), StartsWith("first\nsecond\nod7b\n"));
}

TEST(InputFileFormat, BytesOverAsciiAndLongTitlesPassUncut)
{
    CTestProject test;
    test.Project.ProjectTitle = std::string(300, 'x') + "\xe9\xff";
    EXPECT_THAT(Text(test), StartsWith(test.Project.ProjectTitle + "\nod7b\n"));
}

TEST(InputFileFormat, NumbersAreRoundedAsPrintfRounds)
{
    CTestProject test;
    test.Project.SHIPLEN.Set(0.125F);
    test.Project.KG.Set(0.375F);
    test.Project.PITCHRG.Set(-0.001F);
    EXPECT_EQ(Line(test, "Record (j)"), "0.12 0.38 -0.00  0 0 0");
}

TEST(InputFileFormat, UnitTagsBehindShipDataStandBehindTwoBlanks)
{
    CTestProject test;
    test.Project.SHIPLEN.unit = kUnitBritish;
    test.Project.PITCHRG.unit = kUnitBritish;
    EXPECT_EQ(Line(test, "Record (j)"), "-1.00 -1.00 -1.00  1 0 1");
}

TEST(InputFileFormat, AUnitFlagThatIsNoFlagIsPrintedAsItIs)
{
    CTestProject test;
    test.Project.BretUnit = 7;
    EXPECT_EQ(Line(test, "//**UNIT TYPES FOR RECORD (H)"), "0 7 0 0 0");
}

TEST(InputFileFormat, NoSeaDirectionsStillWriteTheFirstSlot)
{
    CTestProject test;
    test.Project.NSEADIR.Set(0);
    EXPECT_EQ(Line(test, "Record (g2)"), "-1.00");
    test.Project.NSEADIR.Set(3);
    test.Project.SEADIR.Set(0, 0);
    test.Project.SEADIR.Set(1, 90);
    test.Project.SEADIR.Set(2, 180);
    EXPECT_EQ(Line(test, "Record (g1)"), "3.00 -1.00");
    EXPECT_EQ(Line(test, "Record (g2)"), "0.00 90.00 180.00");
}

TEST(InputFileFormat, BretschneiderAndOchiLinesEndInABlank)
{
    CTestProject test;
    test.Project.BretHs[9] = 3.25F;
    test.Project.OchiHs1[0] = 1;
    test.Project.OchiTp1[0] = 2;
    test.Project.OchiLam1[0] = 3;
    test.Project.OchiHs2[0] = 4;
    test.Project.OchiTp2[0] = 5;
    test.Project.OchiLam2[0] = 6;
    EXPECT_EQ(Line(test, "//**BRETSCHNEIDER", 10), "3.25 -1.00 ");
    EXPECT_EQ(Line(test, "Record (h5)"), "1.00 2.00 3.00 4.00 5.00 6.00 ");
}

TEST(InputFileFormat, TenParameterLinesHoldAllOfSystemOneThenAllOfSystemTwo)
{
    CTestProject test;
    float value = 1;
    for (auto* field : {&test.Project.ZETA1, &test.Project.OMEGA1, &test.Project.LAMB1, &test.Project.KAPA1,
                        &test.Project.EXPP1, &test.Project.ZETA2, &test.Project.OMEGA2, &test.Project.LAMB2,
                        &test.Project.KAPA2, &test.Project.EXPP2})
    {
        field->Set(4, value++);
    }
    EXPECT_EQ(Line(test, "Record (h6)", 5), "1.00 2.00 3.00 4.00 5.00 6.00 7.00 8.00 9.00 10.00");
}

TEST(InputFileFormat, EmptySpectrumFileNamesAreWrittenAsEmpty)
{
    CTestProject test;
    test.Project.HindcastFile = "/seas/North Atlantic.txt";
    EXPECT_EQ(Line(test, "Record (h4a)"), "empty");
    EXPECT_EQ(Line(test, "Record (h7)"), "/seas/North Atlantic.txt");
    EXPECT_EQ(Line(test, "Record (h8)"), "empty");
}

TEST(InputFileFormat, AllTenSpeedsStandWhateverTheirCount)
{
    CTestProject test;
    test.Project.NSPEED.Set(1);
    test.Project.SPDKNOT.Set(0, 12.5F);
    test.Project.SPDKNOT.Set(9, 3);
    test.Project.SPDKNOT.unit = 1;
    EXPECT_EQ(Line(test, "Record (i)"), "1 12.50 -1.00 -1.00 -1.00 -1.00 -1.00 -1.00 -1.00 -1.00 3.00 1");
}

TEST(InputFileFormat, NoStationsLeaveTheLabelsAndOneValuePerMassLine)
{
    CTestProject test;
    test.Project.NST.Set(0);
    test.Project.SECTTN.Set(7.5F);
    EXPECT_EQ(Line(test, "Record (l1)"), "0  1.000 1.000");
    EXPECT_EQ(Line(test, "//**OFFSETS**//"), "Record (l4) //**BEAMDRAFT & AREA COEFFICIENT**//");
    EXPECT_EQ(Line(test, "Record (l4)"), "//**UNIT TYPES AND EXTRA VARIABLES**//");
    EXPECT_EQ(Line(test, "Record (n1)"), "-1.00");
    EXPECT_EQ(Line(test, "Record (n2)"), "7.50");
    EXPECT_EQ(Line(test, "Record (n3)"), "-1.00");
    EXPECT_EQ(Line(test, "Record (n4)"), "-1.00");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (N)", 5), "-1.00");
}

TEST(InputFileFormat, AStationHasHeaderCountAndTwoOffsetLines)
{
    CTestProject test;
    test.Project.NST.Set(2);
    test.Project.NOFFUSER.Set(0, 2);
    test.Project.YAUSER.unit = 1;
    test.Project.YAUSER.Set(0, 0);
    test.Project.YAUSER.Set(1, 1.5F);
    test.Project.ZAUSERBL.Set(1, 2);
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 1), "0  //**Station**//");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 2), "2 1   //**Number of Offsets and Unit type**//");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 3), "0.000 1.500 ");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 4), "-1.000 2.000 ");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 5), "1  //**Station**//");
}

TEST(InputFileFormat, AStationWithoutOffsetsHasTwoEmptyLines)
{
    CTestProject test;
    test.Project.NST.Set(1);
    test.Project.NOFFUSER.Set(0, 0);
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 3), "");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 4), "");
    EXPECT_EQ(Line(test, "//**OFFSETS**//", 5), "Record (l4) //**BEAMDRAFT & AREA COEFFICIENT**//");
}

TEST(InputFileFormat, LoadStationsAreWrittenForEachStationNotForTheirCount)
{
    CTestProject test;
    test.Project.NST.Set(3);
    test.Project.NSTLOAD.Set(1);
    EXPECT_EQ(Line(test, "Record (n1)"), "-1.00 -1.00 -1.00");
}

TEST(InputFileFormat, NoPositionsLeaveTheLabelAndTheFirstSlots)
{
    CTestProject test;
    test.Project.NPOS.Set(0);
    test.Project.SlamMidshipDraft[0] = 4;
    EXPECT_EQ(Line(test, "Record (o) "), "0 20.00 0.0100");
    EXPECT_EQ(Line(test, "Record (o1)"), "//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)**//");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)", 2), "4.00");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (O)", 3), "-1.00");
}

TEST(InputFileFormat, APositionHasTenLines)
{
    CTestProject test;
    CProjectData& p = test.Project;
    p.NPOS.Set(2);
    p.PositionLabel[0] = "Bridge";
    p.NSLOFF.Set(0, 2);
    p.YSLOFFBL.Set(1, 0.5F);
    p.MSIFlag = {1, 3};
    p.MSIMethod[0] = 1;
    const char* label = "Record (o1)";
    const std::vector<std::string> expected = {
        "Bridge",          "0 0",           "-1.00 -1.0000 -1.00 -1.00",
        "-1.0000 -1.000",  "2 -1.0000",     "-1.0000 0.5000",
        "-1.0000 -1.0000", "-1.0000 -1.00", "0.25 0.17 60.00",
        "1 1 0 4.00",      "Position2",     "0 0"};
    for (std::size_t k = 0; k < expected.size(); ++k)
    {
        EXPECT_EQ(Line(test, label, static_cast<int>(k) + 1), expected[k]) << "line " << k;
    }
    // Without a count of offsets their first slot stands; a flag other than 1 is none.
    EXPECT_EQ(Line(test, label, 16), "-1.0000");
    EXPECT_EQ(Line(test, label, 20), "0 0 0 4.00");
}

TEST(InputFileFormat, ABilgeKeelPairHasTwentyOneRowsAndAUnitLine)
{
    CTestProject test;
    test.Project.NBKPAIR.Set(2);
    test.Project.BBK.Set(21 + 20, 0.75F);
    test.Project.ZBKBL.unit = 1;
    EXPECT_EQ(Line(test, "Record (p1 & p2)", 1), "-1.00 -1.00");
    EXPECT_EQ(Line(test, "Record (p1 & p2)", 44), "-1.00 -1.00 -1.000 -1.000 0.750");
    EXPECT_EQ(Line(test, "Record (p1 & p2)", 45), "//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)**//");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)", 1), "0 1 0");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)", 2), "0 1 0");
    EXPECT_EQ(Line(test, "//**UNIT TYPES AND EXTRA VARS FOR RECORD (P)", 3), "Record (q) //**SKEG DATA**//");
}

TEST(InputFileFormat, TheTipChordsTagStandsFourMoreTimesForTheLateralGains)
{
    CTestProject test;
    test.Project.TCRUD.unit = 1;
    test.Project.RudderLateralGainUnits = {0, 0, 0};
    EXPECT_EQ(Line(test, "//**UNIT TYPES FOR RECORD (R)"), "0 0 0 0 1 1 1 1 1");
}

TEST(InputFileFormat, GainLinesHoldTheUseAndTheNameOfTheFile)
{
    CTestProject test;
    test.Project.FinGainFileUsed = 1;
    test.Project.FinGainFile = "/gains/my fins.txt";
    EXPECT_EQ(Line(test, "//**Rudder Speed and Heading Dependant Gain and Dependant Cut-off Frequency data"),
              "0 NoFile");
    EXPECT_EQ(
        Line(test, "//**Fin Speed and Heading Dependant Gain and Speed Dependant Cut-off Frequency data"),
        "1 /gains/my fins.txt");
}

TEST(InputFileFormat, RudderRecordsCarryDihedralStabilizationAndLateralGains)
{
    CTestProject test;
    test.Project.RudderRollStabilization = 1;
    EXPECT_EQ(Line(test, "Record (r) "), "-1.00 -1.000 -1.000 -1.000 -1.000 -1.000 0.000 -1 -90.000");
    EXPECT_EQ(Line(test, "Record (r2)"), "-111111.0000 -111111.0000 -111111.0000 1");
    EXPECT_EQ(Line(test, "Record (r3)"), "-111111.0000 -111111.0000 -111111.0000 0 -1.0000 -1.0000 ");
}

TEST(InputFileFormat, TheFoilUnitLineEndsWithFourSwitchesAndABlank)
{
    CTestProject test;
    test.Project.CLA0COMPUTE.Set(1, 1);
    test.Project.CLA0COMPUTE.Set(2, 0.9F);
    test.Project.CLA0COMPUTE.Set(3, -2);
    EXPECT_EQ(Line(test, "//**UNIT TYPES FOR RECORD (S)"), "0 0 0 0 0 0 1 0 1 ");
}

TEST(InputFileFormat, NoFinsStillWriteTheirGains)
{
    CTestProject test;
    test.Project.NFINPAIR.Set(0);
    EXPECT_EQ(Line(test, "Record (u1)"),
              "-111111.0000 -111111.0000 -111111.0000 -1.0000 -1.0000 -1.0000 -111111.0000 -111111.0000 "
              "-111111.0000");
    EXPECT_EQ(Line(test, "//**UNIT TYPES FOR RECORD (U)"), "0 0 0 0 0 ");
}

TEST(InputFileFormat, FinsAreWrittenByTheirCountWhateverStabilizationSays)
{
    CTestProject test;
    test.Project.FINTANKSTAB.Set(0);
    test.Project.NFINPAIR.Set(1);
    EXPECT_EQ(Line(test, "Record (u1)"),
              "-1.00 -1.0000 -1.0000 -1.0000 -1.0000 -1.0000 -1.0000 -99.0000 0.0000");
}

TEST(InputFileFormat, TheFileEndsBehindTheTanksUnits)
{
    CTestProject test;
    const std::string text = Text(test);
    EXPECT_EQ(text.substr(text.rfind("//**UNIT")), "//**UNIT TYPES FOR RECORD (V)**//\n0 0 0 0 0 0\n");
}

TEST(InputFileFormat, CountsBeyondTheArraysWriteNoMoreThanTheArraysHold)
{
    CTestProject test;
    CProjectData& p = test.Project;
    for (auto* count : {&p.NSEADIR, &p.NST, &p.NPOS, &p.NBKPAIR, &p.NFOILPAIR, &p.NFINPAIR, &p.NSTLOAD})
    {
        count->Set(1e30F);
    }
    p.NOFFUSER.Fill(1e30F);
    p.NSLOFF.Fill(1e30F);
    const std::string text = Text(test);
    EXPECT_THAT(text, HasSubstr("20  //**Station**//"));
    EXPECT_THAT(text, testing::Not(HasSubstr("21  //**Station**//")));
    EXPECT_EQ(LineBehind(text, "Record (n2)").size(), 21 * std::string("-1.00 ").size() - 1);
    EXPECT_THAT(text, HasSubstr("\nPosition10\n"));
    EXPECT_THAT(text, testing::Not(HasSubstr("\nPosition11\n")));
}
