#include "tests/core/engine/CEngineProject.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{
/// Two seaways of the spectrum; the lines behind their number, with the ship speeds as the last.
std::vector<std::string> Seaways(CEngineProject& project, int spectrum, std::size_t lines)
{
    project.Project.SPECTRUM.Set(static_cast<float>(spectrum));
    project.Project.NSEAWAY.Set(2);
    return project.LinesBehind("2", lines);
}

void SetTwo(CTenFloats& values, float first, float second)
{
    values[0] = first;
    values[1] = second;
}
} // namespace

TEST(SeawayRecords, ARegularSeaHasItsSteepnessWhateverTheNumberOfSeaways)
{
    CEngineProject project;
    project.Project.WAVESTEEP.Set(0.0125F);
    EXPECT_THAT(Seaways(project, 0, 2), ElementsAre("0.0125", "0 "));
}

TEST(SeawayRecords, QuadraticHeightsAreConvertedByTheirUnitAndPeriodsAreNot)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.HSW.Set(0, 10);
    p.HSW.Set(1, 3.281F);
    p.TSW.Set(0, 8.125F);
    p.TSW.Set(1, 9);
    p.HSW.unit = p.TSW.unit = 1;
    EXPECT_THAT(Seaways(project, 1, 3), ElementsAre("3.05 8.12", "1.00 9.00", "0 "));
}

TEST(SeawayRecords, AnUnsetSecondHeightIsWrittenAsAHeight)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    p.HSW.Set(0, 10);
    p.TSW.Set(0, 8);
    EXPECT_THAT(Seaways(project, 1, 3), ElementsAre("10.00 8.00", "-1.00 -1.00", "0 "));
    p.HSW.unit = 1;
    EXPECT_THAT(Seaways(project, 1, 2), ElementsAre("3.05 8.00", "-0.30 -1.00"));
}

TEST(SeawayRecords, BretschneiderLinesEndInABlank)
{
    CEngineProject project;
    SetTwo(project.Project.BretHs, 2, 3);
    SetTwo(project.Project.BretTp, 8, 9);
    project.Project.INSYS.Set(0);
    EXPECT_THAT(Seaways(project, 2, 3), ElementsAre("6.56 8.00 ", "9.84 9.00 ", "0 "));
    project.Project.BretUnit = 1;
    EXPECT_THAT(Seaways(project, 2, 2), ElementsAre("2.00 8.00 ", "3.00 9.00 "));
}

TEST(SeawayRecords, HeightsAreRoundedBeforeTheyAreConverted)
{
    CEngineProject project;
    SetTwo(project.Project.BretHs, 1.00499F, 1.0051F);
    SetTwo(project.Project.BretTp, 8, 9);
    project.Project.INSYS.Set(0);
    EXPECT_THAT(Seaways(project, 2, 2), ElementsAre("3.28 8.00 ", "3.31 9.00 "));
}

TEST(SeawayRecords, JonswapHasThePeakednessBehind)
{
    CEngineProject project;
    SetTwo(project.Project.JonswapHs, 2, 3);
    SetTwo(project.Project.JonswapTp, 8, 9);
    project.Project.PEAKENSW.Set(1, -1);
    project.Project.JonswapUnit = 1;
    EXPECT_THAT(Seaways(project, 3, 3), ElementsAre("0.61 8.00 3.30", "0.91 9.00 -1.00", "0 "));
}

TEST(SeawayRecords, JonswapPeakednessIsNotTested)
{
    CEngineProject project;
    SetTwo(project.Project.JonswapHs, 2, 3);
    SetTwo(project.Project.JonswapTp, 8, 9);
    project.Project.PEAKENSW.Fill(-1);
    EXPECT_THAT(Seaways(project, 3, 1), ElementsAre("2.00 8.00 -1.00"));
}

