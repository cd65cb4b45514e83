#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;

namespace
{
const std::string kNoPositions = "0 20.00 0.0100";
const std::string kNoRudderLine = "0.00 0.00 0.00 0.00 0.00 0.00 0.00 0 0.00";

struct CAppendedProject : CEngineProject
{
    CAppendedProject() { Project.AppendedHull = 1; }

    void IncludeRudder()
    {
        CProjectData& p = Project;
        p.IncludeRudder = 1;
        p.XSTRUD.Set(19.5F);
        p.YRTRUD.Set(1);
        p.ZRTRUDBL.Set(2);
        p.SPANRUD.Set(3);
        p.RCRUD.Set(4);
        p.TCRUD.Set(5);
        p.CLA0RUD.Set(0.25F);
        p.ISLIPRUD.Set(1);
        p.RudderDihedral = -85;
    }
    void IncludeKeels(int pairs)
    {
        Project.IncludeBilgeKeels = 1;
        Project.NBKPAIR.Set(static_cast<float>(pairs));
        Project.IFIRSTBK.Fill(7);
        Project.ILASTBK.Fill(8);
        Project.XSTBKFORE.Fill(7);
        Project.XSTBKAFT.Fill(8);
        Project.YBK.Fill(4);
        Project.ZBKBL.Fill(1);
        Project.BBK.Fill(0.5F);
    }
};
} // namespace

TEST(AppendageRecords, ABareHull)
{
    CEngineProject project;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 9),
                ElementsAre("0", "0 0 0", kNoRudderLine, "0", "0.00 0.00 0.00 0.00 0.00 0.00 0.00",
                            "0.00 0.00 0.00", "0.00 0.00 0.00 1", "0", "NOSTAB"));
    EXPECT_EQ(project.LastLine(), "NOSTAB");
}

TEST(AppendageRecords, TheMasterSwitchRulesAllParts)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    project.IncludeKeels(1);
    project.IncludeRudder();
    p.IncludeSkeg = p.IncludeFoils = 1;
    p.NFOILPAIR.Set(1);
    p.AppendedHull = 0;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 9),
                ElementsAre("0", "0 0 0", kNoRudderLine, "0", "0.00 0.00 0.00 0.00 0.00 0.00 0.00",
                            "0.00 0.00 0.00", "0.00 0.00 0.00 1", "0", "NOSTAB"));
}

TEST(AppendageRecords, BilgeKeelRowsOfEachPair)
{
    CAppendedProject project;
    project.IncludeKeels(2);
    CProjectData& p = project.Project;
    p.YBK.Set(21, 5);
    p.ZBKBL.unit = 1;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 8),
                ElementsAre("2", "7 8", "7.00 8.00 4.000 0.305 0.500", "7.00 8.00 4.000 0.305 0.500", "7 8",
                            "7.00 8.00 5.000 0.305 0.500", "7.00 8.00 4.000 0.305 0.500", "0 0 0"));
}

TEST(AppendageRecords, AnUnsetKeelCountIsWritten)
{
    CAppendedProject project;
    project.IncludeKeels(-1);
    EXPECT_THAT(project.LinesBehind(kNoPositions, 2), ElementsAre("-1", "0 0 0"));
}

TEST(AppendageRecords, UnsetKeelStationsPass)
{
    CAppendedProject project;
    project.IncludeKeels(1);
    project.Project.IFIRSTBK.Fill(-1);
    project.Project.ILASTBK.Fill(-1);
    EXPECT_THAT(project.LinesBehind(kNoPositions, 4),
                ElementsAre("1", "-1 -1", "7.00 8.00 4.000 1.000 0.500", "0 0 0"));
}

TEST(AppendageRecords, AKeelThatEndsBeforeItBeginsHasNoRows)
{
    CAppendedProject project;
    project.IncludeKeels(1);
    project.Project.ILASTBK.Fill(3);
    EXPECT_THAT(project.LinesBehind(kNoPositions, 3), ElementsAre("1", "7 3", "0 0 0"));
}

