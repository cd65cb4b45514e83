#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{
const std::string kNoSpeeds = "0 ";
} // namespace

TEST(HullRecords, LeastShip)
{
    CEngineProject project;
    EXPECT_THAT(project.LinesBehind(kNoSpeeds, 7),
                ElementsAre("100.00 5.00 25.000", "GMCOMP WETROLLNF", "0.5000", "OFFSETS", "0 0 1.000 1.000",
                            "DRAFT", "6.250 0.000"));
}

TEST(HullRecords, LengthAndCentreAreRoundedFirstButThePitchRadiusIsNot)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.INSYS.Set(0);
    p.SHIPLEN.Set(100.004F);
    p.KG.Set(1.00499F);
    p.PITCHRG.Set(25.0004F);
    EXPECT_EQ(project.LineBehind(kNoSpeeds), "328.08 3.28 82.022");
    p.PITCHRG.Set(25.0F);
    EXPECT_EQ(project.LineBehind(kNoSpeeds), "328.08 3.28 82.021");
}

TEST(HullRecords, UnsetCentreAndPitchRadiusPassAndAreConvertedLikeAnyValue)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.KG.Set(-1);
    p.PITCHRG.Set(-1);
    EXPECT_EQ(project.LineBehind(kNoSpeeds), "100.00 -1.00 -1.000");
    p.KG.unit = p.PITCHRG.unit = 1;
    EXPECT_EQ(project.LineBehind(kNoSpeeds), "100.00 -0.30 -0.305");
    p.KG.unit = p.PITCHRG.unit = 0;
    p.INSYS.Set(0);
    EXPECT_EQ(project.LineBehind(kNoSpeeds), "328.08 -3.28 -3.281");
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(HullRecords, MetacentricHeightGivenEndsInABlank)
{
    CEngineProject project;
    project.Project.GMFLAG.Set(1);
    project.Project.GMUSER.Set(4);
    project.Project.GMUSER.unit = 1;
    EXPECT_THAT(project.LinesBehind("GMINPUT WETROLLNF", 3), ElementsAre("1.22 ", "0.5000", "OFFSETS"));
}

TEST(HullRecords, RollRadiiEndInABlank)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.ROLLRG.Set(3);
    p.WETROLLRG.Set(4);
    p.ROLLRG.unit = p.WETROLLRG.unit = 1;
    p.ROLLRGDEF.Set(1);
    EXPECT_THAT(project.LinesBehind("GMCOMP DRYROLLRG", 2), ElementsAre("0.91 ", "OFFSETS"));
    p.ROLLRGDEF.Set(2);
    EXPECT_THAT(project.LinesBehind("GMCOMP WETROLLRG", 2), ElementsAre("1.22 ", "OFFSETS"));
}

TEST(HullRecords, RollValuesAreRoundedFirst)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.INSYS.Set(0);
    p.GMFLAG.Set(1);
    p.ROLLRGDEF.Set(1);
    p.GMUSER.Set(1.00499F);
    p.ROLLRG.Set(1.00499F);
    EXPECT_THAT(project.LinesBehind("GMINPUT DRYROLLRG", 2), ElementsAre("3.28 ", "3.28 "));
}

TEST(HullRecords, AnotherRollOptionHasItsWordAlone)
{
    CEngineProject project;
    project.Project.ROLLRGDEF.Set(3);
    EXPECT_EQ(project.LineBehind("GMCOMP WETROLLRG"), "OFFSETS");
}

TEST(HullRecords, StationsByOffsets)
{
    CEngineProject project;
    project.SetStations(2);
    project.Project.NOFFUSER.Set(1, 2);
    project.Project.BEAMSF.Set(1.5F);
    project.Project.DRAFTSF.Set(0.5F);
    EXPECT_THAT(project.LinesBehind("OFFSETS", 10),
                ElementsAre("2 2 1.500 0.500", "0", "3 ", "0.000 2.000 4.000", "0.000 3.000 6.000", "1", "2 ",
                            "0.000 2.000", "0.000 3.000", "DRAFT"));
}

TEST(HullRecords, HeightsOfOffsetsAreConvertedByTheUnitOfBreadths)
{
    CEngineProject project;
    project.SetStations(1);
    project.Project.YAUSER.unit = 1;
    project.Project.ZAUSERBL.unit = 0;
    EXPECT_THAT(project.LinesBehind("3 ", 2), ElementsAre("0.000 0.610 1.219", "0.000 0.914 1.829"));
}

TEST(HullRecords, OffsetsAreRoundedFirst)
{
    CEngineProject project;
    project.SetStations(1);
    project.Project.INSYS.Set(0);
    project.Project.YAUSER.Set(0, 1.00049F);
    project.Project.ZAUSERBL.Set(0, 1.00051F);
    EXPECT_THAT(project.LinesBehind("3 ", 2), ElementsAre("3.281 6.562 13.123", "3.284 9.843 19.685"));
}

TEST(HullRecords, AStationWithoutOffsetsHasEmptyLines)
{
    CEngineProject project;
    project.SetStations(1);
    project.Project.NOFFUSER.Set(0, 0);
    EXPECT_THAT(project.LinesBehind("1 1 1.000 1.000", 5), ElementsAre("0", "0 ", "", "", "DRAFT"));
}