TEST(SeawayRecords, OchiHubbleHasSixValuesAndABlank)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    SetTwo(p.OchiHs1, 1, 7);
    SetTwo(p.OchiTp1, 2, 8);
    SetTwo(p.OchiLam1, 3, 9);
    SetTwo(p.OchiHs2, 4, 10);
    SetTwo(p.OchiTp2, 5, 11);
    SetTwo(p.OchiLam2, 6, 12);
    EXPECT_THAT(Seaways(project, 4, 3),
                ElementsAre("1.00 2.00 3.00 4.00 5.00 6.00 ", "7.00 8.00 9.00 10.00 11.00 12.00 ", "0 "));
    p.OchiUnit = 1;
    EXPECT_THAT(Seaways(project, 4, 1), ElementsAre("0.30 2.00 3.00 1.22 5.00 6.00 "));
}

TEST(SeawayRecords, AMeasuredSpectrumHasThreeLines)
{
    CEngineProject project;
    project.Project.SpectrumFile = "C:\\sea\rs\\uni 1.txt";
    project.Project.NFREQSPUNI.Set(40);
    EXPECT_THAT(Seaways(project, 5, 4), ElementsAre("C:\\seas\\uni 1.txt", "METRIC", "40", "0 "));
    project.Project.SPUNISYS.Set(0);
    EXPECT_THAT(Seaways(project, 5, 2), ElementsAre("C:\\seas\\uni 1.txt", "BRITISH"));
}

TEST(SeawayRecords, TenParametersConvertEachHeightByItsOwnUnit)
{
    CEngineProject project;
    CProjectData& p = project.Project;
    float value = 1;
    for (CParamArray* field : {&p.ZETA1, &p.OMEGA1, &p.LAMB1, &p.KAPA1, &p.EXPP1, &p.ZETA2, &p.OMEGA2,
                               &p.LAMB2, &p.KAPA2, &p.EXPP2})
    {
        field->Fill(value++);
    }
    p.ZETA2.unit = 1;
    EXPECT_THAT(Seaways(project, 6, 2), ElementsAre("1.00 2.00 3.00 4.00 5.00 1.83 7.00 8.00 9.00 10.00",
                                                    "1.00 2.00 3.00 4.00 5.00 1.83 7.00 8.00 9.00 10.00"));
    p.INSYS.Set(0);
    EXPECT_THAT(Seaways(project, 6, 1), ElementsAre("3.28 2.00 3.00 4.00 5.00 6.00 7.00 8.00 9.00 10.00"));
}

TEST(SeawayRecords, HindcastAndDirectionalSeasAreTheirFile)
{
    CEngineProject project;
    project.Project.HindcastFile = "hind.txt";
    project.Project.DirectionalFile = "dir.txt";
    EXPECT_THAT(Seaways(project, 7, 2), ElementsAre("hind.txt", "0 "));
    EXPECT_THAT(Seaways(project, 8, 2), ElementsAre("dir.txt", "0 "));
}

TEST(SeawayRecords, ASpectrumOutsideItsRangeHasNoSeaAndNoTest)
{
    CEngineProject project;
    EXPECT_THAT(Seaways(project, 9, 1), ElementsAre("0 "));
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
    project.Project.WAVESTEEP.Set(-1);
    project.Project.SPECTRUM.Set(0.5F);
    EXPECT_THAT(project.LinesBehind("REGULAR", 4), ElementsAre("1 0.00", "180.00", "2", "0 "));
}

TEST(SeawayRecords, UnsetSeawayCountIsWrittenAndNoSeawayLine)
{
    CEngineProject project;
    project.Project.SPECTRUM.Set(2);
    project.Project.NSEAWAY.Set(-1);
    EXPECT_THAT(project.LinesBehind("BRETSCHNEIDER", 4), ElementsAre("1 0.00", "180.00", "-1", "0 "));
    EXPECT_THAT(project.Recorder.Messages, IsEmpty()) << "without a seaway there is none to test";
}

TEST(SeawayRecords, MoreSeawaysThanTheProjectHoldsAreTen)
{
    for (const float hostile : {12.0F, 1e30F})
    {
        CEngineProject project;
        project.Project.SPECTRUM.Set(2);
        project.Project.BretHs.fill(2);
        project.Project.BretTp.fill(8);
        project.Project.NSEAWAY.Set(hostile);
        const auto lines = project.LinesBehind("10", 11);
        EXPECT_EQ(lines[9], "2.00 8.00 ");
        EXPECT_EQ(lines[10], "0 ");
    }
}