TEST(AppendageRecords, AKeelHasNoMoreRowsThanThereAreStations)
{
    CAppendedProject project;
    project.IncludeKeels(1);
    CProjectData& p = project.Project;
    p.NBKPAIR.Set(1e30F);
    p.IFIRSTBK.Fill(-1e30F);
    p.ILASTBK.Fill(1e30F);
    EXPECT_EQ(project.LinesBehind(kNoPositions, 1 + 5 * 22 + 1).front(), "5");
    EXPECT_EQ(project.LinesBehind(kNoPositions, 1 + 5 * 22 + 1).back(), "0 0 0");
    p.IFIRSTBK.Fill(1e30F);
    p.ILASTBK.Fill(-1e30F);
    EXPECT_EQ(project.LinesBehind(kNoPositions, 7).back(), "0 0 0");
}

TEST(AppendageRecords, Skeg)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    p.IncludeSkeg = 1;
    p.XSTAFTSKEG.Set(18.5F);
    p.BSKEG.Set(1);
    p.ELSKEG.Set(10);
    p.ELSKEG.unit = 1;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 2), ElementsAre("0", "18.50 1.000 3.048"));
}

TEST(AppendageRecords, RudderWithoutStabilization)
{
    CAppendedProject project;
    project.IncludeRudder();
    project.Project.SPANRUD.unit = 1;
    EXPECT_THAT(project.LinesBehind("0 0 0", 6),
                ElementsAre("19.50 1.000 2.000 0.914 4.000 5.000 0.250 1 -85.000", "0 ",
                            "0.00 0.00 0.00 0.00 0.00 0.00 0.00", "0.00 0.00 0.00", "0.00 0.00 0.00 1", "0"));
}

TEST(AppendageRecords, YawGainsNeedNoStabilization)
{
    CAppendedProject project;
    project.IncludeRudder();
    project.Project.YAGNRUD.Set(1.5F);
    project.Project.YGNRUD.Set(-1);
    EXPECT_THAT(project.LinesBehind("0 0 0", 4).back(), "1.5000 0.00 -1.0000");
}

TEST(AppendageRecords, RollGainsOfAStabilizingRudder)
{
    CAppendedProject project;
    project.IncludeRudder();
    CProjectData& p = project.Project;
    p.RudderRollStabilization = 1;
    float value = 1;
    for (CParamArray* field :
         {&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD})
    {
        field->Set(value++);
    }
    p.RudderLateralGains = {0.5F, 1, 2};
    p.RudderLateralGainUnits = {0, 1, 0};
    EXPECT_THAT(project.LinesBehind("0 0 0", 6),
                ElementsAre("19.50 1.000 2.000 3.000 4.000 5.000 0.250 1 -85.000", "0 ",
                            "1.0000 2.0000 3.0000 4.0000 5.0000 6.0000 7.0000", "0.00 0.00 0.00",
                            "0.500 3.281 2.000 1", "0"));
}

TEST(AppendageRecords, ASpecifiedPointStandsBehindTheLateralGains)
{
    CAppendedProject project;
    project.IncludeRudder();
    CProjectData& p = project.Project;
    p.RudderRollStabilization = 1;
    p.RudderLateralGains = {1, 1, 1};
    p.LateralGainPoint = 1;
    p.LateralPointX = 10;
    p.LateralPointZ = 2;
    p.LateralPointZUnit = 1;
    EXPECT_THAT(project.LinesBehind("0.00 0.00 0.00", 3),
                ElementsAre("1.000 1.000 1.000 0", "10.0000 6.562", "0"))
        << "the height takes a gain's factor";
    p.LateralPointX = -1;
    EXPECT_EQ(project.LinesBehind("0.00 0.00 0.00", 2).back(), "0.00 6.562");
    p.LateralGainPoint = 2;
    EXPECT_THAT(project.LinesBehind("0.00 0.00 0.00", 2), ElementsAre("1.000 1.000 1.000 0", "0"));
}

TEST(AppendageRecords, UnsetLateralGainsAreConvertedLikeAnyValue)
{
    CAppendedProject project;
    project.IncludeRudder();
    CProjectData& p = project.Project;
    p.RudderRollStabilization = 1;
    p.RudderLateralGainUnits = {1, 0, 1};
    EXPECT_EQ(project.LineBehind("0.00 0.00 0.00"), "-364537.404 -111111.000 -364537.404 1");
    p.INSYS.Set(0);
    EXPECT_EQ(project.LineBehind("0.00 0.00 0.00"), "-111111.000 -33866.633 -111111.000 1");
}

