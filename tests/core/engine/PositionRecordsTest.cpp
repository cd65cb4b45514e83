#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{
const std::string kLoading = "6.250 0.000";
const std::string kNoKeels = "0";
} // namespace

TEST(PositionRecords, OnePositionIsNoneAndSoAreZeroAndUnset)
{
    for (const float count : {1.0F, 0.0F, -1.0F, -5.0F, std::numeric_limits<float>::quiet_NaN()})
    {
        CEngineProject project;
        project.Project.NPOS.Set(count);
        EXPECT_THAT(project.LinesBehind(kLoading, 2), ElementsAre("0 20.00 0.0100", kNoKeels));
    }
}

TEST(PositionRecords, TheCountIsTruncatedAndOneLess)
{
    CEngineProject project;
    project.SetPositions(9);
    project.Project.NPOS.Set(2.9F);
    EXPECT_EQ(project.LineBehind(kLoading), "1 20.00 0.0100");
}

TEST(PositionRecords, MorePositionsThanTheProjectHoldsAreTen)
{
    for (const float hostile : {12.0F, 1e30F})
    {
        CEngineProject project;
        project.SetPositions(10);
        project.Project.NPOS.Set(hostile);
        const auto lines = project.LinesBehind(kLoading, 22);
        EXPECT_EQ(lines[0], "10 20.00 0.0100");
        EXPECT_EQ(lines[19], "Position10 NOSLAM NOMII NOMSI");
        EXPECT_EQ(lines[21], kNoKeels);
    }
}

TEST(PositionRecords, SlamTimesBelowZeroAreZero)
{
    CEngineProject project;
    project.Project.SLAMHOUR.Set(-1);
    project.Project.SLAMEX.Set(-0.5F);
    EXPECT_EQ(project.LineBehind(kLoading), "0 0 0");
    project.Project.SLAMHOUR.Set(0);
    project.Project.SLAMEX.Set(0);
    EXPECT_EQ(project.LineBehind(kLoading), "0 0.00 0.0000");
}

TEST(PositionRecords, AnEmptyLabelIsPositionAndItsNumber)
{
    CEngineProject project;
    project.SetPositions(3);
    project.Project.PositionLabel[1] = "Flight_deck";
    EXPECT_THAT(project.LinesBehind(kLoading, 7),
                ElementsAre("3 20.00 0.0100", "Position1 NOSLAM NOMII NOMSI", "3.00 1.000 8.000 9.000",
                            "Flight_deck NOSLAM NOMII NOMSI", "3.00 1.000 8.000 9.000",
                            "Position3 NOSLAM NOMII NOMSI", "3.00 1.000 8.000 9.000"));
}

TEST(PositionRecords, HeightsAreConvertedEachByItsUnitAndStationsAreNot)
{
    CEngineProject project;
    project.SetPositions(1);
    CProjectData& p = project.Project;
    p.XSTPOS.unit = p.ZPOSBL.unit = 1;
    EXPECT_EQ(project.LineBehind("Position1 NOSLAM NOMII NOMSI"), "3.00 1.000 2.438 9.000");
}

TEST(PositionRecords, AnUnsetDeckHeightIsZero)
{
    CEngineProject project;
    project.SetPositions(1);
    project.Project.DECKHBL.Fill(-1);
    EXPECT_EQ(project.LineBehind("Position1 NOSLAM NOMII NOMSI"), "3.00 1.000 8.000 0.00");
}

TEST(PositionRecords, AnUnsetDeckHeightThatIsConvertedStays)
{
    CEngineProject project;
    project.SetPositions(1);
    project.Project.DECKHBL.Fill(-1);
    project.Project.DECKHBL.unit = 1;
    EXPECT_EQ(project.LineBehind("Position1 NOSLAM NOMII NOMSI"), "3.00 1.000 8.000 -0.305");
}

TEST(PositionRecords, AStationOfMinusOneIsGiven)
{
    CEngineProject project;
    project.SetPositions(1);
    project.Project.XSTPOS.Set(-1);
    EXPECT_EQ(project.LineBehind("Position1 NOSLAM NOMII NOMSI"), "-1.00 1.000 8.000 9.000");
}

TEST(PositionRecords, SlamByForm)
{
    CEngineProject project;
    project.SetPositions(1);
    CProjectData& p = project.Project;
    p.RELMOCALC.Set(1);
    p.SLFORM.Set(0.5F);
    p.SLWIDTH.Set(10);
    p.SLWIDTH.unit = 1;
    EXPECT_THAT(project.LinesBehind("Position1 SLAMFORM NOMII NOMSI", 3),
                ElementsAre("3.00 1.000 8.000 9.000", "0.5000 3.048", kNoKeels));
}

TEST(PositionRecords, SlamByOffsetsIsWrittenAsStored)
{
    CEngineProject project;
    project.SetPositions(2);
    CProjectData& p = project.Project;
    p.RELMOCALC.Set(1, 2);
    p.NSLOFF.Set(1, 2);
    p.SlamLoadHeight[1] = 1.5F;
    p.YSLOFFBL.Set(11, 1);
    p.YSLOFFBL.Set(12, 2);
    p.ZSLOFFBL.Set(11, 3);
    p.ZSLOFFBL.Set(12, 4);
    p.YSLOFFBL.unit = p.ZSLOFFBL.unit = p.NSLOFF.unit = 1;
    EXPECT_THAT(
        project.LinesBehind("Position2 SLAMOFFSET NOMII NOMSI", 5),
        ElementsAre("3.00 1.000 8.000 9.000", "2 1.5000", "1.0000 2.0000", "3.0000 4.0000", kNoKeels));
}