TEST(HullRecords, MoreOffsetsThanAStationHoldsAreSixty)
{
    CEngineProject project;
    project.SetStations(21);
    project.Project.NOFFUSER.Set(20, 1e30F);
    EXPECT_EQ(project.LinesBehind("20", 2).front(), "60 ");
    project.Project.NOFFUSER.Set(20, -5);
    EXPECT_THAT(project.LinesBehind("20", 3), ElementsAre("-5 ", "", ""));
    project.Project.NOFFUSER.Set(20, std::numeric_limits<float>::quiet_NaN());
    EXPECT_THAT(project.LinesBehind("20", 3), ElementsAre("nan ", "", ""));
}

TEST(HullRecords, MoreStationsThanTheProjectHoldsAreTwentyOne)
{
    for (const float hostile : {25.0F, 1e30F})
    {
        CEngineProject project;
        project.SetStations(21);
        project.Project.NST.Set(hostile);
        EXPECT_EQ(project.LinesBehind("21 21 1.000 1.000", 85).back(), "DRAFT");
    }
}

TEST(HullRecords, AStationCountBelowZeroHasNoStations)
{
    CEngineProject project;
    project.Project.NST.Set(-5);
    EXPECT_THAT(project.LinesBehind("OFFSETS", 2), ElementsAre("-5 -5 1.000 1.000", "DRAFT"));
    project.Project.NST.Set(std::numeric_limits<float>::quiet_NaN());
    EXPECT_THAT(project.LinesBehind("OFFSETS", 2), ElementsAre("nan 0 1.000 1.000", "DRAFT"));
}

TEST(HullRecords, StationsBySectionAreas)
{
    CEngineProject project;
    project.SetSections(2);
    project.Project.BEAM.unit = 1;
    EXPECT_THAT(project.LinesBehind("BEAMDRAFT", 6), ElementsAre("2 2 1.000 1.000", "0", "3.048 5.000 0.9000",
                                                                 "1", "3.048 5.000 0.9000", "DRAFT"));
}

TEST(HullRecords, SectionAreasAreNotRoundedFirst)
{
    CEngineProject project;
    project.SetSections(1);
    project.Project.INSYS.Set(0);
    project.Project.BEAM.Set(0, 1.00049F);
    EXPECT_THAT(project.LinesBehind("1 1 1.000 1.000", 2), ElementsAre("0", "3.282 16.404 0.9000"));
}

TEST(HullRecords, DraftAndTrimAreConvertedEachByItsUnit)
{
    CEngineProject project;
    project.Project.DRAFTMID.Set(10);
    project.Project.DRAFTMID.unit = 1;
    project.Project.TRIMST.Set(-0.5F);
    EXPECT_THAT(project.LinesBehind("DRAFT", 2), ElementsAre("3.048 -0.500", "0 20.00 0.0100"));
}

TEST(HullRecords, DisplacementAndItsCentreHaveNoTest)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.TRIMDEF.Set(1);
    p.DRAFTMID.Set(-1);
    p.DISPUSER.Set(1000);
    p.DISPUSER.unit = 1;
    p.LCGPUSER.Set(50);
    EXPECT_THAT(project.LinesBehind("DISP", 2), ElementsAre("1016.047 50.000", "0 20.00 0.0100"));
    p.DISPUSER.Set(-1);
    p.LCGPUSER.Set(-1);
    EXPECT_EQ(project.LineBehind("DISP"), "-1.016 -1.000");
}

TEST(HullRecords, TheThirdLoadingOptionHasNoValues)
{
    CEngineProject project;
    project.Project.TRIMDEF.Set(2);
    EXPECT_EQ(project.LineBehind("DISP"), "0 20.00 0.0100");
}

TEST(HullRecords, AnyMetacentreFlagButZeroAsksForItsHeight)
{
    for (const float flag : {2.0F, -1.0F})
    {
        CEngineProject project;
        project.Project.GMFLAG.Set(flag);
        EXPECT_FALSE(project.Write());
        EXPECT_EQ(project.LastLine(), "GMINPUT WETROLLNF");
        project.Project.GMUSER.Set(1.5F);
        EXPECT_EQ(project.LineBehind("GMINPUT WETROLLNF"), "1.50 ");
    }
}

TEST(HullRecords, OnlyATagOfZeroCountsAsIncompleteOffsets)
{
    CEngineProject project;
    project.SetStations(1);
    project.Project.SectionAreaUnit = 2;
    EXPECT_TRUE(project.Write());
}

TEST(HullRecords, AnyDefinitionButOffsetsIsBySections)
{
    CEngineProject project;
    project.SetSections(1);
    project.Project.HULLDEF.Set(2);
    project.Project.BEAM.Set(8);
    project.Project.DRAFT.Set(3);
    project.Project.ACOEF.Set(0.5F);
    EXPECT_THAT(project.LinesBehind("BEAMDRAFT", 3),
                testing::ElementsAre("1 1 1.000 1.000", "0", "8.000 3.000 0.5000"));
}