TEST(FoilRecords, FoilsAreConvertedEachByItsUnit)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    p.IncludeFoils = 1;
    p.NFOILPAIR.Set(2);
    project.SetFoil(0);
    project.SetFoil(1);
    p.CLA0FOIL.Set(0, 1.5F);
    p.CLA0FOIL.Set(1, 2.5F);
    p.CLA0COMPUTE.Set(1, 1);
    p.YRTFOIL.unit = 1;
    EXPECT_THAT(project.LinesBehind("0.00 0.00 0.00 1", 4),
                ElementsAre("2", "2.00 0.6096 2.0000 2.0000 2.0000 2.0000 0.0 -1.0000",
                            "2.00 0.6096 2.0000 2.0000 2.0000 2.0000 2.5000 -1.0000", "NOSTAB"));
}

TEST(FoilRecords, ALiftSlopeIsGivenByExactlyOne)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    p.IncludeFoils = 1;
    p.NFOILPAIR.Set(1);
    project.SetFoil(0);
    p.CLA0FOIL.Set(1.5F);
    p.CLA0COMPUTE.Set(1.25F);
    EXPECT_EQ(project.LinesBehind("0.00 0.00 0.00 1", 2).back(),
              "2.00 2.0000 2.0000 2.0000 2.0000 2.0000 0.0 -1.0000");
}

TEST(FoilRecords, HostileCounts)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    p.IncludeFoils = 1;
    for (int i = 0; i < 4; ++i)
    {
        project.SetFoil(i);
    }
    p.NFOILPAIR.Set(1e30F);
    EXPECT_EQ(project.LinesBehind("0.00 0.00 0.00 1", 6).front(), "4");
    EXPECT_EQ(project.LinesBehind("0.00 0.00 0.00 1", 6).back(), "NOSTAB");
    p.NFOILPAIR.Set(-1);
    EXPECT_THAT(project.LinesBehind("0.00 0.00 0.00 1", 2), ElementsAre("-1", "NOSTAB"));
    p.NFOILPAIR.Set(std::numeric_limits<float>::quiet_NaN());
    EXPECT_THAT(project.LinesBehind("0.00 0.00 0.00 1", 2), ElementsAre("nan", "NOSTAB"));
}

TEST(AppendageRecords, OnlyAOneIncludesAPart)
{
    CAppendedProject project;
    CProjectData& p = project.Project;
    project.IncludeKeels(1);
    project.IncludeRudder();
    p.IncludeBilgeKeels = p.IncludeRudder = p.IncludeSkeg = p.IncludeFoils = 2;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 3), ElementsAre("0", "0 0 0", kNoRudderLine));
    p.IncludeBilgeKeels = p.IncludeRudder = 1;
    p.AppendedHull = 2;
    EXPECT_THAT(project.LinesBehind(kNoPositions, 3), ElementsAre("0", "0 0 0", kNoRudderLine));
}

TEST(AppendageRecords, OnlyAOneStabilizesByRudder)
{
    CAppendedProject project;
    project.IncludeRudder();
    project.Project.RudderRollStabilization = 2;
    EXPECT_THAT(
        project.LinesBehind("19.50 1.000 2.000 3.000 4.000 5.000 0.250 1 -85.000", 4),
        ElementsAre("0 ", "0.00 0.00 0.00 0.00 0.00 0.00 0.00", "0.00 0.00 0.00", "0.00 0.00 0.00 1"));
}

TEST(AppendageRecords, AnIncompleteSkegLeavesTheRuddersGainFileUncopied)
{
    CAppendedProject project;
    project.IncludeRudder();
    project.Project.IncludeSkeg = 1;
    project.Project.RudderGainFileUsed = 1;
    project.Project.RudderGainFile = project.Folder.Write("gains.txt", "gains");
    EXPECT_FALSE(project.Write());
    EXPECT_FALSE(FileExists(project.Folder.File("RudderGain.inp")));
}