TEST(PositionRecords, NoSlamOffsetsGiveEmptyLines)
{
    for (const float count : {0.0F, -5.0F})
    {
        CEngineProject project;
        project.SetPositions(1);
        project.Project.RELMOCALC.Set(2);
        project.Project.NSLOFF.Set(count);
        EXPECT_THAT(project.LinesBehind("3.00 1.000 8.000 9.000", 4),
                    ElementsAre(FixedText(count, "%.0f") + " -1.0000", "", "", kNoKeels));
    }
}

TEST(PositionRecords, MoreSlamOffsetsThanAPositionHoldsAreEleven)
{
    CEngineProject project;
    project.SetPositions(10);
    project.Project.RELMOCALC.Set(9, 2);
    project.Project.NSLOFF.Set(9, 1e30F);
    EXPECT_EQ(project.LinesBehind("Position10 SLAMOFFSET NOMII NOMSI", 2)[1], "11 -1.0000");
}

TEST(PositionRecords, SlamByWedge)
{
    CEngineProject project;
    project.SetPositions(1);
    CProjectData& p = project.Project;
    p.RELMOCALC.Set(3);
    p.DEADR.Set(20);
    p.SLHEIGHT.Set(2);
    p.SLHEIGHT.unit = 1;
    EXPECT_THAT(project.LinesBehind("Position1 SLAMWEDGE NOMII NOMSI", 3),
                ElementsAre("3.00 1.000 8.000 9.000", "20.0000 2.00", kNoKeels));
}

TEST(PositionRecords, DeckWetnessAndEmergenceHaveNoSlamLine)
{
    CEngineProject project;
    project.SetPositions(2);
    project.Project.RELMOCALC.Set(0, 4);
    project.Project.RELMOCALC.Set(1, 5);
    EXPECT_THAT(project.LinesBehind("2 20.00 0.0100", 5),
                ElementsAre("Position1 DECKWET NOMII NOMSI", "3.00 1.000 8.000 9.000",
                            "Position2 EMERGE NOMII NOMSI", "3.00 1.000 8.000 9.000", kNoKeels));
}

TEST(PositionRecords, InterruptionValuesBelowZeroHaveDefaults)
{
    CEngineProject project;
    project.SetPositions(1);
    CProjectData& p = project.Project;
    p.MIIFLAG.Set(1);
    p.TCLAT.Set(0.3F);
    p.TCLONG.Set(0.2F);
    p.TIMEOP.Set(30);
    EXPECT_EQ(project.LinesBehind("Position1 NOSLAM MII NOMSI", 2)[1], "0.30 0.20 30.00");
    p.TCLAT.Set(-1);
    p.TCLONG.Set(-0.1F);
    p.TIMEOP.Set(-1);
    EXPECT_EQ(project.LinesBehind("Position1 NOSLAM MII NOMSI", 2)[1], "0.25 0.17 60.00");
}

TEST(PositionRecords, AnInterruptionFlagOfNoWholeNumberFollowsItsWord)
{
    CEngineProject project;
    project.SetPositions(1);
    project.Project.MIIFLAG.Set(0.3F);
    EXPECT_THAT(project.LinesBehind("Position1 NOSLAM NOMII NOMSI", 2),
                ElementsAre("3.00 1.000 8.000 9.000", kNoKeels));
}

TEST(PositionRecords, SicknessMethods)
{
    CEngineProject project;
    project.SetPositions(4);
    CProjectData& p = project.Project;
    p.MSIFlag = {1, 1, 1, 2};
    p.MSIMethod = {1, 0, 0, 1};
    p.MSIExposureOption = {1, 1, 0, 0};
    p.MSIExposure = {2, 3, 5.5F, 6};
    EXPECT_THAT(project.LinesBehind("4 20.00 0.0100", 12),
                ElementsAre("Position1 NOSLAM NOMII MSIBV", "3.00 1.000 8.000 9.000", "2.00",
                            "Position2 NOSLAM NOMII MSICOLWELL", "3.00 1.000 8.000 9.000", "0.00",
                            "Position3 NOSLAM NOMII MSICOLWELL", "3.00 1.000 8.000 9.000", "5.50",
                            "Position4 NOSLAM NOMII NOMSI", "3.00 1.000 8.000 9.000", kNoKeels));
}

TEST(PositionRecords, OnlyColwellByItsMaximumHasNoHours)
{
    CEngineProject project;
    project.SetPositions(1);
    CProjectData& p = project.Project;
    p.MSIFlag[0] = 1;
    p.MSIExposure[0] = 2.5F;
    p.MSIExposureOption[0] = 1;
    p.MSIMethod[0] = 2;
    EXPECT_TRUE(project.Write());
    EXPECT_THAT(project.Text(), testing::HasSubstr(" MSICOLWELL\n"));
    EXPECT_THAT(project.Text(), testing::HasSubstr("\n2.50\n"));
    p.MSIMethod[0] = 0;
    p.MSIExposureOption[0] = 2;
    EXPECT_TRUE(project.Write());
    EXPECT_THAT(project.Text(), testing::HasSubstr("\n2.50\n"));
}
